#pragma once

#include <string>

#include "base/number_text.h"
#include "checks/check_rows.h"
#include "results/tables.h"

namespace borvik {

inline TableCell textCell(std::string text, Emphasis emphasis = Emphasis::None) {
    return {std::move(text), emphasis, std::nullopt, {}, {}, {}};
}

inline TableCell numberCell(double number, const char* mask) {
    return {formatNumber(number, mask), Emphasis::None, number, mask, {}, {}};
}

/// The ratio of a row set: the text as the check wrote it, the number behind it, and the mark where it does
/// not show that the check holds.
inline TableCell ratioCell(const RowSet& set) {
    return {set(3),    isSatisfied(set.Ratio) ? Emphasis::None : Emphasis::OverLimit, set.Ratio, "0.000", set.Stands,
            set.Origin};
}

}  // namespace borvik
