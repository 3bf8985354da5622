#include "examples.h"

#include "exchange/attached.h"
#include "groups/group_runs.h"
#include "section/section.h"

namespace borvik {

namespace {

enum CraneClass : std::int16_t { kS2 = 2, kS3 = 3, kS4 = 4, kS7 = 7 };

/// The wheels of one crane: loads in kN, distances in mm from wheel to wheel.
struct Crane {
    std::vector<double> vertical, horizontal, distances;
    double psiV = 1.1;  ///< dynamic factor of the vertical loads
    double psiH = 1.5;
    CraneClass craneClass = kS3;
};

SectionRecord rolled(const ReferenceTables& tables, const std::string& name, const SectionRecord& blank) {
    SectionRecord section = blank;
    LoadRolled(tables, name, section);
    return section;
}

/// Dimensions of a welded girder with unequal flanges, mm.
struct Plates {
    double h, b1, b2, tw, tf1, tf2;
};

SectionRecord welded(const Plates& plates, const SectionRecord& unequalFlanges) {
    SectionRecord section = unequalFlanges;
    section.h = plates.h;
    section.b1 = plates.b1;
    section.b2 = plates.b2;
    section.tw = plates.tw;
    section.tf1 = plates.tf1;
    section.tf2 = plates.tf2;
    return section;
}

/// Two upright plates at the tips of the top flange.
SectionRecord reinforced(SectionRecord section, int depth, int thickness) {
    section.Reinforced = true;
    section.ReinfText = "PL1";
    section.ReinfD = depth;
    section.ReinfT = thickness;
    section.ReinfSuffix = "+PL" + std::to_string(depth) + "x" + std::to_string(thickness);
    return section;
}

void setTitle(Project& project, const std::string& title, const std::string& identification) {
    project.Proj = title;
    project.Ident = identification;
}

/// Spans of these lengths, mm, all of one section.
void setSpans(Project& project, const std::vector<int>& lengths, const SectionRecord& section) {
    for (int i = 1; i <= kMaxSpans; ++i) {
        const bool used = i <= static_cast<int>(lengths.size());
        project.Span(i) = used ? lengths[static_cast<std::size_t>(i - 1)] : 0;
        project.SpanSection(i) = used ? section : SectionRecord{};
    }
    project.NofSpans = static_cast<std::int16_t>(lengths.size());
}

void setRail(Project& project, const std::string& name, RailFixing fastening) {
    project.RailOn = true;
    project.RailName = name;
    project.RailFix = fastening;
}

void setWheels(Project& project, const Crane& crane, int firstWheel, int firstDistance) {
    for (int i = 0; i < 4; ++i) {
        const auto at = static_cast<std::size_t>(i);
        project.V(firstWheel + i) = at < crane.vertical.size() ? crane.vertical[at] : 0.0;
        project.H(firstWheel + i) = at < crane.horizontal.size() ? crane.horizontal[at] : 0.0;
        if (i < 3) project.Avst(firstDistance + i) = at < crane.distances.size() ? crane.distances[at] : 0.0;
    }
}

void setCrane1(Project& project, const Crane& crane) {
    setWheels(project, crane, 1, 1);
    project.PsiV1 = crane.psiV;
    project.PsiH1 = crane.psiH;
    project.CraneClass1 = crane.craneClass;
}

/// A second crane, `distance` mm behind the last wheel of the first.
void setCrane2(Project& project, const Crane& crane, double distance) {
    project.NofCranes = 2;
    setWheels(project, crane, 5, 4);
    project.PsiV2 = crane.psiV;
    project.PsiH2 = crane.psiH;
    project.CraneClass2 = crane.craneClass;
    project.MinAvst = distance;
}

struct Splice {
    int span;
    double distance;  ///< mm from the left support of the span
};

/// Splices that are not in use have a place in the beam all the same, so that their boxes pass in the fatigue forms.
void setSplices(Project& project, const std::vector<Splice>& splices) {
    project.Fat5 = project.FatR5 = !splices.empty();
    for (int i = 1; i <= 4; ++i) {
        const auto at = static_cast<std::size_t>(i - 1);
        const bool used = at < splices.size();
        project.ChkFat5Sp(i) = project.ChkFatR5Sp(i) = used;
        project.Fat5Span(i) = project.FatR5Span(i) = used ? splices[at].span : 1;
        project.Fat5d1(i) = project.FatR5d1(i) = used ? splices[at].distance : 1000.0;
    }
}

/// Details of a girder welded of plates, overhead crane: rail clips bolted to the top flange, stiffeners at the
/// supports, web welded to the top flange with full penetration and to the bottom flange and the stiffeners with
/// fillets.
void setWeldedDetails(Project& project, double bottomThroat, double stiffenerThroat, int stiffenerThickness) {
    project.Fat1C1 = 90;
    project.Fat2C1 = 80;
    project.Fat3C1 = 71;
    project.Fat3C2 = 80;
    project.W1 = "FP";
    project.Fat4 = true;
    project.Fat4C1 = 80;
    project.W2 = "FW";
    project.W2a = bottomThroat;
    project.W3 = "FW";
    project.W3a = stiffenerThroat;
    project.WS1t = std::to_string(stiffenerThickness);
}

Project workshopCrane(const ReferenceTables& tables, Project project) {
    setTitle(project, "Service workshop, bay B", "Runway beam B1, 10 t crane");
    setSpans(project, {7500}, rolled(tables, "HEB 400", project.SpanSection(1)));
    setRail(project, "A 55", RailFixing::Rigid);
    setCrane1(project, {{78, 78}, {9.5, 9.5}, {3200}});
    setSplices(project, {});
    return project;
}

Project assemblyHall(const ReferenceTables& tables, Project project) {
    setTitle(project, "Assembly hall, line 4", "Runway beam 4-6, cranes 12.5 t and 5 t");
    setSpans(project, {10000, 10000, 10000}, rolled(tables, "HEB 500", project.SpanSection(1)));
    setRail(project, "A 65", RailFixing::NotRigid);
    project.Gangway = 0.5;
    setCrane1(project, {{105, 96}, {12, 12}, {3600}});
    setCrane2(project, {{52, 48}, {6, 6}, {2500}, 1.1, 1.5, kS2}, 2000);
    setSplices(project, {{1, 8000}, {2, 8000}});
    return project;
}

Project tandemLift(const ReferenceTables& tables, Project project) {
    setTitle(project, "Turbine hall, tandem lift", "Runway beam T2, 2 x 20 t with lifting beam");
    setSpans(project, {8000, 8000, 8000, 8000}, rolled(tables, "HEB 500", project.SpanSection(1)));
    setRail(project, "A 75", RailFixing::ResilientPad);
    project.Gangway = 1.0;
    project.TwoCraneMode = TwoCranes::Together;
    project.MinDistConst = 1;
    setCrane1(project, {{130, 130}, {14, 14}, {3800}, 1.1, 1.5, kS2});
    setCrane2(project, {{130, 130}, {14, 14}, {3800}, 1.1, 1.5, kS2}, 4000);
    setSplices(project, {{2, 1600}, {3, 1600}});
    return project;
}

Project monorail(const ReferenceTables& tables, Project project) {
    setTitle(project, "Pump station, hoist", "Monorail M1, 3.2 t electric hoist");
    project.CraneType = CraneKind::Monorail;
    project.LoadLevel = LoadPoint::BottomFlange;
    project.Inn = 30;
    setSpans(project, {5000, 6000}, rolled(tables, "HEA 240", project.SpanSection(1)));
    setCrane1(project, {{19, 19}, {1.9, 1.9}, {450}, 1.15, 1.5});
    project.CraneClassR = kS3;
    project.FatR6 = false;  // a rolled section has no weld between web and bottom flange
    setSplices(project, {{2, 1200}});
    return project;
}

Project plateGirder(const ReferenceTables&, Project project) {
    setTitle(project, "Steel service centre, bay 2", "Plate girder P1, 32 t crane with four wheels");
    const SectionRecord girder = reinforced(welded({1000, 400, 360, 14, 25, 25}, project.SectionList(2)), 150, 15);
    setSpans(project, {12000, 12000}, girder);
    setRail(project, "A 100", RailFixing::ResilientPad);
    project.Gangway = 1.5;
    setCrane1(project, {{150, 150, 150, 150}, {18, 0, 0, 18}, {1100, 3600, 1100}, 1.15, 1.5, kS4});
    setWeldedDetails(project, 6, 8, 25);
    setSplices(project, {{1, 9600}, {2, 2400}});
    return project;
}

Project scrapYard(const ReferenceTables&, Project project) {
    setTitle(project, "Scrap yard, magnet crane", "Plate girder S3, 16 t process crane");
    setSpans(project, {9000, 9000, 9000}, welded({800, 400, 350, 14, 25, 22}, project.SectionList(2)));
    setRail(project, "A 75", RailFixing::ResilientPad);
    project.Gangway = 1.0;
    setCrane1(project, {{140, 140}, {16, 16}, {4200}, 1.2, 1.6, kS7});
    setWeldedDetails(project, 5, 6, 20);
    setSplices(project, {{1, 7200}, {3, 1800}});
    return project;
}

/// The wheels, span and load factor of a printed calculation by others: docs/validation.md, "By others". Without side
/// loads, which it has not.
Project publishedWheels(const ReferenceTables& tables, Project project) {
    setTitle(project, "Published calculation", "Two wheels on one span, docs/validation.md");
    setSpans(project, {6000}, rolled(tables, "HEA 300", project.SpanSection(1)));
    setCrane1(project, {{28.95, 28.95}, {0, 0}, {2000}, 1.0, 1.0});
    setSplices(project, {});
    return project;
}

/// The same beam, its loads from the data of a crane: group 5 of them, skewing.
Project workshopFromData(const ReferenceTables& tables, Project project) {
    project = workshopCrane(tables, std::move(project));
    setTitle(project, "Service workshop, bay B", "Runway beam B1, loads from crane data");
    actions::CraneData crane;
    crane.bridge = 65;
    crane.crab = 12;
    crane.hoist = 100;
    crane.span = 18;
    crane.emin = 0.9;
    crane.spacing = {3.2};
    crane.vh = 8.0 / 60.0;
    attach(project, {.cranes = {crane}});
    return withGroup(project, {crane}, {5});
}

}  // namespace

std::vector<Example> Examples(const ReferenceTables& tables) {
    Project start;
    start = DefaultProject(tables);
    return {
        {"default-project.brvk", start},
        {"workshop-single-span.brvk", workshopCrane(tables, start)},
        {"assembly-hall-two-cranes.brvk", assemblyHall(tables, start)},
        {"turbine-hall-tandem-lift.brvk", tandemLift(tables, start)},
        {"pump-station-monorail.brvk", monorail(tables, start)},
        {"service-centre-plate-girder.brvk", plateGirder(tables, start)},
        {"scrap-yard-process-crane.brvk", scrapYard(tables, start)},
        {"workshop-crane-data.brvk", workshopFromData(tables, start)},
        {"published-two-wheels.brvk", publishedWheels(tables, start)},
    };
}

}  // namespace borvik
