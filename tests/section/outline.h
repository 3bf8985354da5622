#pragma once

#include <cstddef>
#include <vector>

namespace borvik::test {

struct Point {
    double y, z;  ///< mm; y to the side, z upwards
};
using Polygon = std::vector<Point>;  ///< corners, counter-clockwise

/// Area integrals by Green's theorem around the outlines: another road than sums of rectangles.
struct Integrals {
    double A = 0.0, Sy = 0.0, Iyy = 0.0, Izz = 0.0;  ///< integrals of 1, z, z^2, y^2
};

inline Integrals integrate(const std::vector<Polygon>& outlines) {
    Integrals sum;
    for (const Polygon& outline : outlines) {
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const Point p = outline[i];
            const Point q = outline[(i + 1) % outline.size()];
            const double cross = p.y * q.z - q.y * p.z;
            sum.A += cross / 2.0;
            sum.Sy += cross * (p.z + q.z) / 6.0;
            sum.Iyy += cross * (p.z * p.z + p.z * q.z + q.z * q.z) / 12.0;
            sum.Izz += cross * (p.y * p.y + p.y * q.y + q.y * q.y) / 12.0;
        }
    }
    return sum;
}

/// The part of the outlines above the height z.
inline std::vector<Polygon> above(const std::vector<Polygon>& outlines, double z) {
    std::vector<Polygon> kept;
    for (const Polygon& outline : outlines) {
        Polygon part;
        for (std::size_t i = 0; i < outline.size(); ++i) {
            const Point p = outline[i];
            const Point q = outline[(i + 1) % outline.size()];
            if (p.z >= z) part.push_back(p);
            if ((p.z >= z) != (q.z >= z)) part.push_back({p.y + (q.y - p.y) * (z - p.z) / (q.z - p.z), z});
        }
        kept.push_back(part);
    }
    return kept;
}

/// Height that halves the area, by bisection.
inline double equalAreaAxis(const std::vector<Polygon>& outlines, double height) {
    const double half = integrate(outlines).A / 2.0;
    double low = 0.0;
    double high = height;
    for (int i = 0; i < 100; ++i) {
        const double middle = (low + high) / 2.0;
        (integrate(above(outlines, middle)).A > half ? low : high) = middle;
    }
    return low;
}

/// Integral of |z - axis|.
inline double plasticModulus(const std::vector<Polygon>& outlines, double axis) {
    const Integrals all = integrate(outlines);
    const Integrals top = integrate(above(outlines, axis));
    return 2.0 * (top.Sy - axis * top.A) - (all.Sy - axis * all.A);
}

inline Polygon iOutline(double h, double b1, double b2, double tw, double tf1, double tf2) {
    return {{-b2 / 2, 0}, {b2 / 2, 0},  {b2 / 2, tf2},      {tw / 2, tf2},      {tw / 2, h - tf1}, {b1 / 2, h - tf1},
            {b1 / 2, h},  {-b1 / 2, h}, {-b1 / 2, h - tf1}, {-tw / 2, h - tf1}, {-tw / 2, tf2},    {-b2 / 2, tf2}};
}

/// A plate of thickness t and depth d at the tip of a flange of width b, its top at the height z.
inline Polygon tipPlate(double side, double b, double t, double d, double z) {
    const double inner = side > 0 ? b / 2 : -b / 2 - t;
    return {{inner, z - d}, {inner + t, z - d}, {inner + t, z}, {inner, z}};
}

}  // namespace borvik::test
