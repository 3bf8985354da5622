#pragma once

#include "base/array.h"
#include "base/single.h"
#include "base/working.h"
#include "fatigue/crane_factors.h"
#include "project/project.h"

namespace borvik {

/// Largest wheel load of a crane, kN, as entered; at least 0, as an upward one is no fatigue load.
[[nodiscard]] double largestWheel(const Project& project, int crane);

/// How a wheel on the rail spreads into the web under the top flange.
struct WheelSpread {
    double leff = 0.0;       ///< effective loaded length on the rail worn for fatigue, mm, EN 1993-6 Table 5.1
    double thickness = 0.0;  ///< of what carries it: both throats of a fillet weld W1, else the web, mm

    /// Stress of a wheel, MPa, times `factor`. @param force kN
    [[nodiscard]] double stress(double factor, double force) const {
        return factor * force * 1000.0 / leff / thickness;
    }
};

/// Spread of a wheel in a span with this section, whether the rail counts as part of the girder (RailOn) or not.
[[nodiscard]] WheelSpread wheelSpread(const Project& project, const RailRecord& rail, const SectionRecord& section,
                                      Working working = {});

/// The local shear range is this part of the direct one: the 0.2 of
/// EN 1993-6 5.7.2, with its change of sign as the wheel passes.
constexpr double kLocalShear = 0.4;

/// Local stress ranges under the wheels in one span, MPa, the N-scaled equivalence factors included.
struct WheelStress {
    WheelSpread spread;
    FixedArray<Single, 1, 2> SigLoc;  ///< direct, of crane 1 and of crane 2; 0 for a crane that is not there
    FixedArray<Single, 1, 2> TauLoc;  ///< shear
};

/// Each crane with its own dynamic factor, its largest wheel and its own class.
[[nodiscard]] WheelStress wheelStress(const Project& project, const RailRecord& rail, const FatigueFactors& factors,
                                      const SectionRecord& section, Working working = {});

/// Transverse bending of the bottom flange at the web under half of a monorail's
/// largest wheel load, MPa, times LamSigN. The wheel load is the entered one: no
/// dynamic factor. EN 1993-6 5.8, cy at the transition of web and flange (Table 5.2).
[[nodiscard]] Single flangeBending(const Project& project, const FatigueFactors& factors, const SectionRecord& section,
                                   Working working = {});

}  // namespace borvik
