#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/number_text.h"
#include "checks/loaded_length.h"
#include "fatigue/wheel_stress.h"
#include "notes/fatigue_findings.h"
#include "notes/fatigue_recheck.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

/// Multiplies a table of stress ranges by a number for each span.
template <class OfSpan>
void scaleSpans(Table<Single>& ranges, OfSpan factor) {
    for (int span = 1; span <= ranges.rows(); ++span)
        for (int k = 1; k <= kPoints; ++k) ranges(span, k) *= factor(span);
}

/// Bending of the web under an eccentric wheel, as a part of the direct stress under the same wheel centred. The top
/// flange twists between the supports, its web restrained at the bottom flange; EN 1993-6 5.7.3, no transverse
/// stiffeners in the span. It is that of the flange, and of a flat bar on it that is rigidly fixed.
double webBendingPart(const Project& project, const RailRecord& rail, int span) {
    using std::numbers::pi;
    const SectionRecord& section = project.SpanSection(span);
    const double a = project.Span(span);
    const double e = rail.RailKr / 4.0;
    const double bar = project.RailFix == RailFixing::Rigid ? (1.0 - kWearFatigue) * rail.RailHr : 0.0;
    const double It = (section.b1 * std::pow(section.tf1, 3) + rail.RailBr * std::pow(bar, 3)) / 3.0;
    const double x = pi * section.Hw / a;
    const double shape = std::pow(std::sinh(x), 2) / (std::sinh(2.0 * x) - 2.0 * x);
    const double eta = std::sqrt(0.75 * a * std::pow(section.tw, 3) / It * shape);
    const double bending = 6.0 * e / (a * section.tw * section.tw) * eta * std::tanh(eta);  // of a unit force
    const double direct = wheelSpread(project, rail, section).stress(1.0, 1e-3);
    return bending / direct;
}

}  // namespace

std::optional<NoteFinding> dividedByGammaMf(const Session& session) {
    const Detail* detail = checkedDetail(session, 3);
    if (detail == nullptr || overheadFatigue(session)) return std::nullopt;
    Detail usual = *detail;
    usual.terms[0].factors = Factors::Usual;
    return growthOf(session, *detail, FatigueRecheck(session).sums(usual));
}

std::optional<NoteFinding> loadFactorOutside(const Session& session) {
    const Detail* detail = checkedDetail(session, overheadFatigue(session) ? 4 : 3);
    if (detail == nullptr) return std::nullopt;
    Detail usual = *detail;
    for (Term& term : usual.terms)
        if (term.factors == Factors::LoadOutside) term.factors = Factors::Usual;
    return growthOf(session, *detail, FatigueRecheck(session).sums(usual));
}

std::optional<NoteFinding> flangeWithoutDynamicFactor(const Session& session) {
    const Detail* detail = checkedDetail(session, 6);
    if (detail == nullptr || overheadFatigue(session)) return std::nullopt;
    FatigueRecheck other(session);
    for (Single& wheel : other.project.V) wheel *= other.factors.Cr1.PhiFat;
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> bendingAtTopWeld(const Session& session) {
    const Detail* detail = checkedDetail(session, 3);
    if (detail == nullptr || !overheadFatigue(session)) return std::nullopt;
    FatigueRecheck weld(session);
    weld.project.Fat1C1 = 100;
    for (StressSet* set : {&weld.Cr1, &weld.Cr2, &weld.Cr12})
        scaleSpans(set->Sig1Range, [&](int span) {
            const SectionRecord& section = session.project.SpanSection(span);
            const double top = section.h - section.EzEl;
            const double category = isRolled(section) ? 160.0 : 100.0;  // EN 1993-1-9 Tables 8.1, 8.2
            return (top - section.tf1) / top * 100.0 / category;
        });
    const Detail bending{.name = "Bending stress at the top flange's weld",
                         .places = detail->places,
                         .terms = {{{Stress::TopFlange, &Project::Fat1C1, 3}}}};
    return growthOf(session, *detail, added(FatigueRecheck(session).sums(*detail), weld.sums(bending)));
}

std::optional<NoteFinding> eccentricWheel(const Session& session) {
    const Project& project = session.project;
    const Detail* detail = checkedDetail(session, 3);
    const bool classAboveS3 = project.CraneClass1 > 3 || (project.NofCranes == 2 && project.CraneClass2 > 3);
    if (detail == nullptr || !overheadFatigue(session) || !classAboveS3) return std::nullopt;
    if (project.W1 == kFilletWeld) return matters(true, "two fillets, which bend otherwise than the web");
    if (project.RailFix == RailFixing::Rigid && session.rail().Id == "A")
        return matters(true, "a crane rail rigidly fixed, whose own torsional stiffness helps");
    std::vector<DamagePoint> worst;
    for (int span = 1; span <= project.NofSpans; ++span) {
        FatigueRecheck other(session);
        const double with = 1.0 + webBendingPart(project, other.rail, span);
        for (CraneFactors* crane : {&other.factors.Cr1, &other.factors.Cr2, &other.factors.Cr12})
            crane->LamSigN *= with;
        for (const DamagePoint& point : other.sums(*detail))
            if (point.span == span) worst.push_back(point);
    }
    return growthOf(session, *detail, worst);
}

std::optional<NoteFinding> strongerSide(const Session& session) {
    const Detail* detail = checkedDetail(session, 2);
    if (detail == nullptr || detail->places != Places::StrongerSide) return std::nullopt;
    FatigueRecheck other(session);
    // Only the choice of the side reads Iy here; with its sign turned the other side is chosen.
    for (int span = 1; span <= session.project.NofSpans; ++span)
        other.project.SpanSection(span).Iy = -other.project.SpanSection(span).Iy;
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> spliceOffThePoints(const Session& session) {
    const Detail* detail = checkedDetail(session, 5);
    if (detail == nullptr) return std::nullopt;
    const SpliceFields& fields = overheadFatigue(session) ? kOverheadSplices : kMonorailSplices;
    FatigueRecheck left(session);
    FatigueRecheck right(session);
    for (int splice = 1; splice <= 4; ++splice) {
        if (!(session.project.*fields.used)(splice)) continue;
        const double L = session.project.Span(roundHalfEven((session.project.*fields.span)(splice)));
        const double twentieths = (session.project.*fields.distance)(splice)*20.0 / L;
        if (std::abs(twentieths - std::round(twentieths)) < 1e-4) continue;
        (left.project.*fields.distance)(splice) = std::floor(twentieths) * L / 20.0;
        (right.project.*fields.distance)(splice) = std::ceil(twentieths) * L / 20.0;
    }
    std::vector<DamagePoint> both = left.sums(*detail);
    const std::vector<DamagePoint> other = right.sums(*detail);
    both.insert(both.end(), other.begin(), other.end());
    return growthOf(session, *detail, both);
}

std::optional<NoteFinding> spanOfOtherSplice(const Session& session) {
    const Detail* detail = checkedDetail(session, 5);
    if (detail == nullptr || overheadFatigue(session)) return std::nullopt;
    FatigueRecheck other(session);
    other.project.Fat5Span = other.project.FatR5Span;
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> topFlangeOfSplice(const Session& session) {
    const Detail* detail = checkedDetail(session, 5);
    if (detail == nullptr) return std::nullopt;
    Detail top = *detail;
    top.terms[0].stress = Stress::TopFlange;
    return growthOf(session, *detail, FatigueRecheck(session).sums(top));
}

std::optional<NoteFinding> sizeEffect(const Session& session) {
    const Detail* detail = checkedDetail(session, 5);
    if (detail == nullptr) return std::nullopt;
    FatigueRecheck other(session);
    for (StressSet* set : {&other.Cr1, &other.Cr2, &other.Cr12})
        scaleSpans(set->Sig2Range, [&](int span) {
            return std::pow(std::max(1.0, session.project.SpanSection(span).tf2 / 25.0), 0.2);
        });
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> kindOfOtherWeld(const Session& session) {
    const Detail* detail = checkedDetail(session, 6);
    if (detail == nullptr || overheadFatigue(session)) return std::nullopt;
    Detail own = *detail;
    own.terms[1].weld = {&Project::RW4, &Project::RW4a};
    return growthOf(session, *detail, FatigueRecheck(session).sums(own));
}

std::optional<NoteFinding> inspectionAssumed(const Session& session) {
    return matters(anyDetail(session) && session.project.GammaMf < 1.35);
}

}  // namespace borvik
