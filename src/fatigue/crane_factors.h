#pragma once

#include "base/single.h"
#include "project/project.h"

namespace borvik {

/// What a crane's class and its number of wheels make of a stress range. All zero where the run has no such crane.
struct CraneFactors {
    int NofWheels = 0;        ///< loaded wheels, each passing wheel being one cycle of the local stress
    Single LamSig, LamTau;    ///< damage equivalence factors of the class, EN 1991-3 Table 2.12
    Single LamSigN, LamTauN;  ///< the same for local wheel stress: times N^(1/3) and N^(1/5)
    Single PhiFat;            ///< dynamic factor of the fatigue load
};

/// Factors of crane 1 alone, crane 2 alone, and both acting together (whose PhiFat stays 0: each crane keeps its own).
struct FatigueFactors {
    CraneFactors Cr1, Cr2, Cr12;
};

/// Wheels of crane 1 (V(1) to V(4)) or of crane 2 (V(5) to V(8)), 1..4: up to the last one that is loaded, so that a
/// gap in the row counts as a wheel. On crane 2 a zero third wheel gives 2 whatever the fourth carries.
[[nodiscard]] int countWheels(const Project& project, int crane);

/// Wheels of both cranes as one train at a constant distance: those of crane 1 and the loaded ones of crane 2.
[[nodiscard]] int countTrainWheels(const Project& project);

/// Class of the two cranes acting together: two below the lower of theirs, at least S0. EN 1993-6 9.4.2.
[[nodiscard]] std::int16_t classOfBoth(const Project& project);

/// Dynamic factor of the fatigue load, (1 + PsiV)/2, EN 1991-3
/// 2.12.1(7). @param PsiV vertical dynamic factor of the crane
[[nodiscard]] Single dynamicFactor(double PsiV);

/// Factors of a crane.
/// @param craneClass  0..9 for S0..S9; any other is a RuntimeFault
[[nodiscard]] CraneFactors craneFactors(int craneClass, int wheels, double PhiFat);

}  // namespace borvik
