#pragma once

#include <string>
#include <vector>

#include "calculation/check_working.h"

namespace borvik {

/// A line of a working as it is read.
struct WorkingLine {
    std::string symbol;   ///< "χLT"; of a heading its text
    std::string formula;  ///< empty where the number is given
    std::string numbers;  ///< the formula with its numbers; empty where it has no symbol
    std::string result;   ///< "0.6402", with its unit
    std::string clause;
    bool isHeading = false;
    std::string tex;         ///< symbol and formula as they are set on paper; of a given number with the number
    std::string numbersTex;  ///< "= numbers = result"; empty where there is no formula
};
[[nodiscard]] std::vector<WorkingLine> linesOf(const CheckWorking& working);

/// The working of every governing row of the static checks, for a terminal.
[[nodiscard]] std::string valuesText(const std::vector<CheckWorking>& workings);

}  // namespace borvik
