#pragma once

#include "analysis/beam.h"
#include "analysis/results.h"
#include "analysis/wheels.h"

namespace borvik {

/// One value at each calculation point of a span, [1..21]; [0] is not used.
using PointValues = double[kPoints + 1];
using PointSteps = float[kPoints + 1];

/// A wheel within the span under consideration, in one plane: distance from the left support and load in N.
struct SpanWheel {
    double a, load;
};

/// The wheels that act in one span in one plane, crane 1 first.
struct SpanWheels {
    SpanWheel item[8];
    int count = 0;
};

/// Collects the wheels that act in span i. @param load  &Wheel::P or &Wheel::Q
[[nodiscard]] SpanWheels wheelsInSpan(const Wheels& wheels, int i, double Wheel::*load);

/// What no position of the cranes changes at the calculation points of a span: geometry, and the share of the dead load
/// in shear, moment and deflection (0 in the horizontal plane).
struct SpanPoints {
    double L = 0;
    double c6EI = 0;                ///< 6 E I
    PointValues x{};                ///< (k - 1) L / 20
    PointValues rest{};             ///< L - x
    PointValues leftShare{};        ///< 1 - x / L, share of the left end moment
    PointValues deadV{};            ///< N
    PointValues deadM{};            ///< Nmm
    PointValues leftU{}, rightU{};  ///< 1 - (L - x)^2 / L^2 and 1 - x^2 / L^2, of the end moments' deflections
    PointValues x3{}, rest3{};      ///< x^3 and (L - x)^3
    PointValues deadU{};            ///< mm

    SpanPoints() = default;
    /// @param L mm, @param I mm4, @param q dead load, N/mm
    SpanPoints(double length, double I, double q);

    /// Moments (Nmm) and shears (N) at the points, from the end moments and the wheels in the span.
    /// Shear at a wheel is that on its left; a wheel exactly at the right end (a = L) counts at that end alone.
    void forces(double Ma, double Mb, const SpanWheels& wheels, PointSteps& M, PointSteps& V) const;

    /// Deflections (mm, downward negative) at the points.
    void deflections(double Ma, double Mb, const SpanWheels& wheels, PointSteps& U) const;

    /// Adds to `V` and `M` what one wheel gives in the span as a simple beam.
    void addForces(const SpanWheel& wheel, PointValues& M, PointValues& V) const;
    /// The same shear at the start and at the end of the span alone.
    [[nodiscard]] double startShear(const SpanWheel& wheel) const;
    [[nodiscard]] double endShear(const SpanWheel& wheel) const;
    /// Subtracts from `U` what one wheel gives in the span as a simple beam.
    void subtractDeflection(const SpanWheel& wheel, PointValues& U) const;
};

}  // namespace borvik
