#pragma once

#include <array>
#include <span>

#include "tables/reference_tables.h"

namespace borvik {

/// A rectangle of a cross-section that is cut into horizontal
/// strips, mm; `lower` is its lower edge above the underside.
struct Strip {
    double width = 0.0;
    double height = 0.0;
    double lower = 0.0;

    [[nodiscard]] double area() const { return width * height; }
    [[nodiscard]] double upper() const { return lower + height; }
    [[nodiscard]] double middle() const { return lower + height / 2.0; }
};

inline double square(double x) {
    return x * x;
}
double cube(double x);

// What takes a SectionRecord reads its plates h, b1, b2, tw, tf1, tf2 and the clear web depth Hw, nothing else. A plate
// that isn't there has a thickness or width of zero. Welds and root radii don't count.

/// The plates of a welded I: top flange, web, bottom flange.
[[nodiscard]] std::array<Strip, 3> plateStrips(const SectionRecord& section);

/// Elastic centroid of the three plates above the underside, mm.
[[nodiscard]] double Centroid(const SectionRecord& section);

/// Second moment of area about the horizontal axis at height `axis`, mm4. A further plate, such as a cap on the top
/// flange, is one more strip.
[[nodiscard]] double SecondMomentY(std::span<const Strip> strips, double axis);

/// Second moment of area of the three plates about the axis of symmetry, mm4.
[[nodiscard]] double SecondMomentZ(const SectionRecord& section);

/// Mass of the three plates per metre, kg/m, at 7.9e-6 kg/mm3.
[[nodiscard]] double WeightPerMetre(const SectionRecord& section);

/// Warping stiffness E Iw of the two flanges about the shear centre, Nmm4, E = 210000 N/mm2.
[[nodiscard]] double WarpingStiffness(const SectionRecord& section);

/// Torsion stiffness G It of the three plates, Nmm2, with the shear modulus 89100 N/mm2.
[[nodiscard]] double TorsionStiffness(const SectionRecord& section);

struct PlasticProperties {
    double EzPl = 0.0;  ///< plastic neutral axis above the underside, mm
    double Wply = 0.0;  ///< plastic modulus about it, mm3
};

/// Of the three plates of a welded I: the axis of equal areas, but for an axis in a top flange that is thicker or
/// thinner than the bottom one, where it stands tf1 - tf2 too low. With equal flanges the halves of the web count with
/// centres (h - tf)/2 apart in place of hw/2: Wply is a little more than the exact modulus.
[[nodiscard]] PlasticProperties PlasticAxis(const SectionRecord& section);

/// Of any strips: the axis is the first height, in steps of 0.1 mm from 2 mm, with half of the area or more below it.
/// Each step is rounded to a single.
/// @throws RuntimeFault  when the section is so high that a step is lost in the rounding
[[nodiscard]] PlasticProperties plasticAxisBySearch(std::span<const Strip> strips);

}  // namespace borvik
