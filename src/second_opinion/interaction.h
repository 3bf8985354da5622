#pragma once

#include <array>

#include "project/project.h"
#include "second_opinion/torsion.h"
#include "second_opinion/warping_section.h"

namespace borvik {

/// Effects at a cut. Nmm, N; torsion as TorsionState has it.
struct CutForces {
    double My = 0, Vz = 0;
    double Mz = 0, Vy = 0;  ///< Mz with what the twist turns of My onto the weak axis, phi My
    TorsionState torsion;
};

/// Stresses at a cut, MPa, tension positive.
struct CutStresses {
    std::array<double, 4> tips{};  ///< top flange at +y and -y, bottom flange at +y and -y
    double tauFlange = 0;          ///< at the tips, of St Venant's torsion
    double tauMiddle = 0;          ///< in the middle of the worse flange, with the shear of warping and of Vy
    double tauWeb = 0;
    double equivalent = 0;  ///< the largest sqrt(sigma2 + 3 tau2) of tips, middles of the flanges and web
    double ratio = 0;       ///< to fyk/gammaM0, EN 1993-1-1 (6.1)
};

/// Elastic stresses of the whole section under bending about both axes and torsion, without those of a wheel in the
/// web. Gross section.
[[nodiscard]] CutStresses elasticStresses(const Project& project, const SectionRecord& section,
                                          const WarpingSection& warping, const CutForces& forces);

/// What the interaction of EN 1993-6 Annex A is made of. Moments Nmm, bimoments Nmm2, all positive.
struct AnnexAInput {
    double My = 0, Mz = 0, B = 0;
    double MbRd = 0;  ///< chiLT My,Rk/gammaM1
    double MzRd = 0;  ///< Mz,Rk/gammaM1
    double BRd = 0;   ///< BRk/gammaM1
    double Mcr = 0;
    double CMz = 0.9;  ///< EN 1993-1-1 Table B.3: 0.9 of a simple beam under point loads
};

struct AnnexA {
    AnnexAInput of;
    double kw = 0, kzw = 0, kalpha = 0;
    double ratio = 0;  ///< infinite from My = Mcr on
};

/// My/MbRd + CMz Mz/MzRd + kw kzw kalpha B/BRd, with kw = 0.7 - 0.2 B/BRd, kzw = 1 - Mz/MzRd and
/// kalpha = 1/(1 - My/Mcr). Where B or Mz alone is beyond its resistance, where the formula ends, its own ratio counts.
[[nodiscard]] AnnexA annexA(const AnnexAInput& input);

}  // namespace borvik
