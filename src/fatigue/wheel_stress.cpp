#include "fatigue/wheel_stress.h"

#include <cmath>
#include <string>

#include "checks/loaded_length.h"
#include "project/loads.h"

namespace borvik {

double largestWheel(const Project& project, int crane) {
    return std::fmax(heaviestWheel(project, crane), 0.0);
}

WheelSpread wheelSpread(const Project& project, const RailRecord& rail, const SectionRecord& section, Working working) {
    const WornRail worn = wearRail(rail, kWearFatigue);
    const bool fillet = project.W1 == kFilletWeld;
    const WheelSpread spread{effectiveLoadedLength(rail, worn, project.RailFix, section, working),
                             fillet ? 2.0 * project.W1a : double(section.tw)};
    working.given("tw1", spread.thickness, "mm", fillet ? "both throats of the weld W1" : "web");
    return spread;
}

WheelStress wheelStress(const Project& project, const RailRecord& rail, const FatigueFactors& factors,
                        const SectionRecord& section, Working working) {
    WheelStress stress;
    stress.spread = wheelSpread(project, rail, section, working);
    for (int crane = 1; crane <= 2; ++crane) {
        const CraneFactors& own = crane == 1 ? factors.Cr1 : factors.Cr2;
        const double FPhi = own.PhiFat * largestWheel(project, crane);
        stress.SigLoc(crane) = stress.spread.stress(own.LamSigN, FPhi);
        stress.TauLoc(crane) = stress.spread.stress(kLocalShear * own.LamTauN, FPhi);
        if (!working || own.NofWheels == 0) continue;
        const auto named = [crane](const char* name) { return std::string(name) + std::to_string(crane); };
        working.given(named("F").c_str(), FPhi, "kN", "largest wheel times phi_fat");
        working.given(named("lambda_sN").c_str(), own.LamSigN, "", "lambda times N^(1/3), N wheels");
        working.given(named("lambda_tN").c_str(), own.LamTauN, "", "lambda times N^(1/5)");
        const std::string load = "*" + named("F") + "*10^3/leff/tw1";
        working.step(named("sigma_loc").c_str(), (named("lambda_sN") + load).c_str(), stress.SigLoc(crane), "MPa",
                     "EN 1993-6 5.7.1");
        working.step(named("tau_loc").c_str(), ("0.4*" + named("lambda_tN") + load).c_str(), stress.TauLoc(crane),
                     "MPa", "EN 1993-6 5.7.2");
    }
    return stress;
}

Single flangeBending(const Project& project, const FatigueFactors& factors, const SectionRecord& section,
                     Working working) {
    const double mu = 2.0 * project.Inn / (section.b2 - section.tw);
    const double c = -2.11 + 1.977 * mu + 0.0076 * std::exp(6.53 * mu);
    const double bending = std::abs(largestWheel(project, 1) * c / 2.0) * 1000.0 / std::pow(section.tf2, 2.0);
    const Single range = bending * factors.Cr1.LamSigN;
    working.given("F", largestWheel(project, 1), "kN", "largest wheel, as entered");
    working.given("n", project.Inn, "mm");
    working.given("b", section.b2, "mm");
    working.given("tw", section.tw, "mm");
    working.given("tf", section.tf2, "mm");
    working.given("lambda_sN1", factors.Cr1.LamSigN, "", "lambda times N^(1/3), N wheels");
    working.step("mu", "2*n/(b - tw)", mu, "", "EN 1993-6 Table 5.2");
    working.step("cy", "-2.11 + 1.977*mu + 0.0076*exp(6.53*mu)", c, "", "EN 1993-6 Table 5.2");
    working.step("sigma_loc", "abs(F*cy/2)*10^3/tf^2*lambda_sN1", range, "MPa", "EN 1993-6 5.8");
    return range;
}

}  // namespace borvik
