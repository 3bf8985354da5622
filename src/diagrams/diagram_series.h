#pragma once

#include <functional>
#include <string>
#include <vector>

#include "diagrams/diagrams.h"

namespace borvik {

/// How a value is turned into a place beside the beam's line.
enum class Upwards {
    Positive,  ///< positive above: shear, stress, range
    Negative,  ///< positive below: a moment stands on the side of its tension
    Never,     ///< the magnitude below: a deflection
};

/// One curve, in the units shown.
struct Curve {
    std::string name;                    ///< "My max"
    std::function<double(int, int)> at;  ///< (span 1..n, point 1..21)
};

/// An extreme that is written beside the curves.
struct PeakLabel {
    int span = 0;
    double position = 0.0;  ///< mm from the left support of the span
    double value = 0.0;     ///< where it stands beside the line
    std::string text;
};

/// A beam line with its curves, one of a diagram's one or two.
struct Panel {
    std::string unit;
    Upwards upwards = Upwards::Positive;
    std::vector<Curve> curves;
    std::vector<PeakLabel> peaks;
    bool oneSided = false;  ///< all curves stand on one side
};

/// The panels of a diagram from top to bottom; none for the sketch and the reactions, and where results are missing.
[[nodiscard]] std::vector<Panel> diagramPanels(Diagram diagram, const DiagramData& data);

/// Lines of text at each support: "Rz=+12.3/-4.5". Empty where a diagram has none.
/// @return [support - 1][line]
[[nodiscard]] std::vector<std::vector<std::string>> supportTexts(Diagram diagram, const DiagramData& data);

/// The side of the moments, the sign of the stresses: the remark behind the title.
[[nodiscard]] std::string signRemark(Diagram diagram, const DiagramData& data);

/// True for the diagrams of the horizontal plane.
[[nodiscard]] constexpr bool isHorizontal(Diagram diagram) {
    return diagram == Diagram::UlsMzVy || diagram == Diagram::SlsUy;
}

/// A stress diagram by crane, quantity and kind; the twelve of them differ in nothing else.
struct StressDiagram {
    int crane = 0;  ///< 1 or 2; 0 for a diagram that isn't one of stresses
    enum class Quantity { Top, Bottom, Shear } quantity = Quantity::Top;
    bool range = false;
};
[[nodiscard]] StressDiagram stressDiagram(Diagram diagram);

}  // namespace borvik
