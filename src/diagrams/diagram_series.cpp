#include "diagrams/diagram_series.h"

#include <array>
#include <cmath>

#include "base/number_text.h"

namespace borvik {
namespace {

constexpr double kPerKilo = 1000.0;          // N to kN
constexpr double kPerKiloMetre = 1000000.0;  // Nmm to kNm

std::string oneDecimal(double number) {
    return formatNumber(number, "0.0");
}
std::string whole(double number) {
    return formatNumber(number, "0");
}

/// What differs between the forces of the two planes.
struct ForcePlane {
    const char* moment;  ///< "My"
    const char* shear;   ///< "Vz"
    const char* reaction;
    const Cube<Single>&momentMax, &momentMin, &shearMax, &shearMin;
    const Table<Single>&momentMaxSpan, &momentMinSpan, &shearMaxSpan, &shearMinSpan;
    const Array<Single>&reactionMax, &reactionMin;
    int momentSlot, shearSlot;
    int placeSlot;  ///< of x in the span records
};

ForcePlane forcePlane(Diagram diagram, const UlsResults& uls) {
    if (diagram == Diagram::UlsMyVz)
        return {"My",
                "Vz",
                "Rz=+",
                uls.MyMaxPoint,
                uls.MyMinPoint,
                uls.VzMaxPoint,
                uls.VzMinPoint,
                uls.MyMaxSpan,
                uls.MyMinSpan,
                uls.VzMaxSpan,
                uls.VzMinSpan,
                uls.RzMax,
                uls.RzMin,
                1,
                2,
                9};
    return {"Mz",
            "Vy",
            "Ry=+",
            uls.MzMaxPoint,
            uls.MzMinPoint,
            uls.VyMaxPoint,
            uls.VyMinPoint,
            uls.MzMaxSpan,
            uls.MzMinSpan,
            uls.VyMaxSpan,
            uls.VyMinSpan,
            uls.RyMax,
            uls.RyMin,
            3,
            4,
            7};
}

Curve envelope(std::string name, const Cube<Single>& points, int slot, double divisor) {
    return {std::move(name), [&points, slot, divisor](int span, int k) { return points(span, k, slot) / divisor; }};
}

Panel momentPanel(const ForcePlane& plane, int spans) {
    const std::string name = plane.moment;
    Panel panel{"kNm", Upwards::Negative, {}, {}, false};
    panel.curves = {envelope(name + " max", plane.momentMax, plane.momentSlot, kPerKiloMetre),
                    envelope(name + " min", plane.momentMin, plane.momentSlot, kPerKiloMetre)};
    for (const Table<Single>* extreme : {&plane.momentMaxSpan, &plane.momentMinSpan})
        for (int span = 1; span <= spans; ++span) {
            const double moment = (*extreme)(span, plane.momentSlot) / kPerKiloMetre;
            const double x = (*extreme)(span, plane.placeSlot);
            if (moment != 0.0)  // a record that no position of the cranes filled says nothing
                panel.peaks.push_back({span, x, moment, name + "=" + oneDecimal(moment) + "  L=" + whole(x) + " mm"});
        }
    return panel;
}

Panel shearPanel(const ForcePlane& plane, int spans) {
    const std::string name = plane.shear;
    Panel panel{"kN", Upwards::Positive, {}, {}, false};
    panel.curves = {envelope(name + " max", plane.shearMax, plane.shearSlot, kPerKilo),
                    envelope(name + " min", plane.shearMin, plane.shearSlot, kPerKilo)};
    for (const Table<Single>* extreme : {&plane.shearMaxSpan, &plane.shearMinSpan})
        for (int span = 1; span <= spans; ++span) {
            const double shear = (*extreme)(span, plane.shearSlot) / kPerKilo;
            if (shear != 0.0)
                panel.peaks.push_back({span, (*extreme)(span, plane.placeSlot), shear,
                                       name + (shear > 0.0 ? "=+" : "=") + oneDecimal(shear)});
        }
    return panel;
}

Panel deflectionPanel(Diagram diagram, const DiagramData& data) {
    const SlsResults& sls = data.results->Sls;
    const bool vertical = diagram == Diagram::SlsUz;
    const Cube<Single>& points = vertical ? sls.UzMaxPoint : sls.UyMaxPoint;
    const Table<Single>& extremes = vertical ? sls.UzMaxSpan : sls.UyMaxSpan;
    Panel panel{"mm", Upwards::Never, {envelope(vertical ? "Uz" : "Uy", points, 1, 1.0)}, {}, true};
    for (int span = 1; span <= data.project.NofSpans; ++span)
        panel.peaks.push_back({span, data.project.Span(span) / 2.0, extremes(span, 1), oneDecimal(extremes(span, 1))});
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
};

constexpr std::array<StressKind, 3> kStressKinds{{
    {"Sig1", "Sig= ", "Sig= ", true, true, "dSig=", &StressSet::Sig1Max, &StressSet::Sig1Min, &StressSet::Sig1Range,
     &StressSet::Sig1MaxPeak, &StressSet::Sig1MinPeak, &StressSet::Sig1RangePeak},
    {"Sig2", "Sig= ", "Sig=-", false, true, "dSig=", &StressSet::Sig2Max, &StressSet::Sig2Min, &StressSet::Sig2Range,
     &StressSet::Sig2MaxPeak, &StressSet::Sig2MinPeak, &StressSet::Sig2RangePeak},
    {"Tau", "Tau=+", "Tau=-", false, false, "dTau=", &StressSet::TauMax, &StressSet::TauMin, &StressSet::TauRange,
     &StressSet::TauMaxPeak, &StressSet::TauMinPeak, &StressSet::TauRangePeak},
}};

/// The set of that crane. Two cranes at a constant distance run as one train, and crane 2 has no stresses of its own.
const std::optional<StressSet>& stressSet(const DiagramData& data, int crane) {
    return crane == 1 ? data.results->Fatigue.Cr1 : data.results->Fatigue.Cr2;
}

Curve stressCurve(std::string name, const std::optional<StressSet>& set, Table<Single> StressSet::*table) {
    if (!set) return {std::move(name), [](int, int) { return 0.0; }};
    const Table<Single>& stresses = (*set).*table;
    return {std::move(name), [&stresses](int span, int k) { return double(stresses(span, k)); }};
}

Panel stressPanel(const StressDiagram& stress, const DiagramData& data) {
    const StressKind& kind = kStressKinds[static_cast<std::size_t>(stress.quantity)];
    const std::optional<StressSet>& set = stressSet(data, stress.crane);
    const std::string name = kind.curve;
    Panel panel{"MPa", Upwards::Positive, {}, {}, stress.range};
    if (stress.range)
        panel.curves = {stressCurve("d" + name, set, kind.range)};
    else
        panel.curves = {stressCurve(name + " max", set, kind.max), stressCurve(name + " min", set, kind.min)};
    if (!set) return panel;

    const auto addPeaks = [&](Table<Single> StressSet::*table, const char* label, bool magnitude, bool withPlace) {
        const Table<Single>& peaks = (*set).*table;
        for (int span = 1; span <= data.project.NofSpans; ++span) {
            const double value = peaks(span, 1);
            if (value == 0.0) continue;
            std::string text = label + oneDecimal(magnitude ? std::abs(value) : value);
            if (withPlace) text += ", x=" + whole(peaks(span, 2));
            panel.peaks.push_back({span, peaks(span, 2), value, std::move(text)});
        }
    };
    if (stress.range) {
        addPeaks(kind.rangePeak, kind.rangeLabel, false, true);
    } else {
        addPeaks(kind.maxPeak, kind.maxLabel, false, kind.withPlace);
        addPeaks(kind.minPeak, kind.minLabel, !kind.minSigned, kind.withPlace);
    }
    return panel;
}

std::string reactionText(const char* label, const Array<Single>& largest, const Array<Single>& smallest, int support) {
    return label + oneDecimal(largest(support) / kPerKilo) + "/" + oneDecimal(smallest(support) / kPerKilo);
}

}  // namespace

StressDiagram stressDiagram(Diagram diagram) {
    const int first = static_cast<int>(Diagram::Cr1Top);
    const int last = static_cast<int>(Diagram::Cr2ShearRange);
    const int place = static_cast<int>(diagram);
    if (place < first || place > last) return {};
    const int number = place - first;  // six a crane: three quantities, each as stress and as range
    return {1 + number / 6, static_cast<StressDiagram::Quantity>(number % 6 / 2), number % 2 == 1};
}

std::vector<Panel> diagramPanels(Diagram diagram, const DiagramData& data) {
    if (data.results == nullptr || (isHorizontal(diagram) && !data.project.HasLoadsY)) return {};
    if (diagram == Diagram::UlsMyVz || diagram == Diagram::UlsMzVy) {
        const ForcePlane plane = forcePlane(diagram, data.results->Uls);
        return {momentPanel(plane, data.project.NofSpans), shearPanel(plane, data.project.NofSpans)};
    }
    if (diagram == Diagram::SlsUz || diagram == Diagram::SlsUy) return {deflectionPanel(diagram, data)};
    if (const StressDiagram stress = stressDiagram(diagram); stress.crane != 0) return {stressPanel(stress, data)};
    return {};
}

std::vector<std::vector<std::string>> supportTexts(Diagram diagram, const DiagramData& data) {
    std::vector<std::vector<std::string>> texts;
    if (data.results == nullptr || (isHorizontal(diagram) && !data.project.HasLoadsY)) return texts;
    const int supports = data.project.NofSpans + 1;
    if (diagram == Diagram::UlsMyVz || diagram == Diagram::UlsMzVy) {
        const ForcePlane plane = forcePlane(diagram, data.results->Uls);
        for (int support = 1; support <= supports; ++support)
            texts.push_back({reactionText(plane.reaction, plane.reactionMax, plane.reactionMin, support)});
    } else if (diagram == Diagram::FlsReactions) {
        const FatigueResults& fatigue = data.results->Fatigue;
        struct Set {
            const std::optional<StressSet>& stresses;
            const char* crane;
        };
        const std::array<Set, 3> sets{
            {{fatigue.Cr1, " (Crane1)"}, {fatigue.Cr2, " (Crane2)"}, {fatigue.Cr12, " (Crane 1+2)"}}};
        for (int support = 1; support <= supports; ++support) {
            std::vector<std::string> lines;
            for (const Set& set : sets)
                if (set.stresses)
                    lines.push_back(reactionText("Rz=+", set.stresses->RzMax, set.stresses->RzMin, support) +
                                    set.crane);
            texts.push_back(std::move(lines));
        }
    }
    return texts;
}

std::string signRemark(Diagram diagram, const DiagramData& data) {
    switch (diagram) {
        case Diagram::UlsMyVz:
            return "My on the tension side, + sagging below; L from the left support";
        case Diagram::UlsMzVy:
            return "Mz on the tension side, + below; L from the left support";
        case Diagram::SlsUz:
        case Diagram::SlsUy:
            return "largest magnitude, drawn below the beam";
        // The reaction at the last support is that of the shear there, as the fatigue walk keeps it.
        case Diagram::FlsReactions:
            return "max/min; at the last support with the sign of the shear";
        default:
            break;
    }
    const StressDiagram stress = stressDiagram(diagram);
    if (stress.crane == 0) return "";
    if (data.results != nullptr && !stressSet(data, stress.crane)) return "both cranes run as one train: see crane 1";
    if (stress.range) return "";
    switch (stress.quantity) {
        case StressDiagram::Quantity::Top:
            return "Max/Min, + tension";
        case StressDiagram::Quantity::Bottom:
            return "Max/Min in the bottom flange, + tension";
        case StressDiagram::Quantity::Shear:
            break;
    }
    return "Max/Min";
}

}  // namespace borvik
