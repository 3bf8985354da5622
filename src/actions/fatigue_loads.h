#pragma once

#include "actions/crane_data.h"

namespace borvik::actions {

/// Damage equivalent load of a wheel on the rail beside the crab, 2.12.1, kN.
struct FatigueLoads {
    double phiFat1 = 1, phiFat2 = 1;
    double self = 0, hoist = 0;             ///< parts of the static wheel load
    double largest = 0;                     ///< phiFat1 self + phiFat2 hoist
    double lambdaSigma = 0, lambdaTau = 0;  ///< Table 2.12
    double QeSigma = 0, QeTau = 0;
};
[[nodiscard]] FatigueLoads fatigueLoads(const CraneData& crane);

}  // namespace borvik::actions
