#pragma once

#include <array>

#include "project/loads.h"
#include "project/project.h"
#include "project/steel.h"

namespace borvik {

/// 1/(6E) and 1/(24E) stand in every formula of the analysis as these two numbers.
constexpr double k6E = 6 * steel::kE;
constexpr double k24E = 24 * steel::kE;

/// Numbers per span or per support, indexed as in the formulas: 1..n for spans, 0..n for what lies between them.
using PerSpan = std::array<double, kMaxSpans + 2>;

/// The three-moment matrix of one bending plane after elimination. It depends on the beam alone, so it is eliminated
/// once a run; every stored number is that of an elimination made anew at each position. Only the upper band and the
/// factors matter: what the elimination leaves below the diagonal multiplies moments that are still zero.
struct ThreeMomentMatrix {
    PerSpan diagonal{};  ///< [1..n-1]
    PerSpan upper{};     ///< [1..n-1], coefficient of the next support's moment
    PerSpan factor{};    ///< [2..n-1], elimination factor of the row
};

/// Continuous beam on rigid pinned supports, constant section within a span, no overhangs.
struct Beam {
    int n = 0;               ///< spans
    PerSpan L{};             ///< [1..n] lengths, mm
    PerSpan Iy{}, Iz{};      ///< [1..n] second moments of area, mm4
    PerSpan Cum{};           ///< [0..n] positions of the supports on the axis of the wheels, singles, mm
    ThreeMomentMatrix z, y;  ///< vertical plane (Iy) and horizontal plane (Iz)

    explicit Beam(const Project& project);
};

/// Load terms of the dead load, N mm / (N mm2): [1..n-1]. @param q [1..n] N/mm
[[nodiscard]] PerSpan deadLoadTerms(const Beam& beam, const RunLoads& loads);

/// End rotation term of a wheel: (P d L) / (6 E I)
/// (1 - d^2 / L^2), with P in N and d the distance from the far support.
[[nodiscard]] double rotationTerm(double P, double d, double L, double I);

/// Solves the support moments of one plane from its load terms, as stored numbers (each step rounded to a single).
/// @param rhs  [1..n-1] load terms, destroyed
/// @param X    [0..n] moments over the supports, Nmm; the ends 0 and n are 0
void SolveSupportMoments(const ThreeMomentMatrix& matrix, int n, PerSpan& rhs, PerSpan& X);

}  // namespace borvik
