#include "fatigue/wheel_stress.h"

#include <cmath>

#include "checks/loaded_length.h"
#include "project/loads.h"

namespace borvik {

double largestWheel(const Project& project, int crane) {
    return std::fmax(heaviestWheel(project, crane), 0.0);
}

WheelSpread wheelSpread(const Project& project, const RailRecord& rail, const SectionRecord& section) {
    const WornRail worn = wearRail(rail, kWearFatigue);
    return {effectiveLoadedLength(rail, worn, project.RailFix, section),
            project.W1 == kFilletWeld ? 2.0 * project.W1a : double(section.tw)};
}

WheelStress wheelStress(const Project& project, const RailRecord& rail, const FatigueFactors& factors,
                        const SectionRecord& section) {
    WheelStress stress;
    stress.spread = wheelSpread(project, rail, section);
    for (int crane = 1; crane <= 2; ++crane) {
        const CraneFactors& own = crane == 1 ? factors.Cr1 : factors.Cr2;
        const double FPhi = own.PhiFat * largestWheel(project, crane);
        stress.SigLoc(crane) = stress.spread.stress(own.LamSigN, FPhi);
        stress.TauLoc(crane) = stress.spread.stress(kLocalShear * own.LamTauN, FPhi);
    }
    return stress;
}

Single flangeBending(const Project& project, const FatigueFactors& factors, const SectionRecord& section) {
    const double mu = 2.0 * project.Inn / (section.b2 - section.tw);
    const double c = -2.11 + 1.977 * mu + 0.0076 * std::exp(6.53 * mu);
    const double bending = std::abs(largestWheel(project, 1) * c / 2.0) * 1000.0 / std::pow(section.tf2, 2.0);
    return bending * factors.Cr1.LamSigN;
}

}  // namespace borvik
