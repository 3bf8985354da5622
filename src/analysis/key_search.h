#pragma once

#include "analysis/candidates.h"
#include "analysis/crane_response.h"
#include "analysis/lanes.h"

namespace borvik {

/// Searches one plane for the positions that may be the first to reach an extreme.
/// Crane 1 stands at positions j = 0..last, crane 2 at s = j + k with s from j to last. A plane in which the cranes
/// move as one has all wheels in `crane1` and nothing in `crane2`.
void searchPlane(const Plane& plane, const CraneResponse& crane1, const CraneResponse& crane2, int last,
                 Quantity quantity, Candidates& candidates);

}  // namespace borvik
