#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "checks/ltb_checks.h"
#include "notes/diagram_factors.h"
#include "notes/note_rules.h"
#include "notes/recorded_position.h"
#include "notes/recorded_worst.h"

namespace borvik {

namespace {

double kNm(double Nmm) {
    return std::abs(Nmm) / 1000000;
}

/// The ratio of the largest moment of a span under another reduction factor.
double positiveRatio(const Session& session, int span, Single ChiLT) {
    const Table<Single>& records = session.results->Uls.MyMaxSpan;
    return ltbRatio(LtbResistance(session.project, span, true), kNm(records(span, 1)), kNm(records(span, 3)), ChiLT);
}

/// The same of its most negative support moment.
double negativeRatio(const Session& session, int span, Single ChiLT) {
    const Table<Single>& records = session.results->Uls.MySupportSpan;
    return ltbRatio(LtbResistance(session.project, span, false), kNm(records(span, 1)), kNm(records(span, 4)), ChiLT);
}

std::string factorsText(const CFactors& factors) {
    return ", C1 = " + formatNumber(factors.C1, "0.00") + ", C2 = " + formatNumber(factors.C2, "0.00");
}

/// The reduction factors by the moment diagrams of the two governing positions.
std::optional<NoteFinding> factorsOfDiagram(const Session& session) {
    const Project& project = session.project;
    if (!project.DefaultCfactor) return std::nullopt;
    const UlsResults& uls = session.results->Uls;
    const CheckResults& checks = session.results->Checks;
    RecordedPositions positions(session);
    struct Ratio {
        double number;
        std::string factors;  // ", C1 = 1.45, C2 = 0.73"; empty where the ratio is that of the check
    };
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const auto byDiagram = [&](bool sagging, const std::optional<SpanAtPosition>& at, double MyEd,
                                   const RowSet& shown) -> Ratio {
            if (!at || MyEd == 0) return {shown.Ratio, ""};
            const CFactors factors = diagramFactors(at->My, MyEd, at->wheels, project.Span(span));
            const Single chi = ltbReduction(project, span, sagging, factors);
            return {sagging ? positiveRatio(session, span, chi) : negativeRatio(session, span, chi),
                    factorsText(factors)};
        };
        const Ratio positive =
            byDiagram(true, positions.atLargest(span), uls.MyMaxSpan(span, 1), checks["Ltb"].extremes[0](span));
        const Ratio negative = byDiagram(false, positions.atSupportMoment(span), uls.MySupportSpan(span, 1),
                                         checks["Ltb"].extremes[1](span));
        const Ratio& worse = positive.number > negative.number ? positive : negative;
        changes.push_back({inSpan("lateral torsional buckling", span) + worse.factors, checks["Ltb"].spans(span).Ratio,
                           worse.number});
    }
    return worstOf(changes);
}

/// Spans between end moments of opposite sign, where the parabola of C1 leaves the exact values (2.55 at psi = -1).
std::optional<NoteFinding> cappedC1(const Session& session) {
    constexpr double kLargestC1 = 2.6;  // the usual limit of the parabola
    const Project& project = session.project;
    const Table<Single>& support = session.results->Uls.MySupportSpan;
    const CheckResults& checks = session.results->Checks;
    std::vector<NoteChange> changes;
    for (int span = 2; span < project.NofSpans; ++span) {
        std::optional<CFactors> factors = negativeFactors(project, span, support);
        if (!factors || support(span, 2) > 0 || !(factors->C1 > kLargestC1)) continue;
        factors->C1 = kLargestC1;
        const double capped = negativeRatio(session, span, ltbReduction(project, span, false, *factors));
        changes.push_back({inSpan("lateral torsional buckling", span), checks["Ltb"].spans(span).Ratio,
                           std::max(checks["Ltb"].extremes[0](span).Ratio, capped)});
    }
    return worstOf(changes);
}

/// Whether the curve for rolled or equivalent welded sections is meant for another section than this one.
bool hasUnequalFlanges(const SectionRecord& section) {
    return section.Id == "Iu" || section.Reinforced;
}

/// The largest ratio of a span under the settings of a copy of the project.
double ratioUnder(const Session& session, const Project& other, int span) {
    const Table<Single>& support = session.results->Uls.MySupportSpan;
    return std::max(positiveRatio(session, span, positiveReduction(other, span)),
                    negativeRatio(session, span, negativeReduction(other, span, support)));
}

/// The curve that belongs to the section: the general case for
/// unequal flanges, and the values of rolled sections for those.
std::optional<NoteFinding> curveOfSection(const Session& session) {
    const Project& project = session.project;
    if (project.LtbCurve == LtbCase::General) return std::nullopt;
    Project general = project;
    general.LtbCurve = LtbCase::General;
    Project rolled = project;
    rolled.LamdaLT0w = project.LamdaLT0;
    rolled.Betaw = project.Beta;

    std::vector<NoteChange> changes;
    const auto consider = [&](int span, const Project& other, const char* with) {
        changes.push_back({inSpan("lateral torsional buckling", span) + with,
                           session.results->Checks["Ltb"].spans(span).Ratio, ratioUnder(session, other, span)});
    };
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        if (hasUnequalFlanges(section)) {
            consider(span, general, ", general case");
        } else if (isRolled(section)) {
            consider(span, rolled, ", values of rolled sections");
        }
    }
    return worstOf(changes);
}

/// Both moments at every point of every record of the walk, with the reduction factors of the check.
std::optional<NoteFinding> pairElsewhere(const Session& session) {
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const LtbResistance sagging(project, span, true), hogging(project, span, false);
        const Single chiPos = positiveReduction(project, span);
        const Single chiNeg = negativeReduction(project, span, uls.MySupportSpan);
        const RecordedWorst worst = worstRecorded(uls, span, [&](double My, double, double Mz) {
            return My >= 0 ? ltbRatio(sagging, kNm(My), kNm(Mz), chiPos) : ltbRatio(hogging, kNm(My), kNm(Mz), chiNeg);
        });
        changes.push_back({inSpan("lateral torsional buckling", span) + atPoint(project, span, worst.point),
                           session.results->Checks["Ltb"].spans(span).Ratio, worst.ratio});
    }
    return worstOf(changes);
}

std::optional<NoteFinding> horizontalLoad(const Session& session) {
    const auto& H = session.project.H;
    return matters(std::any_of(H.begin(), H.end(), [](Single load) { return load != 0; }));
}

constexpr NoteRule kRules[]{
    {"F1", NoteCheck::LateralBuckling, NoteEffect::Unsafe,
     "The program's own C1, C2 and C3 are the same for every moment diagram, although the critical moment depends on "
     "it.",
     "with the factors of the diagram at the governing position", "EN 1993-1-1 6.3.2.2(2)", factorsOfDiagram},
    {"F2", NoteCheck::LateralBuckling, NoteEffect::Unsafe,
     "Between end moments of opposite sign C1 = 1.77 - 1.04 psi + 0.27 psi^2 is not limited and comes out up to 3.08.",
     "with C1 = 2.60", "EN 1993-1-1 6.3.2.2(2)", cappedC1},
    {"F3", NoteCheck::LateralBuckling, NoteEffect::Either,
     "The curve for rolled or equivalent welded sections serves unequal flanges too, and its plateau and beta for "
     "welded sections serve rolled ones.",
     "", "EN 1993-1-1 6.3.2.3", curveOfSection},
    {"F4", NoteCheck::LateralBuckling, NoteEffect::Unsafe,
     "A horizontal load bends the loaded flange alone, in place of torsion: the interaction has no bimoment, no "
     "factors kw, kzw and kalpha, and CMz = 1.",
     "", "EN 1993-6 6.3.2.3, Annex A", horizontalLoad, true},
    {"F5", NoteCheck::LateralBuckling, NoteEffect::Unsafe,
     "The largest My and the most negative support moment of a span are looked at with the Mz that acts there; a "
     "larger Mz beside a slightly smaller My is not.",
     "at every point and recorded position", "EN 1993-1-1 6.3.3, EN 1993-6 Annex A", pairElsewhere},
    {"F7", NoteCheck::LateralBuckling, NoteEffect::Unsafe,
     "The supports of a monorail are taken to hold both flanges sideways, which a beam hung at its top flange needs "
     "stiffeners for.",
     "", "EN 1993-6 6.3.2", ofMonorails, true},
};

}  // namespace

std::span<const NoteRule> bucklingNotes() {
    return kRules;
}

}  // namespace borvik
