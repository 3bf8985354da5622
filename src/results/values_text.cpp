#include "results/values_text.h"

#include <utility>

#include "results/working_tex.h"

namespace borvik {

namespace {

/// "mm³" of "mm3".
std::string raised(std::string unit) {
    for (const auto& [plain, shown] :
         {std::pair("mm2", "mm\u00b2"), {"mm3", "mm\u00b3"}, {"mm4", "mm\u2074"}, {"mm6", "mm\u2076"}})
        if (unit == plain) return shown;
    return unit;
}

}  // namespace

std::vector<WorkingLine> linesOf(const CheckWorking& working) {
    std::vector<WorkingLine> lines;
    for (std::size_t i = 0; i < working.steps.size(); ++i) {
        const WorkingStep& step = working.steps[i];
        WorkingLine line;
        line.isHeading = step.isHeading;
        line.symbol = step.isHeading ? step.symbol : shownFormula(step.symbol);
        if (!step.isHeading) line.result = workingNumber(step.value) + (step.unit.empty() ? "" : " " + step.unit);
        if (!step.formula.empty()) {
            line.formula = shownFormula(step.formula);
            line.numbers = shownFormula(withNumbers(working.steps, i));
            if (line.numbers == workingNumber(step.value)) line.numbers.clear();
        }
        line.clause = step.clause;
        if (!step.isHeading) {
            const std::string unit = step.unit.empty() ? "" : "\\text{ " + raised(step.unit) + "}";
            const std::string result = " = " + texOf(workingNumber(step.value)) + unit;
            line.tex = texOf(step.symbol) + (step.formula.empty() ? result : " = " + texOf(step.formula));
            if (!step.formula.empty())
                line.numbersTex = (line.numbers.empty() ? "" : " = " + texOf(withNumbers(working.steps, i))) + result;
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::string valuesText(const std::vector<CheckWorking>& workings) {
    std::string text = "Intermediate values\n";
    for (const CheckWorking& working : workings) {
        text += "\n" + working.title + "\n";
        for (const WorkingLine& line : linesOf(working)) {
            if (line.isHeading) {
                text += "  " + line.symbol + "\n";
                continue;
            }
            text += "    " + line.symbol;
            for (const std::string& part : {line.formula, line.numbers, line.result})
                if (!part.empty()) text += " = " + part;
            text += (line.clause.empty() ? "" : "   (" + line.clause + ")") + "\n";
        }
    }
    return text;
}

}  // namespace borvik
