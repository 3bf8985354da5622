#pragma once

#include "diagrams/diagram_canvas.h"

namespace borvik {

/// Lines of forces, deflections or stresses at a single position of the cranes, and what belongs to it.
inline constexpr Colour kMomentary{190, 0, 130};

/// Draws into a diagram of envelopes what the driven cranes give where they stand: a line in each panel, its value at
/// the point that is looked at, and a dot at each extreme that the line touches. Nothing where the cranes take another
/// walk than the diagram's.
void drawMomentary(DiagramCanvas& canvas, const DiagramKind& kind, const DiagramData& data);

/// A text beside a point, on white ground: on the side given, the other where the frame ends.
void drawMarkedText(DiagramCanvas& canvas, Place point, const std::string& text, bool below);

/// "Crane 1: span 2, 4600 mm; crane 2: span 3, 800 mm": where the first wheels of the cranes stand.
[[nodiscard]] std::string craneText(const Project& project, const CraneDrive& drive);
/// "My, span 2, x = 3000 mm": what the cranes were put there for. Empty where they were only driven.
[[nodiscard]] std::string standText(const Project& project, const CraneStand& stand);

}  // namespace borvik
