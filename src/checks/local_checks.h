#pragma once

#include "checks/static_checks.h"

namespace borvik {

/// Wheel of an overhead crane on the web below the top flange, EN 1993-6 5.7.1 with EN 1993-1-5 chapter 6. Takes the
/// wheel loads as entered, without load factor or dynamic factor; the whole span counts as distance of the stiffeners.
/// wearStatic comes before. Faults: a web or rail of no thickness.
[[nodiscard]] RowSet patchLoadRow(const CheckBasis& basis, int span, int extreme);

/// The rail of the check above: worn, EN 1993-6 5.6.2(2).
/// @throws RuntimeFault  on an arithmetic fault
void wearStatic(CheckBasis& basis);

/// Wheels of a monorail on the bottom flange, EN 1993-6 6.7: bending of the flange under half of the largest factored
/// wheel. Faults: a wheel that runs on the root of the web (m = 0).
[[nodiscard]] RowSet flangeBendingRow(const CheckBasis& basis, int span, int extreme);

/// Von Mises stress in the bottom flange of a monorail, EN 1993-6 5.8 and 7.5: local stresses of a wheel pair at the
/// web (point 1), under the load (2) and at the flange tip (3), together with the bending of the beam. No load factors.
[[nodiscard]] RowSet vonMisesRow(const CheckBasis& basis, int span, int extreme);

/// FRd of EN 1993-1-5 6.2(1), kN.
/// @param leff        effective loaded length, mm
/// @param a           distance of the stiffeners, mm
/// @param stockyRule  drop m2 where the slenderness is 0.5 at most, as EN 1993-1-5 6.5(1) has it; the check keeps it
[[nodiscard]] double patchResistance(const Project& project, const SectionRecord& section, double leff, double a,
                                     bool stockyRule = false, Working working = {});

/// Where a wheel stands on the bottom flange, mm: EN 1993-6 eq. (6.2), (6.3) and Table 6.2.
struct FlangeLever {
    double m = 0;   ///< lever from wheel to root
    double mn = 0;  ///< m + n

    FlangeLever(const Project& project, const SectionRecord& section);
    /// Yield line length of a wheel away from the beam's ends. @param xw wheel spacing
    [[nodiscard]] double lengthInside(double xw) const;
    /// Yield line length at an end that is not stiffened.
    [[nodiscard]] double lengthAtEnd() const { return 2 * mn; }
};

/// Ff,Rd of EN 1993-6 6.7(1), kN. @param leff yield line length, mm. @param part  stress of the beam over its limit
[[nodiscard]] double flangeResistance(const Project& project, const SectionRecord& section, double leff, double part,
                                      Working working = {});

/// What the von Mises stress of the bottom flange is made of.
struct VonMisesBasis {
    double F = 0;                 ///< wheel load on one side of the web, N
    double s = 0;                 ///< wheel spacing, mm
    double My = 0, Mz = 0;        ///< Nmm, with load and dynamic factor
    double perMy = 1, perMz = 1;  ///< what they are divided by
    bool signs = false;           ///< local stresses with their signs, on both faces; the check takes magnitudes
    bool tableAtTip = false;      ///< cx of the flange tip as EN 1993-6 Table 5.2 has it
};

/// What VonMisesCheck takes for a span at the position of the largest My.
[[nodiscard]] VonMisesBasis vonMisesBasis(const Project& project, const UlsResults& uls, int span);
/// The largest von Mises stress of the three points, N/mm2.
[[nodiscard]] double vonMisesStress(const Project& project, const SectionRecord& section, const VonMisesBasis& basis,
                                    Working working = {});

}  // namespace borvik
