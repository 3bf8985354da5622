#include <sstream>
#include <utility>

#include "exchange/attached.h"
#include "report/report_chapters.h"
#include "results/group_tables.h"
#include "results/reaction_tables.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};

/// Where a column of the table begins, as a part of the width; numbers end at `from`.
struct Column {
    double from;
    bool number;
};
constexpr Column kColumns[] = {{0.0, false},  {0.07, false}, {0.21, true},  {0.283, true}, {0.356, true}, {0.429, true},
                               {0.502, true}, {0.575, true}, {0.648, true}, {0.67, false}, {0.775, false}};

class ReactionList {
public:
    ReactionList(ReportPage& page, const ResultTable& table) : page_(page), table_(table) {
        page_.afterBreak = [this] { head(); };
    }
    ReactionList(const ReactionList&) = delete;
    ReactionList& operator=(const ReactionList&) = delete;
    ~ReactionList() { page_.afterBreak = nullptr; }

    void print() {
        bool withDetails = false;
        for (std::size_t row = 0; row < table_.rows.size(); ++row) {
            const std::vector<TableCell>& cells = table_.rows[row];
            if (cells.size() == 1) {
                withDetails = cells[0].text.starts_with("ULS");
                heading(cells[0].text);
                continue;
            }
            std::vector<std::string> below;
            if (withDetails) below = linesOf(table_.details[row]);
            page_.need(static_cast<double>(below.size()) + 1.2);
            line(cells);
            for (const std::string& text : below) {
                page_.put(page_.ColLeft + at(1), text, kQuiet);
                page_.advance(1.0);
            }
            page_.advance(below.empty() ? 0.0 : 0.2);
        }
    }

private:
    [[nodiscard]] double at(std::size_t column) const { return kColumns[column].from * page_.width(); }

    /// The details broken to the width, which leaves room below the place.
    [[nodiscard]] std::vector<std::string> linesOf(const std::string& details) const {
        std::vector<std::string> lines;
        std::istringstream text(details);
        for (std::string line; std::getline(text, line);)
            for (std::string& part : page_.wrapped(line, page_.width() - at(1))) lines.push_back(std::move(part));
        return lines;
    }

    void head() {
        for (std::size_t column = 0; column < table_.columns.size(); ++column) {
            const double place = page_.ColLeft + at(column);
            if (kColumns[column].number)
                page_.putRight(place, table_.columns[column].header, kQuiet);
            else
                page_.putBlock(place, 0.2 * page_.width(), table_.columns[column].header, kQuiet);
        }
        page_.advance(1.2);
    }

    void heading(const std::string& text) {
        page_.advance(0.5);
        const auto again = std::exchange(page_.afterBreak, nullptr);
        page_.need(8.0);
        page_.afterBreak = again;
        page_.put(page_.ColLeft, text, kBold);
        page_.advance(1.2);
        head();
    }

    void line(const std::vector<TableCell>& cells) {
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const double place = page_.ColLeft + at(column);
            if (kColumns[column].number)
                page_.putRight(place, cells[column].text);
            else
                page_.putBlock(place, 0.2 * page_.width(), cells[column].text);
        }
        page_.advance(1.0);
    }

    ReportPage& page_;
    const ResultTable& table_;
};

}  // namespace

void printSupportReactions(Report& report, const GroupMatrix* groups) {
    ReportPage& page = report.page;
    const ResultTable table = TableSupportReactions(report.project, report.results);
    page.newPage();
    page.advance(0.5);
    page.chapter("Reactions for supports");
    page.put(page.ColLeft, "Reactions for supports:", kBold);
    page.advance(1.2);
    for (const std::string& text : page.wrapped(
             table.note +
                 ". G: dead load, Q: cranes, both characteristic; Q phi: with dynamic factors; Rz, "
                 "Ry: with the factors of the limit state. W1, W5: first wheel of crane 1 and 2, span/mm from its left "
                 "support.",
             page.width())) {
        page.put(page.ColLeft, text);
        page.advance(1.0);
    }
    ReactionList(page, table).print();
    if (groups == nullptr) return;
    page.advance(1.0);
    page.need(10.0);
    page.put(page.ColLeft, "Reactions of all groups of the crane data", kBold);
    page.advance(1.2);
    const ResultTable ofGroups = tableOfReactions(*groups);
    printTable(page, ofGroups, {0.3});
    const std::string buffers = buffersText(attachedOf(report.project).cranes);
    for (const std::string& text : page.wrapped(ofGroups.note + " " + buffers, page.width())) {
        page.need(1.0);
        page.put(page.ColLeft, text);
        page.advance(1.0);
    }
}

}  // namespace borvik
