#include <algorithm>

#include "base/number_text.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

/// Horizontal deflection with the second moment of the loaded flange, on which H acts.
std::optional<NoteFinding> loadedFlangeAlone(const Session& session) {
    const Project& project = session.project;
    if (!project.HasLoadsY) return std::nullopt;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const double shown = session.results->Checks.DefYSpan(span).Ratio;
        changes.push_back({inSpan("horizontal deflection", span), shown, shown * section.Iz / section.IzLoadedFlange});
    }
    return worstOf(changes);
}

/// The cap of 25 mm beside the limit by the span.
std::optional<NoteFinding> absoluteLimit(const Session& session) {
    constexpr double kCap = 25;  // mm
    const Project& project = session.project;
    if (project.CraneType != 1) return std::nullopt;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span)
        changes.push_back({inSpan("vertical deflection", span), session.results->Checks.DefZSpan(span).Ratio,
                           session.results->Sls.UzMaxSpan(span, 1) / kCap});
    return worstOf(changes);
}

/// Vertical deflection times the dynamic factor, where that passes the limit.
std::optional<NoteFinding> withDynamicFactor(const Session& session) {
    const Project& project = session.project;
    const double psi = std::max<double>(project.PsiV1, project.NofCranes == 2 ? double(project.PsiV2) : 0.0);
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double shown = session.results->Checks.DefZSpan(span).Ratio;
        if (shown * psi > 1) changes.push_back({inSpan("vertical deflection", span), shown, shown * psi});
    }
    return worstOf(changes);
}

/// The crane's position of the governing row, where that is not the first span's.
std::optional<NoteFinding> positionOfFirstSpan(const Session& session) {
    const CheckResults& checks = session.results->Checks;
    int span = 1;
    while (span < checks.DefZSpan.last() && checks.DefZSpan(span)(3) != checks.DefZGov(3)) ++span;
    if (span == 1 || checks.DefZSpan(span)(5) == checks.DefZGov(5)) return std::nullopt;
    return matters(true, "the governing deflection of span " + std::to_string(span) + " belongs to wheel 1 at " +
                             checks.DefZSpan(span)(5) + " mm");
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
     "Deflections are calculated without dynamic factor, which some national annexes want.", "with it",
     "EN 1991-3 2.2.2", withDynamicFactor},
    {"E6", NoteCheck::Deflection, NoteEffect::Information,
     "The governing row of the vertical deflection names the crane's position for the first span.", "", "",
     positionOfFirstSpan},
};

}  // namespace

std::span<const NoteRule> deflectionNotes() {
    return kRules;
}

}  // namespace borvik
