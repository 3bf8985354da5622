#pragma once

#include <string>
#include <vector>

#include "diagrams/diagram_kind.h"
#include "platform/drawing_surface.h"

namespace borvik {

/// Every member but the sketch: forces, deflections, stresses, ranges, reactions.
/// @return labels that found no room, as they read in a list: "Span 2: My=-66.2  L=5000 mm"
std::vector<std::string> drawResultDiagram(DrawingSurface& surface, const DiagramKind& kind, const DiagramData& data,
                                           double X0, double Y0, DiagramMode mode, const BeamPart& part,
                                           DiagramLayer layer);

/// The beam with sections, splices and wheels.
/// @return what found no room, as it reads in a list: "Span 2: 5000, HEA 300", "Wheel 3: Vk = 45.0, Hk = 0.0"
std::vector<std::string> drawBeamSketch(DrawingSurface& surface, const DiagramData& data, double X0, double Y0,
                                        DiagramMode mode, const BeamPart& part, DiagramLayer layer);

}  // namespace borvik
