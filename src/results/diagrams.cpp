#include "results/diagrams.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

#include "base/number_text.h"
#include "results/diagram_canvas.h"
#include "results/diagram_series.h"
#include "results/result_diagrams.h"
#include "results/sketch_geometry.h"

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

void DrawPicture(DrawingSurface& surface, std::span<const Diagram> diagrams, const DiagramData& data) {
    const double height = pictureHeight(diagrams);
    constexpr double kMargin = 6.0;  // left and right of the 1000 units
    surface.scale(-kMargin, 0.0, 1000.0 + kMargin, height);
    const std::array<Place, 4> paper{
        {{-kMargin, 0.0}, {1000.0 + kMargin, 0.0}, {1000.0 + kMargin, height}, {-kMargin, height}}};
    surface.polygon(paper, colours::white);
    double top = 0.0;
    for (const Diagram diagram : diagrams) {
        DrawDiagram(surface, diagram, data, 0.0, top - diagramArea(diagram, DiagramMode::Screen).top,
                    DiagramMode::Screen);
        top += diagramHeight(diagram, DiagramMode::Screen);
    }
}

std::optional<DiagramReading> ReadPicture(std::span<const Diagram> diagrams, const DiagramData& data, Place place) {
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
    double position = (place.x - 50.0) / 900.0 * total;
    if (panels.empty() || total <= 0.0 || position < 0.0 || position > total) return std::nullopt;

    DiagramReading reading;
    reading.diagram = diagram;
    reading.span = 1;
    while (reading.span < data.project.NofSpans && position > data.project.Span(reading.span))
        position -= data.project.Span(reading.span++);
    reading.position = position;
    for (const Panel& panel : panels)
        for (const Curve& curve : panel.curves)
            reading.quantities.push_back(
                {curve.name, between(curve, reading.span, position, data.project.Span(reading.span)), panel.unit});
    return reading;
}

std::string DiagramReading::text() const {
    std::string text = "Span " + std::to_string(span) + ", x = " + formatNumber(position, "0") + " mm";
    const char* separator = ": ";
    for (const Quantity& quantity : quantities) {
        text += separator + quantity.name + " " + formatNumber(quantity.value, "0.0") + " " + quantity.unit;
        separator = ", ";
    }
    return text;
}

}  // namespace borvik
