#include "actions/skewing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "actions/code_tables.h"
#include "actions/crane_fields.h"
#include "actions/vertical_loads.h"

namespace borvik::actions {

namespace {

constexpr double kMillimetresPerMetre = 1000;

}  // namespace

SkewingAngle angleOf(const CraneData& crane) {
    const SkewingRow row = skewingRow(crane.guide);
    const double distance = crane.guideDistance() * kMillimetresPerMetre;
    SkewingAngle angle;
    angle.slip = std::max(row.share * crane.slip, row.leastSlip) / distance;
    angle.wear = row.leastWear * crane.railhead / distance;
    angle.tolerances = row.tolerances;
    angle.sum = crane.alpha.value_or(angle.slip + angle.wear + angle.tolerances);
    angle.alpha = std::min(angle.sum, kLargestAlpha);
    return angle;
}

double skewingFriction(double alpha) {
    return 0.3 * (1 - std::exp(-250 * alpha));
}

Skewing skewing(const CraneData& crane, Rail guided) {
    const std::vector<double> e = crane.e();
    const double n = crane.wheels();
    const WheelLoads loads = wheelLoads(crane, {crane.phi4, crane.phi4});
    const bool movable = isMovable(crane.system);

    Skewing result;
    result.guided = guided;
    result.angle = angleOf(crane);
    result.f = skewingFriction(result.angle.alpha);
    result.sumQr = loads.sum();
    result.xiGuided = (guided == Rail::Crab ? loads.sumCrab : loads.sumFar) / result.sumQr;
    result.xiOther = 1 - result.xiGuided;

    // Table 2.8. All the crane's turning about the pole: h = turning / sum of e.
    const double sumE = std::accumulate(e.begin(), e.end(), 0.0);
    const double squares = std::inner_product(e.begin(), e.end(), e.begin(), 0.0);
    const double coupled = crane.m * result.xiOther * (movable ? 1 : result.xiGuided) * crane.span * crane.span;
    const double turning = coupled + squares;
    result.h = turning / sumE;

    // Table 2.9. The wheels of a movable bearing take nothing across the rail.
    const double slid = sumE * sumE / turning;  // sum of e / h
    const double acting = movable ? result.xiGuided : 1;
    result.lambdaS = acting * (1 - slid / n);
    result.S = result.f * result.lambdaS * result.sumQr;
    if (isCoupled(crane.system))
        result.HSL = result.f * result.sumQr * result.xiGuided * result.xiOther * crane.span / (n * result.h);
    for (const double distance : e) {
        // Not distance / h, so that a last wheel at the pole gets nothing, exactly.
        const double share = result.f * result.sumQr / n * (1 - distance * sumE / turning);
        result.guidedRail.push_back(result.xiGuided * share);
        result.otherRail.push_back(movable ? 0 : result.xiOther * share);
    }
    if (crane.guide == Guide::Flanges) result.guidedRail.front() -= result.S;
    return result;
}

}  // namespace borvik::actions
