#include <algorithm>
#include <cmath>

#include "section/geometry.h"
#include "section/resistance.h"

namespace borvik {

namespace {

/// Slenderness of a plate, EN 1993-1-5, 4.4(2). @param k buckling factor
double plateSlenderness(double c, double t, double k, double e, Working working) {
    const double lambdaP = (c / t) / (28.4 * e * std::sqrt(k));
    working.given("c", c, "mm");
    working.given("t", t, "mm");
    working.given("k_sigma", k, "", "EN 1993-1-5 Tables 4.1, 4.2");
    working.step("lambda_p", "c/t/(28.4*epsilon*sqrt(k_sigma))", lambdaP, "", "EN 1993-1-5 4.4(2)");
    return lambdaP;
}

/// Reduction factor of an outstand, EN 1993-1-5 (4.3).
double outstandReduction(double lambdaP, Working working) {
    if (0.748 >= lambdaP) {
        working.given("rho", 1.0, "", "lambda_p up to 0.748");
        return 1.0;
    }
    const double rho = std::min(1.0, (lambdaP - 0.188) / square(lambdaP));
    working.step("rho", "min(1, (lambda_p - 0.188)/lambda_p^2)", rho, "", "EN 1993-1-5 (4.3)");
    return rho;
}

/// Reduction factor of an internal part, EN 1993-1-5 (4.2). @param psi stress ratio, compression positive
double internalReduction(double lambdaP, double psi, Working working) {
    if (0.5 + std::sqrt(0.085 - 0.055 * psi) >= lambdaP) {
        working.given("rho", 1.0, "", "lambda_p up to 0.5 + sqrt(0.085 - 0.055*psi)");
        return 1.0;
    }
    const double rho = std::min(1.0, (lambdaP - 0.055 * (3.0 + psi)) / square(lambdaP));
    working.given("psi", psi, "", "stress ratio of its edges");
    working.step("rho", "min(1, (lambda_p - 0.055*(3 + psi))/lambda_p^2)", rho, "", "EN 1993-1-5 (4.2)");
    return rho;
}

/// Buckling factor of an internal part, EN 1993-1-5 Table 4.1.
double webBucklingFactor(double psi) {
    if (psi > 0.0) return 8.2 / (1.05 + psi);
    if (psi < -1.0) return 5.98 * square(1.0 - psi);
    return 7.81 - 6.29 * psi + 9.78 * square(psi);
}

double webReduction(const SectionRecord& s, double psi, double e, Working working) {
    return internalReduction(plateSlenderness(s.CWeb, s.tw, webBucklingFactor(psi), e, working), psi, working);
}

double outstandFlangeReduction(double c, double t, double e, Working working) {
    return outstandReduction(plateSlenderness(c, t, 0.43, e, working), working);
}

/// What the axes and the second moment of area of an effective section are made of.
void explainWhole(const SectionRecord& s, Working working) {
    working.given("A", s.A, "mm2");
    working.given("Iy", s.Iy, "mm4");
    working.given("ez", s.EzEl, "mm", "axis above the underside");
    working.given("h", s.h, "mm");
    working.given("tf1", s.tf1, "mm");
    working.given("tf2", s.tf2, "mm");
    working.given("tw", s.tw, "mm");
    working.given("r", s.R, "mm");
}

/// What is left of the compressed part of the web, and what is lost.
void explainHole(double rho, double wc, Working working) {
    working.step("beff", "rho*wc", rho * wc, "mm", "EN 1993-1-5 Table 4.1");
    working.step("hole", "(1 - rho)*wc", (1.0 - rho) * wc, "mm");
}

void effectivePositive(double e, SectionRecord& s, Working working) {
    working.heading("Effective section, positive moment: top flange");
    const double rhoFlange = s.Reinforced
                                 ? internalReduction(plateSlenderness(s.CTop, s.tf1, 4.0, e, working), 1.0, working)
                                 : outstandFlangeReduction(s.CTop, s.tf1, e, working);
    const double d1 = (1.0 - rhoFlange) * s.CTop;  // lost at either side of the top flange
    const double A1 = s.A - 2.0 * d1 * s.tf1;
    // The lever of the lost flange takes tf2: this first axis only
    // sizes the compressed part of the web (theory manual, B6).
    const double z1 = (s.EzEl * s.A - 2.0 * d1 * s.tf1 * (s.h - s.tf2 / 2.0)) / A1;

    const double wc = s.h - z1 - s.tf1 - s.R;
    const double psi = -(z1 - s.tf2 - s.R) / wc;
    explainWhole(s, working);
    working.step("d", "(1 - rho)*c", d1, "mm", "lost at either side");
    working.step("A1", "A - 2*d*tf1", A1, "mm2");
    working.step("z1", "(ez*A - 2*d*tf1*(h - tf2/2))/A1", z1, "mm", "manual, B6");
    working.heading("Effective section, positive moment: web");
    working.step("wc", "h - z1 - tf1 - r", wc, "mm", "compressed");
    working.step("psi", "-(z1 - tf2 - r)/wc", psi);
    const double rho = webReduction(s, psi, e, working);
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
    explainHole(rho, wc, working);
    working.step("zh", "z1 + wc - 0.4*beff - hole/2", zHole, "mm", "middle of what is lost");
    working.step("A2", "A1 - tw*hole", A2, "mm2");
    working.step("z2", "(ez*A - tw*hole*zh - 2*d*tf1*(h - tf1/2))/A2", z2, "mm");
    working.step("Ieff", "ez^2*A + Iy - hole^3*tw/12 - zh^2*tw*hole - 2*d*tf1^3/12 - (h - tf1/2)^2*2*d*tf1 - A2*z2^2",
                 Ieff, "mm4");
    working.step("Wtop", "Ieff/(h - z2)", Ieff / (s.h - z2), "mm3", "EN 1993-1-5 4.4");
    working.step("Wbottom", "Ieff/z2", Ieff / z2, "mm3");
    s.WeffTopPos = Ieff / (s.h - z2);
    s.WeffBottomPos = Ieff / z2;
    s.EzEffPos = z2;
}

void effectiveNegative(double e, SectionRecord& s, Working working) {
    working.heading("Effective section, negative moment: bottom flange");
    const double d2 = (1.0 - outstandFlangeReduction(s.CBottom, s.tf2, e, working)) * s.CBottom;
    const double A1 = s.A - 2.0 * d2 * s.tf2;
    const double z1 = (s.EzEl * s.A - square(s.tf2) * d2) / A1;

    const double wc = z1 - s.tf2 - s.R;
    const double psi = -((s.h - s.tf1 - s.R) - z1) / wc;
    explainWhole(s, working);
    working.step("d", "(1 - rho)*c", d2, "mm", "lost at either side");
    working.step("A1", "A - 2*d*tf2", A1, "mm2");
    working.step("z1", "(ez*A - tf2^2*d)/A1", z1, "mm");
    working.heading("Effective section, negative moment: web");
    working.step("wc", "z1 - tf2 - r", wc, "mm", "compressed");
    working.step("psi", "-(h - tf1 - r - z1)/wc", psi);
    const double rho = webReduction(s, psi, e, working);
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
    explainHole(rho, wc, working);
    working.step("zh", "z1 - 0.6*beff - hole/2", zHole, "mm", "middle of what is lost");
    working.step("A2", "A1 - tw*hole", A2, "mm2");
    working.step("z2", "(ez*A - tw*hole*zh - tf2^2*2*d)/A2", z2, "mm", "manual, B6");
    working.step("Ieff", "ez^2*A + Iy - hole^3*tw/12 - zh^2*tw*hole - tf2^3*2*d/12 - (tf2/2)^2*2*d*tf2 - A2*z2^2", Ieff,
                 "mm4");
    working.step("Wbottom", "Ieff/z2", Ieff / z2, "mm3", "EN 1993-1-5 4.4");
    working.step("Wtop", "Ieff/(h - z2)", Ieff / (s.h - z2), "mm3");
    s.WeffBottomNeg = Ieff / z2;
    s.WeffTopNeg = Ieff / (s.h - z2);
    s.EzEffNeg = z2;
}

}  // namespace

void EffectiveSection(double Epsilon, SectionRecord& section, Working working) {
    effectivePositive(Epsilon, section, section.ClassPos == 4 ? working : Working());
    effectiveNegative(Epsilon, section, section.ClassNeg == 4 ? working : Working());
}

}  // namespace borvik
