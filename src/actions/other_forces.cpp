#include "actions/other_forces.h"

#include <cmath>
#include <stdexcept>

#include "actions/dynamic_factors.h"
#include "actions/vertical_loads.h"

namespace borvik::actions {

namespace {

constexpr double kGravity = 9.81;  // m/s2
constexpr int kRails = 2;

}  // namespace

double crabForce(const CraneData& crane) {
    return 0.10 * (crane.hoist + crane.crab);
}

double crabForcePerWheel(const CraneData& crane) {
    return crabForce(crane) / (kRails * crane.wheels());
}

BufferForce bufferForce(const CraneData& crane, bool loaded) {
    const WheelLoads loads = wheelLoads(crane, {1, loaded ? 1.0 : 0.0});
    BufferForce force;
    force.phi7 = bufferFactor(crane.xib.value());
    force.v1 = 0.7 * crane.v.value();
    force.mass = loads.sum() / kGravity;
    force.HB1 = force.phi7 * force.v1 * std::sqrt(force.mass * crane.SB.value());
    force.crab = force.mass > 0 ? force.HB1 * loads.sumCrab / loads.sum() : 0;
    force.far = force.HB1 - force.crab;
    return force;
}

MonorailLoads monorailLoads(const MonorailHoist& hoist) {
    if (!(hoist.block >= 0) || !(hoist.hoist > 0) || hoist.wheels < 1 || !(hoist.vh >= 0 && hoist.vh <= 2) ||
        !(hoist.phi1 >= 0.9 && hoist.phi1 <= 1.1))
        throw std::invalid_argument("a hoist needs a load, wheels, a speed of 0 to 2 m/s and phi1 of 0.9 to 1.1");
    const HoistingRow row = hoistingRow(hoist.hc);
    MonorailLoads loads;
    loads.phi2 = row.phi2Min + row.beta2 * hoist.vh;
    loads.wheelStatic = (hoist.block + hoist.hoist) / hoist.wheels;
    loads.wheel = (hoist.phi1 * hoist.block + loads.phi2 * hoist.hoist) / hoist.wheels;
    loads.along = 0.05 * loads.wheelStatic;
    return loads;
}

double underslungAcross(double largestStaticWheel) {
    return 0.10 * largestStaticWheel;
}

}  // namespace borvik::actions
