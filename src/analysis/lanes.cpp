#include "analysis/lanes.h"

#include <algorithm>
#include <cmath>

namespace borvik {

MomentBounds::MomentBounds(const Plane& plane, const Magnitudes& m1, const Magnitudes& m2) : load(m1.load + m2.load) {
    const int last = plane.beam.n - 1;
    const int wheels = m1.wheels + m2.wheels;
    PerSpan eliminated{};  // error of the eliminated load terms
    PerSpan size{};        // and their magnitude
    for (int r = 1; r <= last; ++r) {
        const double dead = std::abs(plane.deadTerms[r]);
        const double terms = kUnit * ((wheels + 1) * dead + wheels * (m1.rotation[r] + m2.rotation[r]));
        size[r] = std::abs(plane.deadEliminated[r]) + m1.eliminated[r] + m2.eliminated[r];
        eliminated[r] =
            (terms + std::abs(plane.matrix.factor[r]) * eliminated[r - 1]) * (1 + kUnit) + kUnit * size[r] + kSmallest;
    }
    for (int r = last; r >= 1; --r) {
        magnitude[r] = std::abs(plane.deadMoments[r]) + m1.moment[r] + m2.moment[r];
        kept[r] = 2 * kUnit * (m1.moment[r] + m2.moment[r]);
        error[r] = ((eliminated[r] + kUnit * size[r]) / std::abs(plane.matrix.diagonal[r]) +
                    std::abs(plane.fromRight[r]) * error[r + 1]) *
                       (1 + kUnit) +
                   kUnit * magnitude[r] + kSmallest;
    }
}

SpanLanes::SpanLanes(const Plane& plane, int i, Quantity quantity, const MomentBounds& bounds)
    : points_(plane.points[static_cast<std::size_t>(i)]) {
    const bool forces = quantity == Quantity::Forces;
    count = forces ? 2 * kPoints : kPoints;
    firstSpan = lastSpan = i;
    const SpanPoints& p = points_;
    const double W = bounds.load;
    for (int k = 1; k <= kPoints; ++k) {
        const double x = p.x[k];
        const double rest = p.rest[k];
        if (forces) {
            // A wheel a rounding beyond the end of the span gives a moment of at most its load times a millimetre.
            set(k - 1, p.leftShare[k], x / p.L, p.deadM[k], W * (x * rest / p.L + 1));
            set(kPoints + k - 1, -1 / p.L, 1 / p.L, p.deadV[k], W);
        } else {
            // (1 - t) t (2 - t) and (1 - t) t (1 + t) are at most 0.385.
            const double cubic = std::max(0.385 * p.L * p.L * x + p.x3[k], p.rest3[k] + 0.385 * p.L * p.L * rest);
            set(k - 1, -p.leftU[k] * rest * p.L / p.c6EI, -p.rightU[k] * x * p.L / p.c6EI, p.deadU[k],
                W * cubic / p.c6EI);
        }
    }
    // Moments at the ends of the beam, and deflections over supports.
    alwaysZero[0] = !forces || i == 1;
    alwaysZero[kPoints - 1] = !forces || i == plane.beam.n;

    const auto at = static_cast<std::size_t>(i);
    for (std::size_t l = 0; l < count; ++l) {
        const double a = std::abs(left_[l]);
        const double b = std::abs(right_[l]);
        const double size = a * bounds.magnitude[at - 1] + b * bounds.magnitude[at] + wheels_[l] + std::abs(dead[l]);
        error[l] = a * (bounds.error[at - 1] + bounds.kept[at - 1]) + b * (bounds.error[at] + bounds.kept[at]) +
                   (kUnit + 0x1p-46) * size + MomentBounds::kSmallest;
        dead[l] += left_[l] * plane.deadMoments[at - 1] + right_[l] * plane.deadMoments[at];
        fromLeft[l] = left_[l] - right_[l] * plane.fromLeft[at];
        fromRight[l] = right_[l] - left_[l] * plane.fromRight[at - 1];
    }
}

void SpanLanes::set(int lane, double a, double b, double deadValue, double wheels) {
    const auto l = static_cast<std::size_t>(lane);
    left_[l] = a;
    right_[l] = b;
    dead[l] = deadValue;
    wheels_[l] = wheels;
}

void SpanLanes::row(const CraneResponse& crane, int p, int variant, double* values) const {
    const int i = firstSpan;
    PerSpan X;
    crane.moments(p, variant, i - 1, i, X);
    const double Ma = X[static_cast<std::size_t>(i - 1)];
    const double Mb = X[static_cast<std::size_t>(i)];
    for (std::size_t l = 0; l < count; ++l) values[l] = left_[l] * Ma + right_[l] * Mb;
    const SpanWheels wheels = crane.wheelsIn(i, p, variant);
    if (wheels.count == 0) return;
    const bool forces = count > kPoints;
    PointValues first{}, second{};
    for (int w = 0; w < wheels.count; ++w)
        forces ? points_.addForces(wheels.item[w], first, second) : points_.subtractDeflection(wheels.item[w], first);
    for (int k = 1; k <= kPoints; ++k) values[k - 1] += first[k];
    if (forces)
        for (int k = 1; k <= kPoints; ++k) values[kPoints + k - 1] += second[k];
}

ReactionLane::ReactionLane(const Plane& plane, int i, const MomentBounds& bounds) : plane_(plane) {
    count = 1;
    firstSpan = i - 1;
    lastSpan = i;
    const auto b = static_cast<std::size_t>(i);
    const auto a = b - 1;
    const SpanPoints& left = plane.points[a];
    const SpanPoints& right = plane.points[b];
    const PerSpan& X = plane.deadMoments;
    dead[0] =
        (right.deadV[1] - X[a] / right.L + X[b] / right.L) - (left.deadV[kPoints] - X[a - 1] / left.L + X[a] / left.L);
    const auto sum = [&](const PerSpan& of) { return (of[a] + of[b]) / right.L + (of[a - 1] + of[a]) / left.L; };
    const double size =
        sum(bounds.magnitude) + 2 * bounds.load + std::abs(right.deadV[1]) + std::abs(left.deadV[kPoints]);
    // Each of the two shears is stored, and so is their difference.
    error[0] = sum(bounds.error) + sum(bounds.kept) + 2 * (kUnit + 0x1p-46) * size + MomentBounds::kSmallest;
    const double l1 = plane.fromLeft[a];
    const double l2 = plane.fromLeft[b];
    fromLeft[0] = (l1 * l2 + l1) / right.L + (l1 + 1) / left.L;
    const double r1 = plane.fromRight[a];
    const double r2 = plane.fromRight[a - 1];
    fromRight[0] = (1 + r1) / right.L + (r1 + r1 * r2) / left.L;
}

void ReactionLane::row(const CraneResponse& crane, int p, int variant, double* values) const {
    const auto b = static_cast<std::size_t>(lastSpan);
    const auto a = b - 1;
    PerSpan X;
    crane.moments(p, variant, firstSpan - 1, lastSpan, X);
    const SpanPoints& left = plane_.points[a];
    const SpanPoints& right = plane_.points[b];
    double start = (X[b] - X[a]) / right.L;
    double end = (X[a] - X[a - 1]) / left.L;
    const SpanWheels onRight = crane.wheelsIn(lastSpan, p, variant);
    for (int w = 0; w < onRight.count; ++w) start += right.startShear(onRight.item[w]);
    const SpanWheels onLeft = crane.wheelsIn(firstSpan, p, variant);
    for (int w = 0; w < onLeft.count; ++w) end += left.endShear(onLeft.item[w]);
    values[0] = start - end;
}

}  // namespace borvik
