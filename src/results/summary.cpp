#include "results/summary.h"

#include <algorithm>

#include "base/number_text.h"
#include "results/ratios.h"

namespace borvik {

namespace {

constexpr const char* kMark = " !!";
constexpr const char* kGap = "   ";

/// Characters of a UTF-8 text, not bytes.
std::size_t lengthOf(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string marked(const TableCell& cell) {
    return cell.emphasis == Emphasis::OverLimit ? cell.text + kMark : cell.text;
}

bool isHeading(const std::vector<TableCell>& row) {
    return !row.empty() && (row.front().emphasis == Emphasis::Heading || row.front().emphasis == Emphasis::Note);
}

std::string withoutTrailingBlanks(std::string line) {
    line.erase(line.find_last_not_of(' ') + 1);
    return line;
}

std::string plural(int count, const char* noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string projectLine(const Project& project) {
    std::string line = project.Proj;
    if (!project.Ident.empty()) line += (line.empty() ? "" : ", ") + project.Ident;
    if (!line.empty()) line += ": ";
    return line + plural(project.NofSpans, "span") + ", " + generalText(Single(project.BeamLength / 1000.0)) + " m, " +
           (project.CraneType == 2 ? "monorail hoist" : plural(project.NofCranes, "crane")) + "\n";
}

}  // namespace

std::string PlainText(const ResultTable& table) {
    std::vector<std::vector<TableCell>> lines{{}};
    for (const TableColumn& column : table.columns) lines[0].push_back({column.header, Emphasis::None, {}, {}});
    lines.insert(lines.end(), table.rows.begin(), table.rows.end());

    std::vector<std::size_t> widths(table.columns.size());
    for (const auto& line : lines)
        for (std::size_t i = 0; i < std::min(line.size(), widths.size()); ++i)
            if (!isHeading(line)) widths[i] = std::max(widths[i], lengthOf(marked(line[i])));

    std::string text;
    for (const auto& line : lines) {
        std::string shown;
        for (std::size_t i = 0; i < line.size(); ++i) {
            const std::string cell = marked(line[i]);
            const std::size_t width = i < widths.size() && !isHeading(line) ? widths[i] : 0;
            shown += (i == 0 ? "" : kGap) + cell + std::string(width - std::min(width, lengthOf(cell)), ' ');
        }
        text += withoutTrailingBlanks(shown) + "\n";
    }
    return text;
}

std::string SummaryText(const Session& session) {
    if (!session.Calculated || !session.results) return projectLine(session.project) + "Not calculated.\n";
    const double largest = LargestRatio(*session.results);
    return projectLine(session.project) + PlainText(ShowSummaryAll(session.project, *session.results)) +
           "Largest ratio " + formatNumber(largest, "0.000") + (largest > 1.0 ? ", over 1: marked !!\n" : "\n");
}

}  // namespace borvik
