#include "section/geometry.h"

#include <cmath>

#include "project/steel.h"

namespace borvik {

namespace {

double areaBelow(std::span<const Strip> strips, double z) {
    double area = 0.0;
    for (const Strip& strip : strips) {
        if (strip.upper() <= z) {
            area += strip.area();
        } else if (strip.lower < z) {
            area += (z - strip.lower) * strip.width;
        }
    }
    return area;
}

/// Sum of area times distance from the horizontal axis at height `axis`, mm3. A strip that the axis cuts counts as two.
double plasticModulus(std::span<const Strip> strips, double axis) {
    double W = 0.0;
    for (const Strip& strip : strips) {
        const bool cut = strip.lower < axis && axis < strip.upper();
        W += cut ? (square(axis - strip.lower) + square(strip.upper() - axis)) * strip.width / 2.0
                 : std::abs(strip.middle() - axis) * strip.height * strip.width;
    }
    return W;
}

}  // namespace

double cube(double x) {
    return std::pow(x, 3.0);
}

std::array<Strip, 3> plateStrips(const SectionRecord& s) {
    return {Strip{s.b1, s.tf1, s.h - s.tf1}, Strip{s.tw, s.h - s.tf1 - s.tf2, s.tf2}, Strip{s.b2, s.tf2, 0.0}};
}

double Centroid(const SectionRecord& s) {
    const double A1 = s.b1 * s.tf1;
    const double Aw = s.Hw * s.tw;
    const double A2 = s.b2 * s.tf2;
    return ((s.tf1 / 2.0 + s.Hw + s.tf2) * A1 + (s.Hw / 2.0 + s.tf2) * Aw + (s.tf2 / 2.0) * A2) / (A1 + Aw + A2);
}

double SecondMomentY(std::span<const Strip> strips, double axis) {
    double I = 0.0;
    for (const Strip& strip : strips) {
        I += strip.width * cube(strip.height) / 12.0 + strip.area() * square(strip.middle() - axis);
    }
    return I;
}

double SecondMomentZ(const SectionRecord& s) {
    return (s.tf1 * cube(s.b1) + s.tf2 * cube(s.b2) + (s.h - s.tf1 - s.tf2) * cube(s.tw)) / 12.0;
}

double WeightPerMetre(const SectionRecord& s) {
    return (s.b2 * s.tf2 + s.b1 * s.tf1 + (s.h - s.tf1 - s.tf2) * s.tw) * 1000.0 * steel::kDensity;
}

double WarpingStiffness(const SectionRecord& s) {
    const double I1 = s.tf1 * cube(s.b1) / 12.0;
    const double I2 = s.tf2 * cube(s.b2) / 12.0;
    const double hs = s.h - s.tf1 / 2.0 - s.tf2 / 2.0;
    const double a = hs * I2 / (I1 + I2);  // shear centre below the middle of the top flange
    return (square(a) * I1 + square(hs - a) * I2) * steel::kE;
}

double TorsionStiffness(const SectionRecord& s) {
    return steel::kStoredG * (s.b1 * cube(s.tf1) + s.b2 * cube(s.tf2) + (s.h - s.tf1 - s.tf2) * cube(s.tw)) / 3.0;
}

PlasticProperties PlasticAxis(const SectionRecord& s) {
    const double hw = s.h - s.tf1 - s.tf2;
    if (s.b1 == s.b2 && s.tf1 == s.tf2) {
        // A quarter of the web, at the lever of the flanges: kept
        // as the short way of equal flanges, not the exact modulus.
        return {s.h / 2.0, (hw * s.tw / 4.0 + s.b1 * s.tf1) * (s.h - s.tf1 / 2.0 - s.tf2 / 2.0)};
    }
    const double A1 = s.b1 * s.tf1;
    const double Aw = hw * s.tw;
    const double A2 = s.b2 * s.tf2;
    const double S = (A1 + A2 + Aw) / 2.0;
    double z = 0.0;
    if (S <= A2) {
        z = (S / A2) * s.tf2;
    } else if (A2 + Aw >= S) {
        z = s.tf2 + hw - (A2 + Aw - S) / s.tw;
    } else {
        // The height of the section counts as hw + 2 tf2: with tf1 unlike tf2 the axis is off by their difference, and
        // Wply comes out a little larger than at the axis of equal areas. Note B3.
        z = hw + 2.0 * s.tf2 - (A2 + Aw + A1 - S) / s.b1;
    }
    return {z, plasticModulus(plateStrips(s), z)};
}

PlasticProperties plasticAxisBySearch(std::span<const Strip> strips) {
    double area = 0.0;
    for (const Strip& strip : strips) area += strip.area();
    Single z = 2.0;
    double below = 0.0;
    while (below < area / 2.0) {
        const Single next = z + 0.1;
        if (next == z) throw RuntimeFault("the plastic axis lies too high to be found in steps of 0.1 mm");
        z = next;
        below = areaBelow(strips, z);
    }
    return {z, plasticModulus(strips, z)};
}

}  // namespace borvik
