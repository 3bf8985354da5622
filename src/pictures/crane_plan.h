#pragma once

#include "actions/crane_loads.h"
#include "pictures/picture.h"

namespace borvik {

/// What the plan of a crane shows.
struct CranePlan {
    actions::CraneData crane;
    std::optional<actions::CraneLoads> loads;  ///< none: the crane alone
    int group = 1;                             ///< whose forces are drawn
};

/// The crane in plan, to scale: rails, wheels, bridge, crab at its nearest to the rail, guides, in group 5 the pole
/// about which it turns, and the forces across the rails of the chosen group. @param plan  asked at each repaint
[[nodiscard]] PicturePainter cranePlan(std::function<const CranePlan&()> plan);

}  // namespace borvik
