#include "results/label_placer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace borvik {
namespace {

constexpr double kReadablePoints = 7.0;  // down to here all labels stay level
constexpr double kSmallestPoints = 6.0;  // and down to here they may stand upright
constexpr double kGap = 0.2;             // between anchor and label, in text heights
constexpr double kOtherSideCost = 4.0;   // costs are in text heights of distance
constexpr double kLineCost = 1.5;
constexpr double kCircle = 1.5;  // diameter of a circled number
constexpr double kCircleAndGap = 1.8;
constexpr double kLeaderFrom = 1.3;  // a label further away than this gets a line to its anchor

/// A place that a label could take, and what that costs.
struct Candidate {
    Box box;
    double cost;
};

double overlapArea(const Box& a, const Box& b) {
    const double width = std::min(a.right, b.right) - std::max(a.left, b.left);
    const double height = std::min(a.bottom, b.bottom) - std::max(a.top, b.top);
    return width > 0.0 && height > 0.0 ? width * height : 0.0;
}

bool touchesAny(const Box& box, const std::vector<Box>& taken) {
    return std::any_of(taken.begin(), taken.end(), [&box](const Box& other) { return box.overlaps(other); });
}

}  // namespace

bool Box::crossedBy(Place from, Place to) const {
    // Clipping of the segment against the four sides, Liang and Barsky.
    double enter = 0.0;
    double leave = 1.0;
    const auto clip = [&enter, &leave](double delta, double distance) {
        if (delta == 0.0) return distance >= 0.0;
        const double t = distance / delta;
        if (delta < 0.0)
            enter = std::max(enter, t);
        else
            leave = std::min(leave, t);
        return enter <= leave;
    };
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    return clip(-dx, from.x - left) && clip(dx, right - from.x) && clip(-dy, from.y - top) && clip(dy, bottom - from.y);
}

Em emOf(const DrawingSurface& surface) {
    return {surface.extent("H", TextDirection::Up).width, surface.extent("H", TextDirection::Across).height};
}

void drawCircled(DrawingSurface& surface, std::string_view number, Place centre) {
    surface.setFill(colours::white);
    surface.circle(centre, 0.5 * kCircle * emOf(surface).y);
    surface.setFill(std::nullopt);
    const Extent size = surface.extent(number);
    surface.text({centre.x - 0.5 * size.width, centre.y - 0.5 * size.height}, number);
}

Extent labelExtent(const DrawingSurface& surface, const Label& label, TextDirection direction) {
    Extent whole;
    for (const std::string& line : label.lines) {
        const Extent extent = surface.extent(line, direction);
        if (direction == TextDirection::Across) {
            whole.width = std::max(whole.width, extent.width);
            whole.height += extent.height;
        } else {
            whole.width += extent.width;
            whole.height = std::max(whole.height, extent.height);
        }
    }
    if (label.circled.empty()) return whole;
    const Em em = emOf(surface);
    if (direction == TextDirection::Across)
        return {whole.width + kCircleAndGap * em.x, std::max(whole.height, kCircle * em.y)};
    return {std::max(whole.width, kCircle * em.x), whole.height + kCircleAndGap * em.y};
}

Box LabelPlacer::inside(Box box) const {
    const double shiftX = std::max(0.0, frame_.left - box.left) - std::max(0.0, box.right - frame_.right);
    const double shiftY = std::max(0.0, frame_.top - box.top) - std::max(0.0, box.bottom - frame_.bottom);
    return {box.left + shiftX, box.top + shiftY, box.right + shiftX, box.bottom + shiftY};
}

int LabelPlacer::linesUnder(const Box& box) const {
    return static_cast<int>(std::count_if(lines_.begin(), lines_.end(),
                                          [&box](const Line& line) { return box.crossedBy(line.from, line.to); }));
}

std::optional<LabelPlacer::Placed> LabelPlacer::search(const DrawingSurface& surface, const Label& label,
                                                       TextDirection direction, const std::vector<Box>& taken) const {
    static constexpr std::array<double, 15> kShifts{0.0, -0.25, 0.25, -0.5, 0.5, -0.75, 0.75, -1.0,
                                                    1.0, -1.5,  1.5,  -2.0, 2.0, -3.0,  3.0};  // in label widths
    const Extent size = labelExtent(surface, label, direction);
    const Em em = emOf(surface);
    const double reach = frame_.bottom - frame_.top;

    std::vector<Candidate> candidates;
    if (label.firstChoice && direction == TextDirection::Across) {
        const Place corner = *label.firstChoice;
        candidates.push_back({inside({corner.x, corner.y, corner.x + size.width, corner.y + size.height}), -kLineCost});
    }
    for (const bool below : {label.below, !label.below})
        for (double away = 0.0; away < reach; away += 0.5 * em.y) {
            const double top =
                below ? label.anchor.y + kGap * em.y + away : label.anchor.y - kGap * em.y - away - size.height;
            if (top < frame_.top || top + size.height > frame_.bottom) break;
            for (const double shift : kShifts) {
                const double left = label.anchor.x - 0.5 * size.width + shift * size.width;
                const Box box = inside({left, top, left + size.width, top + size.height});
                const double aside = std::abs(0.5 * (box.left + box.right) - label.anchor.x) / em.x;
                candidates.push_back({box, away / em.y + 0.4 * aside + (below == label.below ? 0.0 : kOtherSideCost)});
            }
        }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate& a, const Candidate& b) { return a.cost < b.cost; });

    std::optional<Placed> best;
    double lowest = 0.0;
    for (const Candidate& candidate : candidates) {
        if (best && candidate.cost >= lowest) break;
        if (touchesAny(candidate.box, taken)) continue;
        const int crossed = linesUnder(candidate.box);
        const double cost = candidate.cost + kLineCost * std::min(crossed, 4);
        if (best && cost >= lowest) continue;
        best = Placed{candidate.box, direction, true, crossed > 0};
        lowest = cost;
    }
    return best;
}

LabelPlacer::Placed LabelPlacer::place(const DrawingSurface& surface, const Label& label, const std::vector<Box>& taken,
                                       bool upright) const {
    if (const auto placed = search(surface, label, TextDirection::Across, taken)) return *placed;
    if (upright)
        if (const auto placed = search(surface, label, TextDirection::Up, taken)) return *placed;

    // No room: upright at the anchor's height, where least is covered.
    const Extent size = labelExtent(surface, label, TextDirection::Up);
    Placed least;
    double smallest = 0.0;
    for (int shift = -8; shift <= 8; ++shift) {
        const double left = label.anchor.x - 0.5 * size.width + 0.5 * shift * size.width;
        const double top = label.below ? label.anchor.y : label.anchor.y - size.height;
        const Box box = inside({left, top, left + size.width, top + size.height});
        double covered = 0.0;
        for (const Box& other : taken) covered += overlapArea(box, other);
        if (shift > -8 && covered >= smallest) continue;
        least = {box, TextDirection::Up, false, true};
        smallest = covered;
    }
    return least;
}

std::vector<LabelPlacer::Placed> LabelPlacer::placeAll(const DrawingSurface& surface, bool upright) const {
    std::vector<Box> taken = taken_;
    std::vector<Placed> all;
    for (const Label& label : labels_) {
        all.push_back(place(surface, label, taken, upright));
        taken.push_back(all.back().box);
    }
    return all;
}

void LabelPlacer::drawLabel(DrawingSurface& surface, const Label& label, const Placed& placed) {
    const Box& box = placed.box;
    const Em em = emOf(surface);
    if (placed.onLines) {
        const std::array<Place, 4> ground{
            {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
        surface.polygon(ground, colours::white);
    }
    const Place nearest{std::clamp(label.anchor.x, box.left, box.right),
                        std::clamp(label.anchor.y, box.top, box.bottom)};
    const double away = std::hypot((nearest.x - label.anchor.x) / em.x, (nearest.y - label.anchor.y) / em.y);
    if (away > kLeaderFrom) {
        surface.setColour(colours::grey);
        surface.line(label.anchor, nearest);
    }
    surface.setColour(label.colour);
    Place corner{box.left, box.top};
    if (!label.circled.empty()) {
        const bool across = placed.direction == TextDirection::Across;
        const double halfX = 0.5 * kCircle * em.x;
        const double halfY = 0.5 * kCircle * em.y;
        drawCircled(surface, label.circled,
                    {box.left + halfX, across ? 0.5 * (box.top + box.bottom) : box.bottom - halfY});
        if (across) corner = {box.left + kCircleAndGap * em.x, 0.5 * (box.top + box.bottom - em.y)};
    }
    for (const std::string& line : label.lines) {
        surface.text(corner, line, placed.direction);
        if (placed.direction == TextDirection::Across)
            corner.y += em.y;
        else
            corner.x += em.x;
    }
}

std::vector<LabelPlacer::Placed> LabelPlacer::placeInLargest(DrawingSurface& surface, Font& font) const {
    struct Try {
        double smallestPoints;
        bool upright;
    };
    const double largest = font.points;
    std::vector<Placed> places;
    for (const Try& attempt : {Try{kReadablePoints, false}, Try{kSmallestPoints, true}})
        for (font.points = largest; font.points >= attempt.smallestPoints; font.points -= 0.5) {
            surface.setFont(font);
            places = placeAll(surface, attempt.upright);
            if (std::all_of(places.begin(), places.end(), [](const Placed& placed) { return placed.free; }))
                return places;
        }
    font.points = kSmallestPoints;
    surface.setFont(font);
    return placeAll(surface, true);
}

void LabelPlacer::draw(DrawingSurface& surface, Font font) const {
    const std::vector<Placed> places = placeInLargest(surface, font);
    for (std::size_t i = 0; i < labels_.size(); ++i) drawLabel(surface, labels_[i], places[i]);
}

}  // namespace borvik
