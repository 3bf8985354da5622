#include "actions/vertical_loads.h"

#include "actions/dynamic_factors.h"

namespace borvik::actions {

WheelLoads wheelLoads(const CraneData& crane, VerticalFactors factors) {
    const double moving = factors.self * crane.crab + factors.hoist * crane.hoist;
    WheelLoads loads;
    loads.sumCrab = factors.self * crane.bridge / 2 + moving * (crane.span - crane.emin) / crane.span;
    loads.sumFar = factors.self * crane.bridge / 2 + moving * crane.emin / crane.span;
    loads.crab = loads.sumCrab / crane.wheels();
    loads.far = loads.sumFar / crane.wheels();
    return loads;
}

TestLoads testLoads(const CraneData& crane) {
    const DynamicFactors factors = dynamicFactors(crane);
    TestLoads loads;
    loads.dynamicFactor = 1.10 * factors.phi6;
    loads.staticFactor = 1.25;
    loads.dynamic = wheelLoads(crane, {factors.phi1, loads.dynamicFactor});
    loads.statical = wheelLoads(crane, {factors.phi1, loads.staticFactor});
    return loads;
}

}  // namespace borvik::actions
