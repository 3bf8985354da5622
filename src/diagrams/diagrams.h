#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calculation/session.h"
#include "platform/drawing_surface.h"

namespace borvik {

/// The members of the family. The stress diagrams stand crane by crane, in the same order.
enum class Diagram {
    Sketch,  ///< the beam with its cranes, or with its hoist
    UlsMyVz,
    UlsMzVy,
    SlsUz,
    SlsUy,
    Cr1Top,
    Cr1TopRange,
    Cr1Bottom,
    Cr1BottomRange,
    Cr1Shear,
    Cr1ShearRange,
    Cr2Top,
    Cr2TopRange,
    Cr2Bottom,
    Cr2BottomRange,
    Cr2Shear,
    Cr2ShearRange,
    FlsReactions,
};
constexpr int kDiagrams = static_cast<int>(Diagram::FlsReactions) + 1;

enum class DiagramMode { Screen, Paper };

/// What the diagrams read. Only the sketch does without results.
struct DiagramData {
    const Project& project;
    const Results* results = nullptr;
};

/// Draws one diagram. It is 1000 units wide, the beam from X0 + 50 to X0 + 950; the largest value takes 40 units. On
/// paper a frame stands around it, from (X0 - 5, Y0 - 10) to X0 + 1010 and as deep as diagramArea says. The logical
/// frame of the surface must have been set; DrawPicture does so. The drawing is meant for white paper, on the screen
/// too. A diagram without results is empty but for its title and the beam.
void DrawDiagram(DrawingSurface& surface, Diagram diagram, const DiagramData& data, double X0, double Y0,
                 DiagramMode mode);

/// What a diagram covers from top to bottom, in units below Y0.
struct DiagramArea {
    double top, bottom;
};
[[nodiscard]] DiagramArea diagramArea(Diagram diagram, DiagramMode mode);
/// Height of that area: on paper 98, or more where two diagrams stand above each other.
[[nodiscard]] double diagramHeight(Diagram diagram, DiagramMode mode);

/// The title as drawn: "SLS - Uz (mm)".
[[nodiscard]] std::string diagramTitle(Diagram diagram, const Project& project);

/// Name for the command line and for file names: "SlsUz". @return nothing for an unknown name
[[nodiscard]] const char* diagramName(Diagram diagram);
[[nodiscard]] std::optional<Diagram> diagramByName(std::string_view name);

/// The diagrams that stand in one picture, from top to bottom. Names are those of a node of the result tree ("MyVz",
/// "Uz", "Cr1Sp2", "CrRz"), "Sketch", or of a single diagram; capitals are not regarded. Empty for an unknown name, for
/// crane 2 with one crane, and for "MzVy" without horizontal loads.
[[nodiscard]] std::vector<Diagram> pictureDiagrams(std::string_view name, const Project& project);
/// All names that pictureDiagrams knows.
[[nodiscard]] std::vector<std::string> pictureNames();

/// Draws a picture for screen or file: lays the logical frame over the whole surface, white paper, the diagrams one
/// below the other.
void DrawPicture(DrawingSurface& surface, std::span<const Diagram> diagrams, const DiagramData& data);

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

/// What stands under the mouse.
struct DiagramReading {
    struct Quantity {
        std::string name;  ///< "My max"
        double value;      ///< between two points of calculation on the straight line
        std::string unit;
    };
    /// A point of one span.
    struct Point {
        int span = 0;           ///< 1..NofSpans
        double position = 0.0;  ///< mm from the left support of the span
        std::vector<Quantity> quantities;
    };
    Diagram diagram = Diagram::Sketch;
    std::vector<Point> points;  ///< one; two on an inner support, the end of one span and the start of the next
    /// "Span 2, x = 1250 mm: My max 123.4 kNm, My min -20.1 kNm", on an inner support
    /// "Support 2: My max 0.0 kNm, My min -1019.8 kNm, Vz max 3.1 | 240.0 kN", left and right of it where they differ.
    [[nodiscard]] std::string text() const;
};

/// Reads a picture at a logical place of its frame.
/// @param reach  units across within which a support is taken for the place
/// @return nothing left and right of the beam, or without results
[[nodiscard]] std::optional<DiagramReading> ReadPicture(std::span<const Diagram> diagrams, const DiagramData& data,
                                                        Place place, double reach = 0.0);

/// Units across of the places that are calculated, from the left: the supports, and between them 19 points in each
/// span.
/// @return nothing for a beam without length
[[nodiscard]] std::vector<double> readingStops(const Project& project, bool supportsOnly);

}  // namespace borvik
