#pragma once

#include <QWidget>

#include "platform/services.h"
#include "report/report.h"

namespace borvik {

/// What makes a report the document of an office, as it was kept by the last saveOffice: first page, its texts, logo.
void loadOffice(const SettingsStore& settings, ReportExtras& extras);
void saveOffice(SettingsStore& settings, const ReportExtras& extras);

/// The tick for the first page, a box for each text of it and the file of the logo. Each change is in the extras at
/// once.
class OfficeFields : public QWidget {
public:
    /// @param extras  live longer than this
    OfficeFields(ReportExtras& extras, const Services& services, QWidget* parent = nullptr);
};

/// Asks for the same in a window of its own. @return false when cancelled; the extras are then as they were
bool editOffice(ReportExtras& extras, const Services& services, QWidget* parent);

}  // namespace borvik
