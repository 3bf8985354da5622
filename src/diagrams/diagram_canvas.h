#pragma once

#include <array>
#include <functional>
#include <vector>

#include "diagrams/diagram_kind.h"
#include "diagrams/label_placer.h"

namespace borvik {

/// From left to right, units.
struct Stretch {
    double left, right;
};

/// A diagram being drawn: frame, title, beam line and labels, common to all members of the family.
class DiagramCanvas {
public:
    DiagramCanvas(DrawingSurface& surface, const DiagramKind& kind, const Project& project, double X0, double Y0,
                  DiagramMode mode, const BeamPart& part);

    /// Frame on paper, underlined title, remark and sign sketch behind it.
    /// @param toScale  the drawing is to scale whatever its title says of the cranes
    void drawHead(const std::string& ofDiagram, bool withSigns, bool toScale = false);
    /// A beam line with a mark over each support.
    void drawBeam(double y, Colour colour);
    void drawLine(Place from, Place to, Colour colour, int pen);
    /// A curve over the spans, tinted down to its base or, without a tint, a thicker line alone.
    /// @param at  y of (span, point)
    void drawCurve(double base, const std::function<double(int, int)>& at, Colour line, std::optional<Colour> tint);
    /// All labels added to `labels`. @return those that found no room, as they read in a list
    std::vector<std::string> drawLabels();

    /// x of a place on the beam. @param position  mm from the left support of the span
    [[nodiscard]] double x(int span, double position) const;
    /// x of a support, 1..NofSpans + 1.
    [[nodiscard]] double supportX(int support) const;
    /// x of a place that the whole beam would have at `units` from the left edge.
    [[nodiscard]] double xOfWhole(double units) const;
    /// x of the ends of the beam, or of the part that is drawn.
    [[nodiscard]] double left() const { return left_; }
    [[nodiscard]] double right() const { return right_; }
    /// True for a place within the part of the beam that is drawn.
    [[nodiscard]] bool shows(double x) const;
    /// True for a span of which a part is drawn.
    [[nodiscard]] bool showsSpan(int span) const;
    /// The room across that belongs to a span; that of an end span goes on to the edge of the drawing.
    [[nodiscard]] Stretch placeOfSpan(int span) const;
    /// Half a span on both sides of a support.
    [[nodiscard]] Stretch placeOfSupport(int support) const;
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
    /// The piece of a curve within the part of the beam that is drawn.
    [[nodiscard]] std::vector<Place> cut(std::vector<Place> curve) const;
    [[nodiscard]] Stretch clipped(Stretch place) const;
    /// "Spans 9 to 16 of 30", where the drawing shows a part of the beam; else nothing.
    [[nodiscard]] std::string spansShown() const;
    [[nodiscard]] double remarkLeft(const Box& title) const;
    [[nodiscard]] bool remarkFits(const std::string& remark, const Box& title, double right);
    void drawRemark(const std::string& remark, const Box& title, double right);

    const DiagramKind& kind_;
    std::array<double, 3> penWidth_;
    double total_ = 0.0;            ///< length of the beam, mm
    double from_ = 0.0, to_ = 0.0;  ///< mm where the drawing begins and ends
    double unitsPerMm_ = 0.0;
    double left_ = 0.0, right_ = 0.0;  ///< x of both
    std::vector<double> starts_;       ///< mm from the beam's start to each support
};

/// Width of the axes and signs in the current font.
[[nodiscard]] double signsWidth(const DrawingSurface& surface, const DiagramKind& kind);
/// Axes and positive signs, right-aligned in one row of a title. @return what they cover
Box drawSigns(DrawingSurface& surface, const DiagramKind& kind, Place topRight);

}  // namespace borvik
