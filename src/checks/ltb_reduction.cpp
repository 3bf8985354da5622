#include "checks/ltb_reduction.h"

#include <cmath>

namespace borvik {

namespace {

/// Imperfection factors of a stocky section (h/b <= 2) and of a slender one.
struct Imperfection {
    double stocky, slender;
};

/// The imperfection factor by the proportions of the section, b being the width of the compressed flange.
double imperfection(const SectionRecord& section, bool positive, Imperfection rolled, Imperfection welded) {
    const Imperfection alpha = isWelded(section) ? welded : rolled;
    const double r = section.h / (positive ? section.b1 : section.b2);
    return r <= 2 ? alpha.stocky : alpha.slender;
}

double slenderness(const Project& project, const SectionRecord& section, bool positive, double Mcr, Working working) {
    const double Wy = positive ? section.WyPos : section.WyNeg;
    const double lam = std::sqrt(Wy * project.fyk / Mcr);
    working.given("Wy", Wy, "mm3", "of the class");
    working.given("fyk", project.fyk, "MPa");
    working.step("lambda_LT", "sqrt(Wy*fyk/(Mcr*10^6))", lam, "", "EN 1993-1-1 6.3.2.2(1)");
    return lam;
}

}  // namespace

Single ReductionGeneral(const Project& project, const SectionRecord& section, bool positive, double Mcr,
                        Working working) {
    const double alpha = imperfection(section, positive, {0.21, 0.34}, {0.49, 0.76});  // Tables 6.3, 6.4
    const double lam = slenderness(project, section, positive, Mcr, working);
    const double phi = 0.5 * (1 + alpha * (lam - 0.2) + std::pow(lam, 2));
    const double chi = std::fmin(1 / (phi + std::sqrt(std::pow(phi, 2) - std::pow(lam, 2))), 1.0);  // eq. (6.56)
    working.given("alpha_LT", alpha, "", "EN 1993-1-1 Tables 6.3, 6.4");
    working.step("phi_LT", "0.5*(1 + alpha_LT*(lambda_LT - 0.2) + lambda_LT^2)", phi, "", "EN 1993-1-1 6.3.2.2(1)");
    working.step("chi_LT", "min(1/(phi_LT + sqrt(phi_LT^2 - lambda_LT^2)), 1)", chi, "", "EN 1993-1-1 (6.56)");
    return chi;
}

Single ReductionRolledWelded(const Project& project, const SectionRecord& section, bool positive, double Mcr, double Kc,
                             Working working) {
    const double alpha = imperfection(section, positive, {0.34, 0.49}, {0.49, 0.76});  // Tables 6.3, 6.5
    const double lam = slenderness(project, section, positive, Mcr, working);
    const double Betaw = project.Betaw;
    const double phi = 0.5 * (1 + alpha * (lam - project.LamdaLT0w) + Betaw * std::pow(lam, 2));
    const double chi =
        std::fmin(1 / (phi + std::sqrt(std::pow(phi, 2) - Betaw * std::pow(lam, 2))), 1.0);  // eq. (6.57)
    const double f = std::fmin(1 - 0.5 * (1 - Kc) * (1 - 2 * std::pow(lam - 0.8, 2)), 1.0);
    const double mod =
        std::fmin(std::fmin(chi / f, 1 / std::pow(lam, 2)), 1.0);  // eq. (6.58), with the limits of (6.57)
    working.given("alpha_LT", alpha, "", "EN 1993-1-1 Tables 6.3, 6.5");
    working.given("lambda_LT0", project.LamdaLT0w, "", "EN 1993-1-1 6.3.2.3(1)");
    working.given("beta", Betaw, "", "EN 1993-1-1 6.3.2.3(1)");
    working.step("phi_LT", "0.5*(1 + alpha_LT*(lambda_LT - lambda_LT0) + beta*lambda_LT^2)", phi, "",
                 "EN 1993-1-1 6.3.2.3(1)");
    working.step("chi", "min(1/(phi_LT + sqrt(phi_LT^2 - beta*lambda_LT^2)), 1)", chi, "", "EN 1993-1-1 (6.57)");
    working.step("f", "min(1 - 0.5*(1 - kc)*(1 - 2*(lambda_LT - 0.8)^2), 1)", f, "", "EN 1993-1-1 6.3.2.3(2)");
    working.step("chi_LT", "min(chi/f, 1/lambda_LT^2, 1)", mod, "", "EN 1993-1-1 (6.58)");
    return mod;
}

}  // namespace borvik
