#pragma once

#include <QWidget>

#include "calculation/session.h"

namespace borvik {

struct ResultTable;

/// What a print command prints.
enum PrintScope : int { kPrintUls = 1, kPrintUlsSls = 2, kPrintAll = 3, kPrintCompressed = 4 };

/// False where this build cannot print: the commands are then disabled.
[[nodiscard]] bool canPrint();
/// Prints the report of the last calculation on a printer that the user chooses.
/// @param scope   1 ULS, 2 ULS+SLS, 3 ULS+SLS+FLS, 4 compressed
/// @param parent  owner of the print dialog
/// @pre the session is calculated
void printReport(Session& session, int scope, QWidget* parent);

/// False where this build has no spreadsheet export: the commands are then disabled.
[[nodiscard]] bool canExportTable();
/// Writes the table as a spreadsheet to a file that the user chooses.
void exportTable(const ResultTable& table, QWidget* parent);

}  // namespace borvik
