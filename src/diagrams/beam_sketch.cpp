#include <algorithm>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "diagrams/diagram_canvas.h"
#include "diagrams/result_diagrams.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {
namespace {

constexpr double kWheelRadius = 0.3;  // in text heights

/// Crane by crane what the two sketches differ in.
struct SketchKind {
    const char* crane1;
    const char* crane2;
    bool verticalFirst;  ///< "Vk = " stands above "Hk = "
    bool cranesAbove;    ///< the wheels run on the beam; a hoist hangs below it
};
constexpr SketchKind kOverheadSketch{" Crane 1 ", " Crane 2 ", true, true};
constexpr SketchKind kMonorailSketch{" Hoist ", " Hoist ", false, false};

const SketchKind& kindOf(const Project& project) {
    return project.CraneType == 2 ? kMonorailSketch : kOverheadSketch;
}

std::vector<std::string> loadLines(const Project& project, int wheel, const SketchKind& kind) {
    std::vector<std::string> lines{"Vk = " + formatNumber(project.V(wheel), "0.0"),
                                   "Hk = " + formatNumber(project.H(wheel), "0.0")};
    if (!kind.verticalFirst) std::swap(lines[0], lines[1]);
    return lines;
}

/// Supports stand under the beam, or above it where a hoist hangs below.
void drawSupports(DiagramCanvas& canvas, double base, bool below) {
    const Em em = emOf(canvas.surface);
    for (int support = 1; support <= canvas.project.NofSpans + 1; ++support) {
        const double x = canvas.supportX(support);
        const double foot = base + (below ? 0.7 : -0.7) * em.y;
        const Place corners[] = {{x, base}, {x - 0.4 * em.x, foot}, {x + 0.4 * em.x, foot}};
        canvas.drawLine(corners[0], corners[1], colours::black, 1);
        canvas.drawLine(corners[1], corners[2], colours::black, 1);
        canvas.drawLine(corners[2], corners[0], colours::black, 1);
        canvas.labels.keepClear({corners[1].x, std::min(base, foot), corners[2].x, std::max(base, foot)});
    }
}

/// Number, " - " and name of each distinct section, in as many lines as they need, at the foot of the drawing.
void drawLegend(DiagramCanvas& canvas, const std::vector<std::string>& names) {
    DrawingSurface& surface = canvas.surface;
    const double bottom = canvas.Y0 + canvas.layout.area.bottom - 2.0;
    const double room = 0.4 * (canvas.layout.area.bottom - canvas.layout.bases[0]);
    std::vector<std::string> lines;
    for (Font font = canvas.labelFont; font.points >= 5.0; font.points -= 0.5) {
        surface.setFont(font);
        lines.assign(1, "");
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::string entry = std::to_string(i + 1) + " - " + names[i] + "     ";
            if (!lines.back().empty() && surface.textWidth(lines.back() + entry) > kDiagramWidth) lines.emplace_back();
            lines.back() += entry;
        }
        if (static_cast<double>(lines.size()) * surface.textHeight() <= room) break;
    }
    const double top = bottom - static_cast<double>(lines.size()) * surface.textHeight();
    surface.setColour(colours::black);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Place corner{canvas.X0, top + static_cast<double>(i) * surface.textHeight()};
        surface.text(corner, lines[i]);
        canvas.labels.keepClear({corner.x, corner.y, corner.x + surface.textWidth(lines[i]), bottom});
    }
}

void addSpanLabels(DiagramCanvas& canvas, const DistinctSections& sections, double base, bool below) {
    for (int span = 1; span <= canvas.project.NofSpans; ++span) {
        const int length = canvas.project.Span(span);
        Label label{{std::to_string(length)}, {canvas.x(span, 0.5 * length), base}, below};
        if (const int number = sections.numberOf(span); number > 0) label.circled = std::to_string(number);
        canvas.labels.add(std::move(label));
    }
}

void drawSplices(DiagramCanvas& canvas, double base) {
    DrawingSurface& surface = canvas.surface;
    surface.setFont({"Arial", canvas.labelFont.points, true});
    surface.setColour(colours::black);
    for (const SplicePlace& splice : splicePlaces(canvas.project)) {
        const Extent size = surface.extent("X");
        const Place corner{canvas.x(splice.span, splice.position) - 0.5 * size.width, base - 0.5 * size.height};
        surface.text(corner, "X");
        canvas.labels.keepClear({corner.x, corner.y, corner.x + size.width, corner.y + size.height});
    }
    surface.setFont(canvas.labelFont);
}

/// The distance between two wheels of a crane, where there is room for it.
void addWheelDistances(DiagramCanvas& canvas, const CraneGeometry& cranes, double bridge, bool below) {
    for (std::size_t i = 1; i < cranes.wheels.size(); ++i) {
        const WheelPlace& left = cranes.wheels[i - 1];
        const WheelPlace& right = cranes.wheels[i];
        if ((left.wheel <= 4) != (right.wheel <= 4)) continue;
        const double distance = canvas.project.Avst(left.wheel <= 4 ? left.wheel : left.wheel - 1);
        if (distance == 0.0) continue;
        Label label{{formatNumber(distance, "0")}, {canvas.X0 + 0.5 * (left.x + right.x), bridge}, below};
        label.colour = colours::grey;
        label.optional = true;
        canvas.labels.add(std::move(label));
    }
}

/// Wheels and the bar between them, with the crane's name.
void drawCrane(DiagramCanvas& canvas, const std::vector<double>& places, const char* name, double axle, double bridge) {
    DrawingSurface& surface = canvas.surface;
    const Em em = emOf(surface);
    canvas.drawLine({places.front() - em.x * 0.5, bridge}, {places.back() + em.x * 0.5, bridge}, colours::blue, 2);
    Label label{{name}, {0.5 * (places.front() + places.back()), bridge}, bridge > axle};
    label.colour = colours::blue;
    canvas.labels.add(std::move(label));

    surface.setColour(colours::black);
    surface.setPenWidth(canvas.penWidth(1));
    surface.setFill(colours::white);
    const double radius = kWheelRadius * em.y;
    for (const double place : places) {
        surface.circle({place, axle}, radius);
        canvas.labels.keepClear(
            {place - kWheelRadius * em.x, axle - radius, place + kWheelRadius * em.x, axle + radius});
    }
    surface.setFill(std::nullopt);
}

void drawCranes(DiagramCanvas& canvas, const SketchKind& kind, double base) {
    const CraneGeometry cranes = craneGeometry(canvas.project);
    const double side = kind.cranesAbove ? -1.0 : 1.0;
    const double radius = kWheelRadius * emOf(canvas.surface).y;
    const double axle = base + side * (radius + 1.0);
    const double bridge = base + side * (2.4 * radius + 1.0);
    for (const int crane : {1, 2}) {
        std::vector<double> places;
        for (const WheelPlace& wheel : cranes.wheels)
            if ((wheel.wheel <= 4 ? 1 : 2) == crane) places.push_back(canvas.X0 + wheel.x);
        if (!places.empty()) drawCrane(canvas, places, crane == 1 ? kind.crane1 : kind.crane2, axle, bridge);
    }
    for (const WheelPlace& wheel : cranes.wheels) {
        const bool loaded = canvas.project.V(wheel.wheel) != 0.0 || canvas.project.H(wheel.wheel) != 0.0;
        const bool firstOfItsCrane = wheel.wheel == 1 || wheel.wheel == 5;
        if (loaded || firstOfItsCrane)
            canvas.labels.add(
                {loadLines(canvas.project, wheel.wheel, kind), {canvas.X0 + wheel.x, bridge}, !kind.cranesAbove});
    }
    addWheelDistances(canvas, cranes, bridge, !kind.cranesAbove);
}

}  // namespace

void drawBeamSketch(DrawingSurface& surface, const Project& input, double X0, double Y0, DiagramMode mode) {
    Project project = input;
    project.NofSpans = static_cast<std::int16_t>(enteredSpans(input));
    DiagramCanvas canvas(surface, diagramKind(Diagram::Sketch), project, X0, Y0, mode);
    const SketchKind& kind = kindOf(project);
    const DistinctSections sections(project);
    const bool splices = !splicePlaces(project).empty();
    canvas.drawHead(splices ? "          X = Beam splice" : "", false);
    const double above = canvas.layout.bases[0] - canvas.layout.area.top;
    const double base = Y0 + canvas.layout.area.top + (kind.cranesAbove ? above : 0.75 * above);
    drawLegend(canvas, sections.names());
    surface.setFont(canvas.labelFont);
    canvas.drawLine({X0 + kBeamStart, base}, {X0 + kBeamStart + kBeamLength, base}, colours::black, 3);
    drawSupports(canvas, base, kind.cranesAbove);
    drawSplices(canvas, base);
    drawCranes(canvas, kind, base);
    addSpanLabels(canvas, sections, base, kind.cranesAbove);
    canvas.drawLabels();
}

}  // namespace borvik
