#include "notes/fatigue_recheck.h"

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "analysis/walk.h"
#include "fatigue/wheel_stress.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

const char* placeOf(const Detail& detail) {
    switch (detail.places) {
        case Places::SpanPoints:
            return "span";
        case Places::StrongerSide:
        case Places::RightOfSupport:
            return "support";
        case Places::Splices:
        case Places::MonorailSplices:
            return "splice";
    }
    return "";
}

/// The largest ratio of each row.
std::map<int, double> byRows(const std::vector<DamagePoint>& points) {
    std::map<int, double> rows;
    for (const DamagePoint& point : points) {
        double& largest = rows[point.row];
        largest = std::max(largest, point.ratio);
    }
    return rows;
}

/// A crane of a recheck in the place of a single one.
FatigueRecheck alone(const FatigueRecheck& recheck, const StressSet& set, const CraneFactors& factors, double force) {
    FatigueRecheck single = recheck;
    single.cranes = Cranes::Alone;
    single.Cr1 = set;
    single.factors.Cr1 = factors;
    single.project.V = {};
    single.project.V(1) = force;
    return single;
}

StressSet walked(const Project& project, RunLoads& loads, const History& history, const CraneFactors& factors) {
    SilentMessages silent;
    Progress progress;
    loads.NCranes = 1;
    return stressHistory(history, project, RunFls(project, loads, WalkMethod::Fast, silent, progress), factors);
}

}  // namespace

FatigueRecheck::FatigueRecheck(const Session& session) : project(session.project), rail(session.rail()) {
    const FatigueResults& checked = session.results->Fatigue;
    const StressSet none(project.NofSpans);
    factors = checked.Factors;
    cranes = checked.Summed;
    Cr1 = checked.Cr1.value_or(none);
    Cr2 = checked.Cr2.value_or(none);
    Cr12 = checked.Cr12.value_or(none);
}

std::vector<DamagePoint> FatigueRecheck::sums(const Detail& detail) const {
    return damageSums(detail, {project, rail, factors, Cr1, Cr2, Cr12}, cranes);
}

bool overheadFatigue(const Session& session) {
    return session.project.NofCranes == 2 || session.project.CraneType == CraneKind::Overhead;
}

bool trainOfCranes(const Session& session) {
    return session.project.NofCranes == 2 && session.project.MinDistConst != 0.0;
}

bool twoFreeCranes(const Session& session) {
    return session.project.NofCranes == 2 && session.project.MinDistConst == 0.0;
}

const Detail* checkedDetail(const Session& session, int number) {
    const auto& details = overheadFatigue(session) ? kOverheadDetails : kMonorailDetails;
    const Detail& detail = details.at(static_cast<std::size_t>(number - 1));
    return session.project.*detail.checked ? &detail : nullptr;
}

bool anyDetail(const Session& session) {
    for (int number = 1; number <= 6; ++number)
        if (checkedDetail(session, number) != nullptr) return true;
    return false;
}

std::optional<NoteChange> growth(const Detail& detail, const std::vector<DamagePoint>& shown,
                                 const std::vector<DamagePoint>& other) {
    const std::map<int, double> before = byRows(shown);
    std::optional<NoteChange> largest;
    for (const auto& [row, ratio] : byRows(other)) {
        const auto found = before.find(row);
        const double old = found == before.end() ? 0.0 : found->second;
        if (ratio <= old || (largest && ratio <= largest->other)) continue;
        largest = NoteChange{
            "fatigue detail " + std::to_string(detail.result) + ", " + placeOf(detail) + " " + std::to_string(row), old,
            ratio};
    }
    return largest;
}

void addGrowth(const Session& session, const Detail& detail, const std::vector<DamagePoint>& other,
               NoteFinding& finding) {
    if (auto change = growth(detail, FatigueRecheck(session).sums(detail), other))
        finding.changes.push_back(std::move(*change));
}

std::optional<NoteFinding> grown(NoteFinding finding) {
    if (finding.changes.empty()) return std::nullopt;
    return finding;
}

std::optional<NoteFinding> growthOf(const Session& session, const Detail& detail,
                                    const std::vector<DamagePoint>& other) {
    NoteFinding finding;
    addGrowth(session, detail, other, finding);
    return grown(std::move(finding));
}

std::optional<NoteFinding> growthOfAll(const Session& session, const FatigueRecheck& other) {
    NoteFinding finding;
    for (int number = 1; number <= 6; ++number)
        if (const Detail* detail = checkedDetail(session, number))
            addGrowth(session, *detail, other.sums(*detail), finding);
    return grown(std::move(finding));
}

std::vector<DamagePoint> added(std::vector<DamagePoint> a, const std::vector<DamagePoint>& b) {
    for (std::size_t i = 0; i < a.size(); ++i) a[i].ratio += b[i].ratio;
    return a;
}

std::vector<DamagePoint> sumOfThree(const FatigueRecheck& recheck, const Detail& detail) {
    const auto& [f1, f2, f12] = recheck.factors;
    const double F1 = largestWheel(recheck.project, 1);
    const double F2 = largestWheel(recheck.project, 2);
    CraneFactors both = f12;
    both.PhiFat = 1.0;  // in the force
    const auto sums = [&](const StressSet& set, const CraneFactors& factors, double force) {
        return alone(recheck, set, factors, force).sums(detail);
    };
    return added(added(sums(recheck.Cr1, f1, F1), sums(recheck.Cr2, f2, F2)),
                 sums(recheck.Cr12, both, std::max(f1.PhiFat * F1, f2.PhiFat * F2)));
}

StressSet walkedCrane2(const Session& session, const History& history) {
    Project project = session.project;
    const CraneFactors& factors = session.results->Fatigue.Factors.Cr2;
    project.Position = project.Position + project.CraneLength1 + project.MinAvst;
    RunLoads loads;
    for (int i = 1; i <= 4; ++i) loads.WheelV(i) = factors.PhiFat * project.V(i + 4);
    for (int i = 1; i <= 3; ++i) loads.WheelGap(i) = project.Avst(i + 3);
    return walked(project, loads, history, factors);
}

StressSet walkedTogether(const Session& session, const History& history, const CraneFactors& factors) {
    const FatigueFactors& own = session.results->Fatigue.Factors;
    RunLoads loads;
    for (int i = 1; i <= 8; ++i) loads.WheelV(i) = (i <= 4 ? own.Cr1 : own.Cr2).PhiFat * session.project.V(i);
    loads.WheelGap = session.project.Avst;
    return walked(session.project, loads, history, factors);
}

}  // namespace borvik
