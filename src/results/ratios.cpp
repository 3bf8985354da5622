#include "results/ratios.h"

#include <algorithm>
#include <cmath>

namespace borvik {

namespace {

template <int Rows>
void regard(RatioVerdict& verdict, const RowSet<Rows>& rows) {
    verdict.largest = std::max(verdict.largest, rows.largest());
    verdict.negative |= rows.Ratio < 0.0;
    verdict.notANumber |= std::isnan(rows.Ratio);
}

template <int Rows>
void regard(RatioVerdict& verdict, const Array<RowSet<Rows>>& items) {
    for (const auto& item : items) regard(verdict, item);
}

template <class Rows>
void regard(RatioVerdict& verdict, const std::optional<Rows>& rows) {
    if (rows) regard(verdict, *rows);
}

}  // namespace

RatioVerdict verdictOf(const Results& results) {
    const CheckResults& c = results.Checks;
    RatioVerdict verdict;
    const auto regardAll = [&verdict](const auto&... rows) { (regard(verdict, rows), ...); };
    regardAll(c.ShearMax, c.ShearMin, c.ShearSpan, c.ShearGov, c.BendMax, c.BendMin, c.BendSpan, c.BendGov, c.LtbPos,
              c.LtbNeg, c.LtbSpan, c.LtbGov, c.LocalSpan, c.LocalGov, c.VonMisesSpan, c.VonMisesGov, c.DefZSpan,
              c.DefYSpan, c.DefZGov, c.DefYGov);
    for (const auto& rows : results.Fatigue.FatRows) regard(verdict, rows);
    for (const auto& result : results.Fatigue.FatResult) regard(verdict, result);
    return verdict;
}

std::string RatioVerdict::remark() const {
    return std::string(negative ? ", some are negative: no resistance is left" : "") +
           (notANumber ? ", some are no numbers" : "");
}

}  // namespace borvik
