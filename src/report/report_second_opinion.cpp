#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "report/report_chapters.h"
#include "results/second_opinion_tables.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};
constexpr Colour kCurve{40, 60, 200};

/// A line along the beam: places in mm from the first support.
struct Curve {
    std::string title;
    std::vector<Place> points;
};

/// The curve over the beam and its supports, as wide as the text.
void drawCurve(Report& report, const Curve& curve) {
    constexpr double kHeight = 5.0;  // lines
    ReportPage& page = report.page;
    page.need(kHeight + 2.5);
    page.put(page.ColLeft, curve.title, kQuiet);
    page.advance(1.2);
    double largest = 0.0;
    for (const Place& point : curve.points) largest = std::max(largest, std::abs(point.y));
    const double axis = page.PrintY + kHeight / 2.0;
    const double columns = page.width() / std::max<double>(report.project.BeamLength, 1.0);
    DrawingSurface& paper = page.surface();
    paper.setPenWidth(0.3 * paper.unitsPerMillimetre());
    paper.setColour(colours::black);
    paper.line({page.ColLeft, axis}, {page.ColRight, axis});
    double support = 0.0;
    for (int span = 0; span <= report.project.NofSpans; ++span) {
        if (span > 0) support += report.project.Span(span);
        const double x = page.ColLeft + support * columns;
        paper.line({x, axis - 0.3}, {x, axis + 0.3});
    }
    std::vector<Place> line;
    for (const Place& point : curve.points)
        line.push_back({page.ColLeft + point.x * columns,
                        axis - (largest > 0.0 ? point.y / largest : 0.0) * (kHeight / 2.0 - 0.3)});
    paper.setColour(kCurve);
    paper.setPenWidth(0.4 * paper.unitsPerMillimetre());
    paper.polyline(line);
    paper.setColour(colours::black);
    page.advance(kHeight + 0.5);
}

}  // namespace

void printSecondOpinion(Report& report, const SecondOpinion& opinion) {
    ReportPage& page = report.page;
    page.newPage();
    page.advance(0.5);
    page.chapter("Second opinion");
    page.put(page.ColLeft, "Second opinion: torsion with warping, buckling by eigenvalue:", kBold);
    page.advance(1.5);
    const ResultTable table = tableOf(report.project, opinion);
    printTable(page, table, {0.34, 0.12, 0.12});
    page.advance(page.putBlock(page.ColLeft, page.width(), table.note, kQuiet) + 1.0);
    if (!opinion.torsion.empty()) {
        Curve rotation{"Rotation at the position of the largest bimoment", {}}, bimoment{"Bimoment there", {}};
        double phi = 0.0, B = 0.0;
        for (const TorsionState& state : opinion.torsion) {
            rotation.points.push_back({state.x, state.phi});
            bimoment.points.push_back({state.x, state.B});
            phi = std::max(phi, std::abs(state.phi));
            B = std::max(B, std::abs(state.B));
        }
        rotation.title += ", largest " + formatNumber(phi * 1000, "0.00") + " mrad";
        bimoment.title += ", largest " + formatNumber(B / 1e9, "0.000") + " kNm2";
        drawCurve(report, rotation);
        drawCurve(report, bimoment);
    }
    if (opinion.mode.empty()) return;
    Curve sideways{"Buckling at the position of the lowest factor: sideways displacement", {}},
        twist{"Twist of the same mode", {}};
    for (const ModePoint& point : opinion.mode) {
        sideways.points.push_back({point.x, point.v});
        twist.points.push_back({point.x, point.phi});
    }
    drawCurve(report, sideways);
    drawCurve(report, twist);
}

}  // namespace borvik
