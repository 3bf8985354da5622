#include "diagrams/diagram_series.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "base/number_text.h"
#include "base/units.h"

namespace borvik {
namespace {

std::string oneDecimal(double number) {
    return formatNumber(number, "0.0");
}
/// A number behind its name. What shows as zero has no sign.
std::string signedText(const std::string& name, const std::string& sign, double number) {
    const std::string text = oneDecimal(number);
    return name + (text == "0.0" ? "" : sign) + text;
}

/// An extreme of the forces: its envelope and where the cranes stand.
struct ForceExtreme {
    const Cube<Single>& points;
    const Table<Single>& spans;
    const Table<WalkPosition>& at;
};
struct ReactionExtreme {
    const Array<Single>& values;
    const Array<WalkPosition>& at;
};

/// What differs between the forces of the two planes.
struct ForcePlane {
    const char* moment;  ///< "My"
    const char* shear;   ///< "Vz"
    const char* reaction;
    Effect momentEffect, shearEffect, reactionEffect;
    ForceExtreme momentMax, momentMin, shearMax, shearMin;
    ReactionExtreme reactionMax, reactionMin;
    int momentSlot, shearSlot;
    int placeSlot;  ///< of x in the span records
};

ForcePlane forcePlane(bool horizontal, const UlsResults& uls) {
    const UlsPositions& at = uls.At;
    if (!horizontal)
        return {"My",
                "Vz",
                "Rz=+",
                Effect::My,
                Effect::Vz,
                Effect::Rz,
                {uls.MyMaxPoint, uls.MyMaxSpan, at.MyMax},
                {uls.MyMinPoint, uls.MyMinSpan, at.MyMin},
                {uls.VzMaxPoint, uls.VzMaxSpan, at.VzMax},
                {uls.VzMinPoint, uls.VzMinSpan, at.VzMin},
                {uls.RzMax, at.RzMax},
                {uls.RzMin, at.RzMin},
                1,
                2,
                UlsResults::kPlaceSlot};
    return {"Mz",
            "Vy",
            "Ry=+",
            Effect::Mz,
            Effect::Vy,
            Effect::Ry,
            {uls.MzMaxPoint, uls.MzMaxSpan, at.MzMax},
            {uls.MzMinPoint, uls.MzMinSpan, at.MzMin},
            {uls.VyMaxPoint, uls.VyMaxSpan, at.VyMax},
            {uls.VyMinPoint, uls.VyMinSpan, at.VyMin},
            {uls.RyMax, at.RyMax},
            {uls.RyMin, at.RyMin},
            3,
            4,
            UlsResults::kPlaceSlotY};
}

/// Where the cranes stand for the extreme of a span, x mm from its left support.
std::array<CraneStand, 2> standAt(const DiagramData& data, Effect effect, const Table<WalkPosition>& at, int span,
                                  double x) {
    if (at.rows() < span) return {};
    return {CraneStand{WalkOf::Uls, effect, at(span, kWholeSpan), span, pointAt(x, data.project.Span(span))}};
}

Curve envelope(std::string name, const Cube<Single>& points, int slot, double divisor) {
    return {std::move(name), [&points, slot, divisor](int span, int k) { return points(span, k, slot) / divisor; }};
}

Panel momentPanel(const ForcePlane& plane, const DiagramData& data) {
    const std::string name = plane.moment;
    Panel panel{"kNm", Upwards::Negative, {}, {}, false, plane.momentEffect};
    panel.curves = {envelope(name + " max", plane.momentMax.points, plane.momentSlot, kPerKiloMetre),
                    envelope(name + " min", plane.momentMin.points, plane.momentSlot, kPerKiloMetre)};
    for (const ForceExtreme* extreme : {&plane.momentMax, &plane.momentMin})
        for (int span = 1; span <= data.project.NofSpans; ++span) {
            const double moment = extreme->spans(span, plane.momentSlot) / kPerKiloMetre;
            const double x = extreme->spans(span, plane.placeSlot);
            if (moment != 0.0)  // a record that no position of the cranes filled says nothing
                panel.peaks.push_back({span, x, moment, name + "=" + oneDecimal(moment), "  L=", " mm", false,
                                       standAt(data, plane.momentEffect, extreme->at, span, x)});
        }
    return panel;
}

Panel shearPanel(const ForcePlane& plane, const DiagramData& data) {
    const std::string name = plane.shear;
    Panel panel{"kN", Upwards::Positive, {}, {}, false, plane.shearEffect};
    panel.curves = {envelope(name + " max", plane.shearMax.points, plane.shearSlot, kPerKilo),
                    envelope(name + " min", plane.shearMin.points, plane.shearSlot, kPerKilo)};
    for (const ForceExtreme* extreme : {&plane.shearMax, &plane.shearMin})
        for (int span = 1; span <= data.project.NofSpans; ++span) {
            const double shear = extreme->spans(span, plane.shearSlot) / kPerKilo;
            const double x = extreme->spans(span, plane.placeSlot);
            if (shear != 0.0)
                panel.peaks.push_back({span, x, shear, signedText(name + "=", shear > 0.0 ? "+" : "", shear), "", "",
                                       false, standAt(data, plane.shearEffect, extreme->at, span, x)});
        }
    return panel;
}

/// What differs between the three stresses.
struct StressKind {
    const char* curve;     ///< name in a read-out
    const char* maxLabel;  ///< before the largest value
    const char* minLabel;  ///< before the magnitude of the smallest, or before its value where `minSigned`
    bool minSigned;
    bool withPlace;  ///< ", x=" behind the extremes
    const char* rangeLabel;
    Table<Single> StressSet::*max;
    Table<Single> StressSet::*min;
    Table<Single> StressSet::*range;
    Table<Single> StressSet::*maxPeak;
    Table<Single> StressSet::*minPeak;
    Table<Single> StressSet::*rangePeak;
    Effect effect;
    /// Where the cranes stand for the largest and for the smallest; hogging pulls the top flange.
    Table<WalkPosition> FlsPositions::*maxAt;
    Table<WalkPosition> FlsPositions::*minAt;
};

constexpr std::array<StressKind, 3> kStressKinds{{
    {"Sig1", "Sig= ", "Sig= ", true, true, "dSig=", &StressSet::Sig1Max, &StressSet::Sig1Min, &StressSet::Sig1Range,
     &StressSet::Sig1MaxPeak, &StressSet::Sig1MinPeak, &StressSet::Sig1RangePeak, Effect::TopFlange,
     &FlsPositions::MyMin, &FlsPositions::MyMax},
    {"Sig2", "Sig= ", "Sig=-", false, true, "dSig=", &StressSet::Sig2Max, &StressSet::Sig2Min, &StressSet::Sig2Range,
     &StressSet::Sig2MaxPeak, &StressSet::Sig2MinPeak, &StressSet::Sig2RangePeak, Effect::BottomFlange,
     &FlsPositions::MyMax, &FlsPositions::MyMin},
    {"Tau", "Tau=+", "Tau=-", false, false, "dTau=", &StressSet::TauMax, &StressSet::TauMin, &StressSet::TauRange,
     &StressSet::TauMaxPeak, &StressSet::TauMinPeak, &StressSet::TauRangePeak, Effect::Web, &FlsPositions::VzMax,
     &FlsPositions::VzMin},
}};

Curve stressCurve(std::string name, const std::optional<StressSet>& set, Table<Single> StressSet::*table) {
    if (!set) return {std::move(name), [](int, int) { return 0.0; }};
    const Table<Single>& stresses = (*set).*table;
    return {std::move(name), [&stresses](int span, int k) { return double(stresses(span, k)); }};
}

/// Largest and smallest reaction of a support, behind "Rz=+".
struct Reaction {
    std::string largest, smallest;
    double magnitude;

    Reaction(const Array<Single>& max, const Array<Single>& min, int support)
        : largest(oneDecimal(max(support) / kPerKilo)),
          smallest(oneDecimal(min(support) / kPerKilo)),
          magnitude(std::max(std::abs(max(support) / kPerKilo), std::abs(min(support) / kPerKilo))) {}
    /// On one line, or below each other.
    [[nodiscard]] std::vector<std::vector<std::string>> shorter() const {
        return {{text("+")}, {"+" + largest, smallest}};
    }
    [[nodiscard]] std::string text(const std::string& label) const { return label + largest + "/" + smallest; }
};

}  // namespace

std::vector<Panel> forcePanels(const DiagramKind& kind, const DiagramData& data) {
    const ForcePlane plane = forcePlane(kind.horizontal, data.results->Uls);
    return {momentPanel(plane, data), shearPanel(plane, data)};
}

std::vector<Panel> deflectionPanel(const DiagramKind& kind, const DiagramData& data) {
    const SlsResults& sls = data.results->Sls;
    const Cube<Single>& points = kind.horizontal ? sls.UyMaxPoint : sls.UzMaxPoint;
    const Table<Single>& extremes = kind.horizontal ? sls.UyMaxSpan : sls.UzMaxSpan;
    const Effect effect = kind.horizontal ? Effect::Uy : Effect::Uz;
    Panel panel{"mm", Upwards::Never, {envelope(kind.horizontal ? "Uy" : "Uz", points, 1, 1.0)}, {}, true, effect};
    const CheckResult* check = data.results->Checks.find(kind.horizontal ? "DefY" : "DefZ");
    for (int span = 1; span <= data.project.NofSpans; ++span)
        panel.peaks.push_back({span, data.project.Span(span) / 2.0, extremes(span, 1), oneDecimal(extremes(span, 1)),
                               "", "", true, check ? check->spans(span).Stands : std::array<CraneStand, 2>{}});
    return {panel};
}

const std::optional<StressSet>& stressSet(const DiagramData& data, int crane) {
    return crane == 1 ? data.results->Fatigue.Cr1 : data.results->Fatigue.Cr2;
}

std::vector<Panel> stressPanel(const DiagramKind& diagram, const DiagramData& data) {
    const StressKind& kind = kStressKinds[static_cast<std::size_t>(diagram.quantity)];
    const std::optional<StressSet>& set = stressSet(data, diagram.crane);
    const std::string name = kind.curve;
    Panel panel{"MPa", Upwards::Positive, {}, {}, diagram.range};
    if (!diagram.range) panel.effect = kind.effect;
    if (diagram.range)
        panel.curves = {stressCurve("d" + name, set, kind.range)};
    else
        panel.curves = {stressCurve(name + " max", set, kind.max), stressCurve(name + " min", set, kind.min)};
    if (!set) return {panel};

    const auto standOf = [&](int span, double x, bool largest) {
        const Table<WalkPosition>& at = set->At.*(largest ? kind.maxAt : kind.minAt);
        const int point = pointAt(x, data.project.Span(span));
        return at.rows() < span ? CraneStand{} : CraneStand{diagram.walk, kind.effect, at(span, point), span, point};
    };
    const auto addPeaks = [&](Table<Single> StressSet::*table, const char* label, bool magnitude, bool withPlace) {
        const Table<Single>& peaks = (*set).*table;
        for (int span = 1; span <= data.project.NofSpans; ++span) {
            const double value = peaks(span, 1);
            if (value == 0.0) continue;
            const std::string_view whole = label;
            const bool ownSign = whole.ends_with('+') || whole.ends_with('-');
            const std::string head(ownSign ? whole.substr(0, whole.size() - 1) : whole);
            PeakLabel peak{
                span, peaks(span, 2), value,
                signedText(head, ownSign ? std::string(1, whole.back()) : "", magnitude ? std::abs(value) : value)};
            if (withPlace) peak.before = ", x=";
            const double x = peak.position;
            const bool largest = table != kind.minPeak;
            peak.stands = {standOf(span, x, largest), diagram.range ? standOf(span, x, false) : CraneStand{}};
            if (!peak.stands[0].isKnown()) std::swap(peak.stands[0], peak.stands[1]);
            panel.peaks.push_back(std::move(peak));
        }
    };
    if (diagram.range) {
        addPeaks(kind.rangePeak, kind.rangeLabel, false, true);
    } else {
        addPeaks(kind.maxPeak, kind.maxLabel, false, kind.withPlace);
        addPeaks(kind.minPeak, kind.minLabel, !kind.minSigned, kind.withPlace);
    }
    return {panel};
}

SupportTexts ulsReactions(const DiagramData& data, bool horizontal) {
    const ForcePlane plane = forcePlane(horizontal, data.results->Uls);
    SupportTexts texts;
    for (int support = 1; support <= data.project.NofSpans + 1; ++support) {
        const Reaction reaction(plane.reactionMax.values, plane.reactionMin.values, support);
        const auto& largest = std::abs(plane.reactionMax.values(support)) >= std::abs(plane.reactionMin.values(support))
                                  ? plane.reactionMax
                                  : plane.reactionMin;
        const CraneStand stand{WalkOf::Uls, plane.reactionEffect,
                               largest.at.has(support) ? largest.at(support) : WalkPosition{}, support, 0};
        texts.push_back({{reaction.text(plane.reaction)}, reaction.shorter(), reaction.magnitude, stand});
    }
    return texts;
}

SupportTexts flsReactions(const DiagramData& data, bool) {
    const FatigueResults& fatigue = data.results->Fatigue;
    struct Set {
        const std::optional<StressSet>& stresses;
        const char* crane;
    };
    const std::array<Set, 3> sets{
        {{fatigue.Cr1, " (Crane1)"}, {fatigue.Cr2, " (Crane2)"}, {fatigue.Cr12, " (Crane 1+2)"}}};
    SupportTexts texts;
    for (int support = 1; support <= data.project.NofSpans + 1; ++support) {
        SupportText text;
        for (const Set& set : sets) {
            if (!set.stresses) continue;
            const Reaction reaction(set.stresses->RzMax, set.stresses->RzMin, support);
            text.lines.push_back(reaction.text("Rz=+") + set.crane);
            text.shorter = reaction.shorter();
            text.value = std::max(text.value, reaction.magnitude);
        }
        if (text.lines.size() > 1) text.shorter.clear();  // whose value is it?
        texts.push_back(std::move(text));
    }
    return texts;
}

}  // namespace borvik
