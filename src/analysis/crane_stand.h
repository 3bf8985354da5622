#pragma once

#include "analysis/results.h"

namespace borvik {

/// The walks that keep their positions.
enum class WalkOf { Uls, Sls, FatigueCrane1, FatigueCrane2, FatigueBoth };

/// What a position of the cranes makes extreme.
enum class Effect { My, Vz, Mz, Vy, Rz, Ry, Uz, Uy, TopFlange, BottomFlange, Web };

/// Where the cranes stand when a result is reached, and where on the beam it is.
struct CraneStand {
    WalkOf walk = WalkOf::Uls;
    Effect effect = Effect::My;
    WalkPosition at = {};
    int place = 0;  ///< span; the support of a reaction
    int point = 0;  ///< 1..21 of the span; 0 of a support

    /// False of a result that no position decides, or that no position reached.
    [[nodiscard]] bool isKnown() const { return at.isKnown(); }
    bool operator==(const CraneStand&) const = default;
};

/// The point of a span, 1..21, at x mm from its left support.
[[nodiscard]] inline int pointAt(double x, double length) {
    return length > 0 ? static_cast<int>(x / length * (kPoints - 1) + 0.5) + 1 : 1;
}

}  // namespace borvik
