#include <algorithm>
#include <cmath>

#include "checks/loaded_length.h"
#include "checks/local_checks.h"
#include "notes/note_rules.h"
#include "project/loads.h"

namespace borvik {

namespace {

bool overhead(const Session& session) {
    return session.project.CraneType == CraneKind::Overhead;
}

/// The largest ratio of the spans, and where.
template <class Rows>
NoteChange worst(const char* what, const Array<Rows>& shown, const Array<Rows>& other) {
    int span = 1;
    for (int i = 2; i <= other.last(); ++i)
        if (other(i).Ratio > other(span).Ratio) span = i;
    return {inSpan(what, span), shown(span).Ratio, other(span).Ratio};
}

/// Each wheel with load factor and the dynamic factor of its crane.
std::optional<NoteFinding> patchLoadFactors(const Session& session) {
    if (!overhead(session)) return std::nullopt;
    Project factored = session.project;
    for (int wheel = 1; wheel <= 8; ++wheel)
        factored.V(wheel) = (wheel <= 4 ? factored.PsiV1 : factored.PsiV2) * factored.LfULS * factored.V(wheel);
    const Results& results = *session.results;
    const CheckResult other = runCheck("Local", {factored, session.rail(), results.Uls, results.Sls});
    return NoteFinding{{worst("patch load", results.Checks["Local"].spans, other.spans)}, ""};
}

/// leff of the rail in use, worn.
double loadedLength(const Session& session, const SectionRecord& section) {
    const RailRecord& rail = session.rail();
    return effectiveLoadedLength(rail, wearRail(rail, kWearStatic), session.project.RailFix, section);
}

/// Patch load of every span of an overhead crane with another resistance.
/// @param resistance  (span, section) -> kN
template <class Resistance>
std::optional<NoteFinding> withPatchResistance(const Session& session, Resistance resistance) {
    if (!overhead(session)) return std::nullopt;
    const Project& project = session.project;
    const double Fz = *std::max_element(project.V.begin(), project.V.end());
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span)
        changes.push_back({inSpan("patch load", span), session.results->Checks["Local"].spans(span).Ratio,
                           Fz / resistance(span, project.SpanSection(span))});
    return worstOf(changes);
}

std::optional<NoteFinding> stockyWeb(const Session& session) {
    return withPatchResistance(session, [&](int span, const SectionRecord& section) {
        return patchResistance(session.project, section, loadedLength(session, section), session.project.Span(span),
                               true);
    });
}

/// eta2 + 0.8 eta1 over 1.4, where that is more than 1.
std::optional<NoteFinding> withBending(const Session& session) {
    if (!overhead(session)) return std::nullopt;
    const CheckResults& checks = session.results->Checks;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= session.project.NofSpans; ++span) {
        const double patch = checks["Local"].spans(span).Ratio;
        const double sum = (patch + 0.8 * checks["Bend"].spans(span).Ratio) / 1.4;
        if (sum > 1) changes.push_back({inSpan("patch load", span), patch, sum});
    }
    return worstOf(changes);
}

/// Two neighbouring wheels nearer than the loaded length, together on that length and their distance.
std::optional<NoteFinding> closeWheels(const Session& session) {
    if (!overhead(session)) return std::nullopt;
    const Project& project = session.project;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const double leff = loadedLength(session, section);
        const auto pair = [&](int wheel, double gap) {
            if (!(gap > 0 && gap < leff) || project.V(wheel) == 0 || project.V(wheel + 1) == 0) return;
            const double both = project.V(wheel) + project.V(wheel + 1);
            changes.push_back({inSpan("patch load", span), session.results->Checks["Local"].spans(span).Ratio,
                               both / patchResistance(project, section, leff + gap, project.Span(span))});
        };
        for (int gap = 1; gap <= 3; ++gap) pair(gap, project.Avst(gap));
        for (int gap = 4; gap <= 6; ++gap) pair(gap + 1, project.Avst(gap));
    }
    return worstOf(changes);
}

/// Flange bending of every span of a monorail with another resistance.
/// @param resistance  (span, section) -> kN
template <class Resistance>
std::optional<NoteFinding> withFlangeResistance(const Session& session, Resistance resistance) {
    if (overhead(session)) return std::nullopt;
    const Project& project = session.project;
    const double Fz = heaviestWheel(project, 1) * project.LfULS * project.PsiV1 / 2;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double FfRd = resistance(span, project.SpanSection(span));
        if (FfRd > 0)
            changes.push_back(
                {inSpan("flange bending", span), session.results->Checks["Local"].spans(span).Ratio, Fz / FfRd});
    }
    return worstOf(changes);
}

/// A wheel at an end that is not stiffened, where the beam itself has no stress.
std::optional<NoteFinding> atFreeEnd(const Session& session) {
    const Project& project = session.project;
    if (project.Fixerad) return std::nullopt;  // a hoist that stands still stands where the user put it
    return withFlangeResistance(session, [&](int span, const SectionRecord& section) {
        const bool end = span == 1 || span == project.NofSpans;
        return end ? flangeResistance(project, section, FlangeLever(project, section).lengthAtEnd(), 0) : 0.0;
    });
}

/// The beam's stress with the flange's share of Mz, over fy/gM0; the smallest wheel distance.
std::optional<NoteFinding> flangeStressOfBeam(const Session& session) {
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    const double xw = smallestDistance(project);
    return withFlangeResistance(session, [&](int span, const SectionRecord& section) {
        double stress = 0;
        for (const Table<Single>* records : {&uls.MyMaxSpan, &uls.MyMinSpan}) {
            const double fromMy = std::abs((*records)(span, 1) / section.Iy * section.EzEl);
            const double fromMz = std::abs((*records)(span, 3) / section.IzBottom) * (section.b2 / 2 - project.Inn);
            stress = std::max(stress, fromMy + fromMz);
        }
        return flangeResistance(project, section, FlangeLever(project, section).lengthInside(xw),
                                stress * project.GammaM0 / project.fyk);
    });
}

/// Von Mises stress of every span of a monorail on another basis.
/// @param change  (basis, span)
template <class Change>
std::optional<NoteFinding> vonMisesOtherwise(const Session& session, Change change) {
    if (overhead(session)) return std::nullopt;
    const Project& project = session.project;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        VonMisesBasis basis = vonMisesBasis(project, session.results->Uls, span);
        change(basis, span);
        changes.push_back({inSpan("von Mises stress", span), session.results->Checks["VonMises"].spans(span).Ratio,
                           vonMisesStress(project, project.SpanSection(span), basis) / project.fyk});
    }
    return worstOf(changes);
}

/// The wheel with its dynamic factor; the beam's moments, in which it is already, without the load factor alone.
std::optional<NoteFinding> dynamicStress(const Session& session) {
    const Project& project = session.project;
    return vonMisesOtherwise(session, [&](VonMisesBasis& basis, int) {
        basis.F *= project.PsiV1;
        basis.perMy = basis.perMz = project.LfULS;
    });
}

std::optional<NoteFinding> hoggingStress(const Session& session) {
    const UlsResults& uls = session.results->Uls;
    return vonMisesOtherwise(session, [&](VonMisesBasis& basis, int span) {
        basis.My = std::abs(uls.MyMinSpan(span, 1));
        basis.Mz = uls.MyMinSpan(span, 3);
    });
}

std::optional<NoteFinding> signsOfLocalStress(const Session& session) {
    return vonMisesOtherwise(session, [](VonMisesBasis& basis, int) { basis.signs = true; });
}

std::optional<NoteFinding> tipByTable(const Session& session) {
    return vonMisesOtherwise(session, [](VonMisesBasis& basis, int) { basis.tableAtTip = true; });
}

constexpr NoteRule kRules[]{
    {"D1", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The patch load check takes the wheel load as entered, without load factor and without dynamic factor.",
     "with both", "EN 1993-6 6.5, EN 1991-3 2.4", patchLoadFactors},
    {"D2", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The patch load check counts the web's share m2 of the loaded length for a stocky web too.", "without it",
     "EN 1993-1-5 6.5(1)", stockyWeb},
    {"D3", NoteCheck::WheelLoad, NoteEffect::Unsafe, "Patch load and bending are checked one by one, not together.",
     "as the sum over 1.4", "EN 1993-1-5 7.2", withBending},
    {"D4", NoteCheck::WheelLoad, NoteEffect::Unsafe, "Wheels that stand close together are checked one by one.",
     "with both on their common length", "EN 1993-1-5 6.3(4), EN 1993-6 5.7.1", closeWheels},
    {"D5", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The rail is taken to lie on the beam and to spread the wheel loads, also where its weight is left out; without a "
     "rail they act on a shorter length.",
     "", "EN 1993-6 Table 5.1", ofOverheadCranes, true},
    {"D6", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The flange's resistance to a hoist's wheel is that away from the ends; at an end that is not stiffened it is "
     "less.",
     "at such an end", "EN 1993-6 6.7, Table 6.2", atFreeEnd},
    {"D7", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The beam's stress beside a hoist's wheel leaves out Mz and is divided by the partial factor by which it should "
     "be "
     "multiplied, and the largest wheel distance counts.",
     "with Mz, the factor and the smallest distance as the standard has them", "EN 1993-6 6.7", flangeStressOfBeam},
    {"D8", NoteCheck::VonMises, NoteEffect::Unsafe,
     "The stress in the bottom flange takes wheel and moments without dynamic factor.", "with it",
     "EN 1993-6 7.5, EN 1991-3 2.2.2", dynamicStress},
    {"D9", NoteCheck::VonMises, NoteEffect::Unsafe,
     "The stress in the bottom flange is checked at the largest sagging moment only.", "at the largest hogging moment",
     "EN 1993-6 5.8", hoggingStress},
    {"D10", NoteCheck::VonMises, NoteEffect::Unsafe,
     "Local stresses in the bottom flange are taken without their signs, so that they always relieve each other.",
     "with signs, on both faces", "EN 1993-6 Table 5.2", signsOfLocalStress},
    {"D11", NoteCheck::VonMises, NoteEffect::Unsafe,
     "The coefficient of the longitudinal stress at the flange's tip is not that of the table.", "with the table's",
     "EN 1993-6 Table 5.2", tipByTable},
};

}  // namespace

std::span<const NoteRule> wheelNotes() {
    return kRules;
}

}  // namespace borvik
