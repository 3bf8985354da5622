#pragma once

#include "analysis/results.h"
#include "platform/messages.h"
#include "platform/progress.h"
#include "project/loads.h"
#include "project/project.h"

namespace borvik {

/// How the cranes are walked along the beam. The results are the same to the last bit.
enum class WalkMethod {
    Plain,  ///< every position is solved and compared: the reading reference
    Fast,   ///< only the positions that can hold an extreme are solved
};

/// Ultimate limit state: walks the cranes along the beam in steps of 200 mm and keeps envelopes and governing records
/// of My, Vz, Mz, Vy and the reactions (theorem of three moments). Reads Span, SpanSection (Iy, Iz), Position, Fixerad,
/// MinAvst, MinDistConst, StartStopOutside, BeamLength, CranesLength of the project. The reaction at the last support
/// keeps the sign of the shear. Where the cranes don't fit on the beam, a message says so and all results are zero
/// (with an empty position log).
/// @throws RuntimeFault  naming the walk, on an arithmetic fault
[[nodiscard]] UlsResults RunUls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                                Progress& progress);

/// Serviceability limit state: the same walk with deflections in both planes.
[[nodiscard]] SlsResults RunSls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                                Progress& progress);

/// Fatigue limit state: the same walk for one fatigue load, with extremes of My, Vz and Rz.
[[nodiscard]] FlsResults RunFls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                                Progress& progress);

/// Positions that a walk visits: pairs (j, k) of the position of crane 1 and the extra distance of crane 2. 0 where the
/// cranes don't fit. For the guard against projects that no machine can walk.
[[nodiscard]] double countPositions(const Project& project, int cranes);

}  // namespace borvik
