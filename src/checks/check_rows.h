#pragma once

#include <array>
#include <cmath>
#include <string>

#include "analysis/crane_stand.h"
#include "base/array.h"

namespace borvik {

struct StaticCheck;
struct Detail;

/// Which check a row is of, and where it was made.
struct RowOrigin {
    const StaticCheck* check = nullptr;  ///< null: of a fatigue detail, or of no check
    int span = 0, extreme = 0;           ///< extreme from 0
    const Detail* detail = nullptr;      ///< a fatigue detail
    int row = 0;                         ///< of that: span, support or splice

    [[nodiscard]] bool isKnown() const { return check != nullptr || detail != nullptr; }

    bool operator==(const RowOrigin&) const = default;
};

/// The texts of one check result, shown as they stand: 1 formula, 2 numbers, 3 ratio by the mask "0.000", 4 limit and
/// reference, 5 to 8 position data. Rows that nothing writes stay empty; how many a check has stands in its row of the
/// list of checks.
/// `Ratio` is the number behind row 3, so that 1.0001 can be marked although it shows as "1.000". Where the rows were
/// chosen from several points by their texts, `LargestOfPoints` is the largest number among these.
struct RowSet {
    FixedArray<std::string, 1, 8> Text;
    double Ratio = 0.0;
    double LargestOfPoints = 0.0;
    /// The position of the cranes that governs; of a stress range also that of its other extreme. Not known where no
    /// position decides, as with the local effect of a wheel.
    std::array<CraneStand, 2> Stands = {};
    RowOrigin Origin = {};

    /// The largest ratio that stands behind these rows, shown or not.
    [[nodiscard]] double largest() const { return std::fmax(LargestOfPoints, Ratio); }
    [[nodiscard]] std::string& operator()(int row) { return Text(row); }
    [[nodiscard]] const std::string& operator()(int row) const { return Text(row); }
    bool operator==(const RowSet&) const = default;
};

/// Copies rows first..last, and the number and the governing position where row 3 is among them.
inline void copyRows(RowSet& to, const RowSet& from, int first, int last) {
    for (int row = first; row <= last; ++row) to(row) = from(row);
    if (first > 3 || last < 3) return;
    to.Ratio = from.Ratio;
    to.LargestOfPoints = from.LargestOfPoints;
    to.Stands = from.Stands;
    to.Origin = from.Origin;
}

/// Rows of a fatigue detail.
constexpr int kFatigueRows = 4;

/// True when a ratio shows that its check holds. A negative one does not: the resistance is used up by something else,
/// or a factor is senseless; nor does what is no number, whose comparison is no arithmetic fault here.
[[nodiscard]] inline bool isSatisfied(double ratio) {
    return std::isgreaterequal(ratio, 0.0) && ratio <= 1.0;
}

/// True when ratio text `a` ranks above `b`: the texts are compared character by character, so that "10.000" ranks
/// below "9.000", here and wherever a governing row is chosen: note H1.
[[nodiscard]] inline bool ranksAbove(const std::string& a, const std::string& b) {
    return a > b;
}

}  // namespace borvik
