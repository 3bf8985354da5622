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
PatchLoad patchLoad(const Project& project, const SectionRecord& section, double leff, double a, bool withM2) {
    const double tf = section.tf1, tw = section.tw, Hw = section.Hw;
    const double kF = 6 + 2 * std::pow(Hw / a, 2);   // Figure 6.1, type (a)
    const double ss = std::fmax(leff - 2 * tf, tf);  // stiff bearing length, EN 1993-6 5.7.1
    const double m1 = section.b1 / tw;
    const double m2 = withM2 ? 0.02 * std::pow(Hw / tf, 2) : 0;
    const double ly = std::fmin(2 * tf * (1 + std::sqrt(m1 + m2)) + ss, a);
    const double Fcr = 0.9 * kF * steel::kE * std::pow(tw, 3) / Hw;
    const double lamF = std::sqrt(ly * tw * project.fyk / Fcr);
    const double chiF = std::fmin(0.5 / lamF, 1.0);
    return {lamF, project.fyk * chiF * ly * tw / project.GammaM1 / 1000};
}

}  // namespace

double patchResistance(const Project& project, const SectionRecord& section, double leff, double a, bool stockyRule) {
    const PatchLoad slender = patchLoad(project, section, leff, a, true);
    return stockyRule && slender.lamF <= 0.5 ? patchLoad(project, section, leff, a, false).FRd : slender.FRd;
}

void wearStatic(CheckBasis& basis) {
    watched("Patch load", 0, [&] { basis.worn = wearRail(basis.rail, kWearStatic); });
}

RowSet patchLoadRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    const SectionRecord& section = project.SpanSection(span);
    // The wheels count as entered, unlike in the two checks of a monorail.
    const double Fz = heaviestWheel(project);
    const double leff = effectiveLoadedLength(basis.rail, basis.worn, project.RailFix, section);
    const double FzRd = patchResistance(project, section, leff, project.Span(span));

    RowSet rows;
    rows(1) = "IR = Fz,Ed/Fz,Rd = ";
    rows(2) = oneDecimal(Fz) + "/" + oneDecimal(FzRd) + " = ";
    setRatio(rows, Fz / FzRd);
    rows(4) = " <  1.00 (Ch 5.7.1/EN 1993-6)";
    return rows;
}

}  // namespace borvik
