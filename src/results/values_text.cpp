#include "results/values_text.h"

namespace borvik {

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
