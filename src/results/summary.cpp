#include "results/summary.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/shown_text.h"
#include "base/text.h"
#include "results/ratios.h"

namespace borvik {

namespace {

constexpr const char* kMark = " !!";
constexpr const char* kGap = "   ";
/// A longer text stands on a line of its own, so that the ratios stay within sight.
constexpr std::size_t kWidest = 76;

std::string shown(const TableCell& cell) {
    return std::string(trimmed(cell.text)) + (cell.emphasis == Emphasis::OverLimit ? kMark : "");
}

bool isHeading(const std::vector<TableCell>& row) {
    return !row.empty() && (row.front().emphasis == Emphasis::Heading || row.front().emphasis == Emphasis::Note);
}

std::string plural(int count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string projectLine(const Project& project) {
    std::string line = project.Proj;
    if (!project.Ident.empty()) line += (line.empty() ? "" : ", ") + project.Ident;
    if (!line.empty()) line += ": ";
    return withoutControls(line) + plural(project.NofSpans, "span") + ", " +
           generalText(Single(project.BeamLength / 1000.0)) + " m, " +
           (project.CraneType == CraneKind::Monorail ? "monorail hoist" : plural(project.NofCranes, "crane")) + "\n";
}

std::string lineOf(const std::vector<TableCell>& row, const std::vector<std::size_t>& widths) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const std::string text = shown(row[i]);
        line += (i == 0 ? "" : kGap) + text;
        const bool last = i + 1 == row.size() || isHeading(row);
        if (last) break;
        if (characters(text) > widths[i]) line += "\n" + std::string(widths[i], ' ');
        if (characters(text) < widths[i]) line += std::string(widths[i] - characters(text), ' ');
    }
    return line + "\n";
}

}  // namespace

std::string tableText(const ResultTable& table) {
    std::vector<TableCell> headers;
    for (const TableColumn& column : table.columns) headers.push_back({column.header, Emphasis::None, {}, {}});
    std::vector<std::vector<TableCell>> lines{headers};
    lines.insert(lines.end(), table.rows.begin(), table.rows.end());

    std::vector<std::size_t> widths(table.columns.size());
    for (const auto& line : lines)
        for (std::size_t i = 0; i < std::min(line.size(), widths.size()); ++i)
            if (!isHeading(line)) widths[i] = std::max(widths[i], std::min(kWidest, characters(shown(line[i]))));

    std::string text;
    for (const auto& line : lines) text += lineOf(line, widths);
    return text;
}

std::string summaryText(const Session& session) {
    if (!session.Calculated || !session.results) return projectLine(session.project) + "Not calculated.\n";
    const RatioVerdict verdict = verdictOf(*session.results);
    return projectLine(session.project) + tableText(ShowSummaryAll(session.project, *session.results)) +
           "Largest ratio " + formatNumber(verdict.largest, "0.000") +
           (verdict.largest > 1.0 ? ", over 1: marked !!" : "") + verdict.remark() + "\n";
}

}  // namespace borvik
