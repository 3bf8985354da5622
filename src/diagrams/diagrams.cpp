#include "diagrams/diagrams.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "base/number_text.h"
#include "diagrams/diagram_canvas.h"
#include "diagrams/diagram_series.h"
#include "diagrams/result_diagrams.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {
namespace {

constexpr std::array<const char*, kDiagrams> kNames{
    "Sketch",      "UlsMyVz",   "UlsMzVy",        "SlsUz",    "SlsUy",         "Cr1Top",
    "Cr1TopRange", "Cr1Bottom", "Cr1BottomRange", "Cr1Shear", "Cr1ShearRange", "Cr2Top",
    "Cr2TopRange", "Cr2Bottom", "Cr2BottomRange", "Cr2Shear", "Cr2ShearRange", "FlsReactions"};

/// Titles of the stress diagrams: behind "FLS - Crane 1" with two cranes, behind "FLS - " with one. The title of the
/// bottom flange with one crane names the top flange; that text is kept, and the remark behind it tells which flange it
/// is.
struct StressTitle {
    const char* oneOfTwo;
    const char* alone;
};
constexpr std::array<StressTitle, 6> kStressTitles{{
    {" - Stress in top flange (MPa)", "Stress in top flange (MPa)"},
    {" - stress range top flange (MPa)", "stress range top flange (MPa)"},
    {" - Stress in bottom flange (MPa)", "Stress in top flange (MPa)"},
    {" stress range bottom flange (MPa)", "stress range bottom flange (MPa)"},
    {" - Shear stress in web (MPa)", "Shear stress in web (MPa)"},
    {" shear stress range in web (MPa)", "shear stress range in web (MPa)"},
}};

std::string sketchTitle(const Project& project) {
    std::string title = craneGeometry(project).factor == 1.0 ? "Beam Data (mm/kN)" : "Beam Data (mm/kN, Not to scale)";
    if (project.Fixerad) title += " - fixed position of crane";
    return title;
}

/// Diagrams of a node of the result tree; the second of "Uz" is left out without horizontal loads.
struct NodePicture {
    const char* name;
    std::vector<Diagram> diagrams;
};
const std::vector<NodePicture>& nodePictures() {
    static const std::vector<NodePicture> pictures{
        {"MyVz", {Diagram::UlsMyVz}},
        {"MzVy", {Diagram::UlsMzVy}},
        {"Uz", {Diagram::SlsUz, Diagram::SlsUy}},
        {"Cr1Sp1", {Diagram::Cr1Top, Diagram::Cr1TopRange}},
        {"Cr1Sp2", {Diagram::Cr1Bottom, Diagram::Cr1BottomRange}},
        {"Cr1Sp3", {Diagram::Cr1Shear, Diagram::Cr1ShearRange}},
        {"Cr2Sp1", {Diagram::Cr2Top, Diagram::Cr2TopRange}},
        {"Cr2Sp2", {Diagram::Cr2Bottom, Diagram::Cr2BottomRange}},
        {"Cr2Sp3", {Diagram::Cr2Shear, Diagram::Cr2ShearRange}},
        {"CrRz", {Diagram::FlsReactions}},
    };
    return pictures;
}

bool sameName(std::string_view a, std::string_view b) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](char x, char y) { return lower(x) == lower(y); });
}

bool isAvailable(Diagram diagram, const Project& project) {
    if (isHorizontal(diagram)) return project.HasLoadsY;
    return stressDiagram(diagram).crane != 2 || project.NofCranes == 2;
}

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

void DrawDiagram(DrawingSurface& surface, Diagram diagram, const DiagramData& data, double X0, double Y0,
                 DiagramMode mode) {
    if (diagram == Diagram::Sketch)
        drawBeamSketch(surface, data.project, X0, Y0, mode);
    else
        drawResultDiagram(surface, diagram, data, X0, Y0, mode);
}

DiagramArea diagramArea(Diagram diagram, DiagramMode mode) {
    return diagramLayout(diagram, mode).area;
}

double diagramHeight(Diagram diagram, DiagramMode mode) {
    const DiagramArea area = diagramArea(diagram, mode);
    return area.bottom - area.top;
}

std::string diagramTitle(Diagram diagram, const Project& project) {
    switch (diagram) {
        case Diagram::Sketch:
            return sketchTitle(project);
        case Diagram::UlsMyVz:
            return "ULS - My/Vz/Rz (kN/kNm)";
        case Diagram::UlsMzVy:
            return "ULS - Mz/Vy/Ry (kN/kNm)";
        case Diagram::SlsUz:
            return "SLS - Uz (mm)";
        case Diagram::SlsUy:
            return "SLS - Uy (mm)";
        case Diagram::FlsReactions:
            return "FLS - Reactions (kN) excluding lamda factor";
        default:
            break;
    }
    const StressDiagram stress = stressDiagram(diagram);
    const StressTitle& title = kStressTitles[static_cast<std::size_t>(stress.quantity) * 2 + (stress.range ? 1 : 0)];
    if (project.NofCranes != 2) return std::string("FLS - ") + title.alone;
    return "FLS - Crane " + std::to_string(stress.crane) + title.oneOfTwo;
}

const char* diagramName(Diagram diagram) {
    return kNames[static_cast<std::size_t>(diagram)];
}

std::optional<Diagram> diagramByName(std::string_view name) {
    for (int i = 0; i < kDiagrams; ++i)
        if (sameName(kNames[static_cast<std::size_t>(i)], name)) return static_cast<Diagram>(i);
    return std::nullopt;
}

std::vector<Diagram> pictureDiagrams(std::string_view name, const Project& project) {
    std::vector<Diagram> diagrams;
    const auto& pictures = nodePictures();
    const auto node = std::find_if(pictures.begin(), pictures.end(),
                                   [name](const NodePicture& picture) { return sameName(picture.name, name); });
    if (node != pictures.end())
        diagrams = node->diagrams;
    else if (const auto single = diagramByName(name))
        diagrams = {*single};
    std::erase_if(diagrams, [&project](Diagram diagram) { return !isAvailable(diagram, project); });
    return diagrams;
}

std::vector<std::string> pictureNames() {
    std::vector<std::string> names;
    for (const NodePicture& picture : nodePictures()) names.emplace_back(picture.name);
    names.insert(names.end(), kNames.begin(), kNames.end());
    return names;
}

double pictureHeight(std::span<const Diagram> diagrams) {
    double height = 0.0;
    for (const Diagram diagram : diagrams) height += diagramHeight(diagram, DiagramMode::Screen);
    return height;
}

PictureFrame pictureFrame(std::span<const Diagram> diagrams) {
    constexpr double kMargin = 6.0;  // left and right of the 1000 units
    return {-kMargin, 0.0, 1000.0 + kMargin, pictureHeight(diagrams)};
}

Place PictureFrame::placeOf(double x, double y, double width, double height) const {
    return {left + x / width * (right - left), top + y / height * (bottom - top)};
}

Place PictureFrame::pointOf(Place place, double width, double height) const {
    return {(place.x - left) / (right - left) * width, (place.y - top) / (bottom - top) * height};
}

void DrawPicture(DrawingSurface& surface, std::span<const Diagram> diagrams, const DiagramData& data) {
    const auto [left, top, right, bottom] = pictureFrame(diagrams);
    surface.scale(left, top, right, bottom);
    const std::array<Place, 4> paper{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
    surface.polygon(paper, colours::white);
    double depth = 0.0;
    for (const Diagram diagram : diagrams) {
        DrawDiagram(surface, diagram, data, 0.0, depth - diagramArea(diagram, DiagramMode::Screen).top,
                    DiagramMode::Screen);
        depth += diagramHeight(diagram, DiagramMode::Screen);
    }
}

std::optional<DiagramReading> ReadPicture(std::span<const Diagram> diagrams, const DiagramData& data, Place place,
                                          double reach) {
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
    const std::vector<Panel> panels = diagramPanels(diagram, data);
    double total = 0.0;
    for (int span = 1; span <= data.project.NofSpans; ++span) total += data.project.Span(span);
    if (panels.empty() || total <= 0.0) return std::nullopt;

    DiagramReading reading{diagram, {}};
    const auto read = [&](int span, double position) {
        reading.points.push_back({span, position, quantitiesAt(panels, span, position, data.project.Span(span))});
    };
    const double position = (place.x - 50.0) / 900.0 * total;
    const double near = std::max(reach / 900.0, 1e-9) * total;  // a support is met in spite of rounding
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

std::vector<double> readingStops(const Project& project, bool supportsOnly) {
    constexpr int kParts = 20;
    double total = 0.0, start = 0.0;
    for (int span = 1; span <= project.NofSpans; ++span) total += project.Span(span);
    if (total <= 0.0) return {};
    std::vector<double> stops{50.0};
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double length = project.Span(span);
        for (int part = supportsOnly ? kParts : 1; part <= kParts; ++part)
            stops.push_back(50.0 + 900.0 * (start + length * part / kParts) / total);
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
