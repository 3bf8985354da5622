#pragma once

#include "platform/drawing_surface.h"
#include "tables/reference_tables.h"

namespace borvik {

/// Draws a section to scale, with its dimensions as texts on its right: "H = ", "B = ", "tw = ", "tf = ".
/// @param corner, size  the room, in the logical units of the surface
/// @param unit          millimetres on paper of one logical unit in each direction
/// @param font          of the texts
void drawSectionSketch(DrawingSurface& surface, const SectionRecord& section, Place corner, Extent size, Extent unit,
                       const Font& font);

}  // namespace borvik
