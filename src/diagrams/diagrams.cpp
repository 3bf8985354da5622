#include "diagrams/diagrams.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "diagrams/diagram_kind.h"
#include "diagrams/result_diagrams.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {

std::vector<std::string> drawDiagram(DrawingSurface& surface, Diagram diagram, const DiagramData& data, double X0,
                                     double Y0, DiagramMode mode, const BeamPart& part, DiagramLayer layer) {
    if (diagram == Diagram::Sketch) return drawBeamSketch(surface, data, X0, Y0, mode, part, layer);
    return drawResultDiagram(surface, diagramKind(diagram), data, X0, Y0, mode, part, layer);
}

std::vector<BeamPart> beamParts(const Project& project) {
    constexpr int kMostSpans = 8;
    const int spans = enteredSpans(project);
    const int strips = (spans + kMostSpans - 1) / kMostSpans;
    if (strips <= 1) return {{}};
    std::vector<BeamPart> parts;
    double start = 0.0, longest = 0.0;
    for (int strip = 0; strip < strips; ++strip) {
        double length = 0.0;
        for (int span = strip * spans / strips + 1; span <= (strip + 1) * spans / strips; ++span)
            length += project.Span(span);
        parts.push_back({start, start + length});
        start += length;
        longest = std::max(longest, length);
    }
    for (BeamPart& part : parts) part.across = longest;
    return parts;
}

DiagramArea diagramArea(Diagram diagram, DiagramMode mode) {
    return diagramKind(diagram).layout(mode).area;
}

double diagramHeight(Diagram diagram, DiagramMode mode) {
    const DiagramArea area = diagramArea(diagram, mode);
    return area.bottom - area.top;
}

std::string diagramTitle(Diagram diagram, const Project& project) {
    return diagramTitle(diagramKind(diagram), project);
}

const char* diagramName(Diagram diagram) {
    return diagramKind(diagram).name;
}

WalkOf walkOf(Diagram diagram) {
    return diagramKind(diagram).walk;
}

std::vector<Diagram> pictureDiagrams(std::string_view name, const Project& project) {
    std::vector<Diagram> diagrams;
    for (const PictureKind& picture : pictureKinds())
        if (sameName(picture.name, name)) diagrams = picture.diagrams;
    for (const DiagramKind& kind : diagramKinds())
        if (sameName(kind.name, name)) diagrams = {kind.id};
    std::erase_if(diagrams, [&project](Diagram diagram) { return !diagramKind(diagram).isAvailable(project); });
    return diagrams;
}

std::vector<std::string> pictureNames() {
    std::vector<std::string> names;
    for (const PictureKind& picture : pictureKinds()) names.emplace_back(picture.name);
    for (const DiagramKind& kind : diagramKinds()) names.emplace_back(kind.name);
    return names;
}

double pictureHeight(std::span<const Diagram> diagrams) {
    double height = 0.0;
    for (const Diagram diagram : diagrams) height += diagramHeight(diagram, DiagramMode::Screen);
    return height;
}

PictureFrame pictureFrame(std::span<const Diagram> diagrams) {
    constexpr double kMargin = 6.0;  // left and right of a diagram
    return {-kMargin, 0.0, kDiagramWidth + kMargin, pictureHeight(diagrams)};
}

Place PictureFrame::placeOf(double x, double y, double width, double height) const {
    return {left + x / width * (right - left), top + y / height * (bottom - top)};
}

Place PictureFrame::pointOf(Place place, double width, double height) const {
    return {(place.x - left) / (right - left) * width, (place.y - top) / (bottom - top) * height};
}

void drawPicture(DrawingSurface& surface, std::span<const Diagram> diagrams, const DiagramData& data,
                 const BeamPart& part, DiagramLayer layer) {
    const auto [left, top, right, bottom] = pictureFrame(diagrams);
    surface.scale(left, top, right, bottom);
    const std::array<Place, 4> paper{{{left, top}, {right, top}, {right, bottom}, {left, bottom}}};
    if (layer != DiagramLayer::Moving) surface.polygon(paper, colours::white);
    double depth = 0.0;
    for (const Diagram diagram : diagrams) {
        drawDiagram(surface, diagram, data, 0.0, depth - diagramArea(diagram, DiagramMode::Screen).top,
                    DiagramMode::Screen, part, layer);
        depth += diagramHeight(diagram, DiagramMode::Screen);
    }
}

}  // namespace borvik
