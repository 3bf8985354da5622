#include "actions/crane_loads.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "actions/crane_fields.h"

namespace borvik::actions {

namespace {

/// 2.7.3: a couple at the outer wheels.
std::vector<double> couple(int wheels, double force) {
    std::vector<double> H(static_cast<std::size_t>(wheels), 0.0);
    H.front() = force;
    H.back() = -force;
    return H;
}

double largestAcross(const Skewing& skewed, Rail rail, bool rollers) {
    double largest = rollers && rail == skewed.guided ? skewed.S : 0;
    for (const double force : skewed.across(rail)) largest = std::max(largest, std::abs(force));
    return largest;
}

/// 2.7.4: either rail may guide, and this rail takes the worse.
void putSkewing(const CraneData& crane, const CraneLoads& loads, Rail rail, RailLoads& onRail) {
    const bool rollers = crane.guide == Guide::Rollers;
    const Skewing& worse =
        largestAcross(loads.guidedByCrabRail, rail, rollers) > largestAcross(loads.guidedByFarRail, rail, rollers)
            ? loads.guidedByCrabRail
            : loads.guidedByFarRail;
    onRail.guided = worse.guided;
    onRail.H = worse.across(rail);
    onRail.roller = rollers && worse.guided == rail ? worse.S : 0;
    if (!crane.HS) return;
    std::fill(onRail.H.begin(), onRail.H.end(), 0.0);
    onRail.H.front() = *crane.HS * (rail == Rail::Crab ? 1 : -1);
    onRail.roller = 0;
}

void putVertical(const GroupRow& row, const CraneData& crane, const CraneLoads& loads, GroupLoads& group) {
    group.factors = {loads.factors.of(row.selfWeight), loads.factors.of(row.hoistLoad)};
    WheelLoads vertical = wheelLoads(crane, group.factors);
    if (row.special == Factor::Phi6) {
        vertical = loads.test.governing();
        group.factors.hoist = std::max(loads.test.dynamicFactor, loads.test.staticFactor);
    }
    group.crab.V = vertical.crab;
    group.far.V = vertical.far;
    group.crab.psiV = vertical.crab / loads.loaded.crab;
    group.far.psiV = loads.loaded.far > 0 ? vertical.far / loads.loaded.far : 0;
}

void putHorizontal(const GroupRow& row, const CraneData& crane, const CraneLoads& loads, GroupLoads& group) {
    const auto wheels = static_cast<std::size_t>(crane.wheels());
    group.crab.H.assign(wheels, 0.0);
    group.far.H.assign(wheels, 0.0);
    if (row.acceleration != Factor::None) {
        // The dynamic factors of lifting belong to the groups that lift.
        const bool lifts = row.selfWeight == Factor::Phi1;
        const Acceleration moving = lifts ? loads.moving : acceleration(crane, false);
        group.psiH = loads.factors.of(row.acceleration);
        group.crab.H = couple(crane.wheels(), moving.patternHT2);
        group.far.H = couple(crane.wheels(), moving.patternHT1);
        group.HL = moving.patternHL;
    }
    if (row.skewing != Factor::None) {
        putSkewing(crane, loads, Rail::Crab, group.crab);
        putSkewing(crane, loads, Rail::Far, group.far);
    }
    if (row.crab != Factor::None) {
        group.crab.H.assign(wheels, loads.HT3PerWheel);
        group.far.H.assign(wheels, loads.HT3PerWheel);
    }
    if (row.special == Factor::Phi7) {
        group.HBCrab = loads.bufferLoaded->crab;
        group.HBFar = loads.bufferLoaded->far;
    }
}

bool isCalculated(const GroupRow& row, const CraneData& crane) {
    if (row.hoistLoad == Factor::Eta) return crane.eta.has_value();
    if (row.situation == Situation::Accidental) return row.special == Factor::Phi7 && crane.hasBuffer();
    return true;
}

}  // namespace

CraneLoads craneLoads(const CraneData& crane, const NationalValues& values) {
    if (const CraneCheck check = checkCrane(crane); !check.isGood())
        throw std::invalid_argument(check.faults.front().line());
    CraneLoads loads;
    loads.factors = dynamicFactors(crane);
    loads.loaded = wheelLoads(crane, {1, 1});
    loads.unloaded = wheelLoads(crane, {1, 0});
    loads.test = testLoads(crane);
    loads.moving = acceleration(crane, crane.phiOnK);
    loads.guidedByCrabRail = skewing(crane, Rail::Crab);
    loads.guidedByFarRail = skewing(crane, Rail::Far);
    loads.HT3 = crabForce(crane);
    loads.HT3PerWheel = crabForcePerWheel(crane);
    loads.fatigue = fatigueLoads(crane);
    if (crane.hasBuffer()) {
        loads.bufferLoaded = bufferForce(crane, true);
        loads.bufferUnloaded = bufferForce(crane, false);
    }
    loads.psi2 = values.psi2Of(crane);
    for (const GroupRow& row : kGroups) {
        if (!isCalculated(row, crane)) continue;
        GroupLoads group;
        group.group = row.group;
        group.gamma = values.gammaOf(row.situation);
        putVertical(row, crane, loads, group);
        putHorizontal(row, crane, loads, group);
        loads.groups.push_back(std::move(group));
    }
    return loads;
}

}  // namespace borvik::actions
