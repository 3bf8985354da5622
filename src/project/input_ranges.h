#pragma once

#include <limits>
#include <string>
#include <vector>

#include "base/single.h"
#include "project/project.h"

namespace borvik {

/// The values that an input takes. Limits are stored numbers, so that the comparison is one of single precision: 0.8
/// typed meets a limit of 0.8.
struct Range {
    Single lowest = -std::numeric_limits<double>::infinity();
    Single highest = std::numeric_limits<double>::infinity();
    bool withoutLowest = false;  ///< the limit itself is refused
    bool withoutHighest = false;
    bool empty = false;  ///< nothing is accepted

    /// False also for what is no finite number, as a damaged file can bring it.
    [[nodiscard]] bool holds(Single value) const;
    bool operator==(const Range&) const = default;
    /// In words: "0.1 to 0.8", "at least 5", "more than 100", "any number".
    [[nodiscard]] std::string inWords() const;
};

[[nodiscard]] Range anyNumber();
[[nodiscard]] Range noNumber();
[[nodiscard]] Range atLeast(double lowest);
[[nodiscard]] Range atMost(double highest);
[[nodiscard]] Range moreThan(double lowest);
[[nodiscard]] Range between(double lowest, double highest);

/// A number that the user enters into a field of the project, with the values that its form takes.
struct InputNumber {
    const void* field;  ///< the member of the project that holds it
    std::string name;   ///< in the user's words, with its form: "Setup: gammaM0"
    Single value;
    Range range;
    bool counts;  ///< false where nothing reads it now: the second crane of one, the throat of a full penetration weld
};

/// Every number of the project that has a box of its own in a form, and the lengths of the spans. The values are those
/// of the moment, as are the limits that move with other input.
[[nodiscard]] std::vector<InputNumber> inputNumbers(const Project& project);
/// The one that lives in that field. @throws std::logic_error where no form enters it
[[nodiscard]] InputNumber inputNumber(const Project& project, const void* field);

/// What a second closing of its form, or a file, has brought in against the limits, of the numbers that count, one
/// sentence without its full stop each: "Setup: gammaM0 = 0.1 lies outside 0.5 to 1.5".
[[nodiscard]] std::vector<std::string> valuesOutOfRange(const Project& project);

/// Limits of the length of a span, mm.
[[nodiscard]] Range spanLengthRange();

/// Splices that the fatigue forms offer.
inline constexpr int kFormSplices = 4;
/// The span in which a splice lies, by the number stored for it: 1 to the number of spans; 0 where it is none of them.
[[nodiscard]] int spliceSpan(const Project& project, Single entered);
/// Splices in use, of both crane types; the calculation drops those that no longer fit the beam.
[[nodiscard]] int splicesInUse(const Project& project);

}  // namespace borvik
