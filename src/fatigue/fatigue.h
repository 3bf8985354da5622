#pragma once

#include "analysis/walk.h"
#include "fatigue/fatigue_results.h"
#include "platform/messages.h"
#include "platform/progress.h"
#include "project/loads.h"
#include "project/project.h"

namespace borvik {

/// What a fatigue driver needs from the calculation around it.
struct FatigueRun {
    const Project& project;
    const RailRecord& rail;
    RunLoads& loads;  ///< as the serviceability run left them; rewritten by each fatigue walk
    WalkMethod method;
    Messages& messages;
    Progress& progress;
    PositionLog& steps;  ///< takes the position log of the last walk
};

/// Fatigue of an overhead crane, or of two: walks crane 1 (or the train of both at
/// a constant distance), crane 2, and both together as the project asks for, makes
/// the stress tables and checks the details, EN 1993-1-9 and EN 1993-6 chapter 9.
/// @throws RuntimeFault  naming detail and span, on an arithmetic fault
[[nodiscard]] FatigueResults RunFatigueOverhead(const FatigueRun& run);

/// The same for a monorail hoist.
[[nodiscard]] FatigueResults RunFatigueMonorail(const FatigueRun& run);

}  // namespace borvik
