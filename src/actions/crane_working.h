#pragma once

#include "actions/crane_loads.h"
#include "base/working.h"

namespace borvik::actions {

/// Writes down how the loads of a crane come about, clause by clause: vertical loads, dynamic factors, acceleration,
/// skewing, crab, test, fatigue and buffers, with the numbers of the loads themselves. Figures of the maker say so.
void explainCrane(const CraneData& crane, const CraneLoads& loads, Working working);

}  // namespace borvik::actions
