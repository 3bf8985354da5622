#pragma once

#include <string>

#include "calculation/session.h"
#include "report/report.h"

namespace borvik {

/// Saves the report as PDF. Needs no display.
/// @pre canReport(session)
/// @throws OutputError  when the file can't be written, or the program was built without Qt
void saveReport(const Session& session, ReportScope scope, ReportExtras extras, const std::string& file);

}  // namespace borvik
