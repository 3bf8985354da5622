#include "diagrams/diagram_canvas.h"

#include <algorithm>

namespace borvik {
namespace {

constexpr double kSupportMark = 6.0;
constexpr double kRounding = 1e-6;       // units
constexpr double kSmallestRemark = 5.5;  // points

// Pen widths on paper, mm.
constexpr double kFramePen = 0.25;
constexpr std::array<double, 3> kPaperPens{0.2, 0.35, 0.5};

}  // namespace

DiagramCanvas::DiagramCanvas(DrawingSurface& target, const DiagramKind& kind, const Project& of, double left,
                             double top, DiagramMode how, const BeamPart& part)
    : surface(target),
      project(of),
      mode(how),
      X0(left),
      Y0(top),
      layout(kind.layout(how)),
      labelFont{"Arial Narrow", how == DiagramMode::Screen ? 9.0 : 7.0},
      labels({left, top + layout.area.top, left + kDiagramWidth, top + layout.area.bottom}),
      kind_(kind),
      penWidth_{1.0, 2.0, 3.0} {
    if (mode == DiagramMode::Paper)
        for (std::size_t i = 0; i < penWidth_.size(); ++i) penWidth_[i] = kPaperPens[i] * surface.unitsPerMillimetre();
    starts_.push_back(0.0);
    for (int span = 1; span <= project.NofSpans; ++span) starts_.push_back(total_ += project.Span(span));
    from_ = part.isWhole() ? 0.0 : part.from;
    to_ = part.isWhole() ? total_ : part.to;
    const double across = std::max(part.across, to_ - from_);
    unitsPerMm_ = across > 0.0 ? kBeamLength / across : 0.0;
    left_ = std::max(supportX(1), X0 + kBeamStart);
    right_ = std::min(supportX(project.NofSpans + 1), X0 + kBeamStart + (to_ - from_) * unitsPerMm_);
}

std::vector<std::string> DiagramCanvas::drawLabels() {
    surface.setPenWidth(penWidth(1));
    return labels.draw(surface, labelFont);
}

double DiagramCanvas::x(int span, double position) const {
    return X0 + kBeamStart + (starts_[static_cast<std::size_t>(span - 1)] + position - from_) * unitsPerMm_;
}

double DiagramCanvas::supportX(int support) const {
    return X0 + kBeamStart + (starts_[static_cast<std::size_t>(support - 1)] - from_) * unitsPerMm_;
}

double DiagramCanvas::xOfWhole(double units) const {
    return X0 + kBeamStart + ((units - kBeamStart) / kBeamLength * total_ - from_) * unitsPerMm_;
}

bool DiagramCanvas::shows(double x) const {
    return x >= left_ - kRounding && x <= right_ + kRounding;
}

bool DiagramCanvas::showsSpan(int span) const {
    return supportX(span + 1) > left_ + kRounding && supportX(span) < right_ - kRounding;
}

Stretch DiagramCanvas::placeOfSpan(int span) const {
    const Box& frame = labels.frame();
    const double left = span == 1 ? frame.left : supportX(span);
    const double right = span == project.NofSpans ? frame.right : supportX(span + 1);
    return clipped({left, right});
}

Stretch DiagramCanvas::placeOfSupport(int support) const {
    const Box& frame = labels.frame();
    const double x = supportX(support);
    const double left = support == 1 ? frame.left : 0.5 * (supportX(support - 1) + x);
    const double right = support > project.NofSpans ? frame.right : 0.5 * (x + supportX(support + 1));
    return clipped({left, right});
}

Stretch DiagramCanvas::clipped(Stretch place) const {
    return {std::max(place.left, labels.frame().left), std::min(place.right, labels.frame().right)};
}

std::string DiagramCanvas::spansShown() const {
    int first = 0, last = 0;
    for (int span = 1; span <= project.NofSpans; ++span) {
        if (!showsSpan(span)) continue;
        if (first == 0) first = span;
        last = span;
    }
    if (first == 0 || (from_ <= 0.0 && to_ >= total_)) return "";
    const std::string spans = first == last ? "Span " + std::to_string(first)
                                            : "Spans " + std::to_string(first) + " to " + std::to_string(last);
    return spans + " of " + std::to_string(project.NofSpans);
}

void DiagramCanvas::drawHead(const std::string& ofDiagram, bool withSigns, bool toScale) {
    std::string remark = spansShown();
    if (!remark.empty() && !ofDiagram.empty() && ofDiagram.front() != ' ') remark += "; ";
    remark += ofDiagram;
    const double top = Y0 + layout.area.top;
    surface.setFill(std::nullopt);
    surface.setColour(colours::black);
    if (mode == DiagramMode::Paper) {
        surface.setPenWidth(kFramePen * surface.unitsPerMillimetre());
        surface.rectangle({X0 + kFrameLeft, top}, {X0 + kFrameRight, Y0 + layout.area.bottom});
    }
    surface.setPenWidth(penWidth(1));

    Font titleFont{"Arial", labelFont.points, false, true};
    const std::string title = toScale ? kind_.title : diagramTitle(kind_, project);
    surface.setFont(titleFont);
    const Place corner{X0, top + 1.0};
    const Extent size = surface.extent(title);
    surface.text(corner, title);
    labels.keepClear({corner.x, corner.y, corner.x + size.width, corner.y + size.height});

    const Box titleBox{corner.x, corner.y, corner.x + size.width, corner.y + size.height};
    surface.setFont(labelFont);
    if (withSigns) {
        const double left = X0 + kDiagramWidth - signsWidth(surface, kind_) - emOf(surface).x;
        if (left > titleBox.right && remarkFits(remark, titleBox, left)) {
            drawRemark(remark, titleBox, left);
            surface.setFont(labelFont);
            labels.keepClear(drawSigns(surface, kind_, {X0 + kDiagramWidth, top + 1.0}));
            return;
        }
    }
    drawRemark(remark, titleBox, X0 + kDiagramWidth);  // in a narrow picture the words count more than the signs
}

double DiagramCanvas::remarkLeft(const Box& title) const {
    return title.right + 1.5 * emOf(surface).x;
}

bool DiagramCanvas::remarkFits(const std::string& remark, const Box& title, double right) {
    surface.setFont({labelFont.name, kSmallestRemark});
    return remark.empty() || remarkLeft(title) + surface.textWidth(remark) <= right;
}

void DiagramCanvas::drawRemark(const std::string& remark, const Box& title, double right) {
    if (remark.empty()) return;
    for (Font font = labelFont; font.points >= kSmallestRemark; font.points -= 0.5) {
        surface.setFont(font);
        const double left = remarkLeft(title);
        const Extent room = surface.extent(remark);
        if (left + room.width > right) continue;
        surface.setColour(colours::grey);
        surface.text({left, title.bottom - room.height}, remark);
        surface.setColour(colours::black);
        labels.keepClear({left, title.top, left + room.width, title.bottom});
        return;
    }
}

void DiagramCanvas::drawLine(Place from, Place to, Colour colour, int pen) {
    surface.setColour(colour);
    surface.setPenWidth(penWidth(pen));
    surface.line(from, to);
    labels.avoid(from, to);
}

void DiagramCanvas::drawBeam(double y, Colour colour) {
    drawLine({left_, y}, {right_, y}, colour, 1);
    labels.keepClear({left_, y, right_, y});
    // Where the beam goes on beyond the drawing its line does too, in dashes.
    constexpr double kBeyond = 25.0;
    surface.setDashed(true);
    if (supportX(1) < left_ - kRounding) drawLine({left_ - kBeyond, y}, {left_, y}, colour, 1);
    if (supportX(project.NofSpans + 1) > right_ + kRounding) drawLine({right_, y}, {right_ + kBeyond, y}, colour, 1);
    surface.setDashed(false);
    for (int support = 1; support <= project.NofSpans + 1; ++support) {
        const double at = supportX(support);
        if (!shows(at)) continue;
        drawLine({at, y - kSupportMark}, {at, y + kSupportMark}, colours::black, 2);
        labels.keepClear({at, y - kSupportMark, at, y + kSupportMark});
    }
}

std::vector<Place> DiagramCanvas::cut(std::vector<Place> curve) const {
    for (const double limit : {left_, right_}) {
        std::vector<Place> kept;
        const auto inside = [&](const Place& place) {
            return limit == left_ ? place.x >= limit - kRounding : place.x <= limit + kRounding;
        };
        for (std::size_t i = 0; i < curve.size(); ++i) {
            if (i > 0 && inside(curve[i - 1]) != inside(curve[i])) {
                const double share = (limit - curve[i - 1].x) / (curve[i].x - curve[i - 1].x);
                kept.push_back({limit, curve[i - 1].y + share * (curve[i].y - curve[i - 1].y)});
            }
            if (inside(curve[i])) kept.push_back(curve[i]);
        }
        curve = std::move(kept);
    }
    return curve;
}

void DiagramCanvas::drawCurve(double base, const std::function<double(int, int)>& at, Colour line,
                              std::optional<Colour> tint) {
    for (int span = 1; span <= project.NofSpans; ++span) {
        if (!showsSpan(span)) continue;
        std::vector<Place> places{{x(span, 0.0), base}};
        for (int k = 1; k <= kPoints; ++k)
            places.push_back({x(span, project.Span(span) * (k - 1) / 20.0), at(span, k)});
        places.push_back({x(span, project.Span(span)), base});
        places = cut(std::move(places));
        if (places.size() < 2) continue;
        if (tint) {
            std::vector<Place> filled = places;  // down to the beam's line where the drawing ends too
            if (filled.front().y != base) filled.insert(filled.begin(), {filled.front().x, base});
            if (filled.back().y != base) filled.push_back({filled.back().x, base});
            surface.polygon(filled, *tint);
        }
        surface.setColour(line);
        surface.setPenWidth(penWidth(tint ? 1 : 2));
        if (tint) surface.polyline(places);
        for (std::size_t i = 1; i < places.size(); ++i) {
            if (!tint) surface.line(places[i - 1], places[i]);  // a moving line: joints would take most of its time
            labels.avoid(places[i - 1], places[i]);
        }
    }
}

}  // namespace borvik
