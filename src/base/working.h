#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace borvik {

/// One line of a calculation that can be followed by hand: `symbol` = `formula` = `value` `unit`.
struct WorkingStep {
    std::string symbol;   ///< "lambda_w"; a heading where there is no unit, formula and clause
    std::string formula;  ///< of numbers, symbols of earlier lines, + - * / ^, sqrt, min, max, abs, exp; empty: given
    double value = 0;     ///< in the unit in which the formula gives it
    std::string unit;
    std::string clause;  ///< "EN 1993-1-5 (5.5)", or where a given number comes from
    bool isHeading = false;
};

/// Where a check writes down how it comes to its result, line by line and from its own variables. Without a list to
/// write to, as in every ordinary run, it costs nothing.
class Working {
public:
    Working() = default;
    explicit Working(std::vector<WorkingStep>& steps) : steps_(&steps) {}
    explicit operator bool() const noexcept { return steps_ != nullptr; }

    void heading(const char* text) const {
        if (steps_) steps_->push_back({text, "", 0, "", "", true});
    }
    void given(const char* symbol, double value, const char* unit, const char* source = "") const {
        if (steps_) steps_->push_back({symbol, "", value, unit, source});
    }
    void step(const char* symbol, const char* formula, double value, const char* unit = "",
              const char* clause = "") const {
        if (steps_) steps_->push_back({symbol, formula, value, unit, clause});
    }

private:
    std::vector<WorkingStep>* steps_ = nullptr;
};

/// A number with at least four significant digits; one that has fewer, or is whole and below a million, as it is:
/// "0.8723", "1707.6", "6.310E7", "12000", "8.5".
[[nodiscard]] std::string workingNumber(double value);

/// The formula of a line with its numbers in place of the symbols; each symbol has the value of the last line before
/// that gives it. @param line  index of the line
[[nodiscard]] std::string withNumbers(const std::vector<WorkingStep>& steps, std::size_t line);

/// A formula or a symbol as it is read: Greek letters, roots, raised dots, squares.
[[nodiscard]] std::string shownFormula(std::string_view formula);

}  // namespace borvik
