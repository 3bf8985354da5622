#pragma once

#include "actions/crane_data.h"

namespace borvik::actions {

/// Forces of accelerating and braking the crane, 2.7.2 and 2.7.3, with every value on the way.
struct Acceleration {
    double xi1 = 0, xi2 = 0;  ///< share of the load on the rail beside the crab, on the far rail
    double Qrmin = 0;         ///< wheel load of the unloaded crane on the far rail, kN
    double K = 0;             ///< drive force, kN
    double ls = 0;            ///< lever between drive force and centre of mass, m
    double M = 0;             ///< moment K ls that the guides take, kNm
    double HL = 0;            ///< along each rail, with phi5, kN
    double HT1 = 0, HT2 = 0;  ///< couple across the far rail, across the rail beside the crab, with phi5, kN
    double patternHT1 = 0, patternHT2 = 0, patternHL = 0;  ///< the same without phi5
};

/// The couple acts at the outer wheels, or guide rollers: + at the first, - at the last, in either sense. The rail
/// beside the crab takes the larger part, HT2: l xi1 is the distance of the centre of mass from the far rail.
/// @param withPhi  loads of lifting (phi1, phi2) in xi1, and phi1 in Qr,min; the clause has the static ones
[[nodiscard]] Acceleration acceleration(const CraneData& crane, bool withPhi);

}  // namespace borvik::actions
