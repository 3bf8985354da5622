#include "fatigue/stress_history.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "base/number_text.h"

namespace borvik {

namespace {

constexpr double kStiffenerCope = 30.0;  // mm cut off the stiffener's corner

void stressesOfSpan(StressSet& set, const Project& project, const FlsResults& fls, const CraneFactors& factors, int i) {
    const PointStress stress(project.SpanSection(i), factors);
    for (int k = 1; k <= kPoints; ++k) {
        const double MyMax = fls.FlsMyMaxPoint(i, k, 1);
        const double MyMin = fls.FlsMyMinPoint(i, k, 1);
        set.Sig1Max(i, k) = stress.topFlange(MyMin);  // hogging pulls the top flange
        set.Sig1Min(i, k) = stress.topFlange(MyMax);
        set.Sig1Range(i, k) = std::abs(set.Sig1Max(i, k) - set.Sig1Min(i, k));
        set.Sig2Max(i, k) = stress.bottomFlange(MyMax);
        set.Sig2Min(i, k) = stress.bottomFlange(MyMin);
        set.Sig2Range(i, k) = std::abs(set.Sig2Max(i, k) - set.Sig2Min(i, k));
        set.TauMax(i, k) = stress.web(fls.FlsVzMaxPoint(i, k, 2));
        set.TauMin(i, k) = stress.web(fls.FlsVzMinPoint(i, k, 2));
        set.TauRange(i, k) = std::abs(set.TauMax(i, k) - set.TauMin(i, k));
    }
}

double stiffenedWebArea(const Project& project, const SectionRecord& section, bool rolledWhole) {
    const double bearing = 2.0 * section.tf2 + project.Fat6d1;
    const double stiffener = section.b2 - kStiffenerCope - section.tw;
    const double plates = static_cast<int>(project.StiffenerMode);  // one at a non-rigid end post, two at a rigid one
    if (project.W3 != kFilletWeld) return bearing * section.tw + DecimalValue(project.WS1t) * stiffener * plates;

    const bool noWebWeld = rolledWhole && isRolled(section);
    const double atWeb = noWebWeld ? bearing * section.tw : 2.0 * bearing * project.W3a;
    return atWeb + 2.0 * stiffener * plates * project.W3a;
}

double hangerArea(const Project& project) {
    if (project.RW1 != kFilletWeld) return DecimalValue(project.RWS1t) * project.RWS1d;
    return 2.0 * project.RWS1d * project.RW1a;
}

void stressAtSupport(StressSet& set, const History& history, const Project& project, const CraneFactors& factors,
                     int i) {
    const double LamSig = factors.LamSig;
    if (history.area == SupportArea::HangerPlate) {
        const double area = supportArea(history.area, project, i);
        set.SigSupMax(i) = LamSig * set.RzMax(i) / area;
        set.SigSupMin(i) = LamSig * set.RzMin(i) / area;
        set.SigSupRange(i) = std::abs(set.SigSupMax(i) - set.SigSupMin(i));
        return;
    }
    // An overhead crane's girder: the range alone is known, and stands in both tables; the smallest stress stays 0.
    set.SigSupMax(i) = std::abs(set.RzMax(i) - set.RzMin(i)) * LamSig / supportArea(history.area, project, i);
    set.SigSupRange(i) = set.SigSupMax(i);
}

enum class Extreme { Largest, Smallest };

struct PeakOf {
    Table<Single> StressSet::*table;
    Table<Single> StressSet::*peak;
    Extreme extreme;
};

constexpr PeakOf kPeaks[] = {
    {&StressSet::Sig1Max, &StressSet::Sig1MaxPeak, Extreme::Largest},
    {&StressSet::Sig1Min, &StressSet::Sig1MinPeak, Extreme::Smallest},
    {&StressSet::Sig1Range, &StressSet::Sig1RangePeak, Extreme::Largest},
    {&StressSet::Sig2Max, &StressSet::Sig2MaxPeak, Extreme::Largest},
    {&StressSet::Sig2Min, &StressSet::Sig2MinPeak, Extreme::Smallest},
    {&StressSet::Sig2Range, &StressSet::Sig2RangePeak, Extreme::Largest},
    {&StressSet::TauMax, &StressSet::TauMaxPeak, Extreme::Largest},
    {&StressSet::TauMin, &StressSet::TauMinPeak, Extreme::Smallest},
    {&StressSet::TauRange, &StressSet::TauRangePeak, Extreme::Largest},
};

void peaksOfSpan(StressSet& set, const Project& project, int i) {
    for (const PeakOf& of : kPeaks) {
        const Table<Single>& table = set.*of.table;
        Table<Single>& peak = set.*of.peak;
        for (int k = 1; k <= kPoints; ++k) {
            const double stress = table(i, k);
            const bool beyond = of.extreme == Extreme::Largest ? stress > peak(i, 1) : stress < peak(i, 1);
            if (!beyond) continue;
            peak(i, 1) = stress;
            peak(i, 2) = (k - 1) / 20.0 * project.Span(i);
        }
    }
}

}  // namespace

PointStress::PointStress(const SectionRecord& section, const CraneFactors& factors)
    : zt_(-(section.h - section.EzEl)),
      zb_(section.EzEl),
      Iy_(section.Iy),
      webArea_(section.tw * section.Hw),
      LamSig_(factors.LamSig),
      LamTau_(factors.LamTau) {}

Single PointStress::topFlange(double My) const {
    return My / Iy_ * zt_ * LamSig_;
}

Single PointStress::bottomFlange(double My) const {
    return My / Iy_ * zb_ * LamSig_;
}

Single PointStress::web(double Vz) const {
    return Vz / webArea_ * LamTau_;
}

int strongerSpanAtSupport(const Project& project, int support) {
    const int n = project.NofSpans;
    if (support == 1) return 1;
    if (support == n + 1) return n;
    return project.SpanSection(support - 1).Iy < project.SpanSection(support).Iy ? support : support - 1;
}

double supportArea(SupportArea area, const Project& project, int support) {
    if (area == SupportArea::HangerPlate) return hangerArea(project);
    const SectionRecord& section = project.SpanSection(strongerSpanAtSupport(project, support));
    return stiffenedWebArea(project, section, area == SupportArea::StiffenedWebRolledWhole);
}

StressSet stressHistory(const History& history, const Project& project, const FlsResults& fls,
                        const CraneFactors& factors) {
    const int n = project.NofSpans;
    StressSet set(n);
    set.At = fls.At;
    set.Loads = fls.Loads;
    for (int i = 1; i <= n; ++i) {
        watched(history.name, i, [&] {
            stressesOfSpan(set, project, fls, factors, i);
            peaksOfSpan(set, project, i);
        });
    }
    for (int i = 1; i <= n + 1; ++i) {
        set.RzMax(i) = fls.FlsRzMax(i);
        set.RzMin(i) = fls.FlsRzMin(i);
        watched(history.name, std::min(i, n), [&] { stressAtSupport(set, history, project, factors, i); });
    }
    return set;
}

}  // namespace borvik
