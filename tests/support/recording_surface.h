#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace borvik {

/// Keeps what is drawn as data, so that a test can read a drawing: which texts stand where, what they cover, which
/// lines meet them. Text is measured as if every character were half as wide as it is high.
class RecordingSurface : public DrawingSurface {
public:
    struct Text {
        std::string text;
        double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
        Font font;
        Colour colour;
    };
    struct Line {
        Place from, to;
        Colour colour;
        double penWidth = 1.0;
    };
    struct Circle {
        Place centre;
        double radius = 0.0;
    };

    /// @param width, height  of the area in pixels; a point of text is 96/72 pixels high
    RecordingSurface(double width, double height) : width_(width), height_(height) {}

    std::vector<Text> texts;
    std::vector<Line> lines;  ///< polylines piece by piece
    std::vector<std::vector<Place>> polygons;
    std::vector<std::pair<Place, Place>> rectangles;
    std::vector<Circle> circles;
    double left = 0.0, top = 0.0, right = 1.0, bottom = 1.0;  ///< the logical frame

    /// Everything drawn, one primitive a line, in the order of drawing, with pens and fonts where they change. Places
    /// are rounded to a tenth.
    [[nodiscard]] std::string log() const { return log_; }
    /// True when some text is exactly `text`.
    [[nodiscard]] bool hasText(std::string_view text) const;

    void scale(double newLeft, double newTop, double newRight, double newBottom) override;
    void line(Place from, Place to) override;
    void polyline(std::span<const Place> places) override;
    void polygon(std::span<const Place> places, Colour fill) override;
    void picture(Place, Place, const std::string&) override {}
    [[nodiscard]] FormulaExtent formulaExtent(std::string_view tex) const override {
        const Extent box = extent(tex, TextDirection::Across);
        return {box.width, 0.8 * box.height, 0.2 * box.height};
    }
    void formula(Place start, std::string_view tex) override {
        text({start.x, start.y - formulaExtent(tex).above}, tex, TextDirection::Across);
    }
    void rectangle(Place corner, Place opposite) override;
    void circle(Place centre, double radius) override;
    void text(Place corner, std::string_view text, TextDirection direction) override;
    [[nodiscard]] Extent extent(std::string_view text, TextDirection direction) const override;
    void setFont(const Font& font) override;
    void setColour(Colour colour) override;
    void setFill(std::optional<Colour> fill) override;
    void setPenWidth(double penWidth) override;
    void setDashed(bool dashed) override;
    [[nodiscard]] double unitsPerMillimetre() const override { return 96.0 / 25.4; }

private:
    /// Logs a primitive, and before it the pen, fill or font that it is drawn with where that was logged otherwise.
    void draw(const std::string& primitive);

    double width_, height_;
    Font font_;
    Colour colour_;
    double penWidth_ = 1.0;
    std::map<std::string, std::string> states_, logged_;
    std::string log_;
};

}  // namespace borvik
