#pragma once

#include <string>

#include "calculation/session.h"
#include "report/report.h"

namespace borvik {

/// The report that is asked for.
struct ReportWish {
    ReportScope scope;
    const ReportExtras& extras;
    const std::string& paper;  ///< "a4" or "letter"; empty: as is the custom here
};

/// Saves the report as PDF. Needs no display.
/// @pre canReport(session)
/// @throws OutputError  when the file can't be written, the logo can't be read, or the program was built without Qt
void saveReport(const Session& session, const ReportWish& wish, const std::string& file);

}  // namespace borvik
