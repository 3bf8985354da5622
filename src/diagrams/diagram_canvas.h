#pragma once

#include <array>
#include <functional>
#include <vector>

#include "diagrams/diagram_kind.h"
#include "diagrams/label_placer.h"

namespace borvik {

/// The largest value of a panel takes this many units.
constexpr double kAmplitude = 40.0;

/// A diagram being drawn: frame, title, beam line and labels, common to all members of the family.
class DiagramCanvas {
public:
    DiagramCanvas(DrawingSurface& surface, const DiagramKind& kind, const Project& project, double X0, double Y0,
                  DiagramMode mode);

    /// Frame on paper, underlined title, remark and sign sketch behind it.
    void drawHead(const std::string& remark, bool withSigns);
    /// A beam line with a mark over each support.
    void drawBeam(double y, Colour colour);
    void drawLine(Place from, Place to, Colour colour, int pen);
    /// A curve over the spans, tinted down to its base. @param at  y of (span, point)
    void drawCurve(double base, const std::function<double(int, int)>& at, Colour line, Colour tint);
    /// All labels added to `labels`.
    void drawLabels();

    /// x of a place on the beam. @param position  mm from the left support of the span
    [[nodiscard]] double x(int span, double position) const;
    /// x of a support, 1..NofSpans + 1.
    [[nodiscard]] double supportX(int support) const;
    /// Units a mm along the beam.
    [[nodiscard]] double unitsPerMm() const { return total_ > 0.0 ? kBeamLength / total_ : 0.0; }
    /// PenWidth(1) to PenWidth(3); 1 is the width of ordinary lines.
    [[nodiscard]] double penWidth(int number) const { return penWidth_[static_cast<std::size_t>(number - 1)]; }

    DrawingSurface& surface;
    const Project& project;
    const DiagramMode mode;
    const double X0, Y0;
    const DiagramLayout& layout;  ///< heights below Y0
    const Font labelFont;
    LabelPlacer labels;

private:
    [[nodiscard]] double remarkLeft(const Box& title) const;
    [[nodiscard]] bool remarkFits(const std::string& remark, const Box& title, double right);
    void drawRemark(const std::string& remark, const Box& title, double right);

    const DiagramKind& kind_;
    std::array<double, 3> penWidth_;
    double total_ = 0.0;          ///< length of the beam, mm
    std::vector<double> starts_;  ///< mm from the beam's start to each support
};

/// Width of the axes and signs in the current font.
[[nodiscard]] double signsWidth(const DrawingSurface& surface, const DiagramKind& kind);
/// Axes and positive signs, right-aligned in one row of a title. @return what they cover
Box drawSigns(DrawingSurface& surface, const DiagramKind& kind, Place topRight);

}  // namespace borvik
