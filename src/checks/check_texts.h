#pragma once

#include <string>

#include "base/array.h"
#include "base/number_text.h"
#include "base/single.h"
#include "checks/check_rows.h"

namespace borvik {

// How numbers stand in row 2 of a check.
[[nodiscard]] inline std::string noDecimals(double number) {
    return formatNumber(number, "0");
}
[[nodiscard]] inline std::string oneDecimal(double number) {
    return formatNumber(number, "0.0");
}
[[nodiscard]] inline std::string twoDecimals(double number) {
    return formatNumber(number, "0.00");
}

/// Row 3 and the number behind it.
inline void setRatio(RowSet& rows, double ratio) {
    rows(3) = formatNumber(ratio, "0.000");
    rows.Ratio = ratio;
}

/// Rows 5 to 8 of a check: slots 5 to 8 of the span's record, which are span and distance a of wheel 1 and of wheel 5.
inline void setWheelRows(RowSet& rows, const Table<Single>& records, int span) {
    for (int slot = 5; slot <= 8; ++slot) rows(slot) = generalText(records(span, slot));
}

}  // namespace borvik
