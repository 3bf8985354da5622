#include <algorithm>
#include <cmath>

#include "section/geometry.h"
#include "section/resistance.h"

namespace borvik {

namespace {

/// Slenderness of a plate, EN 1993-1-5, 4.4(2). @param k buckling factor
double plateSlenderness(double c, double t, double k, double e) {
    return (c / t) / (28.4 * e * std::sqrt(k));
}

/// Reduction factor of an outstand, EN 1993-1-5 (4.3).
double outstandReduction(double lambdaP) {
    if (0.748 >= lambdaP) return 1.0;
    return std::min(1.0, (lambdaP - 0.188) / square(lambdaP));
}

/// Reduction factor of an internal part, EN 1993-1-5 (4.2). @param psi stress ratio, compression positive
double internalReduction(double lambdaP, double psi) {
    if (0.5 + std::sqrt(0.085 - 0.055 * psi) >= lambdaP) return 1.0;
    return std::min(1.0, (lambdaP - 0.055 * (3.0 + psi)) / square(lambdaP));
}

/// Buckling factor of an internal part, EN 1993-1-5 Table 4.1.
double webBucklingFactor(double psi) {
    if (psi > 0.0) return 8.2 / (1.05 + psi);
    if (psi < -1.0) return 5.98 * square(1.0 - psi);
    return 7.81 - 6.29 * psi + 9.78 * square(psi);
}

double webReduction(const SectionRecord& s, double psi, double e) {
    return internalReduction(plateSlenderness(s.CWeb, s.tw, webBucklingFactor(psi), e), psi);
}

double outstandFlangeReduction(double c, double t, double e) {
    return outstandReduction(plateSlenderness(c, t, 0.43, e));
}

void effectivePositive(double e, SectionRecord& s) {
    const double rhoFlange = s.Reinforced ? internalReduction(plateSlenderness(s.CTop, s.tf1, 4.0, e), 1.0)
                                          : outstandFlangeReduction(s.CTop, s.tf1, e);
    const double d1 = (1.0 - rhoFlange) * s.CTop;  // lost at either side of the top flange
    const double A1 = s.A - 2.0 * d1 * s.tf1;
    // The lever of the lost flange takes tf2: this first axis only
    // sizes the compressed part of the web (theory manual, B6).
    const double z1 = (s.EzEl * s.A - 2.0 * d1 * s.tf1 * (s.h - s.tf2 / 2.0)) / A1;

    const double wc = s.h - z1 - s.tf1 - s.R;
    const double psi = -(z1 - s.tf2 - s.R) / wc;
    const double rho = webReduction(s, psi, e);
    const double beff = rho * wc;
    const double hole = (1.0 - rho) * wc;
    const double zu = z1 + wc - 0.4 * beff;
    const double zl = z1 + 0.6 * beff;
    const double zHole = (zu + zl) / 2.0;

    const double A2 = A1 - s.tw * hole;
    const double z2 = (s.EzEl * s.A - s.tw * hole * zHole - 2.0 * d1 * s.tf1 * (s.h - s.tf1 / 2.0)) / A2;

    double Ieff = square(s.EzEl) * s.A + s.Iy;  // about the underside
    Ieff -= cube(hole) * s.tw / 12.0;
    Ieff -= square(zHole) * s.tw * hole;
    Ieff -= 2.0 * d1 * cube(s.tf1) / 12.0;
    Ieff -= square(s.h - s.tf1 / 2.0) * 2.0 * d1 * s.tf1;
    Ieff -= A2 * square(z2);
    s.WeffTopPos = Ieff / (s.h - z2);
    s.WeffBottomPos = Ieff / z2;
    s.EzEffPos = z2;
}

void effectiveNegative(double e, SectionRecord& s) {
    const double d2 = (1.0 - outstandFlangeReduction(s.CBottom, s.tf2, e)) * s.CBottom;
    const double A1 = s.A - 2.0 * d2 * s.tf2;
    const double z1 = (s.EzEl * s.A - square(s.tf2) * d2) / A1;

    const double wc = z1 - s.tf2 - s.R;
    const double psi = -((s.h - s.tf1 - s.R) - z1) / wc;
    const double rho = webReduction(s, psi, e);
    const double beff = rho * wc;
    const double hole = (1.0 - rho) * wc;
    const double zu = z1 - 0.6 * beff;
    const double zl = z1 - wc + 0.4 * beff;
    const double zHole = (zu + zl) / 2.0;

    const double A2 = A1 - s.tw * hole;
    // The lost flange enters with twice its first moment of area, so
    // that the axis comes out slightly lower (theory manual, B6).
    const double z2 = (s.EzEl * s.A - s.tw * hole * zHole - square(s.tf2) * 2.0 * d2) / A2;

    double Ieff = square(s.EzEl) * s.A + s.Iy;  // about the underside
    Ieff -= cube(hole) * s.tw / 12.0;
    Ieff -= square(zHole) * s.tw * hole;
    Ieff -= cube(s.tf2) * 2.0 * d2 / 12.0;
    Ieff -= square(s.tf2 / 2.0) * 2.0 * d2 * s.tf2;
    Ieff -= A2 * square(z2);
    s.WeffBottomNeg = Ieff / z2;
    s.WeffTopNeg = Ieff / (s.h - z2);
    s.EzEffNeg = z2;
}

}  // namespace

void EffectiveSection(double Epsilon, SectionRecord& section) {
    effectivePositive(Epsilon, section);
    effectiveNegative(Epsilon, section);
}

}  // namespace borvik
