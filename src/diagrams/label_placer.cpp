#include "diagrams/label_placer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <tuple>

namespace borvik {
namespace {

// Text shrinks to this part of its size, but never below what can still be read.
constexpr double kSmallestPart = 0.75;
constexpr double kSmallestPoints = 6.0;
constexpr double kStepPoints = 0.5;

// Lengths in text heights.
constexpr double kGap = 0.2;         // between a point and its label
constexpr double kBeside = 0.35;     // room kept left and right of a label
constexpr double kFarthest = 3.0;    // a label further out than this is left out
constexpr double kLeaderFrom = 1.3;  // one further out than this gets a line to its point
constexpr double kCircle = 1.25;     // diameter of a circled number
constexpr double kCircleAndGap = 1.6;

constexpr double kRounding = 1e-6;  // units

bool touchesAny(const Box& box, const std::vector<Box>& taken) {
    return std::any_of(taken.begin(), taken.end(), [&box](const Box& other) { return box.overlaps(other); });
}

/// The line from a point to a label that stands away from it; nothing where the label is close.
std::optional<std::pair<Place, Place>> leaderOf(Place anchor, const Box& box, const Em& em) {
    const Place nearest{std::clamp(anchor.x, box.left, box.right), std::clamp(anchor.y, box.top, box.bottom)};
    if (std::hypot((nearest.x - anchor.x) / em.x, (nearest.y - anchor.y) / em.y) <= kLeaderFrom) return std::nullopt;
    return std::pair{anchor, nearest};
}

Extent labelExtent(const DrawingSurface& surface, const Label& label, std::size_t form) {
    Extent whole;
    for (const std::string& line : label.forms[form]) {
        const Extent extent = surface.extent(line);
        whole.width = std::max(whole.width, extent.width);
        whole.height += extent.height;
    }
    if (label.circled.empty() || form > 0) return whole;
    const Em em = emOf(surface);
    return {whole.width + kCircleAndGap * em.x, std::max(whole.height, kCircle * em.y)};
}

void drawCircled(DrawingSurface& surface, std::string_view number, Place centre) {
    surface.setFill(colours::white);
    surface.circle(centre, 0.5 * kCircle * emOf(surface).y);
    surface.setFill(std::nullopt);
    const Extent size = surface.extent(number);
    surface.text({centre.x - 0.5 * size.width, centre.y - 0.5 * size.height}, number);
}

std::string moreValues(int number) {
    return "+ " + std::to_string(number) + (number == 1 ? " more value" : " more values");
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

std::vector<Spot> spotsAtPoint(bool below) {
    std::vector<Spot> spots;
    for (const bool overLines : {false, true}) {
        for (double away = kGap; away < kFarthest; away += 0.5)
            for (const auto across : {Spot::Across::Centred, Spot::Across::FromAnchor, Spot::Across::ToAnchor})
                spots.push_back({across, below, away, overLines});
        spots.push_back({Spot::Across::Centred, !below, kGap, overLines});  // within the curve
    }
    return spots;
}

std::vector<Spot> spotsInRow(bool below, double gap) {
    return {{Spot::Across::Centred, below, gap, true}};
}

bool LabelPlacer::coversLines(const Box& box) const {
    return std::any_of(lines_.begin(), lines_.end(), [&box](const Line& line) {
        return std::max(line.from.x, line.to.x) >= box.left && std::min(line.from.x, line.to.x) <= box.right &&
               box.crossedBy(line.from, line.to);
    });
}

std::optional<Box> LabelPlacer::boxAt(const DrawingSurface& surface, const Label& label, std::size_t form,
                                      const Spot& spot) const {
    const Extent size = labelExtent(surface, label, form);
    const bool free = label.always && form + 1 == label.forms.size();
    const double from = free ? frame_.left : label.left;
    const double to = free ? frame_.right : label.right;
    double left = label.anchor.x;
    if (spot.across == Spot::Across::ToAnchor) left -= size.width;
    if (spot.across == Spot::Across::Centred) left = std::max(from, std::min(left - 0.5 * size.width, to - size.width));
    const double gap = spot.gap * emOf(surface).y;
    const double top = spot.below ? label.anchor.y + gap : label.anchor.y - gap - size.height;
    const Box box{left, top, left + size.width, top + size.height};
    const bool inPlace = box.left >= from - kRounding && box.right <= to + kRounding;
    const bool inFrame = box.left >= frame_.left - kRounding && box.right <= frame_.right + kRounding &&
                         box.top >= frame_.top - kRounding && box.bottom <= frame_.bottom + kRounding;
    if (!inPlace || !inFrame) return std::nullopt;
    return box;
}

std::optional<LabelPlacer::Placed> LabelPlacer::place(const DrawingSurface& surface, const Label& label,
                                                      const std::vector<Box>& taken) const {
    for (const bool overLines : {false, true})
        for (std::size_t form = 0; form < label.forms.size(); ++form)
            for (const Spot& spot : label.spots) {
                if (overLines && !spot.overLines) continue;
                const auto box = boxAt(surface, label, form, spot);
                if (!box || touchesAny(*box, taken)) continue;
                const bool covers = coversLines(*box);
                if (!covers || overLines) return Placed{*box, form, covers};
            }
    return std::nullopt;
}

LabelPlacer::Attempt LabelPlacer::placeAll(const DrawingSurface& surface) const {
    const double beside = kBeside * emOf(surface).x;
    std::vector<Box> taken = taken_;
    std::vector<std::size_t> order(labels_.size());
    std::iota(order.begin(), order.end(), 0U);
    std::stable_sort(order.begin(), order.end(),
                     [this](std::size_t a, std::size_t b) { return labels_[a].rank > labels_[b].rank; });
    Attempt attempt;
    attempt.places.resize(labels_.size());
    for (const std::size_t i : order) {
        const auto placed = place(surface, labels_[i], taken);
        attempt.places[i] = placed;
        if (placed)
            taken.push_back(
                {placed->box.left - beside, placed->box.top, placed->box.right + beside, placed->box.bottom});
    }
    for (std::size_t i = 0; i < labels_.size(); ++i)
        for (std::size_t j = 0; j < labels_.size() && labels_[i].together != 0; ++j)
            if (labels_[j].together == labels_[i].together && !attempt.places[j]) attempt.places[i].reset();
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        if (!attempt.places[i]) continue;
        ++attempt.standing;
        if (attempt.places[i]->form == 0) ++attempt.inFull;
    }
    return attempt;
}

LabelPlacer::Attempt LabelPlacer::placeBest(DrawingSurface& surface, Font& font) const {
    const double largest = font.points;
    const double smallest = std::min(largest, std::max(kSmallestPoints, kSmallestPart * largest));
    Attempt best;
    for (double points = largest; points >= smallest - kRounding; points -= kStepPoints) {
        font.points = points;
        surface.setFont(font);
        Attempt attempt = placeAll(surface);
        attempt.points = points;
        if (best.places.empty() || std::tie(attempt.standing, attempt.inFull) > std::tie(best.standing, best.inFull))
            best = std::move(attempt);
        if (best.inFull == static_cast<int>(labels_.size())) break;
    }
    font.points = best.points;
    surface.setFont(font);
    return best;
}

int LabelPlacer::leftOut(const Attempt& attempt) const {
    int missed = static_cast<int>(elsewhere_.size());
    for (std::size_t i = 0; i < labels_.size(); ++i)
        if (!attempt.places[i] && !labels_[i].inList.empty()) ++missed;
    return missed;
}

std::optional<Box> LabelPlacer::cornerFor(Extent remark, const Attempt& attempt) const {
    std::vector<Box> taken = taken_;
    for (const auto& placed : attempt.places)
        if (placed) taken.push_back(placed->box);
    for (const double top : {frame_.bottom - remark.height, frame_.top + 1.5 * remark.height})
        for (const double left : {frame_.right - remark.width, frame_.left}) {
            const Box box{left, top, left + remark.width, top + remark.height};
            if (!touchesAny(box, taken) && !coversLines(box)) return box;
        }
    return std::nullopt;
}

std::vector<std::string> LabelPlacer::draw(DrawingSurface& surface, Font font) {
    const double largest = font.points;
    Attempt attempt = placeBest(surface, font);
    if (leftOut(attempt) > 0) {
        const Font ofRemark = font;
        const Extent room = surface.extent(moreValues(static_cast<int>(elsewhere_.size() + labels_.size())));
        auto corner = cornerFor(room, attempt);
        if (!corner) {  // the remark comes first: without it the drawing would seem complete
            corner = Box{frame_.right - room.width, frame_.bottom - room.height, frame_.right, frame_.bottom};
            taken_.push_back(*corner);
            font.points = largest;
            attempt = placeBest(surface, font);
        }
        surface.setFont(ofRemark);
        surface.setColour(colours::grey);
        const std::string remark = moreValues(leftOut(attempt));
        const bool atTheRight = corner->right >= frame_.right - kRounding;
        surface.text({atTheRight ? corner->right - surface.textWidth(remark) : corner->left, corner->top}, remark);
        surface.setFont(font);
    }
    drawLeaders(surface, attempt);
    std::vector<std::string> missed = elsewhere_;
    for (std::size_t i = 0; i < labels_.size(); ++i)
        if (attempt.places[i])
            drawLabel(surface, labels_[i], *attempt.places[i]);
        else if (!labels_[i].inList.empty())
            missed.push_back(labels_[i].inList);
    return missed;
}

void LabelPlacer::drawLeaders(DrawingSurface& surface, Attempt& attempt) const {
    const Em em = emOf(surface);
    surface.setColour(colours::grey);
    for (std::size_t i = 0; i < labels_.size(); ++i) {
        if (!attempt.places[i] || !labels_[i].withLeader) continue;
        const auto leader = leaderOf(labels_[i].anchor, attempt.places[i]->box, em);
        if (!leader) continue;
        surface.line(leader->first, leader->second);
        for (auto& placed : attempt.places)
            if (placed && placed->box.crossedBy(leader->first, leader->second)) placed->onLines = true;
    }
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
    if (!label.circled.empty() && placed.form == 0) {
        drawCircled(surface, label.circled, {box.left + 0.5 * kCircle * em.x, 0.5 * (box.top + box.bottom)});
        corner = {box.left + kCircleAndGap * em.x, 0.5 * (box.top + box.bottom - em.y)};
    }
    for (const std::string& line : label.forms[placed.form]) {
        surface.text(corner, line);
        corner.y += em.y;
    }
}

}  // namespace borvik
