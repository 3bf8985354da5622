#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "project/steel.h"

namespace borvik {

inline constexpr double kLineE = steel::kE;              ///< N/mm2
inline constexpr double kLineG = kLineE / steel::kEtoG;  ///< N/mm2

/// What torsion and lateral bending ask of a section. mm4, mm6, mm.
struct LineSection {
    double Iz = 0, It = 0, Iw = 0;
    double zj = 0;  ///< zs - 1/(2 Iy) integral of z (y2 + z2) dA, z upwards: positive with the larger flange on top
};

/// Whether an inner support lets the ends of two spans warp alone, as those of jointed girders do. The ends of the beam
/// always warp freely.
enum class InnerWarping { Continuous, Free };

/// A beam on forks: neither displaced sideways nor twisted at its supports.
struct LineBeam {
    struct Span {
        double L = 0;  ///< mm
        LineSection section;
    };
    std::vector<Span> spans;
    InnerWarping warping = InnerWarping::Continuous;

    /// The place of support `support`, from 0, mm from the first one.
    [[nodiscard]] double supportAt(std::size_t support) const;
    [[nodiscard]] double length() const { return supportAt(spans.size()); }
    /// @throws RuntimeFault  without spans, or with one of no length
    void check() const;
};

/// The elements of a beam. A node stands at each support.
struct LineMesh {
    struct Element {
        std::size_t span;  ///< from 0
        double x, h;       ///< left end, mm from the first support; length, mm
        [[nodiscard]] double end() const { return x + h; }
    };
    std::vector<Element> elements;  ///< from left to right
    std::vector<char> isSupport;    ///< [elements + 1], of the nodes

    /// @param perSpan   equal elements of each span
    /// @param required  further nodes, mm from the first support; one within 0.003 of a span from a node is that
    ///                  node
    LineMesh(const LineBeam& beam, const std::vector<int>& perSpan, std::vector<double> required);
    /// The element that holds a place; the left one at a node.
    [[nodiscard]] std::size_t elementAt(double x) const;
    /// The node nearest to a place.
    [[nodiscard]] std::size_t nodeAt(double x) const;
};

/// Cubic shape functions of an element of length h, for the values and slopes of its left and right end: the functions,
/// their slopes and their curvatures at s = 0..1.
struct Cubic {
    std::array<double, 4> value, slope, curvature;
    Cubic(double s, double h);
};

/// Places (0..1) and weights of an integration that is exact to the seventh power.
struct GaussPoint {
    double s, weight;
};
extern const std::array<GaussPoint, 4> kGauss;

}  // namespace borvik
