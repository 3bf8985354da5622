#include <algorithm>

#include "diagrams/diagram_reading.h"
#include "diagrams/momentary.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
// As of the other diagrams of the report: units from top to bottom of the page, and between two diagrams.
constexpr double kForceScale = 1400.0;
constexpr double kFlatScale = 2000.0;
constexpr double kGap = 6.0;

/// A position of the cranes and the checks that it governs.
struct GoverningPosition {
    std::array<CraneStand, 2> stands;
    std::vector<std::string> checks;
};

void add(std::vector<GoverningPosition>& positions, const RowSet& row) {
    const std::string check = row(1) + row(2) + row(3) + row(4);
    const auto same = std::find_if(positions.begin(), positions.end(),
                                   [&](const GoverningPosition& each) { return each.stands == row.Stands; });
    if (!row.Stands[0].isKnown()) return;
    if (same == positions.end())
        positions.push_back({row.Stands, {check}});
    else
        same->checks.push_back(check);
}

std::vector<GoverningPosition> governingPositions(const Report& report, bool withDeflections, bool withFatigue) {
    std::vector<GoverningPosition> positions;
    for (const CheckResult& result : report.results.Checks.all)
        if (isShown(*result.check, report.project) && (withDeflections || result.check->state == LimitState::Ultimate))
            add(positions, result.governing);
    if (!withFatigue) return positions;
    for (const Detail& detail : detailsOf(report.project))
        if (const auto& governing = report.results.Fatigue.FatResult(detail.result);
            report.project.*detail.checked && governing)
            add(positions, *governing);
    return positions;
}

/// A diagram, the part of the page that it takes and its page scale.
struct PositionDiagram {
    Diagram diagram;
    double pageUnits;
    [[nodiscard]] double step() const { return (diagramHeight(diagram, DiagramMode::Paper) + kGap) / pageUnits; }
};

void printPosition(Report& report, CraneDrive& drive, const GoverningPosition& position) {
    ReportPage& page = report.page;
    drive.goTo({position.stands[0]});
    std::vector<PositionDiagram> diagrams{{Diagram::Sketch, kForceScale}};
    const Diagram diagram = diagramOf(drive.stand());
    const bool forces = diagram == Diagram::UlsMyVz || diagram == Diagram::UlsMzVy;
    if (walkOf(diagram) == drive.walk() && diagram != Diagram::FlsReactions)
        diagrams.push_back({diagram, forces ? kForceScale : kFlatScale});
    double steps = 0.0;
    for (const PositionDiagram& each : diagrams) steps += each.step();
    page.need(page.LinesPerPage * steps + 2.0 + static_cast<double>(position.checks.size()));
    page.put(page.ColLeft, standText(report.project, drive.stand()) + "; " + craneText(report.project, drive), kBold);
    page.advance(1.0);
    for (const std::string& check : position.checks)
        for (const std::string& line : page.wrapped(check, page.width())) {
            page.put(page.ColLeft, line);
            page.advance(1.0);
        }
    page.advance(0.7);
    const DiagramData data{report.project, &report.results, &drive};
    for (const PositionDiagram& each : diagrams) page.diagram(each.diagram, data, each.pageUnits, each.step());
}

}  // namespace

void printPositions(Report& report, bool withDeflections, bool withFatigue) {
    const std::vector<GoverningPosition> positions = governingPositions(report, withDeflections, withFatigue);
    ReportPage& page = report.page;
    page.newPage();
    page.advance(0.5);
    page.chapter("Governing positions of the cranes");
    page.put(page.ColLeft, "Governing positions of the cranes:", kBold);
    page.advance(1.5);
    CraneDrive drive(report.project, report.results);
    for (const GoverningPosition& position : positions) printPosition(report, drive, position);
}

}  // namespace borvik
