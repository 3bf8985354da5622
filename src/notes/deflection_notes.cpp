#include "notes/note_rules.h"
#include "project/loads.h"

namespace borvik {

namespace {

/// Horizontal deflection with the second moment of the loaded flange, on which H acts.
std::optional<NoteFinding> loadedFlangeAlone(const Session& session) {
    const Project& project = session.project;
    if (!project.HasLoadsY) return std::nullopt;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const double shown = session.results->Checks["DefY"].spans(span).Ratio;
        changes.push_back({inSpan("horizontal deflection", span), shown, shown * section.Iz / section.IzLoadedFlange});
    }
    return worstOf(changes);
}

/// The cap of 25 mm beside the limit by the span.
std::optional<NoteFinding> absoluteLimit(const Session& session) {
    constexpr double kCap = 25;  // mm
    const Project& project = session.project;
    if (project.CraneType != CraneKind::Overhead) return std::nullopt;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span)
        changes.push_back({inSpan("vertical deflection", span), session.results->Checks["DefZ"].spans(span).Ratio,
                           session.results->Sls.UzMaxSpan(span, 1) / kCap});
    return worstOf(changes);
}

/// Vertical deflection under wheels with the dynamic factor of their crane, where that passes the limit. Dead load has
/// no such factor.
std::optional<NoteFinding> withDynamicFactor(const Session& session) {
    const Project& project = session.project;
    const bool moves = project.PsiV1 != 1 || (project.NofCranes == 2 && project.PsiV2 != 1);
    if (!moves || !quicklyWalked(session)) return std::nullopt;
    Project factored = project;
    factored.LfULS = project.LfSLS;
    RunLoads loads;
    loads.NCranes = project.NofCranes;
    setUlsLoads(factored, session.rail(), loads);
    SilentMessages silent;
    Progress progress;
    const SlsResults sls = RunSls(project, loads, WalkMethod::Fast, silent, progress);
    const CheckResult other = runCheck("DefZ", {project, session.rail(), session.results->Uls, sls});
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span)
        if (other.spans(span).Ratio > 1)
            changes.push_back({inSpan("vertical deflection", span), session.results->Checks["DefZ"].spans(span).Ratio,
                               other.spans(span).Ratio});
    return worstOf(changes);
}

constexpr NoteRule kRules[]{
    {"E1", NoteCheck::Deflection, NoteEffect::Unsafe,
     "The horizontal deflection is that of the whole section, at its shear centre; the load acts on one flange and the "
     "limit holds at the rail.",
     "with the loaded flange alone", "EN 1993-6 7.3, Table 7.1", loadedFlangeAlone},
    {"E2", NoteCheck::Deflection, NoteEffect::Unsafe,
     "The vertical deflection is compared with a fraction of the span, not with 25 mm as well.", "with 25 mm as limit",
     "EN 1993-6 Table 7.2", absoluteLimit},
    {"E3a", NoteCheck::Deflection, NoteEffect::Either,
     "The difference of the deflections of both runways of a crane is not checked.", "", "EN 1993-6 Table 7.2",
     ofOverheadCranes, true},
    {"E3b", NoteCheck::Deflection, NoteEffect::Either,
     "The deflection of a hoist's beam under the payload alone is not checked against a limit of its own.", "",
     "EN 1993-6 Table 7.2", ofMonorails, true},
    {"E4", NoteCheck::Deflection, NoteEffect::Either,
     "Deflections are calculated without dynamic factor, which some national annexes want.", "with it on the wheels",
     "EN 1991-3 2.2.2", withDynamicFactor},
};

}  // namespace

std::span<const NoteRule> deflectionNotes() {
    return kRules;
}

}  // namespace borvik
