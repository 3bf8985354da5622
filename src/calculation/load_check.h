#pragma once

#include <string>

#include "project/project.h"

namespace borvik {

/// The two load forms, which word their refusals differently.
enum class LoadForm { Overhead, Monorail };

/// The closing test of a load form: does the crane fit on the beam, and do wheel loads and distances belong together.
/// @return the message of the first test that fails; empty when all hold
[[nodiscard]] std::string LoadRefusal(const Project& project, LoadForm form);

/// What closing a load form settles: horizontal loads of wheels that are not there and, with one crane, everything of
/// the second are cleared; HasLoadsY says whether a horizontal load is left.
void SettleLoads(Project& project, LoadForm form);

}  // namespace borvik
