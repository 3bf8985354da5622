#pragma once

#include <cmath>
#include <string>

#include "base/array.h"

namespace borvik {

/// The texts of one check result, shown as they stand: 1 formula, 2 numbers, 3 ratio by the mask "0.000", 4 limit and
/// reference, further rows of position data. Rows that nothing writes stay empty.
/// `Ratio` is the number behind row 3, so that 1.0001 can be marked although it shows as "1.000". Where the rows were
/// chosen from several points by their texts, `LargestOfPoints` is the largest number among these.
template <int Rows>
struct RowSet {
    FixedArray<std::string, 1, Rows> Text;
    double Ratio = 0.0;
    double LargestOfPoints = 0.0;

    /// The largest ratio that stands behind these rows, shown or not.
    [[nodiscard]] double largest() const { return std::fmax(LargestOfPoints, Ratio); }
    [[nodiscard]] std::string& operator()(int row) { return Text(row); }
    [[nodiscard]] const std::string& operator()(int row) const { return Text(row); }
    bool operator==(const RowSet&) const = default;
};

/// Copies rows first..last, and the number where row 3 is among them.
template <int To, int From>
void copyRows(RowSet<To>& to, const RowSet<From>& from, int first, int last) {
    for (int row = first; row <= last; ++row) to(row) = from(row);
    if (first > 3 || last < 3) return;
    to.Ratio = from.Ratio;
    to.LargestOfPoints = from.LargestOfPoints;
}

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

/// Rows of all static checks. Arrays run over the spans, 1..NofSpans.
struct CheckResults {
    Array<RowSet<8>> ShearMax, ShearMin, ShearSpan;  ///< EN 1993-1-1 6.2.6
    RowSet<8> ShearGov;
    Array<RowSet<8>> BendMax, BendMin, BendSpan;  ///< EN 1993-1-1 6.2.5, 6.2.8, 6.2.9
    RowSet<8> BendGov;
    Array<RowSet<8>> LtbPos, LtbNeg, LtbSpan;  ///< EN 1993-1-1 6.3.2, EN 1993-6 6.3.3
    RowSet<8> LtbGov;
    Array<RowSet<4>> LocalSpan;  ///< EN 1993-6 5.7.1 (overhead) or 6.7 (monorail)
    RowSet<6> LocalGov;
    Array<RowSet<4>> VonMisesSpan;  ///< EN 1993-6 5.8, 7.5; empty for an overhead crane
    RowSet<6> VonMisesGov;
    Array<RowSet<5>> DefZSpan, DefYSpan;  ///< deflections
    RowSet<5> DefZGov, DefYGov;
};

}  // namespace borvik
