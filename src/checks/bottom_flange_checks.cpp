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

double flangeResistance(const Project& project, const SectionRecord& section, double leff, double part) {
    const double m = FlangeLever(project, section).m;
    const double fyk = project.fyk, GammaM0 = project.GammaM0;
    const double Fbase = std::pow(section.tf2, 2) * leff * fyk / GammaM0 / (4 * m);
    return Fbase * (1 - std::pow(part, 2)) / 1000;
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

double vonMisesStress(const Project& project, const SectionRecord& section, const VonMisesBasis& basis) {
    const double b2 = section.b2, tw = section.tw, tf2 = section.tf2;
    const LocalCoefficients c = localCoefficients(2 * project.Inn / (b2 - tw), basis.tableAtTip);
    const double together = 1.5 * b2 > basis.s ? 2 : 1;  // EN 1993-6 5.8: close wheels add up

    const double sb = basis.My / basis.perMy / section.Iy * (section.EzEl - tf2 / 2);
    const double szPerMm = std::abs(basis.Mz / basis.perMz / section.IzBottom);
    // The stress from Mz at the tip is taken with the whole width of the flange, on the safe side.
    const double sz[3] = {szPerMm * (tw / 2 + section.R), szPerMm * (b2 / 2 - project.Inn), szPerMm * b2};

    double largest = 0;
    for (int k = 0; k < 3; ++k) {
        const double sx = together * (c.cx[k] * basis.F / std::pow(tf2, 2));
        const double sy = together * (c.cy[k] * basis.F / std::pow(tf2, 2));
        if (basis.signs) {
            const double x = sb + sz[k];
            largest = std::fmax(largest, std::fmax(vonMises(x + sx, sy), vonMises(x - sx, -sy)));
        } else {
            largest = std::fmax(largest, vonMises(sb + sz[k] + std::abs(sx), std::abs(sy)));
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
    // The stress is divided by fyk and by GammaM0, where eq. (6.1) has fy/GammaM0: note D7.
    const double FfRd = flangeResistance(project, section, FlangeLever(project, section).lengthInside(xw),
                                         Sf / project.fyk / project.GammaM0);

    RowSet rows;
    rows(1) = "IR = Fz,Ed/Ff,Rd = ";
    rows(2) = oneDecimal(Fz / 2) + "/" + oneDecimal(FfRd) + " = ";
    setRatio(rows, Fz / 2 / FfRd);
    rows(4) = " <  1.00 (Ch 6.7/EN 1993-6)";
    rows.Stands[0] = SfMax >= SfMin ? standOf(basis, Effect::My, basis.uls.MyMaxSpan, basis.uls.At.MyMax, span)
                                    : standOf(basis, Effect::My, basis.uls.MyMinSpan, basis.uls.At.MyMin, span);
    return rows;
}

RowSet vonMisesRow(const CheckBasis& basis, int span, int) {
    const Project& project = basis.project;
    const double SvM = vonMisesStress(project, project.SpanSection(span), vonMisesBasis(project, basis.uls, span));

    RowSet rows;
    rows(1) = "IR = SigvM/fyk = ";
    rows(2) = oneDecimal(SvM) + "/" + oneDecimal(project.fyk) + " = ";
    setRatio(rows, SvM / project.fyk);
    rows(4) = " <  1.00 (Ch 5.8/7.5/EN 1993-6)";
    rows.Stands[0] = standOf(basis, Effect::My, basis.uls.MyMaxSpan, basis.uls.At.MyMax, span);
    return rows;
}

}  // namespace borvik
