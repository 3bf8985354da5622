#include <algorithm>

#include "report/report_chapters.h"
#include "results/values_text.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};
constexpr double kAscent = 0.8;  // of a line of text, above its baseline

/// A part of a line on the paper: a formula, or the text of one that is too wide to be set.
struct Part {
    std::string tex, text;
    double column = 0.0, above = 0.0, below = 0.0;
};

/// The parts of a line side by side, or below each other where they find no room so.
std::vector<std::vector<Part>> rowsOf(ReportPage& page, const WorkingLine& line, double left, double right) {
    constexpr double kIndent = 4.0;
    page.setStyle({});
    std::vector<std::vector<Part>> rows{{}};
    double at = left;
    const auto add = [&](const std::string& tex, const std::string& text) {
        if (tex.empty()) return;
        const auto size = page.surface().formulaExtent(tex);
        if (at + size.width > right && !rows.back().empty()) {
            rows.emplace_back();
            at = left + kIndent;
        }
        if (at + size.width <= right) {
            rows.back().push_back({tex, "", at, size.above, size.below});
            at += size.width;
            return;
        }
        for (const std::string& each : page.wrapped(text, right - at)) {
            if (!rows.back().empty()) rows.emplace_back();
            rows.back().push_back({"", each, at});
        }
        at = right;
    };
    add(line.tex, line.symbol + " = " + (line.formula.empty() ? line.result : line.formula));
    add(line.numbersTex, "= " + (line.numbers.empty() ? "" : line.numbers + " = ") + line.result);
    return rows;
}

/// Formula and numbers from the left, the clause at the margin.
void printLine(ReportPage& page, const WorkingLine& line) {
    constexpr double kLeading = 0.2;  // above and below a fraction
    const double margin = page.ColLeft + 0.74 * page.width();
    const auto rows = rowsOf(page, line, page.ColLeft + 0.02 * page.width(), margin - 1.0);
    const std::vector<std::string> clause =
        line.clause.empty() ? std::vector<std::string>() : page.wrapped(line.clause, page.ColRight - margin);
    std::vector<double> baselines;
    double height = 0.0;
    for (const std::vector<Part>& row : rows) {
        double above = kAscent, below = 1.0 - kAscent;
        for (const Part& part : row) {
            above = std::max(above, part.above);
            below = std::max(below, part.below);
        }
        const double leading = above + below > 1.1 ? kLeading : 0.0;
        baselines.push_back(height + leading + above);
        height += above + below + 2.0 * leading;
    }
    height = std::max(height, static_cast<double>(clause.size()));
    page.need(height);
    const double top = page.PrintY;
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const Part& part : rows[i]) {
            page.PrintY = top + baselines[i] - kAscent;
            if (!part.text.empty()) {
                page.putBlock(part.column, page.width(), part.text);
                continue;
            }
            page.setStyle({});
            page.surface().formula({part.column, top + baselines[i]}, part.tex);
        }
    // On the line of the formula.
    page.PrintY = top + std::max(0.0, std::min(baselines[0] - kAscent, height - static_cast<double>(clause.size())));
    for (const std::string& each : clause) {
        page.putBlock(margin, page.ColRight - margin, each, kQuiet);
        page.PrintY += 1.0;
    }
    page.PrintY = top;
    page.advance(height);
}

}  // namespace

void printValues(ReportPage& page, const std::vector<CheckWorking>& workings) {
    page.newPage();
    page.advance(0.5);
    page.chapter("Intermediate values");
    page.put(page.ColLeft, "Intermediate values:", kBold);
    page.advance(1.5);
    for (const CheckWorking& working : workings) printWorking(page, working);
}

void printWorking(ReportPage& page, const CheckWorking& working) {
    page.need(6.0);
    page.put(page.ColLeft, working.title, kBold);
    page.advance(1.1);
    for (const WorkingLine& line : linesOf(working)) {
        if (!line.isHeading) {
            printLine(page, line);
            continue;
        }
        page.need(4.0);
        page.advance(0.2);
        page.put(page.ColLeft + 0.01 * page.width(), line.symbol, kQuiet);
        page.advance(1.0);
    }
    page.advance(0.8);
}

}  // namespace borvik
