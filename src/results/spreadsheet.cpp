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

void fill(Workbook& workbook, const ResultTable& table, const std::string& title) {
    lxw_worksheet* const sheet = workbook.addSheet(sheetName(title));
    if (sheet == nullptr) throw OutputError("no sheet can be made");
    std::vector<std::size_t> widths(table.columns.size(), 0);
    const auto column = [](std::size_t number) { return static_cast<lxw_col_t>(number); };
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
        worksheet_write_string(sheet, 0, column(c), table.columns[c].header.c_str(),
                               workbook.format("", c == 0, true, false));
        widths[c] = characters(table.columns[c].header);
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

}  // namespace

void saveSpreadsheet(const std::string& file, const ResultTable& table, const std::string& title) {
    try {
        const PrivateFolder folder;
        // The library tells of a file that can't be made on standard error only.
        if (!std::ofstream(folder.file())) throw OutputError(std::strerror(errno));
        Workbook workbook(folder.file());
        if (!workbook.isOpen()) throw OutputError("out of memory");
        fill(workbook, table, title);
        if (const lxw_error error = workbook.close(); error != LXW_NO_ERROR) throw OutputError(lxw_strerror(error));
        replaceFile(file, readFile(folder.file()));
    } catch (const std::system_error& error) {
        throw OutputError(error.code().message());
    }
}

}  // namespace borvik
