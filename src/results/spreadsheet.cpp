#include "results/spreadsheet.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <system_error>

#include "base/text.h"
#include "base/whole_file.h"

namespace borvik {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kFittedColumns = 8;  // A to H
constexpr double kWidestColumn = 100.0;    // characters

/// A name that a sheet may have: at most 31 characters, none of []:*?/\, no apostrophe at an end.
std::string sheetName(const std::string& title) {
    constexpr std::size_t kLongest = 31;
    std::string name;
    for (const char c : title)
        if (std::string_view("[]:*?/\\'").find(c) == std::string_view::npos) name += c;
    if (name.size() > kLongest) name.resize(kLongest);
    return name.empty() ? "Table" : name;
}

/// The number that shows as this text by its mask: what the sheet must hold for the format to show the same digits. The
/// sheet's own rounding of halves is no match for ours, so a number within a hair of a half is held as its shown text.
double sheetNumber(const TableCell& cell) {
    double shown = 0.0;
    std::from_chars(cell.text.data(), cell.text.data() + cell.text.size(), shown);
    const double number = *cell.number;
    const auto point = cell.mask.find('.');
    const auto decimals = point == std::string::npos ? 0U : cell.mask.size() - point - 1;
    const double half = 0.5 * std::pow(10.0, -static_cast<double>(decimals));
    const bool nearHalf = std::abs(std::abs(number - shown) - half) <= 1e-9 * std::max(1.0, std::abs(number));
    return nearHalf || (shown == 0.0 && number < 0.0) ? shown : number;
}

/// A folder that only this user can read, gone at the end: the library writes to files alone.
class PrivateFolder {
public:
    PrivateFolder() : folder_((fs::temp_directory_path() / "borvik-XXXXXX").string()) {
        if (::mkdtemp(folder_.data()) == nullptr) throw std::system_error(errno, std::generic_category());
    }
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;
    ~PrivateFolder() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    [[nodiscard]] std::string file() const { return folder_ + "/table.xlsx"; }

private:
    std::string folder_;
};

class Workbook {
public:
    explicit Workbook(const std::string& file) : workbook_(workbook_new(file.c_str())) {}
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;
    ~Workbook() {
        if (workbook_ != nullptr) workbook_close(workbook_);
    }
    [[nodiscard]] bool isOpen() const { return workbook_ != nullptr; }
    [[nodiscard]] lxw_worksheet* addSheet(const std::string& name) {
        return workbook_add_worksheet(workbook_, name.c_str());
    }

    /// The document's properties.
    void describe(const WorkbookHead& head) {
        std::string title = head.project + (head.identification.empty() ? "" : ", " + head.identification);
        std::string comments = head.file, keywords = head.program;
        lxw_doc_properties properties = {};
        properties.title = title.data();
        properties.comments = comments.data();
        properties.keywords = keywords.data();
        workbook_set_properties(workbook_, &properties);
    }

    /// One format for each kind of cell.
    lxw_format* format(const std::string& mask, bool centred, bool bold, bool red) {
        const auto key = mask + (centred ? "|c" : "|") + (bold ? "b" : "") + (red ? "r" : "");
        lxw_format*& made = formats_[key];
        if (made != nullptr) return made;
        made = workbook_add_format(workbook_);
        if (!mask.empty()) format_set_num_format(made, mask.c_str());
        if (centred) format_set_align(made, LXW_ALIGN_CENTER);
        if (bold) format_set_bold(made);
        if (red) format_set_font_color(made, LXW_COLOR_RED);
        return made;
    }

    lxw_error close() {
        lxw_workbook* const closing = workbook_;
        workbook_ = nullptr;
        return workbook_close(closing);
    }

private:
    lxw_workbook* workbook_;
    std::map<std::string, lxw_format*> formats_;
};

std::string headerOf(const TableColumn& column, bool withUnit) {
    if (!withUnit) return column.header;
    return std::string(trimmed(column.header)) + (column.unit.empty() ? "" : " (" + column.unit + ")");
}

void fill(Workbook& workbook, const ResultTable& table, const std::string& title, bool withUnits) {
    lxw_worksheet* const sheet = workbook.addSheet(sheetName(title));
    if (sheet == nullptr) throw OutputError("no sheet can be made");
    std::vector<std::size_t> widths(table.columns.size(), 0);
    const auto column = [](std::size_t number) { return static_cast<lxw_col_t>(number); };
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
        const std::string header = headerOf(table.columns[c], withUnits);
        worksheet_write_string(sheet, 0, column(c), header.c_str(), workbook.format("", c == 0, true, false));
        widths[c] = characters(header);
    }
    for (std::size_t r = 0; r < table.rows.size(); ++r) {
        const std::vector<TableCell>& row = table.rows[r];
        for (std::size_t c = 0; c < row.size() && c < table.columns.size(); ++c) {
            const TableCell& cell = row[c];
            const auto line = static_cast<lxw_row_t>(r + 1);
            const bool heading = cell.emphasis == Emphasis::Heading;
            const bool over = cell.emphasis == Emphasis::OverLimit;
            widths[c] = std::max(widths[c], characters(cell.text));
            // What is no finite number would make the file unreadable.
            if (cell.number && std::isfinite(*cell.number))
                worksheet_write_number(sheet, line, column(c), sheetNumber(cell),
                                       workbook.format(cell.mask, c == 0, over, over));
            else if (!cell.text.empty())
                worksheet_write_string(sheet, line, column(c), cell.text.c_str(),
                                       workbook.format("", c == 0, heading || over, over));
        }
    }
    for (std::size_t c = 0; c < std::min(widths.size(), kFittedColumns); ++c)
        worksheet_set_column(sheet, column(c), column(c), std::min(static_cast<double>(widths[c]) + 2.0, kWidestColumn),
                             nullptr);
    worksheet_freeze_panes(sheet, 1, 0);
    worksheet_repeat_rows(sheet, 0, 0);
    worksheet_set_landscape(sheet);
    worksheet_fit_to_pages(sheet, 1, 0);
}

/// Where the numbers come from, and what stands in the columns.
void fillAbout(Workbook& workbook, const std::vector<NamedTable>& tables, const WorkbookHead& head) {
    lxw_worksheet* const sheet = workbook.addSheet("About");
    if (sheet == nullptr) throw OutputError("no sheet can be made");
    lxw_row_t line = 0;
    const auto write = [&](lxw_col_t column, const std::string& text, bool bold = false) {
        if (!text.empty())
            worksheet_write_string(sheet, line, column, text.c_str(), workbook.format("", false, bold, false));
    };
    const std::pair<const char*, const std::string&> origin[] = {{"Project", head.project},
                                                                 {"Identification", head.identification},
                                                                 {"File", head.file},
                                                                 {"Date", head.date},
                                                                 {"Program", head.program}};
    for (const auto& [name, text] : origin) {
        if (text.empty()) continue;
        write(0, name, true);
        write(1, text);
        ++line;
    }
    for (const NamedTable& each : tables) {
        ++line;
        write(0, each.title, true);
        write(1, each.table.note);
        ++line;
        for (const TableColumn& column : each.table.columns) {
            write(0, std::string(trimmed(column.header)));
            write(1, column.help);
            write(2, column.unit);
            ++line;
        }
    }
    worksheet_set_column(sheet, 0, 0, 24.0, nullptr);
    worksheet_set_column(sheet, 1, 1, 70.0, nullptr);
}

/// Makes a workbook beside the file and puts it in its place when it is whole.
template <class Body>
void save(const std::string& file, const WorkbookHead& head, Body&& sheets) {
    try {
        const PrivateFolder folder;
        // The library tells of a file that can't be made on standard error only.
        if (!std::ofstream(folder.file())) throw OutputError(std::strerror(errno));
        Workbook workbook(folder.file());
        if (!workbook.isOpen()) throw OutputError("out of memory");
        workbook.describe(head);
        sheets(workbook);
        if (const lxw_error error = workbook.close(); error != LXW_NO_ERROR) throw OutputError(lxw_strerror(error));
        replaceFile(file, readFile(folder.file()));
    } catch (const std::system_error& error) {
        throw OutputError(error.code().message());
    }
}

}  // namespace

void saveSpreadsheet(const std::string& file, const ResultTable& table, const std::string& title,
                     const WorkbookHead& head) {
    save(file, head, [&](Workbook& workbook) {
        fill(workbook, table, title, false);
        fillAbout(workbook, {{title, table}}, head);
    });
}

void saveWorkbook(const std::string& file, const std::vector<NamedTable>& tables, const WorkbookHead& head) {
    save(file, head, [&](Workbook& workbook) {
        fillAbout(workbook, tables, head);
        for (const NamedTable& each : tables) fill(workbook, each.table, each.title, true);
    });
}

}  // namespace borvik
