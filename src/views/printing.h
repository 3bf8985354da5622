#pragma once

#include <QWidget>
#include <string>

#include "calculation/session.h"
#include "platform/services.h"
#include "report/report.h"

namespace borvik {

struct ResultTable;

/// What a print command prints.
enum PrintScope : int { kPrintUls = 1, kPrintUlsSls = 2, kPrintAll = 3, kPrintCompressed = 4 };

// Without a calculation of the present input each of these shows " Calculate
// before print " and does no more; a cancelled dialog leaves everything as it
// was. What comes back is the file that was written; empty where there is none.

/// Prints the report of the last calculation on a printer that the user chooses, the pages and copies asked for.
/// @param scope   1 ULS, 2 ULS+SLS, 3 ULS+SLS+FLS, 4 compressed
/// @param extras  chapters wanted; the dialog can still be told otherwise, and keeps first page and logo there
/// @param services  where messages and questions go
/// @param parent  owner of the print dialog
std::string printReport(Session& session, int scope, ReportExtras& extras, const Services& services, QWidget* parent);
/// Shows the pages before they are printed, and prints them from there.
std::string previewReport(Session& session, int scope, ReportExtras& extras, const Services& services, QWidget* parent);
/// Saves the report as PDF to a file that the user chooses.
std::string saveReportAsPdf(Session& session, int scope, ReportExtras& extras, const Services& services,
                            QWidget* parent);

/// One of the three above.
using PrintCommand = std::string (*)(Session& session, int scope, ReportExtras& extras, const Services& services,
                                     QWidget* parent);

/// Writes the table to a new workbook and opens it in the user's spreadsheet program; saving it is up to the user.
/// Where no such program is found a box says so and offers to save the file.
void exportTable(const ResultTable& table, QWidget* parent);

/// Asks for a file and writes the table into it as comma-separated values, with the decimal sign of the desktop.
void saveTableAsCsv(const ResultTable& table, QWidget* parent);

}  // namespace borvik
