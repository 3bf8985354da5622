#pragma once

#include <array>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "diagrams/diagram.h"

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

/// An extreme of a span that is written beside the curves.
struct PeakLabel {
    int span = 0;
    double position = 0.0;  ///< mm from the left support of the span
    double value = 0.0;     ///< where it stands beside the line
    std::string text;       ///< "My=-66.2"
    /// Before and behind the position: "  L=", " mm". Both empty where the position isn't written.
    std::string before = {}, after = {};
    bool inRow = false;                     ///< below the deepest curve, in a row with the others
    std::array<CraneStand, 2> stands = {};  ///< where the cranes stand then
};

/// A beam line with its curves, one of a diagram's one or two.
struct Panel {
    std::string unit;
    Upwards upwards = Upwards::Positive;
    std::vector<Curve> curves;
    std::vector<PeakLabel> peaks;
    bool oneSided = false;              ///< all curves stand on one side
    std::optional<Effect> effect = {};  ///< what is enveloped; a range has no value at a single position
};

/// The texts at a support.
struct SupportText {
    std::vector<std::string> lines;                      ///< "Rz=+12.3/-4.5"
    std::vector<std::vector<std::string>> shorter = {};  ///< "+12.3/-4.5" and the like, where that is plain enough
    double value = 0.0;                                  ///< the largest magnitude
    CraneStand stand = {};                               ///< of that
};
using SupportTexts = std::vector<SupportText>;  ///< [support - 1]

/// Heights of a diagram in units below its origin.
struct DiagramLayout {
    DiagramArea area;
    std::vector<double> bases;  ///< beam line of each panel
    double supportRow = 0.0;    ///< top of the texts at the supports
};

/// A symbol that shows which way a quantity is positive.
struct Sign {
    enum class Shape { Moment, Shear } shape;
    const char* text;  ///< "+My"
};

enum class StressQuantity { Top, Bottom, Shear };

/// All that is known of one diagram.
struct DiagramKind {
    Diagram id;
    const char* name;  ///< for the command line and for file names
    const char* title;
    DiagramLayout screen, paper;
    /// The title where it depends on the project.
    std::string (*titleOf)(const DiagramKind&, const Project&) = nullptr;
    /// From top to bottom. None for the sketch and the reactions; called with results only.
    std::vector<Panel> (*panels)(const DiagramKind&, const DiagramData&) = nullptr;
    /// Called with results only.
    SupportTexts (*supportTexts)(const DiagramData&, bool horizontal) = nullptr;
    const char* remark = "";  ///< behind the title: the side of the moments, the sign of the stresses
    std::vector<Sign> signs = {};
    bool horizontal = false;  ///< of the horizontal plane: empty without horizontal wheel loads
    int crane = 0;            ///< 1 or 2 where it shows the stresses of one crane
    StressQuantity quantity = StressQuantity::Top;
    bool range = false;  ///< stress ranges
    WalkOf walk = WalkOf::Uls;

    /// Without horizontal loads there are no diagrams of that plane, with one crane none of the second.
    [[nodiscard]] bool isAvailable(const Project& project) const;
    [[nodiscard]] const DiagramLayout& layout(DiagramMode mode) const {
        return mode == DiagramMode::Screen ? screen : paper;
    }
};

/// The diagrams that stand in one picture, and where the result tree shows it.
struct PictureKind {
    const char* name;      ///< for the command line and as key of the node
    const char* node;      ///< text of the node
    const char* group;     ///< text of the head that it stands below; empty for none
    const char* helpPage;  ///< of docs/help
    std::vector<Diagram> diagrams;

    /// True where all that it shows is of the horizontal plane.
    [[nodiscard]] bool needsLoadsY() const;
    /// 2 where it shows the second of two cranes.
    [[nodiscard]] int crane() const;
};

[[nodiscard]] std::span<const DiagramKind> diagramKinds();
[[nodiscard]] const DiagramKind& diagramKind(Diagram diagram);
/// In the order of the result tree.
[[nodiscard]] std::span<const PictureKind> pictureKinds();

/// The panels of a diagram from top to bottom; none for the sketch and the reactions, and where results are missing.
[[nodiscard]] std::vector<Panel> diagramPanels(const DiagramKind& kind, const DiagramData& data);
/// Empty where a diagram has none.
[[nodiscard]] SupportTexts supportTexts(const DiagramKind& kind, const DiagramData& data);
[[nodiscard]] std::string diagramRemark(const DiagramKind& kind, const DiagramData& data);
[[nodiscard]] std::string diagramTitle(const DiagramKind& kind, const Project& project);

/// The largest value of a panel takes this many units.
constexpr double kAmplitude = 40.0;
/// The largest magnitude of a panel's curves, or 1 where all is zero, so that an empty diagram is a flat line.
[[nodiscard]] double largestOf(const Panel& panel, const Project& project);
/// Units below the beam's line at which a value stands. @param largest  of the panel
[[nodiscard]] double offsetOf(const Panel& panel, double value, double largest);

}  // namespace borvik
