#pragma once

#include "analysis/position.h"
#include "analysis/steps.h"
#include "platform/progress.h"

namespace borvik {

/// Visits, in the order of the walk, a set of positions that holds every one that is the first to reach an extreme.
/// @return false where it does not apply; nothing has been recorded then and the plain walk has to be taken
[[nodiscard]] bool walkFast(const WalkSteps& steps, const LoadedBeam& loaded, PostProcess& post, Walk walk,
                            Progress& progress);

}  // namespace borvik
