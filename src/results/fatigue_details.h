#pragma once

#include <array>

#include "project/project.h"

namespace borvik {

/// One of the six fatigue details of a crane type, as tables and report name it.
struct FatigueDetail {
    enum class Place { Span, Support, Splice };
    int number;           ///< 1..6, entry of FatRows and FatResult
    const char* name;     ///< "1 Rail to topflange"
    Place place;          ///< what a row stands for
    bool Project::*flag;  ///< the detail is checked
};

inline constexpr std::array<FatigueDetail, 6> kOverheadDetails{{
    {1, "1 Rail to topflange", FatigueDetail::Place::Span, &Project::Fat1},
    {2, "2 Stiffener to bottom flange", FatigueDetail::Place::Support, &Project::Fat2},
    {3, "3 Top flange/web", FatigueDetail::Place::Span, &Project::Fat3},
    {4, "4 Bottom flange/web", FatigueDetail::Place::Span, &Project::Fat4},
    {5, "5 Beam Splice", FatigueDetail::Place::Splice, &Project::Fat5},
    {6, "6 Support Point", FatigueDetail::Place::Support, &Project::Fat6},
}};

inline constexpr std::array<FatigueDetail, 6> kMonorailDetails{{
    {1, "1 Edge of Support", FatigueDetail::Place::Support, &Project::FatR1},
    {2, "2 Support to top flange", FatigueDetail::Place::Support, &Project::FatR2},
    {3, "3 Top flange/web at support", FatigueDetail::Place::Support, &Project::FatR3},
    {4, "4 Top flange/web", FatigueDetail::Place::Span, &Project::FatR4},
    {5, "5 Beam Splice", FatigueDetail::Place::Splice, &Project::FatR5},
    {6, "6 Bottom flange/web", FatigueDetail::Place::Span, &Project::FatR6},
}};

[[nodiscard]] inline const std::array<FatigueDetail, 6>& fatigueDetails(const Project& project) {
    return project.CraneType == 2 ? kMonorailDetails : kOverheadDetails;
}

}  // namespace borvik
