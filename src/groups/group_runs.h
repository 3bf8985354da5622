#pragma once

#include <atomic>
#include <optional>
#include <string>
#include <vector>

#include "actions/crane_loads.h"
#include "calculation/session.h"

namespace borvik {

/// Which loads of the crane data a calculation takes.
struct GroupChoice {
    int group = 1;          ///< of EN 1991-3 Table 2.2
    int crane = 0;          ///< 1 or 2 alone; 0: all there are
    bool reversed = false;  ///< the cranes travel towards their first wheel's end: the last wheel leads
    bool farRail = false;   ///< the beam is the rail far from the crab

    bool operator==(const GroupChoice&) const = default;
};

/// "Group 5, crane 1 alone, reversed, far rail".
[[nodiscard]] std::string nameOf(const GroupChoice& choice);

/// The project with the loads of a group: static wheel loads as V, the group's part over them as PsiV; the couple of
/// acceleration without phi5 as H and phi5 as PsiH, the forces of skewing and of the crab with PsiH 1. So deflections
/// take the loads without dynamic factors and fatigue, of group 1 or 2, phi_fat of EN 1991-3 2.12.1(7). The unloaded
/// crane of group 3 stands with PsiV 1, group 8 with the load factor of the test. With crane 2 alone it takes the place
/// of crane 1. The force of a guide roller, which is no wheel, is not in it.
/// @param cranes  data of crane 1 and, where two stand, of crane 2; of good ones
[[nodiscard]] Project withGroup(const Project& project, const std::vector<actions::CraneData>& cranes,
                                const GroupChoice& choice);

/// The choice whose loads a project has; nothing where they were changed by hand. Found by comparing, never stored.
[[nodiscard]] std::optional<GroupChoice> groupOf(const Project& project, const std::vector<actions::CraneData>& cranes);

/// The reactions of a support in one group, kN, as the ultimate limit state has them.
struct GroupReaction {
    double RzMax = 0, RzMin = 0, RyMax = 0, RyMin = 0;
};

/// A calculation of the comparison: a row of the matrix.
struct GroupRun {
    GroupChoice choice;
    Project project;                            ///< with its loads
    std::string refusal;                        ///< why it has no results; usually empty
    std::vector<std::optional<double>> ratios;  ///< the largest of each check
    std::vector<RowOrigin> origins;             ///< where that is
    std::vector<GroupReaction> reactions;       ///< of every support
    double HL = 0;                              ///< along the beam, kN: the cranes' drive forces with phi5
};

/// All groups beside each other.
struct GroupMatrix {
    std::vector<std::string> checks;  ///< the columns
    std::vector<GroupRun> runs;       ///< the rows
    std::vector<int> governing;       ///< of each column the row with the largest ratio; -1: none has one
    double largest = 0.0;             ///< of all that count
    int largestRun = -1, largestCheck = -1;
    bool negative = false;  ///< some check has no resistance left

    /// Fatigue is that of normal service: of groups 1 and 2, whose PsiV leads to phi_fat.
    [[nodiscard]] static bool counts(const GroupRun& run, bool isFatigue) {
        return !isFatigue || run.choice.group == 1 || run.choice.group == 2;
    }
    [[nodiscard]] bool exceeds(double limit) const { return largest > limit || negative || largestRun < 0; }
};

/// What there is to compare: groups 1, 2 (where a share of the load is let go), 3, 4, 5, 6 and 8, each way of
/// travelling where that makes a difference, each crane alone and both where two stand (both then in the same group).
/// @param farRails  the rail far from the crab too
[[nodiscard]] std::vector<GroupChoice> groupChoices(const Project& project,
                                                    const std::vector<actions::CraneData>& cranes, bool farRails);

/// Calculates them all, side by side on all cores.
/// @param stop  cancels; what has not begun is then left out, with a refusal that says so
/// @throws std::invalid_argument  with what is wrong with a crane, or where the beam carries no overhead crane
[[nodiscard]] GroupMatrix compareGroups(const Project& project, const ReferenceTables& tables,
                                        const std::vector<actions::CraneData>& cranes, bool farRails,
                                        const std::atomic<bool>* stop = nullptr);

}  // namespace borvik
