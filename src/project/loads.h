#pragma once

#include "base/array.h"
#include "base/single.h"
#include "project/project.h"

namespace borvik {

/// The loads of one run, set by its driver before the walk. Wheels: always eight, 1..4 of crane 1, 5..8 of crane 2.
/// They survive from one run to the next until a driver rewrites them.
struct RunLoads {
    FixedArray<Single, 1, 30> SpanLoad;  ///< uniform dead load of each span, N/mm = kN/m
    FixedArray<Single, 1, 8> WheelV;     ///< vertical wheel loads, kN, downward positive
    FixedArray<Single, 1, 8> WheelH;     ///< horizontal wheel loads, kN
    FixedArray<Single, 1, 6> WheelGap;   ///< wheel distances, mm; 1..3 inside crane 1, 4..6 inside crane 2
    int NCranes = 1;                     ///< cranes that move on their own in this run, 1 or 2
};

/// Dead load of each span, kN/m: gangway and rail for an overhead crane, the beam's own weight where wanted; each step
/// rounded to a single. A monorail carries neither gangway nor rail.
/// @param factor  load factor of the run (LfULS or LfSLS)
void setDeadLoad(const Project& project, const RailRecord& rail, double factor, RunLoads& loads);

/// Loads of the ultimate limit state: dead load, and each wheel with the load factor and the dynamic factors of its
/// crane, rounded once. NCranes is left alone.
void setUlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads);

}  // namespace borvik
