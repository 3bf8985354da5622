#pragma once

#include "actions/crane_data.h"

namespace borvik::actions {

/// HT,3 of accelerating the crab, 2.7.5 with 2.11.2(1): a tenth of hoist load and crab, the load swinging free, kN. It
/// acts on both rails, equally on all wheels.
[[nodiscard]] double crabForce(const CraneData& crane);
/// HT,3 of one wheel, kN.
[[nodiscard]] double crabForcePerWheel(const CraneData& crane);

/// Buffer force, 2.11.1, with every value on the way; shared by the rails as the mass stands.
struct BufferForce {
    double phi7 = 0;
    double v1 = 0;             ///< 70 % of the long travel speed, m/s
    double mass = 0;           ///< t
    double HB1 = 0;            ///< kN
    double crab = 0, far = 0;  ///< share of the rail beside the crab, the far rail, kN
};
/// @param crane   with v, SB and xib
/// @param loaded  with the hoist load; without, the crane alone
/// @throws std::bad_optional_access  without them
[[nodiscard]] BufferForce bufferForce(const CraneData& crane, bool loaded);

/// A hoist on a beam, 2.5.1: trolley and load stand on its wheels in equal parts.
struct MonorailHoist {
    double block = 0;  ///< Qc, weight of hoist block and trolley, kN
    double hoist = 0;  ///< Qh, hoist load, kN
    int wheels = 4;
    HoistingClass hc = HoistingClass::HC2;
    double vh = 0;  ///< steady hoisting speed, m/s
    double phi1 = 1.1;
};
struct MonorailLoads {
    double phi2 = 0;
    double wheelStatic = 0;  ///< one wheel without phi, kN
    double wheel = 0;        ///< one wheel when the load is lifted, kN
    double along = 0;        ///< along the beam, kN
};
/// Along the beam 5 % of the largest wheel load without phi, 2.5.1(2). Loads that are pulled askew are not covered.
/// @throws std::invalid_argument  without wheels or load, or with a weight, speed or factor out of range
[[nodiscard]] MonorailLoads monorailLoads(const MonorailHoist& hoist);

/// Underslung cranes, 2.5.2.2(3): across the beam at least 10 % of the largest wheel load without phi, kN.
[[nodiscard]] double underslungAcross(double largestStaticWheel);

}  // namespace borvik::actions
