#include "results/ratios.h"

#include <algorithm>
#include <cmath>

namespace borvik {

namespace {

void regard(RatioVerdict& verdict, const RowSet& rows) {
    if (rows.largest() > verdict.largest) {
        verdict.largest = rows.largest();
        verdict.origin = rows.Origin;
    }
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

void regard(RatioVerdict& verdict, const CheckResult& check) {
    for (const auto& rows : check.extremes) regard(verdict, rows);
    regard(verdict, check.spans);
    regard(verdict, check.governing);
}

void regard(RatioVerdict& verdict, const FatigueResults& fatigue) {
    for (const auto& rows : fatigue.FatRows) regard(verdict, rows);
    for (const auto& result : fatigue.FatResult) regard(verdict, result);
}

}  // namespace

RatioVerdict verdictOf(const Results& results) {
    RatioVerdict verdict;
    for (const CheckResult& check : results.Checks.all) regard(verdict, check);
    regard(verdict, results.Fatigue);
    return verdict;
}

std::vector<StateVerdict> verdictsByState(const Results& results) {
    StateVerdict ultimate{"Ultimate limit state", {}}, service{"Serviceability limit state", {}},
        fatigue{"Fatigue", {}};
    for (const CheckResult& check : results.Checks.all)
        regard(check.check->state == LimitState::Ultimate ? ultimate.verdict : service.verdict, check);
    regard(fatigue.verdict, results.Fatigue);
    const bool anyDetail = std::any_of(results.Fatigue.FatResult.begin(), results.Fatigue.FatResult.end(),
                                       [](const auto& result) { return result.has_value(); });
    if (anyDetail) return {ultimate, service, fatigue};
    return {ultimate, service};
}

std::string RatioVerdict::remark() const {
    return std::string(negative ? ", some are negative: no resistance is left" : "") +
           (notANumber ? ", some are no numbers" : "");
}

}  // namespace borvik
