#pragma once

#include <array>

#include "analysis/crane_response.h"

namespace borvik {

/// What a run compares at each point.
enum class Quantity { Forces, Deflections };

constexpr int kMostLanes = 2 * kPoints;
using LaneValues = std::array<double, kMostLanes>;

/// Bounds of what rounding makes of the support moments, uniform over all positions, and their magnitudes.
struct MomentBounds {
    PerSpan error{};      ///< [0..n] |stored - ideal|, Nmm
    PerSpan magnitude{};  ///< [0..n] |ideal|
    PerSpan kept{};       ///< [0..n] error of keeping the responses of both cranes, and their sum, as singles
    double load = 0;      ///< sum of all wheel loads, N

    MomentBounds(const Plane& plane, const Magnitudes& m1, const Magnitudes& m2);

    static constexpr double kSmallest = 1e-30;  ///< where singles get so small that their relative error grows
};

/// Values that are searched together: those of a few neighbouring spans. Each is linear in the loads.
class Lanes {
public:
    virtual ~Lanes() = default;
    /// Values that a crane gives at position p in one of its variants.
    virtual void row(const CraneResponse& crane, int p, int variant, double* values) const = 0;

    std::size_t count = 0;
    int firstSpan = 0, lastSpan = 0;  ///< a crane elsewhere acts through the moment over the nearest support alone
    LaneValues dead{};                ///< value under dead load alone
    LaneValues error{};               ///< bound of |stored - ideal|
    LaneValues fromLeft{};   ///< value per moment over support firstSpan - 1 while a crane stands left of the spans
    LaneValues fromRight{};  ///< value per moment over support lastSpan while it stands right of them
    std::array<bool, kMostLanes> alwaysZero{};  ///< exactly 0 at every position
};

/// The quantities at the points of one span: lane k - 1 is the
/// moment or deflection at point k, lane 21 + k - 1 the shear.
class SpanLanes : public Lanes {
public:
    SpanLanes(const Plane& plane, int i, Quantity quantity, const MomentBounds& bounds);
    void row(const CraneResponse& crane, int p, int variant, double* values) const override;

private:
    void set(int lane, double a, double b, double deadValue, double wheels);
    const SpanPoints& points_;
    LaneValues left_{}, right_{};  ///< shares of the end moments Ma, Mb
    LaneValues wheels_{};          ///< magnitude of the wheels' share
};

/// The reaction over the support between spans i - 1 and i: shear at the start of the right one less shear at the end
/// of the left one.
class ReactionLane : public Lanes {
public:
    ReactionLane(const Plane& plane, int i, const MomentBounds& bounds);
    void row(const CraneResponse& crane, int p, int variant, double* values) const override;

private:
    const Plane& plane_;
};

}  // namespace borvik
