#include <cmath>

#include "base/fault.h"
#include "checks/check_texts.h"
#include "checks/local_checks.h"
#include "project/loads.h"
#include "project/steel.h"

namespace borvik {

namespace {

struct PatchLoad {
    double lamF, FRd;  ///< slenderness; resistance, kN
};

/// @param withM2  false: m2 is 0
PatchLoad patchLoad(const Project& project, const SectionRecord& section, double leff, double a, bool withM2,
                    Working working) {
    const double tf = section.tf1, tw = section.tw, Hw = section.Hw;
    const double kF = 6 + 2 * std::pow(Hw / a, 2);   // Figure 6.1, type (a)
    const double ss = std::fmax(leff - 2 * tf, tf);  // stiff bearing length, EN 1993-6 5.7.1
    const double m1 = section.b1 / tw;
    const double m2 = withM2 ? 0.02 * std::pow(Hw / tf, 2) : 0;
    const double ly = std::fmin(2 * tf * (1 + std::sqrt(m1 + m2)) + ss, a);
    const double Fcr = 0.9 * kF * steel::kE * std::pow(tw, 3) / Hw;
    const double lamF = std::sqrt(ly * tw * project.fyk / Fcr);
    const double chiF = std::fmin(0.5 / lamF, 1.0);
    const double FRd = project.fyk * chiF * ly * tw / project.GammaM1 / 1000;
    working.given("tf", tf, "mm");
    working.given("tw", tw, "mm");
    working.given("b", section.b1, "mm");
    working.given("hw", Hw, "mm");
    working.given("a", a, "mm", "distance of the stiffeners: the span");
    working.given("fyk", project.fyk, "MPa");
    working.given("E", steel::kE, "MPa");
    working.step("kF", "6 + 2*(hw/a)^2", kF, "", "EN 1993-1-5 Figure 6.1 (a)");
    working.step("ss", "max(leff - 2*tf, tf)", ss, "mm", "EN 1993-6 5.7.1");
    working.step("m1", "b/tw", m1, "", "EN 1993-1-5 (6.8)");
    if (withM2)
        working.step("m2", "0.02*(hw/tf)^2", m2, "", "EN 1993-1-5 (6.9)");
    else
        working.given("m2", 0, "", "EN 1993-1-5 (6.9)");
    working.step("ly", "min(2*tf*(1 + sqrt(m1 + m2)) + ss, a)", ly, "mm", "EN 1993-1-5 (6.10)");
    working.step("Fcr", "0.9*kF*E*tw^3/hw/10^3", Fcr / 1000, "kN", "EN 1993-1-5 (6.5)");
    working.step("lambda_F", "sqrt(ly*tw*fyk/(Fcr*10^3))", lamF, "", "EN 1993-1-5 (6.4)");
    working.step("chi_F", "min(0.5/lambda_F, 1)", chiF, "", "EN 1993-1-5 (6.3)");
    working.given("gamma_M1", project.GammaM1, "");
    working.step("FzRd", "fyk*chi_F*ly*tw/gamma_M1/10^3", FRd, "kN", "EN 1993-1-5 (6.1), (6.2)");
    return {lamF, FRd};
}

}  // namespace

double patchResistance(const Project& project, const SectionRecord& section, double leff, double a, bool stockyRule,
                       Working working) {
    const PatchLoad slender = patchLoad(project, section, leff, a, true, stockyRule ? Working() : working);
    return stockyRule && slender.lamF <= 0.5 ? patchLoad(project, section, leff, a, false, {}).FRd : slender.FRd;
}

void wearStatic(CheckBasis& basis) {
    watched("Patch load", 0, [&] { basis.worn = wearRail(basis.rail, kWearStatic); });
}

RowSet patchLoadRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    const SectionRecord& section = project.SpanSection(span);
    // The wheels count as entered, unlike in the two checks of a monorail.
    const double Fz = heaviestWheel(project);
    const double leff = effectiveLoadedLength(basis.rail, basis.worn, project.RailFix, section, basis.working);
    const double FzRd = patchResistance(project, section, leff, project.Span(span), false, basis.working);

    RowSet rows;
    rows(1) = "IR = Fz,Ed/Fz,Rd = ";
    rows(2) = oneDecimal(Fz) + "/" + oneDecimal(FzRd) + " = ";
    setRatio(rows, Fz / FzRd);
    basis.working.given("FzEd", Fz, "kN", "largest wheel, as entered");
    basis.working.step("IR", "FzEd/FzRd", rows.Ratio, "", "EN 1993-1-5 (6.14)");
    rows(4) = " <  1.00 (Ch 5.7.1/EN 1993-6)";
    return rows;
}

}  // namespace borvik
