#include "actions/fatigue_loads.h"

#include "actions/dynamic_factors.h"
#include "actions/vertical_loads.h"

namespace borvik::actions {

FatigueLoads fatigueLoads(const CraneData& crane) {
    const DynamicFactors factors = dynamicFactors(crane);
    FatigueLoads loads;
    loads.phiFat1 = factors.phiFat1;
    loads.phiFat2 = factors.phiFat2;
    loads.self = wheelLoads(crane, {1, 0}).crab;
    loads.hoist = wheelLoads(crane, {0, 1}).crab;
    loads.largest = loads.phiFat1 * loads.self + loads.phiFat2 * loads.hoist;
    loads.lambdaSigma = kLambdaSigma.at(static_cast<std::size_t>(crane.S));
    loads.lambdaTau = kLambdaTau.at(static_cast<std::size_t>(crane.S));
    loads.QeSigma = loads.lambdaSigma * loads.largest;
    loads.QeTau = loads.lambdaTau * loads.largest;
    return loads;
}

}  // namespace borvik::actions
