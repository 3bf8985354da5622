#include <cmath>
#include <vector>

#include "diagrams/diagram_canvas.h"

namespace borvik {
namespace {

// In text heights.
constexpr double kRow = 1.7;  // height of a symbol with its letters
constexpr double kSymbolWidth = 2.5;
constexpr double kSymbolAndGap = 3.3;
constexpr double kAxesWidth = 2.4;

/// Draws in text heights from an upper left corner, so that a symbol keeps its shape whatever the two scales are.
class Pencil {
public:
    Pencil(DrawingSurface& surface, Place corner) : surface_(surface), corner_(corner), em_(emOf(surface)) {}

    void line(Place from, Place to) { surface_.line(on(from), on(to)); }
    void box(Place corner, Place opposite) { surface_.rectangle(on(corner), on(opposite)); }
    void text(Place corner, std::string_view text) { surface_.text(on(corner), text); }
    void arrow(Place from, Place to) {
        line(from, to);
        head(to, std::atan2(to.y - from.y, to.x - from.x));
    }
    /// Part of a circle with an arrow head at its end; angles in radians, growing clockwise on the surface.
    void arc(Place centre, double radius, double from, double to) {
        constexpr int kPieces = 12;
        std::vector<Place> places;
        for (int i = 0; i <= kPieces; ++i) {
            const double angle = from + (to - from) * i / kPieces;
            places.push_back(on({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)}));
        }
        surface_.polyline(places);
        const double quarter = to > from ? 1.5708 : -1.5708;
        head({centre.x + radius * std::cos(to), centre.y + radius * std::sin(to)}, to + quarter);
    }

private:
    void head(Place tip, double direction) {
        constexpr double kLength = 0.3;
        for (const double turn : {2.6, -2.6})
            line(tip, {tip.x + kLength * std::cos(direction + turn), tip.y + kLength * std::sin(direction + turn)});
    }
    [[nodiscard]] Place on(Place place) const { return {corner_.x + place.x * em_.x, corner_.y + place.y * em_.y}; }

    DrawingSurface& surface_;
    Place corner_;
    Em em_;
};

/// x along the beam, and the axis across it.
void drawAxes(Pencil& pencil, const char* across) {
    pencil.arrow({0.2, 1.3}, {1.5, 1.3});
    pencil.arrow({0.2, 1.3}, {0.2, 0.1});
    pencil.text({1.6, 0.6}, "x");
    pencil.text({0.45, 0.0}, across);
}

/// An element of the beam under a positive moment: tension on its lower side.
void drawMoment(Pencil& pencil) {
    pencil.box({0.6, 0.55}, {1.8, 0.95});
    pencil.arc({0.6, 0.75}, 0.5, 1.9, 4.2);
    pencil.arc({1.8, 0.75}, 0.5, 1.25, -1.05);
}

/// An element of the beam under a positive shear force.
void drawShear(Pencil& pencil) {
    pencil.box({0.6, 0.55}, {1.8, 0.95});
    pencil.arrow({0.3, 1.35}, {0.3, 0.15});
    pencil.arrow({2.1, 0.15}, {2.1, 1.35});
}

}  // namespace

double signsWidth(const DrawingSurface& surface, const DiagramKind& kind) {
    const Em em = emOf(surface);
    double width = kAxesWidth * em.x;
    for (const Sign& sign : kind.signs) width += kSymbolAndGap * em.x + surface.textWidth(sign.text);
    return width;
}

Box drawSigns(DrawingSurface& surface, const DiagramKind& kind, Place topRight) {
    const Em em = emOf(surface);
    double left = topRight.x - signsWidth(surface, kind);
    const Box covered{left, topRight.y, topRight.x, topRight.y + kRow * em.y};

    surface.setColour(colours::grey);
    for (const Sign& sign : kind.signs) {
        Pencil pencil(surface, {left, topRight.y});
        (sign.shape == Sign::Shape::Moment ? drawMoment : drawShear)(pencil);
        pencil.text({kSymbolWidth, 0.25}, sign.text);
        left += kSymbolAndGap * em.x + surface.textWidth(sign.text);
    }
    Pencil pencil(surface, {left, topRight.y});
    drawAxes(pencil, kind.horizontal ? "y" : "z");
    surface.setColour(colours::black);
    return covered;
}

}  // namespace borvik
