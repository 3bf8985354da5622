#pragma once

#include <vector>

#include "actions/crane_data.h"

namespace borvik::actions {

/// Skewing angle, 2.7.4(1) and Table 2.7.
struct SkewingAngle {
    double slip = 0;        ///< alphaF, clearance of the guides
    double wear = 0;        ///< alphaV, wear of rail and guide
    double tolerances = 0;  ///< alpha0
    double sum = 0;         ///< before it is cut; the maker's angle where there is one
    double alpha = 0;       ///< at most 0.015
};
[[nodiscard]] SkewingAngle angleOf(const CraneData& crane);

/// f = 0.3 (1 - exp(-250 alpha)), 2.7.4(2): friction of wheels that run askew.
[[nodiscard]] double skewingFriction(double alpha);

enum class Rail { Crab, Far };  ///< beside the crab, and the other one

/// Forces while one rail guides the crane, 2.7.4, Tables 2.8 and 2.9. Positive across the rail is the sense of the
/// wheels' friction, the guide's S acts against it; all may turn round together.
struct Skewing {
    Rail guided = Rail::Far;
    SkewingAngle angle;
    double f = 0;
    double xiGuided = 0, xiOther = 0;  ///< shares of the static load on the guided rail, the other one
    double h = 0;                      ///< from the front guide to the pole about which the crane turns, m
    double lambdaS = 0;
    double sumQr = 0;  ///< load of all wheels, crane with hoist load and phi4, kN
    double S = 0;      ///< guide force, kN
    double HSL = 0;    ///< along the rail at each coupled pair, opposite on the two rails, kN
    /// Across the rails at wheels 1 to n, kN. With flanges S is in that of the guided rail's first wheel; with
    /// rollers it is a load of its own at the front roller.
    std::vector<double> guidedRail, otherRail;

    /// Across a rail at its wheels, kN.
    [[nodiscard]] const std::vector<double>& across(Rail rail) const { return rail == guided ? guidedRail : otherRail; }
};

/// @param crane  one that checkCrane finds good
[[nodiscard]] Skewing skewing(const CraneData& crane, Rail guided);

}  // namespace borvik::actions
