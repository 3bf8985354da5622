#include "diagrams/section_sketch.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "base/number_text.h"

namespace borvik {
namespace {

constexpr Colour kSteel{226, 232, 240};
constexpr Colour kPlate{196, 208, 224};

/// Right half of the outline of a section, from the axis at the top to the axis at the bottom; mm, y downwards from the
/// top, x from the web's axis.
std::vector<Place> halfOutline(const SectionRecord& s) {
    const double web = s.tw / 2.0;
    std::vector<Place> outline{{0.0, 0.0}, {s.b1 / 2.0, 0.0}, {s.b1 / 2.0, s.tf1}};
    const auto addFillet = [&](double x, double y, double from, double to) {
        constexpr int kSteps = 6;
        for (int i = 0; i <= kSteps; ++i) {
            const double angle = from + (to - from) * i / kSteps;
            outline.push_back({x + s.R * std::cos(angle), y + s.R * std::sin(angle)});
        }
    };
    const bool rolled = isRolled(s) && s.R > 0.0;
    if (rolled)
        addFillet(web + s.R, s.tf1 + s.R, -std::numbers::pi / 2.0, -std::numbers::pi);
    else
        outline.push_back({web, s.tf1});
    if (rolled)
        addFillet(web + s.R, s.h - s.tf2 - s.R, std::numbers::pi, std::numbers::pi / 2.0);
    else
        outline.push_back({web, s.h - s.tf2});
    outline.push_back({s.b2 / 2.0, s.h - s.tf2});
    outline.push_back({s.b2 / 2.0, s.h});
    outline.push_back({0.0, s.h});
    return outline;
}

/// Reinforcement plates beside the tips of the top flange, from its mid-plane downwards. "PL2" stands for plates inside
/// the tips; the calculation takes both arrangements alike.
std::vector<std::vector<Place>> plates(const SectionRecord& s) {
    if (!s.Reinforced) return {};
    const double inner = s.ReinfText == "PL2" ? s.b1 / 2.0 - s.ReinfT : +s.b1 / 2.0;
    const double top = s.ReinfText == "PL2" ? +s.tf1 : s.tf1 / 2.0;
    std::vector<std::vector<Place>> both;
    for (const double side : {-1.0, 1.0})
        both.push_back({{side * inner, top},
                        {side * (inner + s.ReinfT), top},
                        {side * (inner + s.ReinfT), top + s.ReinfD},
                        {side * inner, top + s.ReinfD}});
    return both;
}

std::vector<std::string> dimensionTexts(const SectionRecord& s) {
    const auto text = [](const char* name, double number, const char* mask) {
        return name + formatNumber(number, mask) + " mm";
    };
    const bool unequal = s.b1 != s.b2 || s.tf1 != s.tf2;
    std::vector<std::string> texts{text("H = ", s.h, "0"), text("B = ", s.b1, "0")};
    if (unequal) texts.push_back(text("B2 = ", s.b2, "0"));
    texts.push_back(text("tw = ", s.tw, "0.0"));
    texts.push_back(text("tf = ", s.tf1, "0.0"));
    if (unequal) texts.push_back(text("tf2 = ", s.tf2, "0.0"));
    if (s.Reinforced)
        texts.push_back("2 PL " + formatNumber(s.ReinfD, "0") + "x" + formatNumber(s.ReinfT, "0.0") + " mm");
    return texts;
}

}  // namespace

void drawSectionSketch(DrawingSurface& surface, const SectionRecord& section, Place corner, Extent size, Extent unit,
                       const Font& font) {
    surface.setFont(font);
    surface.setColour(colours::black);
    const std::vector<std::string> texts = dimensionTexts(section);
    double textWidth = 0.0;
    for (const std::string& text : texts) textWidth = std::max(textWidth, surface.textWidth(text));
    const double lineHeight = std::min(surface.textHeight(), size.height / static_cast<double>(texts.size()));
    for (std::size_t i = 0; i < texts.size(); ++i)
        surface.text({corner.x + size.width - textWidth, corner.y + static_cast<double>(i) * lineHeight}, texts[i]);

    const double plate = section.Reinforced ? 2.0 * section.ReinfT : 0.0;
    const double wide = std::max(+section.b1 + plate, +section.b2);
    const double high = section.h;
    const double roomX = size.width - textWidth - 1.5;
    if (!(wide > 0.0) || !(high > 0.0) || roomX <= 0.0) return;
    const double scale = std::min(roomX * unit.width / wide, size.height * unit.height / high);  // mm of paper a mm
    const double middle = corner.x + roomX / 2.0;
    const auto onPaper = [&](Place place) {
        return Place{middle + place.x * scale / unit.width, corner.y + place.y * scale / unit.height};
    };

    std::vector<Place> outline;
    const std::vector<Place> half = halfOutline(section);
    outline.reserve(2 * half.size());
    for (const Place place : half) outline.push_back(onPaper(place));
    for (auto place = half.rbegin(); place != half.rend(); ++place) outline.push_back(onPaper({-place->x, place->y}));
    constexpr double kOutlineMm = 0.25;
    surface.setPenWidth(kOutlineMm * surface.unitsPerMillimetre());
    surface.polygon(outline, kSteel);
    surface.polyline(outline);
    for (const std::vector<Place>& corners : plates(section)) {
        std::vector<Place> placed;
        placed.reserve(corners.size() + 1);
        for (const Place place : corners) placed.push_back(onPaper(place));
        placed.push_back(placed.front());
        surface.polygon(placed, kPlate);
        surface.polyline(placed);
    }
}

}  // namespace borvik
