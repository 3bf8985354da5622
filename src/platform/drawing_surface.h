#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace borvik {

/// A place in the logical frame of a surface.
struct Place {
    double x = 0.0, y = 0.0;
};

/// Width and height, each in the logical units of its own direction.
struct Extent {
    double width = 0.0, height = 0.0;
};

struct Colour {
    std::uint8_t red = 0, green = 0, blue = 0;
    bool operator==(const Colour&) const = default;
};

namespace colours {
constexpr Colour black{0, 0, 0};
constexpr Colour white{255, 255, 255};
constexpr Colour red{255, 0, 0};
constexpr Colour blue{0, 0, 255};
constexpr Colour grey{110, 110, 110};
}  // namespace colours

enum class TextDirection {
    Across,  ///< left to right
    Up,      ///< from below upwards, for places where a line of text has no room
};

/// A font by name, size in points and style. A name that isn't installed is replaced by an installed sans serif font, a
/// narrow one for a narrow name.
struct Font {
    std::string_view name = "Arial";
    double points = 9.0;
    bool bold = false;
    bool underline = false;
};

/// Anything that diagrams and pages are drawn on: a window, a picture file, a printed page. Places are logical: `scale`
/// lays a frame over the whole area and the two directions stretch on their own, so a drawing fills whatever area it
/// gets. Text keeps its size in points, so a drawing asks for extents before it places text. Pen, fill and font stay
/// until they are changed.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    /// Lays the logical frame over the area; y grows downwards.
    virtual void scale(double left, double top, double right, double bottom) = 0;

    virtual void line(Place from, Place to) = 0;
    virtual void polyline(std::span<const Place> places) = 0;
    /// Filled only, without an outline.
    virtual void polygon(std::span<const Place> places, Colour fill) = 0;
    /// Outline in the pen's colour, inside as setFill says.
    virtual void rectangle(Place corner, Place opposite) = 0;
    /// A picture file (PNG, JPEG or SVG) as large as fits between two corners, in its proportions, in the middle of
    /// that box; nothing where it can't be read.
    virtual void picture(Place corner, Place opposite, const std::string& file) = 0;
    /// A true circle whatever the two scales are. @param radius  in vertical units
    virtual void circle(Place centre, double radius) = 0;
    /// @param corner  upper left corner of the box that the text covers
    /// @param text    UTF-8, one line
    virtual void text(Place corner, std::string_view text, TextDirection direction = TextDirection::Across) = 0;

    /// The box that a text covers in the current font.
    [[nodiscard]] virtual Extent extent(std::string_view text,
                                        TextDirection direction = TextDirection::Across) const = 0;
    [[nodiscard]] double textWidth(std::string_view text) const { return extent(text).width; }
    [[nodiscard]] double textHeight() const { return extent("H").height; }

    /// What a formula covers in the current font.
    struct FormulaExtent {
        double width = 0.0, above = 0.0, below = 0.0;  ///< of the baseline
    };
    /// @param tex  in the part of TeX that the manuals use
    [[nodiscard]] virtual FormulaExtent formulaExtent(std::string_view tex) const = 0;
    /// @param start  left end of the baseline
    virtual void formula(Place start, std::string_view tex) = 0;

    virtual void setFont(const Font& font) = 0;
    /// Colour of lines and text.
    virtual void setColour(Colour colour) = 0;
    /// Inside of rectangles and circles; nothing leaves them transparent.
    virtual void setFill(std::optional<Colour> fill) = 0;
    /// @param width  in the surface's own units: pixels of a screen, dots of a printer
    virtual void setPenWidth(double width) = 0;
    virtual void setDashed(bool dashed) = 0;
    /// Pen widths given in millimetres become the surface's own units by this factor.
    [[nodiscard]] virtual double unitsPerMillimetre() const = 0;
};

}  // namespace borvik
