#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "diagrams/diagram.h"
#include "platform/drawing_surface.h"

namespace borvik {

/// Draws one diagram. It is 1000 units wide, the beam from X0 + 50 to X0 + 950; the largest value takes 40 units. On
/// paper a frame stands around it, from (X0 - 5, Y0 - 10) to X0 + 1010 and as deep as diagramArea says. The logical
/// frame of the surface must have been set; drawPicture does so. The drawing is meant for white paper, on the screen
/// too. A diagram without results is empty but for its title and the beam.
/// @param part  of the beam to draw
/// @param layer  a moving crane is drawn over a picture of what it leaves as it is
/// @return labels that found no room, as they read in a list: "Span 2: My=-66.2  L=5000 mm"
std::vector<std::string> drawDiagram(DrawingSurface& surface, Diagram diagram, const DiagramData& data, double X0,
                                     double Y0, DiagramMode mode, const BeamPart& part = {},
                                     DiagramLayer layer = DiagramLayer::All);

/// The parts in which a beam is drawn on paper: the whole beam, or one of more than eight spans in strips of eight
/// spans at most, all to the same scale.
[[nodiscard]] std::vector<BeamPart> beamParts(const Project& project);

/// What a diagram covers, in units below Y0.
[[nodiscard]] DiagramArea diagramArea(Diagram diagram, DiagramMode mode);
/// Height of that area: on paper 98, or more where two diagrams stand above each other.
[[nodiscard]] double diagramHeight(Diagram diagram, DiagramMode mode);

/// The title as drawn: "SLS - Uz (mm)".
[[nodiscard]] std::string diagramTitle(Diagram diagram, const Project& project);

/// Name for the command line and for file names: "SlsUz".
[[nodiscard]] const char* diagramName(Diagram diagram);

/// The walk whose positions a diagram shows.
[[nodiscard]] WalkOf walkOf(Diagram diagram);

/// The diagrams that stand in one picture, from top to bottom. Names are those of a node of the result tree ("MyVz",
/// "Uz", "Cr1Sp2", "CrRz"), "Sketch", or of a single diagram; capitals are not regarded. Empty for an unknown name, for
/// crane 2 with one crane, and for "MzVy" without horizontal loads.
[[nodiscard]] std::vector<Diagram> pictureDiagrams(std::string_view name, const Project& project);
/// All names that pictureDiagrams knows.
[[nodiscard]] std::vector<std::string> pictureNames();

/// Draws a picture for screen or file: lays the logical frame over the whole surface, white paper, the diagrams one
/// below the other.
void drawPicture(DrawingSurface& surface, std::span<const Diagram> diagrams, const DiagramData& data,
                 const BeamPart& part = {}, DiagramLayer layer = DiagramLayer::All);

/// The height of a picture, in the units of a diagram that is 1000 wide.
[[nodiscard]] double pictureHeight(std::span<const Diagram> diagrams);

/// The logical frame that a picture lays over its surface: the 1000 units of a diagram and a margin beside them.
struct PictureFrame {
    double left, top, right, bottom;
    /// The logical place of a point of a surface. @param width, height  of the surface, in the units of the point
    [[nodiscard]] Place placeOf(double x, double y, double width, double height) const;
    /// The point of a surface that shows a logical place: the inverse of placeOf.
    [[nodiscard]] Place pointOf(Place place, double width, double height) const;
};
[[nodiscard]] PictureFrame pictureFrame(std::span<const Diagram> diagrams);

}  // namespace borvik
