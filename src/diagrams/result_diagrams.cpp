#include "diagrams/result_diagrams.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "diagrams/diagram_canvas.h"
#include "diagrams/momentary.h"

namespace borvik {
namespace {

constexpr double kAboveAll = 1e30;  // rank of what is never left out

// The first curve of a panel is its largest values, the second its smallest. The lines stay apart for colour-blind
// readers and in grey print; they also stand on different sides almost everywhere.
constexpr Colour kCurveColours[] = {colours::blue, {0, 110, 50}};
constexpr Colour kTints[] = {{226, 234, 252}, {222, 242, 230}};

/// "-66.2" of "My=-66.2", "30.0" of "Sig= 30.0".
std::string bareValue(const std::string& text) {
    const std::size_t sign = text.find_last_of("= ");
    return sign == std::string::npos ? text : text.substr(sign + 1);
}

/// An extreme as it is shown: of one span, or of the support between two where both say the same.
struct ShownPeak {
    const PeakLabel* peak;
    bool ofSupport = false;
};

std::vector<ShownPeak> shownPeaks(const Panel& panel, const Project& project) {
    const auto sameAsShown = [&](const PeakLabel& peak) {
        return [&](const ShownPeak& shown) {
            return shown.peak->text == peak.text && shown.peak->span == peak.span &&
                   shown.peak->position == peak.position;
        };
    };
    std::vector<ShownPeak> shown;
    for (const PeakLabel& peak : panel.peaks)
        if (std::none_of(shown.begin(), shown.end(), sameAsShown(peak))) shown.push_back({&peak});
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const PeakLabel& left = *shown[i].peak;
        if (left.inRow || left.position != project.Span(left.span)) continue;
        const auto right = std::find_if(shown.begin(), shown.end(), [&](const ShownPeak& other) {
            return other.peak->span == left.span + 1 && other.peak->position == 0.0 && other.peak->text == left.text;
        });
        if (right == shown.end()) continue;
        shown[i].ofSupport = true;
        const auto place = static_cast<std::size_t>(right - shown.begin());
        shown.erase(right);
        if (place < i) --i;
    }
    return shown;
}

void addPeakLabels(DiagramCanvas& canvas, const Panel& panel, double base, double largest) {
    const std::vector<ShownPeak> shown = shownPeaks(panel, canvas.project);
    const auto magnitude = [](const ShownPeak& a) { return std::abs(a.peak->value); };
    double highest = 0.0;
    for (const ShownPeak& each : shown) highest = std::max(highest, magnitude(each));
    bool extremeFound = false;
    for (const ShownPeak& each : shown) {
        const PeakLabel& peak = *each.peak;
        const double x = canvas.x(peak.span, peak.position);
        const bool spanShown = canvas.showsSpan(peak.span) || (each.ofSupport && canvas.showsSpan(peak.span + 1));
        if (!canvas.shows(x) || !spanShown) continue;
        const double offset = offsetOf(panel, peak.value, largest);
        const Stretch place = each.ofSupport ? canvas.placeOfSupport(peak.span + 1) : canvas.placeOfSpan(peak.span);
        Label label;
        if (!peak.before.empty())
            label.forms.push_back({peak.text + peak.before + formatNumber(peak.position, "0") +
                                   (each.ofSupport ? "/0" : "") + peak.after});
        label.forms.push_back({peak.text});
        if (bareValue(peak.text) != peak.text) label.forms.push_back({bareValue(peak.text)});
        const std::string span =
            std::to_string(peak.span) + (each.ofSupport ? "/" + std::to_string(peak.span + 1) : "");
        label.inList = "Span " + span + ": " + label.forms.front().front();
        label.anchor = {x, base + offset};
        label.left = place.left;
        label.right = place.right;
        label.rank = magnitude(each) / (highest > 0.0 ? highest : 1.0);
        if (peak.inRow) {  // a deflection is written in the middle of its span, below the deepest curve
            label.anchor.y = base + kAmplitude;
            label.spots = {{Spot::Across::FromAnchor, true, 0.0, true}, {Spot::Across::Centred, true, 0.0, true}};
        } else {
            label.spots = spotsAtPoint(offset > 0.0);
        }
        if (!extremeFound && magnitude(each) == highest) {
            extremeFound = label.always = true;
            label.rank = kAboveAll;
            label.forms.push_back({"Span " + span + ": " + bareValue(peak.text)});
        }
        if (offset != 0.0) canvas.labels.keepClear({x, base + offset, x, base + offset});
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

/// True where texts of neighbouring supports have no room beside each other: then numbers tell whose they are.
bool reactionsStandClose(const DiagramCanvas& canvas, const SupportTexts& texts) {
    canvas.surface.setFont(canvas.labelFont);
    double widest = 0.0, nearest = kDiagramWidth;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const int support = static_cast<int>(i) + 1;
        for (const std::string& line : texts[i].lines) widest = std::max(widest, canvas.surface.textWidth(line));
        if (i > 0) nearest = std::min(nearest, canvas.supportX(support) - canvas.supportX(support - 1));
    }
    return widest + emOf(canvas.surface).x > nearest;
}

void addSupportLabels(DiagramCanvas& canvas, const SupportTexts& texts) {
    const bool numbered = reactionsStandClose(canvas, texts);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const int support = static_cast<int>(i) + 1;
        const std::string number = std::to_string(support) + ": ";
        const Stretch place = canvas.placeOfSupport(support);
        if (texts[i].lines.empty() || !canvas.shows(canvas.supportX(support))) continue;
        Label label;
        label.forms = texts[i].shorter;
        label.forms.insert(label.forms.begin(), texts[i].lines);
        for (std::size_t form = 0; form < label.forms.size() && numbered; ++form) {
            std::vector<std::string>& lines = label.forms[form];
            if (form < 2)
                lines.front() = number + lines.front();
            else
                lines.insert(lines.begin(), number);
        }
        label.anchor = {canvas.supportX(support), canvas.Y0 + canvas.layout.supportRow};
        label.left = place.left;
        label.right = place.right;
        label.spots = spotsInRow(true);
        label.rank = texts[i].value;
        label.inList = "Support " + std::to_string(support) + ": ";
        for (const std::string& line : texts[i].lines)
            label.inList += (&line == &texts[i].lines.front() ? "" : ", ") + line;
        canvas.labels.add(std::move(label));
    }
}

std::vector<std::string> drawEnvelopes(DrawingSurface& surface, const DiagramKind& kind, const DiagramData& data,
                                       double X0, double Y0, DiagramMode mode, const BeamPart& part) {
    DiagramCanvas canvas(surface, kind, data.project, X0, Y0, mode, part);
    const std::vector<Panel> panels = diagramPanels(kind, data);
    const SupportTexts texts = supportTexts(kind, data);
    const bool hasResults = !panels.empty() || !texts.empty();
    canvas.drawHead(hasResults ? diagramRemark(kind, data) : "", hasResults);
    for (const double base : canvas.layout.bases) canvas.drawBeam(Y0 + base, colours::black);
    addSupportLabels(canvas, texts);
    for (std::size_t i = 0; i < panels.size(); ++i) drawPanel(canvas, panels[i], Y0 + canvas.layout.bases[i]);
    return canvas.drawLabels();
}

}  // namespace

std::vector<std::string> drawResultDiagram(DrawingSurface& surface, const DiagramKind& kind, const DiagramData& data,
                                           double X0, double Y0, DiagramMode mode, const BeamPart& part,
                                           DiagramLayer layer) {
    std::vector<std::string> missed;
    if (layer != DiagramLayer::Moving) missed = drawEnvelopes(surface, kind, data, X0, Y0, mode, part);
    if (layer != DiagramLayer::Still && data.drive != nullptr) {
        DiagramCanvas canvas(surface, kind, data.project, X0, Y0, mode, part);
        drawMomentary(canvas, kind, data);
    }
    return missed;
}

}  // namespace borvik
