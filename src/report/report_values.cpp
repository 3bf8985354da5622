#include <algorithm>

#include "report/report_chapters.h"
#include "results/values_text.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};

/// Symbol and formula from the left, numbers below where they find no room beside it, the clause at the margin.
void printLine(ReportPage& page, const WorkingLine& line) {
    const double indent = page.ColLeft + 0.02 * page.width();
    const double margin = page.ColLeft + 0.74 * page.width();
    std::string whole = line.symbol;
    for (const std::string& part : {line.formula, line.numbers, line.result})
        if (!part.empty()) whole += " = " + part;
    std::vector<std::string> lines{whole};
    if (page.textWidth(whole) > margin - indent - 1.0 && !line.numbers.empty())
        lines = {line.symbol + " = " + line.formula, "     = " + line.numbers + " = " + line.result};
    std::vector<std::string> broken;
    for (const std::string& each : lines)
        for (std::string& part : page.wrapped(each, margin - indent - 1.0)) broken.push_back(std::move(part));
    const std::vector<std::string> clause = page.wrapped(line.clause, page.ColRight - margin);
    const std::size_t count = std::max(broken.size(), line.clause.empty() ? 0 : clause.size());
    page.need(static_cast<double>(count));
    for (std::size_t i = 0; i < count; ++i) {
        if (i < broken.size()) page.put(indent, broken[i]);
        if (i < clause.size() && !line.clause.empty()) page.put(margin, clause[i], kQuiet);
        page.advance(1.0);
    }
}

}  // namespace

void printValues(ReportPage& page, const std::vector<CheckWorking>& workings) {
    page.newPage();
    page.advance(0.5);
    page.chapter("Intermediate values");
    page.put(page.ColLeft, "Intermediate values:", kBold);
    page.advance(1.5);
    for (const CheckWorking& working : workings) {
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
}

}  // namespace borvik
