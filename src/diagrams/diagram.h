#pragma once

#include "calculation/crane_drive.h"
#include "calculation/session.h"

namespace borvik {

/// The diagrams. What each of them is called, shows and looks like is a row of diagram_table.cpp.
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

enum class DiagramMode { Screen, Paper };

/// What the diagrams read. Only the sketch does without results.
struct DiagramData {
    const Project& project;
    const Results* results = nullptr;
    const CraneDrive* drive = nullptr;  ///< cranes to be shown where they stand, with the forces there
};

/// What of a drawing: all, or apart what a moving crane leaves as it is and what moves with it.
enum class DiagramLayer { All, Still, Moving };

/// What a diagram covers from top to bottom, in units below its origin.
struct DiagramArea {
    double top, bottom;
};

/// A stretch of the beam, mm from its start: a beam of many spans is shown in parts. The default is the whole beam.
struct BeamPart {
    double from = 0.0, to = 0.0;
    double across = 0.0;  ///< mm that the drawing is wide, where that is more: parts of one scale
    [[nodiscard]] bool isWhole() const { return to <= from; }
};

// Units across of every diagram: its width, and where the beam stands in it.
constexpr double kDiagramWidth = 1000.0;
constexpr double kBeamStart = 50.0;
constexpr double kBeamLength = 900.0;
// And the frame around it on paper.
constexpr double kFrameLeft = -5.0;
constexpr double kFrameRight = 1010.0;

}  // namespace borvik
