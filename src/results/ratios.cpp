#include "results/ratios.h"

#include <algorithm>
#include <cmath>

namespace borvik {

namespace {

void regard(RatioVerdict& verdict, const RowSet& rows) {
    verdict.largest = std::max(verdict.largest, rows.largest());
    verdict.negative |= rows.Ratio < 0.0;
    verdict.notANumber |= std::isnan(rows.Ratio);
}

void regard(RatioVerdict& verdict, const Array<RowSet>& items) {
    for (const RowSet& item : items) regard(verdict, item);
}

template <class Rows>
void regard(RatioVerdict& verdict, const std::optional<Rows>& rows) {
    if (rows) regard(verdict, *rows);
}

}  // namespace

RatioVerdict verdictOf(const Results& results) {
    RatioVerdict verdict;
    for (const CheckResult& check : results.Checks.all) {
        for (const auto& rows : check.extremes) regard(verdict, rows);
        regard(verdict, check.spans);
        regard(verdict, check.governing);
    }
    for (const auto& rows : results.Fatigue.FatRows) regard(verdict, rows);
    for (const auto& result : results.Fatigue.FatResult) regard(verdict, result);
    return verdict;
}

std::string RatioVerdict::remark() const {
    return std::string(negative ? ", some are negative: no resistance is left" : "") +
           (notANumber ? ", some are no numbers" : "");
}

}  // namespace borvik
