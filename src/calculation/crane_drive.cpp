#include "calculation/crane_drive.h"

#include "base/units.h"
#include "fatigue/stress_history.h"

namespace borvik {

namespace {

const std::optional<StressSet>& setOf(const FatigueResults& fatigue, WalkOf walk) {
    return walk == WalkOf::FatigueCrane1 ? fatigue.Cr1 : walk == WalkOf::FatigueCrane2 ? fatigue.Cr2 : fatigue.Cr12;
}

const CraneFactors& factorsOf(const FatigueFactors& factors, WalkOf walk) {
    return walk == WalkOf::FatigueCrane1 ? factors.Cr1 : walk == WalkOf::FatigueCrane2 ? factors.Cr2 : factors.Cr12;
}

bool isFatigue(WalkOf walk) {
    return walk != WalkOf::Uls && walk != WalkOf::Sls;
}

}  // namespace

CraneDrive::CraneDrive(const Project& project, const Results& results)
    : project_(project),
      results_(results),
      cranes_(std::make_unique<DrivenCranes>(project, *loadsOf(WalkOf::Uls), true)) {}

const RunLoads* CraneDrive::loadsOf(WalkOf walk) const {
    if (walk == WalkOf::Uls) return &results_.Uls.Loads;
    if (walk == WalkOf::Sls) return &results_.Sls.Loads;
    const std::optional<StressSet>& set = setOf(results_.Fatigue, walk);
    return set ? &set->Loads : nullptr;
}

bool CraneDrive::goTo(const std::array<CraneStand, 2>& stands) {
    if (!stands[0].isKnown() || !has(stands[0].walk)) return false;
    const bool again = stands == stands_ && isThere() && stands[1].isKnown();
    stands_ = stands;
    shown_ = again ? 1 - shown_ : 0;
    goBack();
    return true;
}

void CraneDrive::goBack() {
    if (!stand().isKnown()) return;
    take(stand().walk);
    cranes_->standAt(stand().at);
}

void CraneDrive::moveTo(int j, int k) {
    cranes_->standAt(cranes_->nearest(j, k));
}

void CraneDrive::moveNear(double x1, double x5) {
    cranes_->standAt(cranes_->nearestTo(walk_ == WalkOf::FatigueCrane2 ? x5 : x1, x5));
}

void CraneDrive::take(WalkOf walk) {
    if (walk == walk_ || !has(walk)) return;
    // In a walk of crane 2 alone its wheels take the places of those of crane 1.
    const double x5 = cranes_->place(walk_ == WalkOf::FatigueCrane2 ? 1 : 5);
    const double x1 = cranes_->place(1);
    walk_ = walk;
    cranes_ = std::make_unique<DrivenCranes>(project_, *loadsOf(walk), !isFatigue(walk));
    moveNear(x1, x5);
}

std::array<double, kPoints + 1> CraneDrive::values(Effect effect, int span) const {
    std::array<double, kPoints + 1> values{};
    const SpanStep& forces = cranes_->forces(span);
    const auto fill = [&](const auto& valueAt) {
        for (int k = 1; k <= kPoints; ++k) values[static_cast<std::size_t>(k)] = valueAt(k);
    };
    const auto fillForce = [&](int slot, double divisor) {
        fill([&](int k) { return double{forces.quantity[slot][k]} / divisor; });
    };
    switch (effect) {
        case Effect::My:
            fillForce(1, kPerKiloMetre);
            break;
        case Effect::Vz:
            fillForce(2, kPerKilo);
            break;
        case Effect::Mz:
            fillForce(3, kPerKiloMetre);
            break;
        case Effect::Vy:
            fillForce(4, kPerKilo);
            break;
        case Effect::Uz:
        case Effect::Uy: {
            PointSteps U;
            cranes_->deflections(span, effect == Effect::Uy, U);
            fill([&](int k) { return double{U[k]}; });
            break;
        }
        case Effect::TopFlange:
        case Effect::BottomFlange:
        case Effect::Web: {
            const PointStress stress(project_.SpanSection(span), factorsOf(results_.Fatigue.Factors, walk_));
            fill([&](int k) -> double {
                if (effect == Effect::TopFlange) return stress.topFlange(forces.quantity[1][k]);
                if (effect == Effect::BottomFlange) return stress.bottomFlange(forces.quantity[1][k]);
                return stress.web(forces.quantity[2][k]);
            });
            break;
        }
        case Effect::Rz:
        case Effect::Ry:
            break;
    }
    return values;
}

double CraneDrive::reaction(int support, bool horizontal) const {
    return cranes_->reaction(support, horizontal) / kPerKilo;
}

}  // namespace borvik
