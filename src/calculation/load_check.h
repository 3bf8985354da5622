#pragma once

#include <string>

#include "project/project.h"

namespace borvik {

/// The two load forms, which word their refusals differently.
enum class LoadForm { Overhead, Monorail };

/// What a refusal of loads asks for.
enum class LoadItem { Nothing, Load, Distance, Position, MinDistance };

/// A refusal of the loads.
struct LoadFault {
    std::string message;                ///< empty where the loads are in order
    LoadItem item = LoadItem::Nothing;  ///< what is to be mended; nothing where it is no single value
    int number = 0;                     ///< of the wheel 1..8 or of the distance 1..6
    bool mendable = true;               ///< false where no value of the form can mend it, such as a beam without length
};

/// The closing test of a load form: does the crane fit on the beam, and do wheel loads and distances belong together.
/// @return the first test that fails
[[nodiscard]] LoadFault loadRefusal(const Project& project, LoadForm form);

/// What closing a load form settles: horizontal loads of wheels that are not there and, with one crane, everything of
/// the second are cleared; HasLoadsY says whether a horizontal load is left.
void settleLoads(Project& project, LoadForm form);

/// What the user of a calculation must know about its loads, because a file or a change of crane has brought what the
/// load form would not have let pass: a refusal, horizontal loads that the results leave out, no load at all.
/// @return a sentence or two; empty where the loads are sound
[[nodiscard]] std::string loadRemark(const Project& project);

}  // namespace borvik
