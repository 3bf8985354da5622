#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "checks/section_checks.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

/// The ratio that the bending check finds in a span: the larger of its two positions.
double bendingRatio(const CheckResults& checks, int span) {
    return std::max(checks.BendMax(span).Ratio, checks.BendMin(span).Ratio);
}

/// The interaction at every point of every record of the walk: each holds the forces of one position.
std::optional<NoteFinding> interactionElsewhere(const Session& session) {
    const UlsResults& uls = session.results->Uls;
    const Project& project = session.project;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        double largest = 0;
        int point = 1;
        for (const Cube<Single>* records : {&uls.MyMaxPoint, &uls.MyMinPoint, &uls.VzMaxPoint, &uls.VzMinPoint,
                                            &uls.MzMaxPoint, &uls.MzMinPoint, &uls.VyMaxPoint, &uls.VyMinPoint})
            for (int k = 1; k <= kPoints; ++k) {
                const SectionForces forces((*records)(span, k, 1), (*records)(span, k, 2), (*records)(span, k, 3));
                const double ratio =
                    BendingRatio(forces, BendingResistance(project, section, forces), section.ClassPos);
                if (ratio > largest) {
                    largest = ratio;
                    point = k;
                }
            }
        const double x = (point - 1) * project.Span(span) / 20.0;
        changes.push_back({inSpan("bending", span) + ", x = " + formatNumber(x, "0") + " mm",
                           bendingRatio(session.results->Checks, span), largest});
    }
    return worstOf(changes);
}

/// Hogging with the formula of its own class.
std::optional<NoteFinding> formulaOfPositiveClass(const Session& session) {
    const Project& project = session.project;
    const Table<Single>& records = session.results->Uls.MyMinSpan;
    const CheckResults& checks = session.results->Checks;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        if (!(section.ClassNeg > 2 && section.ClassPos <= 2)) continue;
        const SectionForces forces(records(span, 1), records(span, 2), records(span, 3));
        if (!(forces.My < 0)) continue;
        const double linear = BendingRatio(forces, BendingResistance(project, section, forces), section.ClassNeg);
        changes.push_back(
            {inSpan("bending", span), bendingRatio(checks, span), std::max(linear, checks.BendMax(span).Ratio)});
    }
    return worstOf(changes);
}

constexpr NoteRule kRules[]{
    {"C1", NoteCheck::Section, NoteEffect::Unsafe,
     "The interaction of bending and shear is tested at the largest and at the smallest My of a span, with the forces "
     "that act there; a larger Mz or Vz beside a slightly smaller My is not.",
     "at every point and recorded position", "EN 1993-1-1 6.2.8, 6.2.9", interactionElsewhere},
    {"C2", NoteCheck::Section, NoteEffect::Unsafe,
     "The class under positive moment chooses the formula for the negative moment too, so that an elastic resistance "
     "enters the plastic interaction, where its share is squared.",
     "with the linear sum of class 3", "EN 1993-1-1 6.2.9", formulaOfPositiveClass},
};

}  // namespace

std::span<const NoteRule> bendingNotes() {
    return kRules;
}

}  // namespace borvik
