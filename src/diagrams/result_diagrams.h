#pragma once

#include "diagrams/diagram_kind.h"
#include "platform/drawing_surface.h"

namespace borvik {

/// Every member but the sketch: forces, deflections, stresses, ranges, reactions.
void drawResultDiagram(DrawingSurface& surface, const DiagramKind& kind, const DiagramData& data, double X0, double Y0,
                       DiagramMode mode);

/// The beam with sections, splices and wheels.
void drawBeamSketch(DrawingSurface& surface, const Project& project, double X0, double Y0, DiagramMode mode);

}  // namespace borvik
