#include "second_opinion/warping_section.h"

#include "section/geometry.h"

namespace borvik {

namespace {

/// Integral of z (y2 + z2) dA over a rectangle, z from the centroid of the section: z A (y2 + z2 + b2/12 + t2/4), where
/// y and z are those of its middle and b its width, t its height.
double monosymmetryIntegral(double b, double t, double y, double z) {
    return z * b * t * (y * y + z * z + b * b / 12 + t * t / 4);
}

double monosymmetry(const SectionRecord& s, double zs) {
    double sum = 0;
    for (const Strip& strip : plateStrips(s))
        sum += monosymmetryIntegral(strip.width, strip.height, 0, strip.middle() - s.EzEl);
    if (s.Reinforced)
        sum += 2 *
               monosymmetryIntegral(s.ReinfT, s.ReinfD, (s.b1 + s.ReinfT) / 2, s.h - s.tf1 / 2 - s.ReinfD / 2 - s.EzEl);
    return zs - sum / (2 * s.Iy);
}

double torsionConstant(const SectionRecord& s) {
    if (s.Id != "Iu") return s.It;
    const double plates = s.Reinforced ? 2 * cube(s.ReinfT) * s.ReinfD : 0;
    return (s.b1 * cube(s.tf1) + s.b2 * cube(s.tf2) + s.Hw * cube(s.tw) + plates) / 3;
}

}  // namespace

WarpingSection::WarpingSection(const SectionRecord& s) {
    equalFlanges = !s.Reinforced && s.b1 == s.b2 && s.tf1 == s.tf2;
    zs = equalFlanges ? 0 : double{s.Zs};
    line = {s.Iz, torsionConstant(s), s.Iw, equalFlanges ? 0 : monosymmetry(s, zs)};
    top = s.h - s.tf1 / 2 - s.EzEl - zs;
    bottom = s.tf2 / 2 - s.EzEl - zs;
    yTop = s.b1 / 2 + (s.Reinforced ? double{s.ReinfT} : 0);
    yBottom = s.b2 / 2;
    WplZ = square(s.b1) * s.tf1 / 4 + square(s.b2) * s.tf2 / 4 + s.Hw * square(s.tw) / 4;
    WplFlange = square(s.b1) * s.tf1 / 4;
}

}  // namespace borvik
