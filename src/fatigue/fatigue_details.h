#pragma once

#include <array>

#include "project/project.h"

namespace borvik {

/// One of the six fatigue details of a crane type, as tables and report name it.
struct FatigueDetailTitle {
    enum class Place { Span, Support, Splice };
    int number;           ///< 1..6, entry of FatRows and FatResult
    const char* name;     ///< "1 Rail to topflange"
    Place place;          ///< what a row stands for
    bool Project::*flag;  ///< the detail is checked
};

inline constexpr std::array<FatigueDetailTitle, 6> kOverheadDetailTitles{{
    {1, "1 Rail to topflange", FatigueDetailTitle::Place::Span, &Project::Fat1},
    {2, "2 Stiffener to bottom flange", FatigueDetailTitle::Place::Support, &Project::Fat2},
    {3, "3 Top flange/web", FatigueDetailTitle::Place::Span, &Project::Fat3},
    {4, "4 Bottom flange/web", FatigueDetailTitle::Place::Span, &Project::Fat4},
    {5, "5 Beam Splice", FatigueDetailTitle::Place::Splice, &Project::Fat5},
    {6, "6 Support Point", FatigueDetailTitle::Place::Support, &Project::Fat6},
}};

inline constexpr std::array<FatigueDetailTitle, 6> kMonorailDetailTitles{{
    {1, "1 Edge of Support", FatigueDetailTitle::Place::Support, &Project::FatR1},
    {2, "2 Support to top flange", FatigueDetailTitle::Place::Support, &Project::FatR2},
    {3, "3 Top flange/web at support", FatigueDetailTitle::Place::Support, &Project::FatR3},
    {4, "4 Top flange/web", FatigueDetailTitle::Place::Span, &Project::FatR4},
    {5, "5 Beam Splice", FatigueDetailTitle::Place::Splice, &Project::FatR5},
    {6, "6 Bottom flange/web", FatigueDetailTitle::Place::Span, &Project::FatR6},
}};

[[nodiscard]] inline const std::array<FatigueDetailTitle, 6>& fatigueDetails(const Project& project) {
    return project.CraneType == 2 ? kMonorailDetailTitles : kOverheadDetailTitles;
}

}  // namespace borvik
