#include "support/recording_surface.h"

#include <algorithm>
#include <sstream>

namespace borvik {
namespace {

std::string shown(Place place) {
    std::ostringstream out;
    out << '(' << place.x << ' ' << place.y << ')';
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
    log_ += "line " + shown(from) + " " + shown(to) + "\n";
}

void RecordingSurface::polyline(std::span<const Place> places) {
    for (std::size_t i = 1; i < places.size(); ++i) line(places[i - 1], places[i]);
}

void RecordingSurface::polygon(std::span<const Place> places, Colour) {
    polygons.emplace_back(places.begin(), places.end());
    log_ += "polygon of " + std::to_string(places.size()) + "\n";
}

void RecordingSurface::rectangle(Place corner, Place opposite) {
    rectangles.emplace_back(corner, opposite);
    log_ += "rectangle " + shown(corner) + " " + shown(opposite) + "\n";
}

void RecordingSurface::circle(Place centre, double radius) {
    circles.push_back({centre, radius});
    log_ += "circle " + shown(centre) + "\n";
}

void RecordingSurface::text(Place corner, std::string_view text, TextDirection direction) {
    const Extent box = extent(text, direction);
    texts.push_back(
        {std::string(text), corner.x, corner.y, corner.x + box.width, corner.y + box.height, font_, colour_});
    log_ += "text " + shown(corner) + " " + std::string(text) + "\n";
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
