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

double slenderness(const Project& project, const SectionRecord& section, bool positive, double Mcr) {
    return std::sqrt((positive ? section.WyPos : section.WyNeg) * project.fyk / Mcr);
}

}  // namespace

Single ReductionGeneral(const Project& project, const SectionRecord& section, bool positive, double Mcr) {
    const double alpha = imperfection(section, positive, {0.21, 0.34}, {0.49, 0.76});  // Tables 6.3, 6.4
    const double lam = slenderness(project, section, positive, Mcr);
    const double phi = 0.5 * (1 + alpha * (lam - 0.2) + std::pow(lam, 2));
    return std::fmin(1 / (phi + std::sqrt(std::pow(phi, 2) - std::pow(lam, 2))), 1.0);  // eq. (6.56)
}

Single ReductionRolledWelded(const Project& project, const SectionRecord& section, bool positive, double Mcr,
                             double Kc) {
    const double alpha = imperfection(section, positive, {0.34, 0.49}, {0.49, 0.76});  // Tables 6.3, 6.5
    const double lam = slenderness(project, section, positive, Mcr);
    const double Betaw = project.Betaw;
    const double phi = 0.5 * (1 + alpha * (lam - project.LamdaLT0w) + Betaw * std::pow(lam, 2));
    const double chi =
        std::fmin(1 / (phi + std::sqrt(std::pow(phi, 2) - Betaw * std::pow(lam, 2))), 1.0);  // eq. (6.57)
    const double f = std::fmin(1 - 0.5 * (1 - Kc) * (1 - 2 * std::pow(lam - 0.8, 2)), 1.0);
    return std::fmin(std::fmin(chi / f, 1 / std::pow(lam, 2)), 1.0);  // eq. (6.58), with the limits of (6.57)
}

}  // namespace borvik
