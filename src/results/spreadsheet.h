#pragma once

#include <string>

#include "results/tables.h"

namespace borvik {

/// Writes a table to a workbook with one sheet: the headers in row 1, the rows below with the texts as shown. A cell
/// that shows a number is a number with a format that shows the same text, so that one can go on computing. Column A is
/// centred, columns A to H are fitted to their texts, the header row stays in sight. An empty table gives the headers
/// alone. The old file stays until the new one is whole.
/// @param file   path
/// @param title  name of the sheet; what a sheet may not be called is left out
/// @throws OutputError  the file is then as it was
void saveSpreadsheet(const std::string& file, const ResultTable& table, const std::string& title);

}  // namespace borvik
