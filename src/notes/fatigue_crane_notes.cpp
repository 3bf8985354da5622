#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "base/number_text.h"
#include "fatigue/crane_factors.h"
#include "fatigue/wheel_stress.h"
#include "notes/fatigue_findings.h"
#include "notes/fatigue_recheck.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

constexpr int kS5 = 5;
constexpr int kS9 = 9;
constexpr double kLambdaS9 = 1.587;  // EN 1991-3 Table 2.12, direct stress

/// All direct stress of a crane, under the wheel and in the beam, times a number.
void scaleDirect(StressSet& set, CraneFactors& factors, double by) {
    for (Table<Single>* table : {&set.Sig1Range, &set.Sig2Range})
        for (int span = 1; span <= table->rows(); ++span)
            for (int k = 1; k <= kPoints; ++k) (*table)(span, k) *= by;
    for (Single& range : set.SigSupRange) range *= by;
    factors.LamSig *= by;
    factors.LamSigN *= by;
}

/// The same detail with all partial factors in their usual places.
Detail usual(Detail detail) {
    for (Term& term : detail.terms) term.factors = Factors::Usual;
    return detail;
}

/// A detail of two cranes that act together, with each of the three summands formed as that of a single crane.
std::optional<NoteFinding> byOneScheme(const Session& session, int number) {
    const Detail* detail = checkedDetail(session, number);
    if (detail == nullptr || !twoFreeCranes(session) || session.project.TwoCraneMode != TwoCranes::Together)
        return std::nullopt;
    return growthOf(session, *detail, sumOfThree(FatigueRecheck(session), usual(*detail)));
}

/// The largest horizontal wheel load of a crane as a part of its largest vertical one.
double horizontalPart(const Project& project, int crane) {
    const double V = largestWheel(project, crane);
    double H = 0.0;
    for (int wheel = 1; wheel <= 4; ++wheel)
        H = std::max(H, std::abs(double(project.H(crane == 1 ? wheel : wheel + 4))));
    return V > 0.0 ? H / V : 0.0;
}

}  // namespace

std::optional<NoteFinding> trainCheckedAsThree(const Session& session) {
    const Detail* detail = checkedDetail(session, 3);
    if (detail == nullptr || !trainOfCranes(session) || session.project.TwoCraneMode != TwoCranes::Together)
        return std::nullopt;
    FatigueRecheck train(session);
    train.cranes = Cranes::Alone;
    train.project.V(1) = std::max(largestWheel(session.project, 1), largestWheel(session.project, 2));
    return growthOf(session, *detail, train.sums(*detail));
}

std::optional<NoteFinding> classS9(const Session& session) {
    const Project& project = session.project;
    const int class1 = overheadFatigue(session) ? project.CraneClass1 : project.CraneClassR;
    const bool second = twoFreeCranes(session) && project.CraneClass2 == kS9;
    if (class1 != kS9 && !second) return std::nullopt;
    const double by = kLambdaS9 / LambdaSigma(kS9);
    FatigueRecheck other(session);
    if (class1 == kS9) scaleDirect(other.Cr1, other.factors.Cr1, by);
    if (second) scaleDirect(other.Cr2, other.factors.Cr2, by);
    return growthOfAll(session, other);
}

std::optional<NoteFinding> placesOfCrane2(const Session& session) {
    const Project& project = session.project;
    if (!twoFreeCranes(session) || project.StartStopOutside != 0 || project.Fixerad) return std::nullopt;
    FatigueRecheck other(session);
    other.Cr2 = walkedCrane2(session, StressHistoryCr2);
    return growthOfAll(session, other);
}

std::optional<NoteFinding> gapsOfCrane2(const Session& session) {
    const Project& project = session.project;
    const auto& gaps = project.Avst;
    const bool alike = gaps(1) == gaps(4) && gaps(2) == gaps(5) && gaps(3) == gaps(6);
    if (!twoFreeCranes(session) || project.TwoCraneMode != TwoCranes::Together || alike) return std::nullopt;
    FatigueRecheck other(session);
    other.Cr12 = walkedTogether(session, StressHistoryCr12, other.factors.Cr12);
    return growthOfAll(session, other);
}

/// The local stress under a wheel does not grow where cranes meet: the weld of top flange and web is left out. A rolled
/// web stands on the support as it does for crane 1, without fillets.
std::optional<NoteFinding> cranesThatMeet(const Session& session) {
    const Project& project = session.project;
    if (!twoFreeCranes(session) || project.TwoCraneMode != TwoCranes::Independent) return std::nullopt;
    constexpr History kWhereTheyMeet{"Stress history of both cranes", SupportArea::StiffenedWebRolledWhole};
    FatigueRecheck other(session);
    CraneFactors& both = other.factors.Cr12;
    both = craneFactors(classOfBoth(project), other.factors.Cr1.NofWheels + other.factors.Cr2.NofWheels, 0.0);
    other.Cr12 = walkedTogether(session, kWhereTheyMeet, both);
    NoteFinding finding;
    for (const int number : {1, 2, 4, 5, 6})
        if (const Detail* detail = checkedDetail(session, number))
            addGrowth(session, *detail, sumOfThree(other, *detail), finding);
    return grown(std::move(finding));
}

std::optional<NoteFinding> factorsOfTrain(const Session& session) {
    const Project& project = session.project;
    if (!trainOfCranes(session) || (project.CraneClass2 <= project.CraneClass1 && project.PsiV2 <= project.PsiV1))
        return std::nullopt;
    const auto other = recalculated(session, [](Session& copy) {
        copy.project.CraneClass1 = std::max(copy.project.CraneClass1, copy.project.CraneClass2);
        copy.project.PsiV1 = std::max(copy.project.PsiV1, copy.project.PsiV2);
    });
    if (!other) return NoteFinding{};
    return growthOfAll(session, FatigueRecheck(*other));
}

std::optional<NoteFinding> mixedFactors(const Session& session) {
    return byOneScheme(session, 3);
}

std::optional<NoteFinding> mixedThroats(const Session& session) {
    return byOneScheme(session, 4);
}

std::optional<NoteFinding> heavierWheel(const Session& session) {
    const Detail* detail = checkedDetail(session, 3);
    if (detail == nullptr || !twoFreeCranes(session) || session.project.TwoCraneMode != TwoCranes::Together)
        return std::nullopt;
    FatigueRecheck other(session);
    const double F1 = other.factors.Cr1.PhiFat * largestWheel(other.project, 1);
    const double F2 = other.factors.Cr2.PhiFat * largestWheel(other.project, 2);
    const int lighter = F1 > F2 ? 5 : 1;  // its wheels go, so that the other crane's are read
    for (int wheel = lighter; wheel <= lighter + 3; ++wheel) other.project.V(wheel) = 0.0;
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> throatsOfRolledWeb(const Session& session) {
    const Detail* detail = checkedDetail(session, 6);
    if (detail == nullptr || !twoFreeCranes(session) || session.project.W3 != kFilletWeld) return std::nullopt;
    FatigueRecheck other(session);
    for (int support = 1; support <= session.project.NofSpans + 1; ++support) {
        const double by = supportArea(SupportArea::StiffenedWeb, session.project, support) /
                          supportArea(SupportArea::StiffenedWebRolledWhole, session.project, support);
        other.Cr2.SigSupRange(support) *= by;
        other.Cr12.SigSupRange(support) *= by;
    }
    return growthOf(session, *detail, other.sums(*detail));
}

std::optional<NoteFinding> horizontalLoads(const Session& session) {
    if (!overheadFatigue(session) || !anyDetail(session)) return std::nullopt;
    const Project& project = session.project;
    for (int crane = 1; crane <= project.NofCranes; ++crane) {
        const int craneClass = crane == 1 ? project.CraneClass1 : project.CraneClass2;
        const double part = horizontalPart(project, crane);
        if (craneClass < kS5 || part <= 0.1) continue;
        return matters(true, "H is " + formatNumber(part, "0.00") + " V on crane " + std::to_string(crane) +
                                 " of class " + CraneClassName(craneClass));
    }
    return std::nullopt;
}

}  // namespace borvik
