#include "diagrams/result_diagrams.h"

#include <algorithm>
#include <cmath>

#include "diagrams/diagram_canvas.h"

namespace borvik {
namespace {

// The first curve of a panel is its largest values, the second its smallest. The lines stay apart for colour-blind
// readers and in grey print; they also stand on different sides almost everywhere.
constexpr Colour kCurveColours[] = {colours::blue, {0, 110, 50}};
constexpr Colour kTints[] = {{226, 234, 252}, {222, 242, 230}};

/// The largest magnitude of a panel, or 1 where all is zero, so that an empty diagram is a flat line.
double largestOf(const Panel& panel, const Project& project) {
    double largest = 0.0;
    for (const Curve& curve : panel.curves)
        for (int span = 1; span <= project.NofSpans; ++span)
            for (int k = 1; k <= kPoints; ++k) largest = std::max(largest, std::abs(curve.at(span, k)));
    return largest == 0.0 ? 1.0 : largest;
}

/// Units below the beam's line at which a value stands.
double offsetOf(const Panel& panel, double value, double largest) {
    const double offset = value / largest * kAmplitude;
    switch (panel.upwards) {
        case Upwards::Positive:
            return -offset;
        case Upwards::Negative:
            return offset;
        case Upwards::Never:
            return std::abs(offset);
    }
    return 0.0;
}

void addPeakLabels(DiagramCanvas& canvas, const Panel& panel, double base, double largest) {
    std::vector<const PeakLabel*> peaks;
    for (const PeakLabel& peak : panel.peaks) peaks.push_back(&peak);
    // The largest have the first choice of a place.
    std::stable_sort(peaks.begin(), peaks.end(),
                     [](const PeakLabel* a, const PeakLabel* b) { return std::abs(a->value) > std::abs(b->value); });
    for (const PeakLabel* peak : peaks) {
        const double offset = offsetOf(panel, peak->value, largest);
        Label label{{peak->text}, {canvas.x(peak->span, peak->position), base + offset}, offset > 0.0};
        label.toTheRight = peak->position == 0;  // its span lies there
        if (panel.upwards ==
            Upwards::Never) {  // a deflection is written in the middle of its span, below the deepest curve
            label.anchor.y = base + kAmplitude;
            label.firstChoice = label.anchor;
            label.below = true;
        }
        canvas.labels.add(std::move(label));
    }
}

void drawPanel(DiagramCanvas& canvas, const Panel& panel, double base) {
    const double largest = largestOf(panel, canvas.project);
    for (std::size_t i = 0; i < panel.curves.size(); ++i)
        canvas.drawCurve(
            base,
            [&panel, &curve = panel.curves[i], base, largest](int span, int k) {
                return base + offsetOf(panel, curve.at(span, k), largest);
            },
            kCurveColours[i], kTints[i]);
    canvas.drawBeam(base, colours::red);
    addPeakLabels(canvas, panel, base, largest);
}

void addSupportLabels(DiagramCanvas& canvas, const SupportTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        Label label{texts[i], {canvas.supportX(static_cast<int>(i) + 1), canvas.Y0 + canvas.layout.supportRow}, true};
        canvas.surface.setFont(canvas.labelFont);
        const Extent size = labelExtent(canvas.surface, label, TextDirection::Across);
        label.firstChoice = Place{label.anchor.x - 0.5 * size.width, label.anchor.y};
        label.keepSide = canvas.layout.bases.size() == 1;  // below the beam there is nothing else to keep clear of
        canvas.labels.add(std::move(label));
    }
}

}  // namespace

void drawResultDiagram(DrawingSurface& surface, const DiagramKind& kind, const DiagramData& data, double X0, double Y0,
                       DiagramMode mode) {
    DiagramCanvas canvas(surface, kind, data.project, X0, Y0, mode);
    const std::vector<Panel> panels = diagramPanels(kind, data);
    const SupportTexts texts = supportTexts(kind, data);
    const bool hasResults = !panels.empty() || !texts.empty();
    canvas.drawHead(hasResults ? diagramRemark(kind, data) : "", hasResults);
    for (const double base : canvas.layout.bases) canvas.drawBeam(Y0 + base, colours::black);
    addSupportLabels(canvas, texts);
    for (std::size_t i = 0; i < panels.size(); ++i) drawPanel(canvas, panels[i], Y0 + canvas.layout.bases[i]);
    canvas.drawLabels();
}

}  // namespace borvik
