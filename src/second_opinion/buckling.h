#pragma once

#include <optional>
#include <vector>

#include "second_opinion/line_beam.h"
#include "second_opinion/span_loading.h"

namespace borvik {

/// A point that is held sideways, at a height above the shear centre: v + z phi = 0. Two heights at one place hold the
/// rotation too.
struct LateralSupport {
    double x = 0;  ///< mm from the first support
    double z = 0;  ///< mm
};

/// Sideways displacement of the shear centre, mm, and rotation at a node.
struct ModePoint {
    double x = 0;  ///< mm from the first support
    double v = 0, phi = 0;
};

struct BucklingResult {
    double factor = 0;            ///< on all loads
    std::vector<ModePoint> mode;  ///< the largest rotation is 1
    int elements = 0;             ///< of each span, at the end of the refinement
};

/// The lowest factor on the loads at which a beam on forks buckles sideways: elements with cubic v and phi, refined
/// until the factor moves by less than `tolerance`.
/// @param loading  [spans] of the vertical plane
/// @return         nullopt where the loads make the beam buckle at no factor
/// @throws RuntimeFault  where the beam has no length or no stiffness
[[nodiscard]] std::optional<BucklingResult> lowestBuckling(const LineBeam& beam,
                                                           const std::vector<SpanLoading>& loading,
                                                           const std::vector<LateralSupport>& supports = {},
                                                           double tolerance = 0.001);

}  // namespace borvik
