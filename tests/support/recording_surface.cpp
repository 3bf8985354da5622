#include "support/recording_surface.h"

#include <algorithm>
#include <cmath>
#include <sstream>
#include <utility>

namespace borvik {
namespace {

std::string general(double number) {
    std::ostringstream out;
    out << number;
    return out.str();
}

double tenths(double number) {
    return std::floor(10.0 * number + 0.5) / 10.0;
}

std::string shown(Place place) {
    std::ostringstream out;
    out << '(' << tenths(place.x) << ' ' << tenths(place.y) << ')';
    return out.str();
}

std::string shown(std::span<const Place> places) {
    std::string all;
    for (const Place place : places) all += shown(place);
    return all;
}

std::string shown(Colour colour) {
    std::ostringstream out;
    out << int(colour.red) << ' ' << int(colour.green) << ' ' << int(colour.blue);
    return out.str();
}

/// Characters of a UTF-8 text: bytes that don't continue one.
std::size_t characters(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

}  // namespace

bool RecordingSurface::hasText(std::string_view wanted) const {
    return std::any_of(texts.begin(), texts.end(), [wanted](const Text& text) { return text.text == wanted; });
}

void RecordingSurface::scale(double newLeft, double newTop, double newRight, double newBottom) {
    left = newLeft;
    top = newTop;
    right = newRight;
    bottom = newBottom;
}

void RecordingSurface::line(Place from, Place to) {
    lines.push_back({from, to, colour_, penWidth_});
    draw("line " + shown(from) + " " + shown(to));
}

void RecordingSurface::polyline(std::span<const Place> places) {
    for (std::size_t i = 1; i < places.size(); ++i) lines.push_back({places[i - 1], places[i], colour_, penWidth_});
    draw("polyline " + shown(places));
}

void RecordingSurface::polygon(std::span<const Place> places, Colour fill) {
    polygons.emplace_back(places.begin(), places.end());
    draw("polygon " + shown(fill) + ": " + shown(places));
}

void RecordingSurface::rectangle(Place corner, Place opposite) {
    rectangles.emplace_back(corner, opposite);
    draw("rectangle " + shown(corner) + " " + shown(opposite));
}

void RecordingSurface::circle(Place centre, double radius) {
    circles.push_back({centre, radius});
    draw("circle " + shown(centre) + " " + general(radius));
}

void RecordingSurface::text(Place corner, std::string_view text, TextDirection direction) {
    const Extent box = extent(text, direction);
    texts.push_back(
        {std::string(text), corner.x, corner.y, corner.x + box.width, corner.y + box.height, font_, colour_});
    draw(std::string(direction == TextDirection::Up ? "upwards " : "text ") + shown(corner) + " " + std::string(text));
}

void RecordingSurface::draw(const std::string& primitive) {
    const bool written = primitive.starts_with("text") || primitive.starts_with("upwards");
    for (const auto& [kind, state] : states_)
        if (kind == "colour" || (kind == "font") == written)
            if (std::exchange(logged_[kind], state) != state) log_ += kind + " " + state + "\n";
    log_ += primitive + "\n";
}

void RecordingSurface::setFont(const Font& font) {
    font_ = font;
    states_["font"] = std::string(font.name) + " " + general(font.points) + (font.bold ? " bold" : "") +
                      (font.underline ? " underlined" : "");
}

void RecordingSurface::setColour(Colour colour) {
    colour_ = colour;
    states_["colour"] = shown(colour);
}

void RecordingSurface::setFill(std::optional<Colour> fill) {
    states_["fill"] = fill ? shown(*fill) : "none";
}

void RecordingSurface::setPenWidth(double penWidth) {
    penWidth_ = penWidth;
    states_["pen"] = general(penWidth);
}

void RecordingSurface::setDashed(bool dashed) {
    states_["dashed"] = dashed ? "yes" : "no";
}

Extent RecordingSurface::extent(std::string_view text, TextDirection direction) const {
    const double high = font_.points * 96.0 / 72.0 * 1.2;
    const double wide = 0.5 * high / 1.2 * static_cast<double>(characters(text));
    const double unitsPerPixelX = (right - left) / width_;
    const double unitsPerPixelY = (bottom - top) / height_;
    if (direction == TextDirection::Across) return {wide * unitsPerPixelX, high * unitsPerPixelY};
    return {high * unitsPerPixelX, wide * unitsPerPixelY};
}

}  // namespace borvik
