#pragma once

#include <string>
#include <vector>

#include "results/tables.h"

namespace borvik {

/// What a workbook says of itself in its properties and on its first or last sheet.
struct WorkbookHead {
    std::string project, identification, file, date, program;
};

/// A table and its name.
struct NamedTable {
    std::string title;
    ResultTable table;
};

/// Writes a table to a workbook: the headers in row 1, the rows below with the texts as shown. A cell
/// that shows a number is a number with a format that shows the same text, so that one can go on computing. Column A is
/// centred, columns A to H are fitted to their texts, the header row stays in sight. An empty table gives the headers
/// alone. A second sheet, "About", tells where it comes from, the unit and meaning of each column and the signs. The
/// old file stays until the new one is whole.
/// @param file   path
/// @param title  name of the sheet; what a sheet may not be called is left out
void saveSpreadsheet(const std::string& file, const ResultTable& table, const std::string& title,
                     const WorkbookHead& head);

/// All tables in one workbook: "About" first, then a sheet for each, whose headers have their units.
/// @throws OutputError  the file is then as it was
void saveWorkbook(const std::string& file, const std::vector<NamedTable>& tables, const WorkbookHead& head);

}  // namespace borvik
