#include "actions/acceleration.h"

#include "actions/dynamic_factors.h"
#include "actions/vertical_loads.h"

namespace borvik::actions {

namespace {

constexpr int kRails = 2;

/// 2.7.3(3): what the driven wheels can bring onto the rail before they slip.
double driveForce(const CraneData& crane, const WheelLoads& unloaded) {
    const double onDriven = crane.drive == Drive::Central ? unloaded.far + unloaded.crab : crane.mw * unloaded.far;
    return crane.K.value_or(crane.mu * onDriven);
}

}  // namespace

Acceleration acceleration(const CraneData& crane, bool withPhi) {
    const DynamicFactors phi = dynamicFactors(crane);
    const WheelLoads loaded = wheelLoads(crane, withPhi ? VerticalFactors{phi.phi1, phi.phi2} : VerticalFactors{1, 1});
    const WheelLoads unloaded = wheelLoads(crane, {withPhi ? phi.phi1 : 1, 0});
    Acceleration forces;
    forces.xi1 = loaded.sumCrab / loaded.sum();
    forces.xi2 = 1 - forces.xi1;
    forces.Qrmin = unloaded.far;
    forces.K = driveForce(crane, unloaded);
    forces.ls = (forces.xi1 - 0.5) * crane.span;
    forces.M = forces.K * forces.ls;
    forces.HL = crane.phi5 * forces.K / kRails;
    forces.HT1 = crane.HT1.value_or(crane.phi5 * forces.xi2 * forces.M / crane.guideDistance());
    forces.HT2 = crane.HT2.value_or(crane.phi5 * forces.xi1 * forces.M / crane.guideDistance());
    forces.patternHL = forces.HL / crane.phi5;
    forces.patternHT1 = forces.HT1 / crane.phi5;
    forces.patternHT2 = forces.HT2 / crane.phi5;
    return forces;
}

}  // namespace borvik::actions
