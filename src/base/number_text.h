#pragma once

#include <string>
#include <string_view>

#include "base/single.h"

namespace borvik {

/// The one text-to-number conversion of the system: leading blanks are dropped,
/// every "," counts as ".", and the longest numeric prefix is read (sign, digits,
/// point, exponent as in "1,20E+12"), whatever the machine's regional settings.
/// @return the number rounded to a single; 0 for an unreadable text; the largest single, with its sign, for a
/// number that is too large to be stored (a range test then refuses it)
[[nodiscard]] Single DecimalValue(std::string_view text);

/// A number by a mask such as "0.000", "0.0", "0", "#0", "#00", "##0", "#000", "#.0", "0.00", "0.000E+0", "0.0 ",
/// "###", "#". "0" is a digit that always shows, "#" one that shows where it is needed; the digits after the point are
/// the number of decimals; "E+0" asks for the scientific form with a sign of the exponent; every other character stands
/// for itself (leading and trailing blanks). The shortest decimal text that reads back as the same double is rounded,
/// halves away from zero. (A single is widened to double first.) A number that shows as zero has no sign. The decimal
/// sign is always a point.
[[nodiscard]] std::string formatNumber(double number, std::string_view mask);

/// The general text of a stored number: the shortest that reads back as the same single, without a decimal point for
/// whole numbers; exponent form ("1.2E+12", "1E-06") from 1e7 up and below 1e-5.
[[nodiscard]] std::string generalText(Single number);

/// The plain text of a double: the shortest that reads back, exponent form like "1.5E-05" below 1e-4.
[[nodiscard]] std::string plainText(double number);

/// The general text of a whole number.
[[nodiscard]] std::string generalText(int number);

/// A number of a single rounded to the nearest whole number,
/// halves to even, as array indices made of stored numbers are.
/// @throws RuntimeFault for a number outside the 32-bit whole numbers
[[nodiscard]] int roundHalfEven(double number);

}  // namespace borvik
