#include "diagrams/momentary.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {
namespace {

constexpr double kDot = 3.0;  // units, radius
constexpr double kTouchingDot = 5.0;
constexpr double kTouching = 1e-6;     // of the largest value
constexpr double kOnLargest = 0.9999;  // a share; of two that are nearly equal the first is taken

using SpanValues = std::vector<std::array<double, kPoints + 1>>;  // [span]

/// A point of a span.
struct Point {
    int span = 1, k = 1;
};

/// The point that is looked at; without one that of the largest magnitude.
Point pointOf(const CraneDrive& drive, const SpanValues& values) {
    const CraneStand& stand = drive.stand();
    if (stand.isKnown() && stand.point > 0 && stand.place < static_cast<int>(values.size()))
        return {stand.place, stand.point};
    Point largest;
    double magnitude = 0.0;
    for (std::size_t span = 1; span < values.size(); ++span)
        for (int k = 1; k <= kPoints; ++k)
            if (const double now = std::abs(values[span][static_cast<std::size_t>(k)]); now * kOnLargest > magnitude) {
                largest = {static_cast<int>(span), k};
                magnitude = now;
            }
    return largest;
}

/// Of a value a ring; where the line touches an extreme a large disc.
void drawDot(DiagramCanvas& canvas, Place place, bool touching) {
    DrawingSurface& surface = canvas.surface;
    surface.setColour(kMomentary);
    surface.setPenWidth(canvas.penWidth(1));
    surface.setFill(touching ? kMomentary : colours::white);
    surface.circle(place, (touching ? kTouchingDot : kDot) * (canvas.mode == DiagramMode::Screen ? 1.0 : 0.5));
    surface.setFill(std::nullopt);
}

void drawPanelNow(DiagramCanvas& canvas, const Panel& panel, double base, const CraneDrive& drive) {
    const Project& project = canvas.project;
    const double largest = largestOf(panel, project);
    SpanValues values(static_cast<std::size_t>(project.NofSpans) + 1);
    for (int span = 1; span <= project.NofSpans; ++span)
        values[static_cast<std::size_t>(span)] = drive.values(*panel.effect, span);
    const auto valueAt = [&](int span, int k) {
        return values[static_cast<std::size_t>(span)][static_cast<std::size_t>(k)];
    };
    const auto placeOf = [&](int span, int k) {
        return Place{canvas.x(span, project.Span(span) * (k - 1) / 20.0),
                     base + offsetOf(panel, valueAt(span, k), largest)};
    };
    canvas.drawCurve(
        base, [&](int span, int k) { return placeOf(span, k).y; }, kMomentary, std::nullopt);

    // Extremes that are reached now. A deflection is written in the middle of its span, wherever its point is.
    for (const PeakLabel& peak : panel.peaks) {
        const int k = peak.inRow ? std::max(1, peak.stands[0].point) : pointAt(peak.position, project.Span(peak.span));
        const double now = valueAt(peak.span, k);
        const bool touches = std::abs((peak.inRow ? std::abs(now) : now) - peak.value) <= kTouching * largest;
        if (touches && canvas.shows(placeOf(peak.span, k).x)) drawDot(canvas, placeOf(peak.span, k), true);
    }
    const Point point = pointOf(drive, values);
    const Place place = placeOf(point.span, point.k);
    if (!canvas.shows(place.x)) return;
    drawDot(canvas, place, false);
    // Within the envelope: its own labels stand outside.
    const std::string text = formatNumber(valueAt(point.span, point.k), "0.0") + " " + panel.unit;
    drawMarkedText(canvas, place, text, place.y <= base && panel.upwards != Upwards::Never);
}

/// "span 2, 4600 mm", or how far beside the beam.
std::string placeText(const Project& project, double place) {
    double start = 0.0;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double end = start + project.Span(span);
        if (place >= start && place <= end)
            return "span " + std::to_string(span) + ", " + formatNumber(place - start, "0") + " mm";
        start = end;
    }
    if (place < 0.0) return formatNumber(-place, "0") + " mm before the beam";
    return formatNumber(place - start, "0") + " mm behind the beam";
}

}  // namespace

void drawMomentary(DiagramCanvas& canvas, const DiagramKind& kind, const DiagramData& data) {
    if (data.drive->walk() != kind.walk) return;
    const std::vector<Panel> panels = diagramPanels(kind, data);
    canvas.surface.setFont(canvas.labelFont);
    for (std::size_t i = 0; i < panels.size(); ++i)
        if (panels[i].effect) drawPanelNow(canvas, panels[i], canvas.Y0 + canvas.layout.bases[i], *data.drive);
}

void drawMarkedText(DiagramCanvas& canvas, Place point, const std::string& text, bool below) {
    DrawingSurface& surface = canvas.surface;
    const Box& frame = canvas.labels.frame();
    const Em em = emOf(surface);
    const Extent size = surface.extent(text);
    // Beside the dot, which stays to be seen.
    const double left = std::clamp(point.x + 0.5 * em.x, frame.left, frame.right - size.width - 0.3 * em.x);
    const double top = below ? std::min(point.y + 0.4 * em.y, frame.bottom - size.height)
                             : std::max(point.y - 0.4 * em.y - size.height, frame.top);
    surface.setColour(kMomentary);
    surface.setPenWidth(canvas.penWidth(1));
    surface.setFill(colours::white);
    surface.rectangle({left - 0.2 * em.x, top}, {left + size.width + 0.2 * em.x, top + size.height});
    surface.text({left, top}, text);
    surface.setFill(std::nullopt);
}

std::string craneText(const Project& project, const CraneDrive& drive) {
    std::string text;
    for (const DrivenWheel& wheel : drivenWheels(drive))
        if (wheel.first) {
            const bool hoist = project.CraneType == CraneKind::Monorail;
            text += (text.empty() ? "" : "; ") +
                    (hoist ? std::string("Hoist") : "Crane " + std::to_string(wheel.wheel > 4 ? 2 : 1)) + ": " +
                    placeText(project, wheel.place);
        }
    return text;
}

std::string standText(const Project& project, const CraneStand& stand) {
    constexpr const char* kNames[] = {"My",
                                      "Vz",
                                      "Mz",
                                      "Vy",
                                      "Rz",
                                      "Ry",
                                      "Uz",
                                      "Uy",
                                      "Stress in top flange",
                                      "Stress in bottom flange",
                                      "Shear stress in web"};
    if (!stand.isKnown()) return "";
    const std::string name = kNames[static_cast<std::size_t>(stand.effect)];
    if (stand.point == 0) return name + ", support " + std::to_string(stand.place);
    return name + ", span " + std::to_string(stand.place) +
           ", x = " + formatNumber(project.Span(stand.place) * (stand.point - 1) / 20.0, "0") + " mm";
}

}  // namespace borvik
