#pragma once

#include <cstdint>
#include <vector>

#include "analysis/beam.h"
#include "analysis/results.h"
#include "analysis/span_points.h"
#include "analysis/wheels.h"

namespace borvik {

/// A set of spans: bit i for span i.
using SpanMask = std::uint32_t;
constexpr SpanMask kAllSpans = ~SpanMask{0};
[[nodiscard]] constexpr bool contains(SpanMask mask, int i) {
    return (mask >> i & 1U) != 0;
}

/// The beam under the loads of one run: what all positions have in common.
struct LoadedBeam {
    Beam beam;
    WheelPlacer placer;
    PerSpan deadTerms;                         ///< [1..n-1] load terms of the dead load, vertical plane
    std::vector<SpanPoints> pointsZ, pointsY;  ///< [1..n]
    bool horizontal;  ///< some wheel has a horizontal load; without, the horizontal plane is all zero

    LoadedBeam(const Project& project, const RunLoads& loads, bool horizontalWanted);
    LoadedBeam(const LoadedBeam&) = delete;
    LoadedBeam& operator=(const LoadedBeam&) = delete;
};

/// One position of the cranes, solved: the wheels and the moments over the supports in both planes.
struct SolvedPosition {
    WalkPosition at;
    Wheels wheels{};
    PerSpan momentZ{}, momentY{};  ///< [0..n], Nmm
};

/// Places the wheels at (j, k) and solves the support moments.
void solve(const LoadedBeam& loaded, int j, int k, SolvedPosition& position);

/// What a run does with a solved position: keeps its envelopes and records.
class PostProcess {
public:
    virtual ~PostProcess() = default;
    /// Compares the spans of `mask` at this position with the records. Positions must come in the order of the walk.
    virtual void record(const SolvedPosition& position, SpanMask mask) = 0;
};

}  // namespace borvik
