#pragma once

#include <vector>

#include "actions/acceleration.h"
#include "actions/code_tables.h"
#include "actions/dynamic_factors.h"
#include "actions/fatigue_loads.h"
#include "actions/other_forces.h"
#include "actions/skewing.h"
#include "actions/vertical_loads.h"

namespace borvik::actions {

/// What a group puts on one rail.
struct RailLoads {
    double V = 0;             ///< of one wheel, with the group's dynamic factors, kN
    double psiV = 0;          ///< V over the wheel load of the loaded crane without dynamic factors
    std::vector<double> H;    ///< across the rail at wheels 1 to n, without psiH, kN; all may turn round together
    double roller = 0;        ///< S at a guide roller of this rail, across it and against H, kN
    Rail guided = Rail::Far;  ///< group 5: the rail that guides the crane while this one has its largest force
};

/// One group of loads, Table 2.2.
struct GroupLoads {
    int group = 0;
    VerticalFactors factors;       ///< of self-weight and hoist load; of group 8 those of the governing test
    RailLoads crab, far;           ///< rail beside the crab, the other one
    double HL = 0;                 ///< along each rail, without psiH, kN
    double psiH = 1;               ///< dynamic factor of H and HL: phi5 while accelerating
    double HBCrab = 0, HBFar = 0;  ///< buffer force along the rails, with phi7, kN
    double gamma = 1;              ///< Table A.1, unfavourable
};

/// All that is known of a crane's loads, with every value on the way.
struct CraneLoads {
    DynamicFactors factors;
    WheelLoads loaded, unloaded;  ///< without dynamic factors
    TestLoads test;
    Acceleration moving;  ///< with phi1 and phi2 where the crane data ask for it
    Skewing guidedByCrabRail, guidedByFarRail;
    double HT3 = 0, HT3PerWheel = 0;
    FatigueLoads fatigue;
    std::optional<BufferForce> bufferLoaded, bufferUnloaded;
    double psi2 = 0;  ///< Table A.2
    std::vector<GroupLoads> groups;
};

/// Loads of groups 1 to 6 and 8; of group 7 where eta is given, of group 9 where the buffer is. Tilting (10) is not
/// calculated, wind is not in any. Oblique hoisting is not covered: rules of use forbid it.
/// @throws std::invalid_argument  with the first message of checkCrane, where that refuses the crane
[[nodiscard]] CraneLoads craneLoads(const CraneData& crane, const NationalValues& values = {});

}  // namespace borvik::actions
