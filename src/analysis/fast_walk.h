#pragma once

#include "analysis/lanes.h"
#include "analysis/position.h"
#include "analysis/steps.h"
#include "platform/progress.h"

namespace borvik {

/// Visits, in the order of the walk, a set of positions that holds every one that is the first to reach an extreme. The
/// records are then the same, to the last bit, as if every position had been visited. docs/fast-walk.md has the idea,
/// its error bound and the proof.
/// @param quantity  what `post` compares
/// @return false where the method does not apply or would not pay; nothing has been recorded then and the plain walk
///         has to be taken
[[nodiscard]] bool walkFast(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, PostProcess& post,
                            Walk walk, Progress& progress);

}  // namespace borvik
