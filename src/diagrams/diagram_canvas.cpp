#include "diagrams/diagram_canvas.h"

namespace borvik {
namespace {

constexpr double kSupportMark = 6.0;
constexpr double kSmallestRemark = 5.5;  // points

// Pen widths on paper, mm.
constexpr double kFramePen = 0.25;
constexpr std::array<double, 3> kPaperPens{0.2, 0.35, 0.5};

}  // namespace

DiagramCanvas::DiagramCanvas(DrawingSurface& target, const DiagramKind& kind, const Project& of, double left,
                             double top, DiagramMode how)
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
}

void DiagramCanvas::drawLabels() {
    surface.setPenWidth(penWidth(1));
    labels.draw(surface, labelFont);
}

double DiagramCanvas::x(int span, double position) const {
    return X0 + kBeamStart + (starts_[static_cast<std::size_t>(span - 1)] + position) * unitsPerMm();
}

double DiagramCanvas::supportX(int support) const {
    return X0 + kBeamStart + starts_[static_cast<std::size_t>(support - 1)] * unitsPerMm();
}

void DiagramCanvas::drawHead(const std::string& remark, bool withSigns) {
    const double top = Y0 + layout.area.top;
    surface.setFill(std::nullopt);
    surface.setColour(colours::black);
    if (mode == DiagramMode::Paper) {
        surface.setPenWidth(kFramePen * surface.unitsPerMillimetre());
        surface.rectangle({X0 + kFrameLeft, top}, {X0 + kFrameRight, Y0 + layout.area.bottom});
    }
    surface.setPenWidth(penWidth(1));

    Font titleFont{"Arial", labelFont.points, false, true};
    const std::string title = diagramTitle(kind_, project);
    surface.setFont(titleFont);
    const Place corner{X0, top + 1.0};
    const Extent size = surface.extent(title);
    surface.text(corner, title);
    labels.keepClear({corner.x, corner.y, corner.x + size.width, corner.y + size.height});

    const Box titleBox{corner.x, corner.y, corner.x + size.width, corner.y + size.height};
    surface.setFont(labelFont);
    if (withSigns) {
        const double left = X0 + kDiagramWidth - signsWidth(surface, kind_);
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
    drawLine({X0 + kBeamStart, y}, {X0 + kBeamStart + kBeamLength, y}, colour, 1);
    for (int support = 1; support <= project.NofSpans + 1; ++support)
        drawLine({supportX(support), y - kSupportMark}, {supportX(support), y + kSupportMark}, colours::black, 2);
}

void DiagramCanvas::drawCurve(double base, const std::function<double(int, int)>& at, Colour line, Colour tint) {
    for (int span = 1; span <= project.NofSpans; ++span) {
        std::vector<Place> places{{x(span, 0.0), base}};
        for (int k = 1; k <= kPoints; ++k)
            places.push_back({x(span, project.Span(span) * (k - 1) / 20.0), at(span, k)});
        places.push_back({x(span, project.Span(span)), base});
        surface.polygon(places, tint);
        surface.setColour(line);
        surface.setPenWidth(penWidth(1));
        surface.polyline(places);
        for (std::size_t i = 1; i < places.size(); ++i) labels.avoid(places[i - 1], places[i]);
    }
}

}  // namespace borvik
