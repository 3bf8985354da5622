#pragma once

#include "project/project.h"

namespace borvik {

// What a choice of the user brings with it: values that usually go with it, to be changed afterwards.

/// How the section is made, which decides the usual details between flange and web.
enum class SectionMake { Welded, Rolled };

/// Fatigue details that an overhead crane's beam usually has, with their categories to EN 1993-1-9 and welds. A rolled
/// section has no welds between flange and web, so those of the record stay.
void setUsualOverheadDetails(Project& project, SectionMake make);
/// Those that a beam of a monorail hoist usually has.
void setUsualMonorailDetails(Project& project, SectionMake make);

/// Makes the beam one of an overhead crane, loaded at the top of the rail. Its loads stay.
/// @return false when it is one already; nothing has changed then
bool chooseOverheadCrane(Project& project);
/// Makes the beam one of a monorail, loaded at the bottom flange by one hoist. Wheel loads and distances go: a hoist
/// has others than a crane.
/// @return false when it is one already; nothing has changed then
bool chooseMonorail(Project& project);

}  // namespace borvik
