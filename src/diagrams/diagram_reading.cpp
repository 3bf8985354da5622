#include "diagrams/diagram_reading.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "diagrams/diagram_kind.h"
#include "diagrams/diagrams.h"

namespace borvik {
namespace {

/// The value of a curve between two points of calculation.
double between(const Curve& curve, int span, double position, double length) {
    const double place = length > 0.0 ? position / length * (kPoints - 1) : 0.0;
    const int k = std::clamp(static_cast<int>(place) + 1, 1, kPoints - 1);
    const double share = place - (k - 1);
    return curve.at(span, k) * (1.0 - share) + curve.at(span, k + 1) * share;
}

std::vector<DiagramReading::Quantity> quantitiesAt(const std::vector<Panel>& panels, int span, double position,
                                                   double length) {
    std::vector<DiagramReading::Quantity> quantities;
    for (const Panel& panel : panels)
        for (const Curve& curve : panel.curves)
            quantities.push_back({curve.name, between(curve, span, position, length), panel.unit});
    return quantities;
}

}  // namespace

std::optional<DiagramReading> readPicture(std::span<const Diagram> diagrams, const DiagramData& data, Place place,
                                          double reach, BeamPart part) {
    if (diagrams.empty()) return std::nullopt;
    Diagram diagram = diagrams.back();
    double bottom = 0.0;
    for (const Diagram candidate : diagrams) {
        bottom += diagramHeight(candidate, DiagramMode::Screen);
        if (place.y < bottom) {
            diagram = candidate;
            break;
        }
    }
    const std::vector<Panel> panels = diagramPanels(diagramKind(diagram), data);
    double total = 0.0;
    for (int span = 1; span <= data.project.NofSpans; ++span) total += data.project.Span(span);
    if (panels.empty() || total <= 0.0) return std::nullopt;

    DiagramReading reading{diagram, {}};
    const auto read = [&](int span, double position) {
        reading.points.push_back({span, position, quantitiesAt(panels, span, position, data.project.Span(span))});
    };
    if (part.isWhole()) part = {0.0, total};
    const double unitsPerMm = kBeamLength / (part.to - part.from);
    const double position = part.from + (place.x - kBeamStart) / unitsPerMm;
    const double near = std::max(reach / unitsPerMm, 1e-9 * total);  // a support is met in spite of rounding
    if (position < part.from - near || position > part.to + near) return std::nullopt;
    const int last = data.project.NofSpans;
    int support = 1;  // the nearest one
    double start = 0.0, nearest = std::abs(position);
    for (int span = 1; span <= last; ++span) {
        const double length = data.project.Span(span), end = start + length;
        if (nearest > near && position > start && position < end - near) {
            read(span, position - start);
            return reading;
        }
        if (std::abs(position - end) < nearest) {
            nearest = std::abs(position - end);
            support = span + 1;
        }
        start = end;
    }
    if (nearest > near) return std::nullopt;
    if (support > 1) read(support - 1, data.project.Span(support - 1));
    if (support <= last) read(support, 0.0);
    return reading;
}

std::array<CraneStand, 2> standsAt(std::span<const Diagram> diagrams, const DiagramData& data, Place place,
                                   BeamPart part) {
    constexpr double kReach = 16.0;       // units around an extreme, which its text begins in
    constexpr double kTextHeight = 12.0;  // units, of the row of reactions
    std::vector<double> starts{0.0};
    for (int span = 1; span <= data.project.NofSpans; ++span) starts.push_back(starts.back() + data.project.Span(span));
    if (part.isWhole()) part = {0.0, starts.back()};
    const auto xOf = [&](double position) {
        return kBeamStart + (position - part.from) / (part.to - part.from) * kBeamLength;
    };
    std::array<CraneStand, 2> found{};
    double nearest = kReach;
    const auto offer = [&](double away, const std::array<CraneStand, 2>& stands) {
        if (away >= nearest || !stands[0].isKnown()) return;
        nearest = away;
        found = stands;
    };
    double top = 0.0;
    for (const Diagram diagram : diagrams) {
        const DiagramKind& kind = diagramKind(diagram);
        const double origin = top - diagramArea(diagram, DiagramMode::Screen).top;
        const std::vector<Panel> panels = diagramPanels(kind, data);
        for (std::size_t i = 0; i < panels.size(); ++i) {
            const double largest = largestOf(panels[i], data.project);
            for (const PeakLabel& peak : panels[i].peaks) {
                const double below = peak.inRow ? kAmplitude : offsetOf(panels[i], peak.value, largest);
                const double x = xOf(starts[static_cast<std::size_t>(peak.span - 1)] + peak.position);
                offer(std::hypot(place.x - x, place.y - origin - kind.screen.bases[i] - below), peak.stands);
            }
        }
        const SupportTexts texts = supportTexts(kind, data);
        const double row = place.y - origin - kind.screen.supportRow;
        for (std::size_t i = 0; i < texts.size() && row >= 0.0 && row < kTextHeight; ++i)
            offer(std::abs(place.x - xOf(starts[i])) / 2.0, {texts[i].stand});
        top += diagramHeight(diagram, DiagramMode::Screen);
    }
    return found;
}

Diagram diagramOf(const CraneStand& stand) {
    const bool second = stand.walk == WalkOf::FatigueCrane2;
    switch (stand.effect) {
        case Effect::My:
        case Effect::Vz:
            return Diagram::UlsMyVz;
        case Effect::Mz:
        case Effect::Vy:
        case Effect::Ry:
            return Diagram::UlsMzVy;
        case Effect::Rz:
            return stand.walk == WalkOf::Uls ? Diagram::UlsMyVz : Diagram::FlsReactions;
        case Effect::Uz:
            return Diagram::SlsUz;
        case Effect::Uy:
            return Diagram::SlsUy;
        case Effect::TopFlange:
            return second ? Diagram::Cr2Top : Diagram::Cr1Top;
        case Effect::BottomFlange:
            return second ? Diagram::Cr2Bottom : Diagram::Cr1Bottom;
        case Effect::Web:
            return second ? Diagram::Cr2Shear : Diagram::Cr1Shear;
    }
    return Diagram::UlsMyVz;
}

std::vector<Diagram> pictureOf(const CraneStand& stand, const Project& project) {
    const Diagram diagram = diagramOf(stand);
    for (const PictureKind& picture : pictureKinds())
        if (std::find(picture.diagrams.begin(), picture.diagrams.end(), diagram) != picture.diagrams.end())
            return pictureDiagrams(picture.name, project);
    return {diagram};
}

std::vector<double> readingStops(const Project& project, bool supportsOnly, BeamPart part) {
    constexpr int kParts = 20;
    double total = 0.0, start = 0.0;
    for (int span = 1; span <= project.NofSpans; ++span) total += project.Span(span);
    if (total <= 0.0) return {};
    if (part.isWhole()) part = {0.0, total};
    const auto unitsAt = [&part](double place) {
        return kBeamStart + kBeamLength * (place - part.from) / (part.to - part.from);
    };
    std::vector<double> stops{unitsAt(0.0)};
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double length = project.Span(span);
        for (int k = supportsOnly ? kParts : 1; k <= kParts; ++k) stops.push_back(unitsAt(start + length * k / kParts));
        start += length;
    }
    return stops;
}

std::string DiagramReading::text() const {
    const Point& point = points.front();
    const bool onSupport = points.size() == 2;
    std::string text =
        onSupport ? "Support " + std::to_string(points.back().span)
                  : "Span " + std::to_string(point.span) + ", x = " + formatNumber(point.position, "0") + " mm";
    const char* separator = ": ";
    for (std::size_t i = 0; i < point.quantities.size(); ++i) {
        const Quantity& quantity = point.quantities[i];
        std::string value = formatNumber(quantity.value, "0.0");
        if (onSupport) {
            const std::string right = formatNumber(points.back().quantities[i].value, "0.0");
            if (right != value) value += " | " + right;
        }
        text += separator + quantity.name + " " + value + " " + quantity.unit;
        separator = ", ";
    }
    return text;
}

}  // namespace borvik
