#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "checks/ltb_checks.h"
#include "checks/section_checks.h"
#include "notes/all_ratios.h"
#include "section/geometry.h"

namespace borvik {

namespace {

/// Forces at the extreme moments of a span.
SectionForces forcesAt(const Table<Single>& records, int span) {
    return {records(span, 1), records(span, 2), records(span, 3)};
}

double thickestFlange(const SectionRecord& section) {
    return std::max(section.tf1, section.tf2);
}

/// The strength of the grade above 40 mm, where a flange is thicker and the grade's own strength is in use.
std::optional<NoteFinding> thickFlanges(const Session& session) {
    constexpr double kThick = 40;  // mm
    const Project& project = session.project;
    const int grade = findMaterial(session.tables, project.SteelGrade);
    if (grade < 0) return std::nullopt;
    const SteelGradeRow& row = session.tables.MaterialTable(grade);
    if (project.fyk != row.fyk1 || !(row.fyk2 > 0 && row.fyk2 < row.fyk1)) return std::nullopt;
    const auto weaker = recalculated(session, [&row](Session& copy) { copy.project.fyk = row.fyk2; });
    if (!weaker) return std::nullopt;
    const CheckResults &shown = session.results->Checks, &other = weaker->results->Checks;
    std::vector<NoteChange> changes;
    double thickest = 0;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double t = thickestFlange(project.SpanSection(span));
        if (!(t > kThick)) continue;
        thickest = std::max(thickest, t);
        changes.push_back({inSpan("shear", span), shown["Shear"].spans(span).Ratio, other["Shear"].spans(span).Ratio});
        changes.push_back({inSpan("bending", span), shown["Bend"].spans(span).Ratio, other["Bend"].spans(span).Ratio});
        changes.push_back({inSpan("lateral torsional buckling", span), shown["Ltb"].spans(span).Ratio,
                           other["Ltb"].spans(span).Ratio});
    }
    if (changes.empty()) return std::nullopt;
    return worstOf(changes, "a flange is " + generalText(Single(thickest)) + " mm thick");
}

/// The bending ratio of a span where each of its two positions has a section of its own making.
template <class Changed>
std::optional<NoteFinding> withResistance(const Session& session, Changed changed) {
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        double shown = 0, other = 0;
        for (const Table<Single>* records : {&uls.MyMaxSpan, &uls.MyMinSpan}) {
            const SectionForces forces = forcesAt(*records, span);
            const BendingResistance asChecked(project, section, forces);
            const BendingResistance otherwise = changed(section, forces, asChecked);
            shown = std::max<double>(shown, bendingRatio(forces, asChecked, section.ClassPos));
            other = std::max<double>(other, bendingRatio(forces, otherwise, section.ClassPos));
        }
        changes.push_back({inSpan("bending", span), shown, other});
    }
    return worstOf(changes);
}

/// The flange's elastic modulus beside a hogging moment, where the section is of class 3 or 4 for that only.
std::optional<NoteFinding> elasticFlangeHogging(const Session& session) {
    constexpr double kShape = 1.5;  // plastic over elastic modulus of a rectangle
    return withResistance(session,
                          [](const SectionRecord& section, const SectionForces& forces, BendingResistance resistance) {
                              if (section.ClassNeg > 2 && section.ClassPos <= 2 && forces.My < 0)
                                  resistance.Mz /= kShape;
                              return resistance;
                          });
}

/// The plastic modulus of the three plates by search in place of the short formula.
template <class Concerned>
std::optional<NoteFinding> exactPlasticModulus(const Session& session, Concerned concerned) {
    return withResistance(session,
                          [&](const SectionRecord& section, const SectionForces& forces, BendingResistance resistance) {
                              const int sectionClass = forces.My >= 0 ? section.ClassPos : section.ClassNeg;
                              if (section.Fab != "W" || section.Reinforced || sectionClass > 2 || !concerned(section))
                                  return resistance;
                              resistance.My *= plasticAxisBySearch(plateStrips(section)).Wply / section.Wply;
                              return resistance;
                          });
}

/// The torsion constant of the three plates, each with its own width.
std::optional<NoteFinding> torsionOfUnequalFlanges(const Session& session) {
    Project other = session.project;
    bool unequal = false;
    for (int span = 1; span <= session.project.NofSpans; ++span) {
        SectionRecord& section = other.SpanSection(span);
        if (section.Id != "Iu" || section.b1 == section.b2) continue;
        unequal = true;
        section.It += std::pow(section.tf2, 3) * (section.b2 - section.b1) / 3;
    }
    if (!unequal) return std::nullopt;
    const Results& results = *session.results;
    const CheckResult thinner = runCheck("Ltb", {other, session.rail(), results.Uls, results.Sls});
    std::vector<NoteChange> changes;
    for (int span = 1; span <= session.project.NofSpans; ++span)
        changes.push_back({inSpan("lateral torsional buckling", span), results.Checks["Ltb"].spans(span).Ratio,
                           thinner.spans(span).Ratio});
    return worstOf(changes);
}

std::optional<NoteFinding> axisInTopFlange(const Session& session) {
    return exactPlasticModulus(session, [](const SectionRecord& section) { return section.tf1 != section.tf2; });
}

std::optional<NoteFinding> equalFlanges(const Session& session) {
    return exactPlasticModulus(session, [](const SectionRecord& section) { return section.tf1 == section.tf2; });
}

/// Plates at the flange tips that would be slender outstands themselves.
std::optional<NoteFinding> slenderReinforcement(const Session& session) {
    constexpr double kClass3 = 14;  // c/t of an outstand in compression, times epsilon
    for (int span = 1; span <= session.project.NofSpans; ++span) {
        const SectionRecord& section = session.project.SpanSection(span);
        if (section.Reinforced && section.ReinfD > kClass3 * epsilonOf(session.project.fyk) * section.ReinfT)
            return matters(true, "d/t " + formatNumber(section.ReinfD / section.ReinfT, "0.0") + " in span " +
                                     std::to_string(span));
    }
    return std::nullopt;
}

std::optional<NoteFinding> taperedFlanges(const Session& session) {
    const Project& project = session.project;
    const bool tapered = std::any_of(project.SpanSection.begin(), project.SpanSection.begin() + project.NofSpans,
                                     [](const SectionRecord& section) { return section.Id == "IPN"; });
    return matters(project.CraneType != CraneKind::Overhead && tapered);
}

constexpr NoteRule kRules[]{
    {"B1", NoteCheck::Section, NoteEffect::Unsafe,
     "The yield strength of a grade is that of products up to 40 mm, also for a thicker flange.",
     "with the strength above 40 mm", "EN 1993-1-1 Table 3.1", thickFlanges},
    {"B2", NoteCheck::LateralBuckling, NoteEffect::Either,
     "The torsion constant of a welded section gives the bottom flange the width of the top one.", "with its own width",
     "EN 1993-1-1 6.3.2.2", torsionOfUnequalFlanges},
    {"B3", NoteCheck::Section, NoteEffect::Either,
     "The plastic modulus of a welded section with unequal flanges rests on an approximate position of the axis.",
     "with the exact modulus", "EN 1993-1-1 6.2.5", axisInTopFlange},
    {"B5", NoteCheck::Section, NoteEffect::Unsafe,
     "A reinforced top flange is classified as supported at both edges, and the plates that support it are not "
     "classified.",
     "", "EN 1993-1-1 Table 5.2, EN 1993-1-5 4.4", slenderReinforcement},
    {"B9", NoteCheck::Section, NoteEffect::Unsafe,
     "The flange keeps its plastic resistance to horizontal bending where the section is of class 3 or 4 for hogging "
     "only.",
     "with the elastic one", "EN 1993-1-1 6.2.9", elasticFlangeHogging},
    {"B13", NoteCheck::VonMises, NoteEffect::Either,
     "The local stresses of a tapered IPN flange are taken with the coefficients of a parallel one.", "",
     "EN 1993-6 Table 5.2", taperedFlanges},
    {"B15", NoteCheck::Section, NoteEffect::Unsafe,
     "The plastic modulus of a welded section with equal flanges is taken by a short formula, a little above the exact "
     "one.",
     "with the exact modulus", "EN 1993-1-1 6.2.5", equalFlanges},
};

}  // namespace

std::span<const NoteRule> sectionNotes() {
    return kRules;
}

}  // namespace borvik
