#pragma once

#include <optional>
#include <vector>

#include "fatigue/detail_checks.h"
#include "fatigue/stress_history.h"
#include "notes/notes.h"

namespace borvik {

/// What the fatigue details of a calculated project were checked on, taken apart: change one assumption of it and form
/// the damage sums again.
struct FatigueRecheck {
    Project project;  ///< categories, welds, splices, partial factors and, for the local stress, the wheel loads
    RailRecord rail;
    FatigueFactors factors;
    Cranes cranes;             ///< that are summed up
    StressSet Cr1, Cr2, Cr12;  ///< zeros where the run made none

    explicit FatigueRecheck(const Session& session);
    [[nodiscard]] std::vector<DamagePoint> sums(const Detail& detail) const;
};

/// Whether the fatigue of the project is that of an overhead crane, as two cranes always are.
[[nodiscard]] bool overheadFatigue(const Session& session);
/// Two cranes that run on their own, each with a stress history; not a train at a constant distance.
[[nodiscard]] bool twoFreeCranes(const Session& session);
/// Two cranes at a constant distance, walked as one.
[[nodiscard]] bool trainOfCranes(const Session& session);

/// The detail of that number, 1..6, of the project's crane type; null where it is not checked.
[[nodiscard]] const Detail* checkedDetail(const Session& session, int number);
/// Whether any detail is checked.
[[nodiscard]] bool anyDetail(const Session& session);

/// The largest of the ratios that grow, "detail 3, span 2"; nullopt
/// where none does. Rows are compared by their largest point.
[[nodiscard]] std::optional<NoteChange> growth(const Detail& detail, const std::vector<DamagePoint>& shown,
                                               const std::vector<DamagePoint>& other);

/// The detail in a recheck against the same detail as it is checked: its growth is added to the finding.
void addGrowth(const Session& session, const Detail& detail, const std::vector<DamagePoint>& other,
               NoteFinding& finding);
/// The finding if any ratio grows; nullopt otherwise.
[[nodiscard]] std::optional<NoteFinding> grown(NoteFinding finding);

/// One detail in a recheck against the same detail as it is checked.
[[nodiscard]] std::optional<NoteFinding> growthOf(const Session& session, const Detail& detail,
                                                  const std::vector<DamagePoint>& other);
/// Every checked detail in a recheck against the same detail as it is checked.
[[nodiscard]] std::optional<NoteFinding> growthOfAll(const Session& session, const FatigueRecheck& other);

/// The ratios of two checks at the same points, added.
[[nodiscard]] std::vector<DamagePoint> added(std::vector<DamagePoint> a, const std::vector<DamagePoint>& b);

/// Damage of the two cranes and of both together, each by the formula of a crane alone: its own set, its own factors,
/// its own largest wheel; of both the heavier wheel with its dynamic factor.
[[nodiscard]] std::vector<DamagePoint> sumOfThree(const FatigueRecheck& recheck, const Detail& detail);

/// Crane 2 alone, walked where it can stand: to the right of crane 1 at the smallest distance, as far as the end.
[[nodiscard]] StressSet walkedCrane2(const Session& session, const History& history);
/// Both cranes at the smallest distance, each on its own wheel distances.
[[nodiscard]] StressSet walkedTogether(const Session& session, const History& history, const CraneFactors& factors);

}  // namespace borvik
