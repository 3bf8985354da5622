#include "fatigue/crane_factors.h"

#include <algorithm>
#include <cmath>

namespace borvik {

int countWheels(const Project& project, int crane) {
    const int first = crane == 1 ? 1 : 5;
    const double second = project.V(first + 1);
    const double third = project.V(first + 2);
    const double fourth = project.V(first + 3);

    // Crane 2 is taken as a two-wheel crane as soon as its third wheel carries nothing. The cranes so differ where a
    // fourth wheel follows on an empty third.
    const double behindSecond = crane == 1 ? fourth : third;
    if (second == 0.0 && third == 0.0 && fourth == 0.0) return 1;
    if (third == 0.0 && behindSecond == 0.0) return 2;
    return fourth == 0.0 ? 3 : 4;
}

int countTrainWheels(const Project& project) {
    int wheels = countWheels(project, 1);
    for (int i = 5; i <= 8; ++i) wheels += project.V(i) != 0.0 ? 1 : 0;
    return wheels;
}

std::int16_t classOfBoth(const Project& project) {
    const int lower = std::min(project.CraneClass1, project.CraneClass2);
    return static_cast<std::int16_t>(lower <= 2 ? 0 : lower - 2);
}

Single dynamicFactor(double PsiV) {
    return (1.0 + PsiV) / 2.0;
}

CraneFactors craneFactors(int craneClass, int wheels, double PhiFat) {
    CraneFactors factors;
    factors.NofWheels = wheels;
    factors.LamSig = LambdaSigma(craneClass);
    factors.LamTau = LambdaTau(craneClass);
    factors.LamSigN = factors.LamSig * std::pow(wheels, 1.0 / 3.0);
    factors.LamTauN = factors.LamTau * std::pow(wheels, 1.0 / 5.0);
    factors.PhiFat = PhiFat;
    return factors;
}

}  // namespace borvik
