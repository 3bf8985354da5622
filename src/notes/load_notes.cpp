#include <algorithm>

#include "checks/section_checks.h"
#include "checks/static_checks.h"
#include "notes/all_ratios.h"
#include "project/loads.h"

namespace borvik {

namespace {

/// One crane alone, as far as the end of the beam; the second one's wheels take the place of the first one's, and a
/// crane that stands still stays where it stood.
void keepCrane(Session& session, int crane) {
    Project& p = session.project;
    if (crane == 2) {
        if (p.Fixerad) p.Position = p.Position + p.CraneLength1 + p.MinAvst;
        for (int wheel = 1; wheel <= 4; ++wheel) {
            p.V(wheel) = p.V(wheel + 4);
            p.H(wheel) = p.H(wheel + 4);
        }
        for (int gap = 1; gap <= 3; ++gap) p.Avst(gap) = p.Avst(gap + 3);
        p.PsiV1 = p.PsiV2;
        p.PsiH1 = p.PsiH2;
        p.CraneClass1 = p.CraneClass2;
    }
    for (int wheel = 5; wheel <= 8; ++wheel) p.V(wheel) = p.H(wheel) = 0;
    for (int gap = 4; gap <= 6; ++gap) p.Avst(gap) = 0;
    p.MinAvst = 0;
    p.NofCranes = 1;
}

/// Keeps of each ratio the larger one.
void takeLarger(std::vector<CheckedRatio>& ratios, const std::vector<CheckedRatio>& others) {
    for (std::size_t i = 0; i < std::min(ratios.size(), others.size()); ++i)
        ratios[i].largest = std::max(ratios[i].largest, others[i].largest);
}

/// Each crane by itself, in the checks of ULS and SLS; a fatigue check sums up its cranes by rules of its own.
std::optional<NoteFinding> oneCraneAlone(const Session& session) {
    if (session.project.NofCranes != 2) return std::nullopt;
    std::vector<CheckedRatio> shown = allRatios(session), other = shown;
    for (int crane = 1; crane <= 2; ++crane) {
        const auto alone = recalculated(session, [crane](Session& copy) { keepCrane(copy, crane); });
        if (!alone) continue;
        takeLarger(other, allRatios(*alone));
    }
    std::erase_if(shown, [](const CheckedRatio& r) { return r.what.starts_with("fatigue"); });
    other.resize(shown.size());
    return grown(shown, other);
}

/// Walks that start a little later, so that the wheels stand between the positions of the walk too.
std::optional<NoteFinding> betweenTheSteps(const Session& session) {
    constexpr double kShortSpan = 10000;  // mm
    const Project& project = session.project;
    const std::vector<CheckedRatio> shown = allRatios(session);
    const bool shortSpan =
        *std::min_element(project.Span.begin(), project.Span.begin() + project.NofSpans) < kShortSpan;
    const bool high = std::any_of(shown.begin(), shown.end(), [](const auto& r) { return r.largest > 0.9; });
    if (project.Fixerad || !(shortSpan || high)) return std::nullopt;
    std::vector<CheckedRatio> other = shown;
    for (const double shift : {50.0, 100.0, 150.0}) {
        const auto later = recalculated(session, [shift](Session& copy) { copy.project.Position += shift; });
        if (!later) continue;
        takeLarger(other, allRatios(*later));
    }
    return grown(shown, other);
}

/// The ultimate limit state again after `change(RunLoads&)`; the rest of the results is that of the session. nullopt
/// where the cranes have too many positions.
template <class Change>
std::optional<Session> underOtherLoads(const Session& session, Change change) {
    if (!quicklyWalked(session)) return std::nullopt;
    SilentMessages silent;
    Progress progress;
    Session copy = session;
    RunLoads loads;
    loads.NCranes = copy.project.NofCranes;
    setUlsLoads(copy.project, copy.rail(), loads);
    change(loads);
    Results& results = *copy.results;
    results.Uls = RunUls(copy.project, loads, WalkMethod::Fast, silent, progress);
    turnReactionsUpward(results.Uls);
    results.Checks = RunCodeChecks({copy.project, copy.rail(), results.Uls, results.Sls});
    return copy;
}

/// Dead load that relieves, with a factor of 1: at the supports of a continuous beam.
std::optional<NoteFinding> relievingDeadLoad(const Session& session) {
    const Project& project = session.project;
    if (project.NofSpans == 1 || project.LfULS == 1) return std::nullopt;
    const auto other =
        underOtherLoads(session, [&](RunLoads& loads) { setDeadLoad(project, session.rail(), 1.0, loads); });
    if (!other) return std::nullopt;
    NoteFinding finding = grown(allRatios(session), allRatios(*other)).value_or(NoteFinding{});
    const Array<Single>&shown = session.results->Uls.RzMin, &smallest = other->results->Uls.RzMin;
    int worst = shown.first();
    for (int support = shown.first(); support <= shown.last(); ++support)
        if (smallest(support) < smallest(worst)) worst = support;
    if (smallest(worst) < 0)
        finding.changes.push_back({"smallest reaction, support " + std::to_string(worst) + ", kN", shown(worst) / 1000,
                                   smallest(worst) / 1000, false, "0.0"});
    if (finding.changes.empty()) return std::nullopt;
    return finding;
}

/// The gangway's load on every other span, and on two neighbours of three.
std::optional<NoteFinding> gangwayOnWorstSpans(const Session& session) {
    const Project& project = session.project;
    if (project.CraneType != CraneKind::Overhead || project.NofSpans == 1 || !(project.Gangway > 0))
        return std::nullopt;
    Project without = project;
    without.Gangway = 0;
    const std::vector<CheckedRatio> shown = allRatios(session);
    std::vector<CheckedRatio> worst = shown;
    const auto loadedOn = [&](auto loaded) {
        const auto other = underOtherLoads(session, [&](RunLoads& loads) {
            const RunLoads onAll = loads;
            setDeadLoad(without, session.rail(), project.LfULS, loads);
            for (int span = 1; span <= project.NofSpans; ++span)
                if (loaded(span)) loads.SpanLoad(span) = onAll.SpanLoad(span);
        });
        if (other) takeLarger(worst, allRatios(*other));
    };
    for (const int first : {0, 1}) loadedOn([first](int span) { return span % 2 == first; });
    for (const int empty : {0, 1, 2}) loadedOn([empty](int span) { return span % 3 != empty; });
    return grown(shown, worst);
}

/// H at the rail's top in place of the flange's middle: the lever to the other flange is longer.
std::optional<NoteFinding> leverOfHorizontalLoad(const Session& session) {
    const Project& project = session.project;
    if (project.CraneType != CraneKind::Overhead || !project.HasLoadsY) return std::nullopt;
    const UlsResults& uls = session.results->Uls;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const double hs = section.h - (section.tf1 + section.tf2) / 2;
        const double factor = 1 + (session.rail().RailHr + section.tf1 / 2) / hs;
        double shown = 0, other = 0;
        for (const Table<Single>* records : {&uls.MyMaxSpan, &uls.MyMinSpan})
            for (const double times : {1.0, factor}) {
                const SectionForces forces((*records)(span, 1), (*records)(span, 2), (*records)(span, 3) * times);
                const double ratio =
                    bendingRatio(forces, BendingResistance(project, section, forces), section.ClassPos);
                double& largest = times == 1.0 ? shown : other;
                largest = std::max(largest, ratio);
            }
        changes.push_back({inSpan("bending", span), shown, other});
    }
    return worstOf(changes);
}

/// H on wheel 6 alone is in the checks and not in what is offered to look at.
std::optional<NoteFinding> horizontalOnWheelSix(const Session& session) {
    const Project& project = session.project;
    return matters(!project.HasLoadsY && project.H(6) != 0);
}

constexpr NoteRule kRules[]{
    {"A1", NoteCheck::General, NoteEffect::Unsafe,
     "One group of loads is calculated, each crane with one dynamic factor for V and one for H; the other groups "
     "(skewing, buffers, test load) are projects of their own.",
     "", "EN 1991-3 2.4, Table 2.2", ofOverheadCranes, true},
    {"A2", NoteCheck::General, NoteEffect::Unsafe,
     "With two cranes on the beam neither is walked alone, though the second one can relieve a span.",
     "with the worse crane alone", "EN 1991-3 2.5.3", oneCraneAlone},
    {"A3", NoteCheck::General, NoteEffect::Unsafe,
     "The cranes move in steps of 200 mm and forces are taken at 21 points of a span, so that a wheel can stand beside "
     "the worst place.",
     "with positions every 50 mm", "", betweenTheSteps},
    {"A4", NoteCheck::General, NoteEffect::Unsafe,
     "Dead load has its unfavourable factor also where it relieves the beam.", "with a factor of 1.0 on dead load",
     "EN 1990 Table A1.2(B)", relievingDeadLoad},
    {"A5", NoteCheck::General, NoteEffect::Unsafe, "The gangway load lies on all spans at once, not on the worst ones.",
     "with the gangway load on some spans only", "EN 1991-1-1 6.2.1", gangwayOnWorstSpans},
    {"A6", NoteCheck::Section, NoteEffect::Unsafe,
     "A horizontal load bends the loaded flange as if it acted at its middle; at the rail's top its lever is longer.",
     "with that lever", "EN 1993-6 5.6.1, EN 1991-3 2.5.2.1", leverOfHorizontalLoad},
    {"A6a", NoteCheck::General, NoteEffect::Unsafe,
     "Torsion by wheel loads that stand beside the web is left out of the beam's stresses.", "",
     "EN 1991-3 2.5.2.1, EN 1993-6 5.6.1", ofOverheadCranes, true},
    {"A7", NoteCheck::General, NoteEffect::Either,
     "Supports are rigid and pinned in both planes and do not settle, the section of a span is constant, shear "
     "deformation is left out.",
     "", "", always, true},
    {"A8", NoteCheck::General, NoteEffect::Information,
     "A horizontal load on wheel 6 alone is in the checks, but its diagrams and tables are not offered.", "", "",
     horizontalOnWheelSix},
    {"A9", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "V of a hoist is the load of a pair of wheels, one on each side of the web; the checks of the flange take half of "
     "it.",
     "", "EN 1993-6 5.8, 6.7", ofMonorails, true},
};

}  // namespace

std::span<const NoteRule> loadNotes() {
    return kRules;
}

}  // namespace borvik
