#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "diagrams/diagram_canvas.h"
#include "diagrams/momentary.h"
#include "diagrams/result_diagrams.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {
namespace {

constexpr double kWheelRadius = 0.3;  // text heights
// Text heights between the beam and the row of span lengths; on paper it stands between the supports.
constexpr double kBelowSupports = 0.8;
constexpr double kAtBeam = 0.15;
// Text heights from the bridge to the lowest load of close wheels: above the crane's name, or without room for that.
constexpr double kAboveName = 1.8;
constexpr double kAtBridge = 0.7;
constexpr double kReactionRow = 2.0;     // text heights below the beam: under the span lengths
constexpr int kSpansWithNames = 8;       // beyond that many spans a reaction is a number alone
constexpr double kSmallestLegend = 5.0;  // points

// What stays where there is too little room for all: span lengths, loads, then names and distances.
constexpr double kSpanRank = 1e7;
constexpr double kLoadRank = 1e6;
constexpr double kDistanceRank = 2.0;
constexpr double kNameRank = 1.0;

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
    return project.CraneType == CraneKind::Monorail ? kMonorailSketch : kOverheadSketch;
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
        if (!canvas.shows(x)) continue;
        const double foot = base + (below ? 0.7 : -0.7) * em.y;
        const Place corners[] = {{x, base}, {x - 0.4 * em.x, foot}, {x + 0.4 * em.x, foot}};
        canvas.drawLine(corners[0], corners[1], colours::black, 1);
        canvas.drawLine(corners[1], corners[2], colours::black, 1);
        canvas.drawLine(corners[2], corners[0], colours::black, 1);
        canvas.labels.keepClear({corners[1].x, std::min(base, foot), corners[2].x, std::max(base, foot)});
    }
}

/// Number, " - " and name of each distinct section of the spans shown.
std::vector<std::string> legendOf(const DiagramCanvas& canvas, const DistinctSections& sections) {
    std::vector<std::string> entries;
    for (std::size_t i = 0; i < sections.names().size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        bool shown = false;
        for (int span = 1; span <= canvas.project.NofSpans; ++span)
            shown = shown || (sections.numberOf(span) == number && canvas.showsSpan(span));
        if (shown) entries.push_back(std::to_string(number) + " - " + sections.names()[i]);
    }
    return entries;
}

/// The legend, in as many lines as there is room for at the foot of the drawing.
/// @return its top
double drawLegend(DiagramCanvas& canvas, const std::vector<std::string>& entries) {
    DrawingSurface& surface = canvas.surface;
    const double bottom = canvas.Y0 + canvas.layout.area.bottom - 2.0;
    const double room = 0.4 * (canvas.layout.area.bottom - canvas.layout.bases[0]);
    std::vector<std::string> lines, missed;
    for (Font font = canvas.labelFont; font.points >= kSmallestLegend; font.points -= 0.5) {
        surface.setFont(font);
        const auto mostLines = static_cast<std::size_t>(std::max(1.0, room / surface.textHeight()));
        lines.assign(1, "");
        missed.clear();
        for (const std::string& entry : entries) {
            const bool full = !lines.back().empty() && surface.textWidth(lines.back() + entry) > kDiagramWidth;
            if (missed.empty() && (!full || lines.size() < mostLines)) {
                if (full) lines.emplace_back();
                lines.back() += entry + "     ";
            } else {
                missed.push_back("Section " + entry);
            }
        }
        if (missed.empty()) break;
    }
    if (!missed.empty()) lines.back() += "...";
    const double top = bottom - static_cast<double>(lines.size()) * surface.textHeight();
    surface.setColour(colours::black);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const Place corner{canvas.X0, top + static_cast<double>(i) * surface.textHeight()};
        surface.text(corner, lines[i]);
        canvas.labels.keepClear({corner.x, corner.y, corner.x + surface.textWidth(lines[i]), bottom});
    }
    for (std::string& section : missed) canvas.labels.leaveOut(std::move(section));
    return top;
}

void addSpanLabels(DiagramCanvas& canvas, const DistinctSections& sections, double base, bool below) {
    for (int span = 1; span <= canvas.project.NofSpans; ++span) {
        const int length = canvas.project.Span(span);
        const Stretch place = canvas.placeOfSpan(span);
        Label label;
        label.forms = {{std::to_string(length)}};
        label.anchor = {canvas.x(span, 0.5 * length), base};
        if (!canvas.shows(label.anchor.x)) continue;
        label.left = std::max(place.left, canvas.supportX(span));
        label.right = std::min(place.right, canvas.supportX(span + 1));
        label.spots = spotsInRow(below, canvas.mode == DiagramMode::Screen ? kBelowSupports : kAtBeam);
        for (const auto across : {Spot::Across::FromAnchor, Spot::Across::ToAnchor}) {  // beside a splice
            label.spots.push_back(label.spots.front());
            label.spots.back().across = across;
        }
        label.rank = kSpanRank + length;
        label.inList = "Span " + std::to_string(span) + ": " + std::to_string(length);
        if (const int number = sections.numberOf(span); number > 0) {
            label.circled = std::to_string(number);
            label.forms.push_back({"(" + label.circled + ")", std::to_string(length)});
            label.inList += ", " + sections.names()[static_cast<std::size_t>(number - 1)];
        }
        canvas.labels.add(std::move(label));
    }
}

void drawSplices(DiagramCanvas& canvas, double base) {
    DrawingSurface& surface = canvas.surface;
    surface.setFont({"Arial", canvas.labelFont.points, true});
    surface.setColour(colours::black);
    for (const SplicePlace& splice : splicePlaces(canvas.project)) {
        const Extent size = surface.extent("X");
        if (!canvas.shows(canvas.x(splice.span, splice.position))) continue;
        const Place corner{canvas.x(splice.span, splice.position) - 0.5 * size.width, base - 0.5 * size.height};
        surface.text(corner, "X");
        canvas.labels.keepClear({corner.x, corner.y, corner.x + size.width, corner.y + size.height});
    }
    surface.setFont(canvas.labelFont);
}

/// A wheel on its place in the drawing.
struct ShownWheel {
    int wheel = 0;
    double x = 0.0;
    double toNext = 0.0;
    [[nodiscard]] int crane() const { return wheel <= 4 ? 1 : 2; }
};

/// The cranes in the drawing: which way is away from the beam, and how far from it their parts stand.
struct CraneDrawing {
    const SketchKind& kind;
    std::vector<ShownWheel> wheels;
    double axle, bridge;
};

/// The distances between the wheels of a crane: all of them or none, as a single one could be taken for another's.
void addWheelDistances(DiagramCanvas& canvas, const CraneDrawing& cranes) {
    for (std::size_t i = 1; i < cranes.wheels.size(); ++i) {
        const ShownWheel& left = cranes.wheels[i - 1];
        const ShownWheel& right = cranes.wheels[i];
        if (left.crane() != right.crane()) continue;
        const double distance = left.toNext;
        if (distance == 0.0) continue;
        Label label;
        label.forms = {{formatNumber(distance, "0")}};
        label.anchor = {0.5 * (left.x + right.x), cranes.bridge};
        label.left = left.x;
        label.right = right.x;
        label.spots = spotsInRow(!cranes.kind.cranesAbove, 0.2);
        label.inList = "Wheels " + std::to_string(left.wheel) + " to " + std::to_string(right.wheel) + ": " +
                       label.forms[0][0] + " mm";
        label.colour = colours::grey;
        label.rank = kDistanceRank;
        label.together = left.crane();
        canvas.labels.add(std::move(label));
    }
}

/// Wheels and the bar between them, with the crane's name.
void drawCrane(DiagramCanvas& canvas, const CraneDrawing& cranes, int crane) {
    std::vector<double> places;
    for (const ShownWheel& wheel : cranes.wheels)
        if (wheel.crane() == crane) places.push_back(wheel.x);
    if (places.empty()) return;
    DrawingSurface& surface = canvas.surface;
    const Em em = emOf(surface);
    const double left = places.front() - em.x * 0.5, right = places.back() + em.x * 0.5;
    canvas.drawLine({left, cranes.bridge}, {right, cranes.bridge}, colours::blue, 2);
    Label label;
    label.forms = {{crane == 1 ? cranes.kind.crane1 : cranes.kind.crane2}};
    label.anchor = {0.5 * (left + right), cranes.bridge};
    label.left = canvas.labels.frame().left;
    label.right = canvas.labels.frame().right;
    label.colour = colours::blue;
    label.spots = spotsAtPoint(!cranes.kind.cranesAbove);
    label.rank = kNameRank;
    label.withLeader = false;
    canvas.labels.add(std::move(label));

    surface.setColour(colours::black);
    surface.setPenWidth(canvas.penWidth(1));
    surface.setFill(colours::white);
    const double radius = kWheelRadius * em.y;
    for (const double place : places) {
        surface.circle({place, cranes.axle}, radius);
        canvas.labels.keepClear(
            {place - kWheelRadius * em.x, cranes.axle - radius, place + kWheelRadius * em.x, cranes.axle + radius});
    }
    surface.setFill(std::nullopt);
}

Label loadLabel(const DiagramCanvas& canvas, const CraneDrawing& cranes, const ShownWheel& wheel) {
    const std::vector<std::string> lines = loadLines(canvas.project, wheel.wheel, cranes.kind);
    Label label;
    label.forms = {lines};
    label.anchor = {wheel.x, cranes.bridge};
    label.rank = kLoadRank + std::abs(canvas.project.V(wheel.wheel));
    label.inList = "Wheel " + std::to_string(wheel.wheel) + ": " + lines[0] + ", " + lines[1];
    return label;
}

/// The loads straight above their wheels, where each has room there.
bool loadsStandSideBySide(const DiagramCanvas& canvas, const std::vector<Label>& loads) {
    const double gap = emOf(canvas.surface).x;
    double end = canvas.labels.frame().left;
    for (const Label& load : loads) {
        double width = 0.0;
        for (const std::string& line : load.forms[0]) width = std::max(width, canvas.surface.textWidth(line));
        const double left = std::max(canvas.labels.frame().left, load.anchor.x - 0.5 * width);
        if (left < end) return false;
        end = left + width + gap;
    }
    return end - gap <= canvas.labels.frame().right;
}

/// Loads of wheels that stand close together, as flags: a line straight up from each wheel, its load beside the line's
/// end, the next one lower. So no line crosses a text, and each text belongs to one wheel.
/// @param legend  top of the legend, which keeps its rows
void drawLoadFlags(DiagramCanvas& canvas, const CraneDrawing& cranes, const std::vector<Label>& loads, double legend) {
    DrawingSurface& surface = canvas.surface;
    const Em em = emOf(surface);
    const Box& frame = canvas.labels.frame();
    const double away = cranes.kind.cranesAbove ? -1.0 : 1.0;
    std::vector<std::string> texts;
    double widest = 0.0;
    for (const Label& load : loads) {
        texts.push_back(load.forms[0][0] + "  " + load.forms[0][1]);
        widest = std::max(widest, surface.textWidth(texts.back()) + 0.6 * em.x);
    }
    const bool toTheRight = loads.back().anchor.x + widest <= frame.right;
    std::vector<std::size_t> order(loads.size());
    for (std::size_t i = 0; i < order.size(); ++i) order[i] = toTheRight ? order.size() - 1 - i : i;
    std::vector<int> levels(loads.size(), 0);
    for (std::size_t n = 0; n < order.size(); ++n)
        for (std::size_t before = 0; before < n; ++before) {
            const double apart = std::abs(loads[order[n]].anchor.x - loads[order[before]].anchor.x);
            if (apart < widest + em.x) levels[order[n]] = std::max(levels[order[n]], levels[order[before]] + 1);
        }
    const auto topAt = [&](double first, int level) {
        return cranes.bridge + away * (first + level) * em.y - 0.5 * em.y;
    };
    const auto fits = [&](double top) { return top >= frame.top + 1.3 * em.y && top + em.y <= legend; };
    const int highest = *std::max_element(levels.begin(), levels.end());
    const double first = fits(topAt(kAboveName, highest)) ? kAboveName : kAtBridge;
    surface.setFont(canvas.labelFont);
    for (std::size_t i = 0; i < loads.size(); ++i) {
        const double x = loads[i].anchor.x;
        const double top = topAt(first, levels[i]);
        const double middle = top + 0.5 * em.y;
        const double width = surface.textWidth(texts[i]);
        const double left = toTheRight ? x + 0.4 * em.x : x - 0.4 * em.x - width;
        if (left < frame.left || !fits(top)) {
            canvas.labels.leaveOut(loads[i].inList);
            continue;
        }
        canvas.drawLine({x, cranes.bridge}, {x, middle}, colours::grey, 1);
        canvas.drawLine({x, middle}, {toTheRight ? left - 0.1 * em.x : left + width + 0.1 * em.x, middle},
                        colours::grey, 1);
        surface.setColour(colours::black);
        surface.text({left, top}, texts[i]);
        canvas.labels.keepClear({std::min(x, left), top, std::max(x, left + width), top + em.y});
    }
}

/// @param wheels  where they stand
/// @param driven  a wheel beyond the end of the beam has left it; else the crane is longer than the beam
void drawCranes(DiagramCanvas& canvas, const SketchKind& kind, double base, double legend,
                const std::vector<WheelPlace>& wheels, bool driven) {
    const double side = kind.cranesAbove ? -1.0 : 1.0;
    const double radius = kWheelRadius * emOf(canvas.surface).y;
    CraneDrawing cranes{kind, {}, base + side * (radius + 1.0), base + side * (2.4 * radius + 1.0)};
    for (const WheelPlace& wheel : wheels) {
        const double x = canvas.xOfWhole(wheel.x);
        if (canvas.shows(x))
            cranes.wheels.push_back({wheel.wheel, x, wheel.toNext});
        else if (!driven && wheel.x > kBeamStart + kBeamLength && canvas.showsSpan(canvas.project.NofSpans))
            canvas.labels.leaveOut(
                loadLabel(canvas, cranes, {wheel.wheel, x}).inList);  // the crane is longer than the beam
    }
    for (const int crane : {1, 2}) drawCrane(canvas, cranes, crane);

    std::vector<Label> loads;
    for (const ShownWheel& wheel : cranes.wheels) {
        const bool loaded = canvas.project.V(wheel.wheel) != 0.0 || canvas.project.H(wheel.wheel) != 0.0;
        const bool firstOfItsCrane = wheel.wheel == 1 || wheel.wheel == 5;
        if (loaded || firstOfItsCrane) loads.push_back(loadLabel(canvas, cranes, wheel));
    }
    if (loads.empty()) return;
    if (loadsStandSideBySide(canvas, loads)) {
        for (Label& load : loads) {
            load.left = canvas.labels.frame().left;
            load.right = canvas.labels.frame().right;
            load.spots = spotsInRow(!kind.cranesAbove, 0.2);
            canvas.labels.add(load);
        }
    } else {
        drawLoadFlags(canvas, cranes, loads, legend);
    }
    addWheelDistances(canvas, cranes);
}

double beamLine(const DiagramCanvas& canvas, const SketchKind& kind) {
    const double above = canvas.layout.bases[0] - canvas.layout.area.top;
    return canvas.Y0 + canvas.layout.area.top + (kind.cranesAbove ? above : 0.75 * above);
}

/// Where texts stand already that stay under the cranes, in the row of the span lengths: one for each span.
/// @param digit  width of a digit
std::vector<Stretch> spanTexts(const DiagramCanvas& canvas, double digit) {
    std::vector<Stretch> texts;
    for (int span = 1; span <= canvas.project.NofSpans; ++span) {
        const double middle = canvas.x(span, 0.5 * canvas.project.Span(span));
        const double half = 0.5 * static_cast<double>(5 + std::to_string(canvas.project.Span(span)).size()) * digit;
        texts.push_back({middle - half, middle + half});
    }
    return texts;
}

/// The reactions of the present position at their supports, kN, in one row: that of the span lengths, or below it where
/// these leave no room. Where supports stand close the smaller ones are left out. Drawn anew with every step, so
/// nothing is measured twice.
void drawReactions(DiagramCanvas& canvas, const SketchKind& kind, double base, const CraneDrive& drive) {
    struct Reaction {
        std::string text;
        Stretch place;
        double magnitude;
    };
    DrawingSurface& surface = canvas.surface;
    const Em em = emOf(surface);
    const double digit = surface.textWidth("0");
    const bool crowded = canvas.project.NofSpans > kSpansWithNames;
    const std::string name = crowded ? "" : "Rz=";
    const double nameWidth = surface.textWidth(name);
    std::vector<Reaction> reactions;
    for (int support = 1; support <= canvas.project.NofSpans + 1; ++support) {
        const double x = canvas.supportX(support);
        if (!canvas.shows(x)) continue;
        const double reaction = drive.reaction(support, false);
        const std::string value = formatNumber(reaction, "0.0");
        const double half = 0.5 * (nameWidth + static_cast<double>(value.size()) * digit);
        const Box& frame = canvas.labels.frame();
        const double middle = std::clamp(x, frame.left + half, frame.right - half);
        reactions.push_back({name + value, {middle - half, middle + half}, std::abs(reaction)});
    }
    std::stable_sort(reactions.begin(), reactions.end(),
                     [](const Reaction& a, const Reaction& b) { return a.magnitude > b.magnitude; });
    const auto meets = [&](const Stretch& place, const std::vector<Stretch>& others) {
        return std::any_of(others.begin(), others.end(), [&](const Stretch& other) {
            return place.left < other.right + 0.3 * em.x && other.left < place.right + 0.3 * em.x;
        });
    };
    const std::vector<Stretch> lengths = spanTexts(canvas, digit);
    const bool inRow = std::none_of(reactions.begin(), reactions.end(),
                                    [&](const Reaction& reaction) { return meets(reaction.place, lengths); });
    const double away = (inRow ? kBelowSupports : kReactionRow) * em.y;
    const double top = kind.cranesAbove ? base + away : base - away - em.y;
    std::vector<Stretch> taken;
    surface.setColour(kMomentary);
    for (const Reaction& reaction : reactions) {
        if (meets(reaction.place, taken)) continue;
        taken.push_back(reaction.place);
        surface.text({reaction.place.left, top}, reaction.text);
    }
}

/// What moves with the cranes: they themselves, where they stand in words, and the reactions.
void drawDriven(DiagramCanvas& canvas, const SketchKind& kind, const CraneDrive& drive) {
    DrawingSurface& surface = canvas.surface;
    const Box& frame = canvas.labels.frame();
    surface.setFont(canvas.labelFont);
    const double base = beamLine(canvas, kind);
    const std::string text = craneText(canvas.project, drive);
    surface.setColour(kMomentary);
    surface.text({frame.right - surface.textWidth(text), frame.top + 1.0}, text);
    canvas.labels.keepClear({frame.left, frame.top, frame.right, frame.top + 1.0 + surface.textHeight()});
    canvas.labels.keepClear({canvas.left(), base, canvas.right(), base});
    const double legend = frame.bottom - 1.5 * surface.textHeight();
    drawCranes(canvas, kind, base, legend, drivenGeometry(canvas.project, drive).wheels, true);
    canvas.drawLabels();
    surface.setFont(canvas.labelFont);
    drawReactions(canvas, kind, base, drive);
}

}  // namespace

std::vector<std::string> drawBeamSketch(DrawingSurface& surface, const DiagramData& data, double X0, double Y0,
                                        DiagramMode mode, const BeamPart& part, DiagramLayer layer) {
    Project project = data.project;
    project.NofSpans = static_cast<std::int16_t>(enteredSpans(data.project));
    const SketchKind& kind = kindOf(project);
    std::vector<std::string> missed;
    if (layer != DiagramLayer::Moving) {
        DiagramCanvas canvas(surface, diagramKind(Diagram::Sketch), project, X0, Y0, mode, part);
        const DistinctSections sections(project);
        const bool splices = !splicePlaces(project).empty();
        canvas.drawHead(splices ? "          X = Beam splice" : "", false, data.drive != nullptr);
        const double base = beamLine(canvas, kind);
        const double legend = drawLegend(canvas, legendOf(canvas, sections));
        surface.setFont(canvas.labelFont);
        canvas.drawLine({canvas.left(), base}, {canvas.right(), base}, colours::black, 3);
        canvas.labels.keepClear({canvas.left(), base, canvas.right(), base});
        drawSupports(canvas, base, kind.cranesAbove);
        drawSplices(canvas, base);
        if (!data.drive) drawCranes(canvas, kind, base, legend, craneGeometry(project).wheels, false);
        addSpanLabels(canvas, sections, base, kind.cranesAbove);
        missed = canvas.drawLabels();
    }
    if (layer != DiagramLayer::Still && data.drive != nullptr) {
        DiagramCanvas canvas(surface, diagramKind(Diagram::Sketch), project, X0, Y0, mode, part);
        drawDriven(canvas, kind, *data.drive);
    }
    return missed;
}

}  // namespace borvik
