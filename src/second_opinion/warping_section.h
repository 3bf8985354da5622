#pragma once

#include "second_opinion/line_beam.h"
#include "tables/reference_tables.h"

namespace borvik {

/// A section as torsion and lateral bending see it: its flanges about the shear centre. mm, mm3.
struct WarpingSection {
    LineSection line;
    double zs = 0;      ///< shear centre above the centroid
    double top = 0;     ///< middle of the top flange above the shear centre
    double bottom = 0;  ///< the same of the bottom flange, negative
    double yTop = 0;    ///< tips of the flanges from the web's middle; of plates at the tips their outer faces
    double yBottom = 0;
    bool equalFlanges = true;
    double WplZ = 0;       ///< plastic modulus about the weak axis, of the three plates
    double WplFlange = 0;  ///< of the top flange alone

    /// Rolled, welded or with plates. The torsion constant of unequal flanges has each with its own width; all else is
    /// as the section form shows it, the monosymmetry zj as the exact integral over the plates.
    explicit WarpingSection(const SectionRecord& section);
    [[nodiscard]] double flangeDistance() const { return top - bottom; }
};

}  // namespace borvik
