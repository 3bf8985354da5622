#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "diagrams/diagram.h"
#include "platform/drawing_surface.h"

namespace borvik {

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
/// @param part   of the beam that the picture shows
/// @return nothing left and right of the beam, or without results
[[nodiscard]] std::optional<DiagramReading> readPicture(std::span<const Diagram> diagrams, const DiagramData& data,
                                                        Place place, double reach = 0.0, BeamPart part = {});

/// The positions of the cranes behind the extreme that stands at a logical place of a picture, or behind the reactions
/// written there; not known where there is none.
[[nodiscard]] std::array<CraneStand, 2> standsAt(std::span<const Diagram> diagrams, const DiagramData& data,
                                                 Place place, BeamPart part = {});
/// The diagram that has the envelope of what a position of the cranes makes extreme. Both cranes together, as fatigue
/// takes them, have none of their own: then that of crane 1.
[[nodiscard]] Diagram diagramOf(const CraneStand& stand);
/// The diagrams of the picture that it stands in.
[[nodiscard]] std::vector<Diagram> pictureOf(const CraneStand& stand, const Project& project);

/// Units across of the places that are calculated, from the left: the supports, and between them 19 points in each
/// span. Those outside the part that is shown lie outside the picture.
/// @return nothing for a beam without length
[[nodiscard]] std::vector<double> readingStops(const Project& project, bool supportsOnly, BeamPart part = {});

}  // namespace borvik
