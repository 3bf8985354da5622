#include "actions/crane_working.h"
#include "exchange/attached.h"
#include "report/report_chapters.h"
#include "results/group_tables.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};
constexpr TextStyle kFailed{true, colours::red};

}  // namespace

void printTable(ReportPage& page, const ResultTable& table, const std::vector<double>& shares) {
    const std::size_t columns = table.columns.size();
    double rest = 1.0;
    for (const double share : shares) rest -= share;
    std::vector<double> edges{page.ColLeft};
    for (std::size_t column = 0; column < columns; ++column) {
        const double share =
            column < shares.size() ? shares[column] : rest / static_cast<double>(columns - shares.size());
        edges.push_back(edges.back() + share * page.width());
    }
    const auto widthOf = [&](std::size_t column) { return edges[column + 1] - edges[column] - 1.0; };
    const auto cells = [&](auto text, auto style) {
        double lines = 1.0;
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            lines =
                std::max(lines, static_cast<double>(page.wrapped(text(column), widthOf(column), style(column)).size()));
        }
        page.need(lines);
        for (std::size_t column = 0; column < table.columns.size(); ++column)
            page.putBlock(edges[column], widthOf(column), text(column), style(column));
        page.advance(lines + 0.15);
    };
    const auto head = [&] {
        cells(
            [&](std::size_t column) {
                const TableColumn& named = table.columns[column];
                return named.header + (named.unit.empty() ? "" : " (" + named.unit + ")");
            },
            [](std::size_t) { return kQuiet; });
        page.ruleAcross(colours::grey);
        page.advance(0.2);
    };
    page.need(6.0);
    head();
    page.afterBreak = head;
    for (const auto& row : table.rows) {
        if (row.size() == 1) {
            page.need(3.0);
            page.put(page.ColLeft, row[0].text, row[0].emphasis == Emphasis::Heading ? kBold : kQuiet);
            page.advance(1.1);
            continue;
        }
        cells([&](std::size_t column) { return column < row.size() ? row[column].text : std::string(); },
              [&](std::size_t column) {
                  return column < row.size() && row[column].emphasis == Emphasis::OverLimit ? kFailed : TextStyle{};
              });
    }
    page.afterBreak = nullptr;
    page.advance(0.5);
}

void printWheelLoads(Report& report, const GroupMatrix* matrix) {
    const Attached attached = attachedOf(report.project);
    ReportPage& page = report.page;
    page.newPage();
    page.advance(0.5);
    page.chapter("Wheel loads");
    page.put(page.ColLeft, "Wheel loads from crane data, EN 1991-3:", kBold);
    page.advance(1.5);
    for (std::size_t i = 0; i < attached.cranes.size(); ++i) {
        const actions::CraneLoads loads = actions::craneLoads(attached.cranes[i]);
        CheckWorking working{"CraneData", "Crane " + std::to_string(i + 1), static_cast<int>(i) + 1, {}};
        actions::explainCrane(attached.cranes[i], loads, Working(working.steps));
        printWorking(page, working);
        page.need(8.0);
        page.put(page.ColLeft, "Groups of loads of crane " + std::to_string(i + 1) + ", EN 1991-3 Table 2.2", kBold);
        page.advance(1.2);
        printTable(page, tableOfLoads(loads), {0.08});
    }
    if (matrix == nullptr) return;
    page.need(10.0);
    page.put(page.ColLeft, "Ratios of all groups; largest: " + governingText(*matrix), kBold);
    page.advance(1.2);
    const ResultTable table = tableOf(*matrix);
    printTable(page, table, {0.24});
    page.advance(page.putBlock(page.ColLeft, page.width(), table.note, kQuiet) + 0.5);
}

}  // namespace borvik
