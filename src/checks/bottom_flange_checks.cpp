#include <algorithm>
#include <cmath>
#include <numbers>

#include "checks/check_stands.h"
#include "checks/check_texts.h"
#include "checks/local_checks.h"
#include "project/loads.h"

namespace borvik {

namespace {

/// Coefficients of the local stresses at the web (1), under the wheel (2), at the flange tip (3), parallel flanges:
/// EN 1993-6 Table 5.2, but for cx of the tip, whose first terms are -1.1534 mu in place of 0.730 - 1.580 mu: note D11.
struct LocalCoefficients {
    double cx[3], cy[3];
};

/// @param mu  2n/(b - tw), with n the distance of the wheel from the flange tip
/// @param tableAtTip  the tip with the table's first terms
LocalCoefficients localCoefficients(double mu, bool tableAtTip) {
    return {
        {0.05 - 0.58 * mu + 0.148 * std::exp(3.015 * mu), 2.23 - 1.49 * mu + 1.39 * std::exp(-18.33 * mu),
         (tableAtTip ? 0.730 - 1.580 * mu : -1.1534 * mu) + 2.91 * std::exp(-6 * mu)},
        {1.977 * mu - 2.11 + 0.0076 * std::exp(6.53 * mu), 10.108 - 7.408 * mu - 10.108 * std::exp(-1.364 * mu), 0}};
}

/// Wheel spacing that tells whether neighbouring wheels add up, mm: the smallest; at most the beam's length.
double spacingThatCounts(const Project& project) {
    const double smallest = smallestDistance(project);
    return smallest == 0 ? double(project.BeamLength) : std::fmin(smallest, project.BeamLength);
}

/// The lines of one of the three points.
void explainPoint(int k, const LocalCoefficients& c, double sx, double sy, double along, double stress,
                  Working working) {
    static constexpr const char* kPoints[] = {"at the web", "under the wheel", "at the flange tip"};
    static constexpr const char* kCx[] = {"0.05 - 0.58*mu + 0.148*exp(3.015*mu)",
                                          "2.23 - 1.49*mu + 1.39*exp(-18.33*mu)", "-1.1534*mu + 2.91*exp(-6*mu)"};
    static constexpr const char* kCy[] = {"1.977*mu - 2.11 + 0.0076*exp(6.53*mu)",
                                          "10.108 - 7.408*mu - 10.108*exp(-1.364*mu)", "0"};
    static constexpr const char* kAlong[] = {"sigma_b + sigma_z1 + abs(sigma_x)", "sigma_b + sigma_z2 + abs(sigma_x)",
                                             "sigma_b + sigma_z3 + abs(sigma_x)"};
    static constexpr const char* kVonMises[] = {"sigma_v1", "sigma_v2", "sigma_v3"};
    working.step("cx", kCx[k], c.cx[k], "", kPoints[k]);
    working.step("cy", kCy[k], c.cy[k], "", "EN 1993-6 Table 5.2");
    working.step("sigma_x", "N*cx*F/tf^2", sx, "MPa", "EN 1993-6 (5.6)");
    working.step("sigma_y", "N*cy*F/tf^2", sy, "MPa", "EN 1993-6 (5.7)");
    working.step("sigma", kAlong[k], along, "MPa");
    working.step(kVonMises[k], "sqrt(sigma^2 + sigma_y^2 - sigma*abs(sigma_y))", stress, "MPa", "von Mises");
}

double vonMises(double x, double y) {
    return std::sqrt(std::pow(x, 2) + std::pow(y, 2) - x * y);
}

}  // namespace

FlangeLever::FlangeLever(const Project& project, const SectionRecord& section) {
    const double root = isRolled(section) ? 0.8 * section.R : 0.8 * std::numbers::sqrt2 * section.R;
    m = (section.b2 - section.tw) / 2 - root - project.Inn;
    mn = m + project.Inn;
}

double FlangeLever::lengthInside(double xw) const {
    const double separate = 4 * std::numbers::sqrt2 * mn;  // wheels further apart than this act alone
    return xw >= separate ? separate : 2 * std::numbers::sqrt2 * mn + 0.5 * xw;
}

double flangeResistance(const Project& project, const SectionRecord& section, double leff, double part,
                        Working working) {
    const double m = FlangeLever(project, section).m;
    const double fyk = project.fyk, GammaM0 = project.GammaM0;
    const double Fbase = std::pow(section.tf2, 2) * leff * fyk / GammaM0 / (4 * m);
    const double FfRd = Fbase * (1 - std::pow(part, 2)) / 1000;
    working.given("tf", section.tf2, "mm");
    working.step("FfRd", "tf^2*leff*fyk/gamma_M0/(4*m)*(1 - part^2)/10^3", FfRd, "kN", "EN 1993-6 (6.1)");
    return FfRd;
}

VonMisesBasis vonMisesBasis(const Project& project, const UlsResults& uls, int span) {
    const double g = project.PsiV1 * project.LfULS;
    return {.F = heaviestWheel(project, 1) * 1000 / 2,
            .s = spacingThatCounts(project),
            .My = uls.MyMaxSpan(span, 1),
            .Mz = uls.MyMaxSpan(span, 3),
            .perMy = g,
            .perMz = g};
}

double vonMisesStress(const Project& project, const SectionRecord& section, const VonMisesBasis& basis,
                      Working working) {
    const double b2 = section.b2, tw = section.tw, tf2 = section.tf2;
    const LocalCoefficients c = localCoefficients(2 * project.Inn / (b2 - tw), basis.tableAtTip);
    const double together = 1.5 * b2 > basis.s ? 2 : 1;  // EN 1993-6 5.8: close wheels add up

    const double sb = basis.My / basis.perMy / section.Iy * (section.EzEl - tf2 / 2);
    const double szPerMm = std::abs(basis.Mz / basis.perMz / section.IzBottom);
    // The stress from Mz at the tip is taken with the whole width of the flange, on the safe side.
    const double sz[3] = {szPerMm * (tw / 2 + section.R), szPerMm * (b2 / 2 - project.Inn), szPerMm * b2};

    working.given("F", basis.F, "N", "wheel on one side of the web, as entered");
    working.given("b", b2, "mm");
    working.given("tw", tw, "mm");
    working.given("tf", tf2, "mm");
    working.given("n", project.Inn, "mm");
    working.step("mu", "2*n/(b - tw)", 2 * project.Inn / (b2 - tw), "", "EN 1993-6 Table 5.2");
    working.given("s", basis.s, "mm", "wheel distance");
    working.given("N", together, "", "wheels that add up: 2 where s < 1.5*b, EN 1993-6 5.8");
    working.given("My", basis.My, "Nmm", "of the walk");
    working.given("Mz", basis.Mz, "Nmm", "of the walk, same position");
    working.given("g", basis.perMy, "", "load and dynamic factor, taken out again");
    working.given("Iy", section.Iy, "mm4");
    working.given("Izf", section.IzBottom, "mm4", "bottom flange");
    working.given("ez", section.EzEl, "mm", "centroid above the underside");
    working.given("r", section.R, "mm");
    working.step("sigma_b", "My/g/Iy*(ez - tf/2)", sb, "MPa");
    working.step("sigma_z1", "abs(Mz/g/Izf)*(tw/2 + r)", sz[0], "MPa", "at the web");
    working.step("sigma_z2", "abs(Mz/g/Izf)*(b/2 - n)", sz[1], "MPa", "under the wheel");
    working.step("sigma_z3", "abs(Mz/g/Izf)*b", sz[2], "MPa", "at the tip, on the safe side");

    double largest = 0;
    for (int k = 0; k < 3; ++k) {
        const double sx = together * (c.cx[k] * basis.F / std::pow(tf2, 2));
        const double sy = together * (c.cy[k] * basis.F / std::pow(tf2, 2));
        if (basis.signs) {
            const double x = sb + sz[k];
            largest = std::fmax(largest, std::fmax(vonMises(x + sx, sy), vonMises(x - sx, -sy)));
        } else {
            const double along = sb + sz[k] + std::abs(sx);
            const double stress = vonMises(along, std::abs(sy));
            largest = std::fmax(largest, stress);
            if (working) explainPoint(k, c, sx, sy, along, stress, working);
        }
    }
    return largest;
}

RowSet flangeBendingRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    const SectionRecord& section = project.SpanSection(span);
    const double Fz = heaviestWheel(project, 1) * project.LfULS * project.PsiV1;
    const double xw = *std::max_element(project.Avst.begin(), project.Avst.begin() + 3);
    // Stress at the underside from My alone: the flange's own share of Mz is left out.
    const double MyMax = basis.uls.MyMaxSpan(span, 1), MyMin = basis.uls.MyMinSpan(span, 1);
    const double SfMax = std::abs(MyMax / section.Iy * section.EzEl);
    const double SfMin = std::abs(MyMin / section.Iy * section.EzEl);
    const double Sf = std::fmax(SfMax, SfMin);
    const FlangeLever lever(project, section);
    const Working working = basis.working;
    working.given("b", section.b2, "mm");
    working.given("tw", section.tw, "mm");
    working.given("r", section.R, "mm", isRolled(section) ? "root radius" : "weld throat");
    working.given("n", project.Inn, "mm", "wheel to the flange's edge");
    working.step("m", isRolled(section) ? "(b - tw)/2 - 0.8*r - n" : "(b - tw)/2 - 0.8*sqrt(2)*r - n", lever.m, "mm",
                 "EN 1993-6 (6.2), (6.3)");
    working.given("xw", xw, "mm", "largest wheel distance");
    const double leff = lever.lengthInside(xw);
    working.step("leff", xw >= 4 * std::numbers::sqrt2 * lever.mn ? "4*sqrt(2)*(m + n)" : "2*sqrt(2)*(m + n) + 0.5*xw",
                 leff, "mm", "EN 1993-6 Table 6.2");
    working.given("My", SfMax >= SfMin ? MyMax : MyMin, "Nmm", "of the walk");
    working.given("Iy", section.Iy, "mm4");
    working.given("ez", section.EzEl, "mm", "centroid above the underside");
    working.given("fyk", project.fyk, "MPa");
    working.step("sigma_f", "abs(My/Iy*ez)", Sf, "MPa", "stress of the beam at the underside");
    working.given("gamma_M0", project.GammaM0, "");
    working.step("part", "sigma_f/fyk/gamma_M0", Sf / project.fyk / project.GammaM0, "", "note D7");
    // The stress is divided by fyk and by GammaM0, where eq. (6.1) has fy/GammaM0: note D7.
    const double FfRd = flangeResistance(project, section, leff, Sf / project.fyk / project.GammaM0, working);

    RowSet rows;
    rows(1) = "IR = Fz,Ed/Ff,Rd = ";
    rows(2) = oneDecimal(Fz / 2) + "/" + oneDecimal(FfRd) + " = ";
    setRatio(rows, Fz / 2 / FfRd);
    working.given("V", heaviestWheel(project, 1), "kN", "largest wheel, as entered");
    working.given("gamma", project.LfULS, "");
    working.given("psi", project.PsiV1, "", "dynamic factor");
    working.step("FzEd", "V*gamma*psi/2", Fz / 2, "kN", "one side of the web");
    working.step("IR", "FzEd/FfRd", rows.Ratio, "", "EN 1993-6 6.7(1)");
    rows(4) = " <  1.00 (Ch 6.7/EN 1993-6)";
    rows.Stands[0] = SfMax >= SfMin ? standOf(basis, Effect::My, basis.uls.MyMaxSpan, basis.uls.At.MyMax, span)
                                    : standOf(basis, Effect::My, basis.uls.MyMinSpan, basis.uls.At.MyMin, span);
    return rows;
}

RowSet vonMisesRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    const double SvM =
        vonMisesStress(project, project.SpanSection(span), vonMisesBasis(project, basis.uls, span), basis.working);

    RowSet rows;
    rows(1) = "IR = SigvM/fyk = ";
    rows(2) = oneDecimal(SvM) + "/" + oneDecimal(project.fyk) + " = ";
    setRatio(rows, SvM / project.fyk);
    basis.working.step("sigma_v", "max(sigma_v1, sigma_v2, sigma_v3)", SvM, "MPa");
    basis.working.given("fyk", project.fyk, "MPa");
    basis.working.step("IR", "sigma_v/fyk", rows.Ratio, "", "EN 1993-6 5.8, 7.5");
    rows(4) = " <  1.00 (Ch 5.8/7.5/EN 1993-6)";
    rows.Stands[0] = standOf(basis, Effect::My, basis.uls.MyMaxSpan, basis.uls.At.MyMax, span);
    return rows;
}

}  // namespace borvik
