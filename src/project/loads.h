#pragma once

#include "base/array.h"
#include "base/single.h"
#include "base/working.h"
#include "project/project.h"

namespace borvik {

/// The largest vertical wheel load as entered, kN: of crane 1 or 2, and of both.
[[nodiscard]] double heaviestWheel(const Project& project, int crane);
[[nodiscard]] double heaviestWheel(const Project& project);

/// The smallest distance between neighbouring wheels of crane 1, mm; 0 for a single wheel.
[[nodiscard]] double smallestDistance(const Project& project);

/// The loads of one run, set by its driver before the walk. Wheels: always eight, 1..4 of crane 1, 5..8 of crane 2.
/// They survive from one run to the next until a driver rewrites them.
struct RunLoads {
    FixedArray<Single, 1, 30> SpanLoad;  ///< uniform dead load of each span, N/mm = kN/m
    FixedArray<Single, 1, 8> WheelV;     ///< vertical wheel loads, kN, downward positive
    FixedArray<Single, 1, 8> WheelH;     ///< horizontal wheel loads, kN
    FixedArray<Single, 1, 6> WheelGap;   ///< wheel distances, mm; 1..3 inside crane 1, 4..6 inside crane 2
    int NCranes = 1;                     ///< cranes that move on their own in this run, 1 or 2
};

/// Dead load of a span, kN/m: gangway and rail for an overhead crane, the beam's own weight where wanted; each step
/// rounded to a single. A monorail carries neither gangway nor rail.
/// @param factor  load factor of the run (LfULS or LfSLS)
[[nodiscard]] Single deadLoad(const Project& project, const RailRecord& rail, double factor, int span,
                              Working working = {});
/// That of each span.
void setDeadLoad(const Project& project, const RailRecord& rail, double factor, RunLoads& loads);

/// Loads of the ultimate limit state: dead load, and each wheel with the load factor and the dynamic factors of its
/// crane, rounded once. NCranes is left alone.
void setUlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads);

/// Loads of the serviceability limit state: dead load and wheels
/// with the load factor, no dynamic factors. NCranes is left alone.
void setSlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads);

/// A fatigue load carries no dead load.
void ClearSpanLoad(const Project& project, RunLoads& loads);

/// Fatigue load of crane 1: its wheels as entered times `PhiFat`; in a train the wheels of crane 2 behind them, with
/// the same factor. For this and all later fatigue walks NCranes is 1: the cranes never move apart.
void setFatigueCrane1(const Project& project, double PhiFat, bool train, RunLoads& loads);

/// Fatigue load of crane 2, which takes the places of the wheels of crane 1. The others are left alone.
void setFatigueCrane2(const Project& project, double PhiFat, RunLoads& loads);

/// Fatigue load of both cranes, each with its factor. The distances stay as they are: after the walk of crane 2, crane
/// 1 rolls on the wheel distances of crane 2 (note G22).
void setFatigueBoth(const Project& project, double PhiFat1, double PhiFat2, RunLoads& loads);

}  // namespace borvik
