#include <algorithm>
#include <span>

#include "fatigue/details.h"
#include "results/table_cells.h"
#include "results/tables.h"

namespace borvik {
namespace {

/// Formula, numbers, ratio, limit and reference: what every check row shows.
std::vector<TableCell> checkRow(TableCell place, const RowSet& set) {
    return {std::move(place), textCell(set(1)), textCell(set(2)), ratioCell(set), textCell(set(4))};
}

/// Adds where the cranes stood: rows 5, 6 for wheel 1 and, with two cranes, 7, 8 for wheel 5.
void addCranes(std::vector<TableCell>& row, const RowSet& set, bool twoCranes) {
    row.push_back(textCell(set(5) + "/" + set(6)));
    if (twoCranes) row.push_back(textCell(set(7) + "/" + set(8)));
}

/// A row of a span, with where the cranes stood if its check says so.
std::vector<TableCell> staticRow(TableCell place, const StaticCheck& check, const RowSet& set, bool twoCranes) {
    auto row = checkRow(std::move(place), set);
    if (check.rows == 8) addCranes(row, set, twoCranes);
    if (check.rows == 5) row.push_back(textCell(set(5)));
    return row;
}

const std::vector<TableColumn>& checkColumns() {
    static const std::vector<TableColumn> columns{{"Bar/Point", "", "Span / distance from its left support in mm"},
                                                  {"Interaction Ratio", "", "Formula"},
                                                  {"Equation", "", "The formula with its numbers"},
                                                  {"Ratio ", "", "Over 1.000: the check fails"},
                                                  {"Reference ", "", "Limit, place and clause"}};
    return columns;
}

/// "Span: ", "Support:", "Splice:", one blank and all, as they stand in the first column.
std::string groupHeading(const Detail& detail) {
    const PlaceKind kind = kindOf(detail.places);
    return nameOf(kind) + std::string(kind == PlaceKind::Span ? ": " : ":");
}

ResultTable fatigueTable(const Project& project, const Results& results, std::span<const Detail> details) {
    ResultTable table;
    table.columns = checkColumns();
    table.note = "A ratio over 1.000 is not acceptable";
    for (const Detail& detail : details) {
        const auto& governing = results.Fatigue.FatResult(detail.result);
        if (!(project.*detail.checked) || !governing) continue;
        table.rows.push_back(
            {textCell(groupHeading(detail), Emphasis::Heading), textCell(detail.title, Emphasis::Heading)});
        const auto& rows = results.Fatigue.FatRows(detail.rows);
        if (!rows || rowsAreReplaced(detail, project)) {
            table.rows.push_back(checkRow(textCell(""), *governing));
            continue;
        }
        for (int row = rows->first(); row <= rows->last(); ++row)
            if (!(*rows)(row)(3).empty()) table.rows.push_back(checkRow(numberCell(row, "0"), (*rows)(row)));
    }
    return table;
}

/// A line of a summary, taken from a row set of any length.
struct SummaryLine {
    std::string control;
    TableCell ratio;
    std::string reference;
};

SummaryLine summaryLine(const RowSet& set) {
    return {set(1) + set(2), ratioCell(set), set(4)};
}

void addHeading(ResultTable& table, const char* text) {
    table.rows.push_back({textCell(text, Emphasis::Heading)});
}

void addLine(ResultTable& table, const SummaryLine& line) {
    table.rows.push_back({textCell(line.control), line.ratio, textCell(line.reference)});
}

std::vector<SummaryLine> linesOf(LimitState state, const Project& project, const CheckResults& checks) {
    std::vector<SummaryLine> lines;
    for (const CheckResult& result : checks.all)
        if (result.check->state == state && isShown(*result.check, project))
            lines.push_back(summaryLine(result.governing));
    return lines;
}

ResultTable summaryTable(const std::vector<SummaryLine>& uls) {
    ResultTable table;
    table.columns = {{"Control", "", "Formula with its numbers"},
                     {"Interaction Ratio", "", "Over 1.000: the check fails"},
                     {"Reference ", "", "Limit, place and clause"}};
    table.note = "A ratio over 1.000 is not acceptable";
    addHeading(table, "ULS - Section Control/Lateral Torsional Buckling");
    for (const SummaryLine& line : uls) addLine(table, line);
    return table;
}

void addDeflections(ResultTable& table, const Project& project, const CheckResults& checks) {
    addHeading(table, "SLS - Deflection Control");
    for (const SummaryLine& line : linesOf(LimitState::Serviceability, project, checks)) addLine(table, line);
}

void addFatigue(ResultTable& table, const Project& project, const FatigueResults& fatigue, const char* heading) {
    addHeading(table, heading);
    for (const Detail& detail : detailsOf(project))
        if (const auto& governing = fatigue.FatResult(detail.result); project.*detail.checked && governing)
            addLine(table, summaryLine(*governing));
}

}  // namespace

ResultTable TableCodeStatic(const Project& project, const Results& results) {
    const bool twoCranes = project.NofCranes == 2;

    ResultTable table;
    table.columns = checkColumns();
    table.columns.push_back({"Crane 1", "", "Span of wheel 1 / its distance from the left support in mm"});
    table.columns.push_back({"Crane 2", "", "Span of wheel 5 / its distance from the left support in mm"});
    table.note = "A ratio over 1.000 is not acceptable";
    for (int span = 1; span <= project.NofSpans; ++span)
        for (const CheckResult& result : results.Checks.all) {
            const StaticCheck& check = *result.check;
            if (!isShown(check, project)) continue;
            for (std::size_t i = 0; i < check.extremes.size(); ++i) {
                const auto place = check.extremes[i].place;
                TableCell at = place ? textCell(std::to_string(span) + "/" +
                                                formatNumber((results.Uls.*place)(span, UlsResults::kPlaceSlot), "0"))
                                     : numberCell(span, "0");
                table.rows.push_back(staticRow(std::move(at), check, result.extremes[i](span), twoCranes));
            }
            if (check.extremes.empty())
                table.rows.push_back(staticRow(numberCell(span, "0"), check, result.spans(span), twoCranes));
        }
    table.rows.push_back({textCell("Note:", Emphasis::Note),
                          textCell("Crane Position: Span/Distance from left wheel to left support", Emphasis::Note)});
    return table;
}

ResultTable TableCodeFatigue(const Project& project, const Results& results) {
    return fatigueTable(project, results, kOverheadDetails);
}

ResultTable TableCodeFatigueR(const Project& project, const Results& results) {
    return fatigueTable(project, results, kMonorailDetails);
}

ResultTable ShowSummaryULS(const Project& project, const Results& results) {
    return summaryTable(linesOf(LimitState::Ultimate, project, results.Checks));
}

ResultTable ShowSummaryULSSLS(const Project& project, const Results& results) {
    ResultTable table = ShowSummaryULS(project, results);
    addDeflections(table, project, results.Checks);
    return table;
}

ResultTable ShowSummaryAll(const Project& project, const Results& results) {
    ResultTable table = ShowSummaryULSSLS(project, results);
    addFatigue(table, project, results.Fatigue, "FLS - Fatigue  Control");
    return table;
}

ResultTable ShowSummary(const Project& project, const Results& results) {
    std::vector<SummaryLine> uls = linesOf(LimitState::Ultimate, project, results.Checks);
    std::stable_sort(uls.begin(), uls.end(),
                     [](const SummaryLine& a, const SummaryLine& b) { return ranksAbove(a.ratio.text, b.ratio.text); });
    ResultTable table = summaryTable(uls);
    addDeflections(table, project, results.Checks);
    addFatigue(table, project, results.Fatigue, "FLS - Fatigue Control");
    return table;
}

}  // namespace borvik
