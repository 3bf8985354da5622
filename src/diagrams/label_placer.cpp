#include "diagrams/label_placer.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace borvik {
namespace {

constexpr double kReadablePoints = 7.0;  // down to here all labels stay level
constexpr double kSmallestPoints = 6.0;  // and down to here they may stand upright

// Lengths in text heights.
constexpr double kGap = 0.2;         // between anchor and label
constexpr double kBeside = 0.35;     // room kept left and right of a label
constexpr double kFarthest = 5.0;    // a label further away than this is better left out
constexpr double kLeaderFrom = 1.3;  // a label further away than this gets a line to its anchor
constexpr double kCircle = 1.4;      // diameter of a circled number
constexpr double kCircleAndGap = 1.8;

// What is unwelcome about a place, as text heights of distance that it is worth to avoid it.
constexpr double kAside = 0.4;  // a text height to the side
constexpr double kOtherSide = 2.5;
constexpr double kUpright = 3.0;
constexpr double kLeaderOverOthers = 3.0;
constexpr double kOverLine = 1.5;
constexpr int kMostLines = 4;  // more lines under a label make it no worse

// Limits of the sum.
constexpr double kStandsWell = 4.0;
constexpr double kAtHand = 1.2;  // an optional label must be so near
constexpr double kAnyCost = 1000.0;

/// The line from an anchor to a label that stands away from it; nothing where the label is close.
struct Leader {
    Place from, to;
};
std::optional<Leader> leaderOf(Place anchor, const Box& box, const Em& em) {
    const Place nearest{std::clamp(anchor.x, box.left, box.right), std::clamp(anchor.y, box.top, box.bottom)};
    const double away = std::hypot((nearest.x - anchor.x) / em.x, (nearest.y - anchor.y) / em.y);
    if (away <= kLeaderFrom) return std::nullopt;
    return Leader{anchor, nearest};
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
    int crossed = 0;
    for (const Line& line : lines_) {
        if (std::max(line.from.x, line.to.x) < box.left || std::min(line.from.x, line.to.x) > box.right) continue;
        if (box.crossedBy(line.from, line.to) && ++crossed == kMostLines) break;
    }
    return crossed;
}

std::vector<LabelPlacer::Candidate> LabelPlacer::candidates(const DrawingSurface& surface, const Label& label,
                                                            TextDirection direction) const {
    static constexpr std::array<double, 15> kShifts{0.0, -0.25, 0.25, -0.5, 0.5, -0.75, 0.75, -1.0,
                                                    1.0, -1.5,  1.5,  -2.0, 2.0, -3.0,  3.0};  // in label widths
    const Extent size = labelExtent(surface, label, direction);
    const Em em = emOf(surface);
    std::vector<Candidate> found;
    if (label.firstChoice && direction == TextDirection::Across) {
        const Place corner = *label.firstChoice;
        found.push_back({inside({corner.x, corner.y, corner.x + size.width, corner.y + size.height}), -kOverLine});
    }
    for (const bool below : {label.below, !label.below}) {
        if (label.keepSide && below != label.below) continue;
        for (int halves = 0; 0.5 * halves < kFarthest; ++halves) {
            const double away = 0.5 * halves;
            const double gap = (kGap + away) * em.y;
            const double top = below ? label.anchor.y + gap : label.anchor.y - gap - size.height;
            if (top < frame_.top || top + size.height > frame_.bottom) break;
            for (const double toTheLeft : kShifts) {  // of two places as good as each other the first one is taken
                const double shift = label.toTheRight ? -toTheLeft : toTheLeft;
                if (label.optional && shift != 0.0) break;  // it must be plain what it belongs to
                const double left = label.anchor.x + (shift - 0.5) * size.width;
                const Box box = inside({left, top, left + size.width, top + size.height});
                const double aside = std::abs(0.5 * (box.left + box.right) - label.anchor.x) / em.x;
                const double distance = away + kAside * aside;
                if (distance > kFarthest) continue;
                found.push_back({box, distance + (below == label.below ? 0.0 : kOtherSide)});
            }
        }
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const Candidate& a, const Candidate& b) { return a.cost < b.cost; });
    return found;
}

std::optional<LabelPlacer::Placed> LabelPlacer::search(const DrawingSurface& surface, const Label& label,
                                                       TextDirection direction, const std::vector<Box>& taken,
                                                       double highestCost) const {
    const Em em = emOf(surface);
    std::optional<Placed> best;
    for (const Candidate& candidate : candidates(surface, label, direction)) {
        if (best && candidate.cost >= best->cost) break;  // they come in rising order
        if (touchesAny(candidate.box, taken)) continue;
        const auto leader = leaderOf(label.anchor, candidate.box, em);
        const bool overOthers = leader && std::any_of(taken.begin(), taken.end(), [&leader](const Box& other) {
                                    return other.crossedBy(leader->from, leader->to);
                                });
        const int crossed = linesUnder(candidate.box);
        const double cost = candidate.cost + kOverLine * crossed + (overOthers ? kLeaderOverOthers : 0.0);
        if (cost > highestCost || (best && cost >= best->cost)) continue;
        best = Placed{candidate.box, direction, crossed > 0, cost};
    }
    return best;
}

std::optional<LabelPlacer::Placed> LabelPlacer::place(const DrawingSurface& surface, const Label& label,
                                                      const std::vector<Box>& taken, const Effort& effort) const {
    const double highestCost = label.optional ? kAtHand : effort.highestCost;
    const auto across = search(surface, label, TextDirection::Across, taken, highestCost);
    if (!effort.upright || label.optional || (across && across->cost <= kUpright)) return across;
    const auto up = search(surface, label, TextDirection::Up, taken, highestCost);
    if (across && up) return across->cost <= up->cost + kUpright ? across : up;
    return across ? across : up;
}

LabelPlacer::Attempt LabelPlacer::placeAll(const DrawingSurface& surface, const Effort& effort) const {
    const double beside = kBeside * emOf(surface).x;
    const auto withGap = [beside](const Box& box) {
        return Box{box.left - beside, box.top, box.right + beside, box.bottom};
    };
    std::vector<Box> taken;
    for (const Box& box : taken_) taken.push_back(withGap(box));
    Attempt attempt;
    for (const Label& label : labels_) {
        attempt.places.push_back(place(surface, label, taken, effort));
        if (const auto& placed = attempt.places.back())
            taken.push_back(withGap(placed->box));
        else if (!label.optional)
            attempt.complete = false;
        if (!attempt.complete && effort.allOrNothing) break;
    }
    return attempt;
}

LabelPlacer::Attempt LabelPlacer::placeInLargest(DrawingSurface& surface, Font& font) const {
    struct Range {
        double smallestPoints;
        Effort effort;
    };
    const double largest = font.points;
    for (const Range& range :
         {Range{kReadablePoints, {false, true, kAnyCost}}, Range{kSmallestPoints, {true, true, kAnyCost}}})
        for (font.points = largest; font.points >= range.smallestPoints; font.points -= 0.5) {
            surface.setFont(font);
            Attempt attempt = placeAll(surface, range.effort);
            if (attempt.complete) return attempt;
        }
    // There are too many: those that stand well, so that the drawing can still be read.
    font.points = std::min(largest, kReadablePoints);
    surface.setFont(font);
    return placeAll(surface, {true, false, kStandsWell});
}

void LabelPlacer::drawLabel(DrawingSurface& surface, const Label& label, const Placed& placed) {
    const Box& box = placed.box;
    const Em em = emOf(surface);
    if (placed.onLines) {
        const std::array<Place, 4> ground{
            {{box.left, box.top}, {box.right, box.top}, {box.right, box.bottom}, {box.left, box.bottom}}};
        surface.polygon(ground, colours::white);
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

void LabelPlacer::draw(DrawingSurface& surface, Font font) {
    const double largest = font.points;
    Attempt attempt = placeInLargest(surface, font);
    if (!attempt.complete) {  // say so in the lower right corner, which is then taken first
        const Place corner{frame_.right, frame_.bottom};
        labels_.insert(labels_.begin(), Label{{"+ more values"}, corner, false, corner, colours::grey});
        font.points = largest;
        attempt = placeInLargest(surface, font);
    }
    surface.setFont(font);
    drawLeaders(surface, attempt);
    for (std::size_t i = 0; i < labels_.size(); ++i)
        if (attempt.places[i]) drawLabel(surface, labels_[i], *attempt.places[i]);
}

void LabelPlacer::drawLeaders(DrawingSurface& surface, Attempt& attempt) const {
    const Em em = emOf(surface);
    surface.setColour(colours::grey);
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        if (!attempt.places[i]) continue;
        const auto leader = leaderOf(labels_[i].anchor, attempt.places[i]->box, em);
        if (!leader) continue;
        surface.line(leader->from, leader->to);
        for (auto& placed : attempt.places)
            if (placed && placed->box.crossedBy(leader->from, leader->to)) placed->onLines = true;
    }
}

}  // namespace borvik
