#pragma once

#include <string>

#include "results/tables.h"

namespace borvik {

/// How numbers are written: with a comma the cells are parted by semicolons, as spreadsheets of such countries expect.
enum class DecimalSign { Point, Comma };

/// A table as comma-separated values (RFC 4180): one line of headers with their units, such as "My-max (kNm)", then the
/// rows. A place "1 / 500" stands in two columns, so that one can plot by it. Numbers have the digits shown.
[[nodiscard]] std::string csvText(const ResultTable& table, DecimalSign sign);

}  // namespace borvik
