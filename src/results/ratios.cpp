#include "results/ratios.h"

#include <algorithm>

namespace borvik {

namespace {

template <int Rows>
double ratioOf(const RowSet<Rows>& rows) {
    return rows.Ratio;
}

template <int Rows>
double ratioOf(const Array<RowSet<Rows>>& items) {
    double largest = 0;
    for (const auto& item : items) largest = std::max(largest, item.Ratio);
    return largest;
}

template <class... Items>
double largestOf(const Items&... items) {
    return std::max({ratioOf(items)...});
}

}  // namespace

double LargestRatio(const Results& results) {
    const CheckResults& c = results.Checks;
    double largest = largestOf(c.ShearMax, c.ShearMin, c.ShearSpan, c.ShearGov, c.BendMax, c.BendMin, c.BendSpan,
                               c.BendGov, c.LtbPos, c.LtbNeg, c.LtbSpan, c.LtbGov, c.LocalSpan, c.LocalGov,
                               c.VonMisesSpan, c.VonMisesGov, c.DefZSpan, c.DefYSpan, c.DefZGov, c.DefYGov);
    for (const auto& rows : results.Fatigue.FatRows)
        if (rows) largest = std::max(largest, ratioOf(*rows));
    for (const auto& result : results.Fatigue.FatResult)
        if (result) largest = std::max(largest, ratioOf(*result));
    return largest;
}

}  // namespace borvik
