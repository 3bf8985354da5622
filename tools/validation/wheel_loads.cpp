#include "checks/loaded_length.h"
#include "checks/local_checks.h"
#include "section/section.h"
#include "validation.h"

namespace borvik::validation {

namespace {

/// A welded girder 800 x 300 with web 10 and flanges 20 under one span of 6 m.
Project girder() {
    Project project;
    project.NofSpans = 1;
    project.Span(1) = 6000;
    project.SpanSection = Array<SectionRecord>(1, 1);
    SectionRecord& s = project.SpanSection(1);
    s.h = 800;
    s.b1 = s.b2 = 300;
    s.tw = 10;
    s.tf1 = s.tf2 = 20;
    s.Hw = 760;
    project.fyk = 355;
    project.GammaM1 = 1.1;
    project.CraneType = CraneKind::Overhead;
    project.RailFix = RailFixing::NotRigid;
    project.V(1) = 150;
    return project;
}

void patchLoad(Document& document, const ReferenceTables& tables) {
    document.section("Wheel on the top flange, EN 1993-6, 5.6 and 5.7; EN 1993-1-5, 6");
    document.text(
        R"(Flat bar 50 x 30 as rail, not rigidly fixed, worn by 25 % of its height (EN 1993-6, 5.6.2(2)); welded girder 800 x 300,
web 760 x 10, flanges 20, S355, gamma M1 = 1.1, span 6000 mm (the distance of the stiffeners), wheel 150 kN.

- wear 0.25 x 30 = 7.5 mm; Ir = 50 x 22.5^3/12 = 47460.9 mm4
- beff = bfr + hr + tf = 50 + 22.5 + 20 = 92.5 mm; If = 92.5 x 20^3/12 = 61666.7 mm4
- leff = 3.25 ((Ir + If)/tw)^(1/3) = 3.25 x 10912.8^(1/3) = 72.0878 mm, table 5.1
- ss = leff - 2 tf = 32.0878 mm, not less than tf
- m1 = bf/tw = 30; m2 = 0.02 (760/20)^2 = 28.88
- ly = 2 x 20 (1 + sqrt(58.88)) + 32.0878 = 379.021 mm, eq. (6.10), below a
- kF = 6 + 2 (760/6000)^2 = 6.03209; Fcr = 0.9 x 6.03209 x 210000 x 10^3/760 = 1500.09 kN, eq. (6.5)
- lambda F = sqrt(379.021 x 10 x 355/1500085) = 0.947083; chi F = 0.5/0.947083 = 0.527937, eq. (6.3), (6.4)
- FRd = 355 x 0.527937 x 379.021 x 10/1.1 = 645.775 kN, eq. (6.1), (6.2); IR = 150/645.775 = 0.232279)");
    Project project = girder();
    const RailRecord& rail = tables.RailTable(findRail(tables, "Pl 50x30"));
    const CheckResult patch = runCheck("Local", {project, rail, {}, {}});
    const WornRail worn = wearRail(rail, kWearStatic);
    document.compare({{"Ir, mm4", "50 x 22.5^3/12", 47460.9375, worn.Ired},
                      {"leff, mm", "table 5.1, row (b)", 72.0877661508,
                       effectiveLoadedLength(rail, worn, project.RailFix, project.SpanSection(1))},
                      {"IR", "Fz,Ed/Fz,Rd", 0.2322791156, patch.spans(1).Ratio}});
}

void flangeBending(Document& document, const ReferenceTables& tables) {
    document.section("Hoist on the bottom flange, EN 1993-6, 6.7");
    document.text(
        R"(IPE 300, S355, gamma M0 = 1.0; trolley with two pairs of wheels 200 mm apart, largest wheel load (a pair) 20 kN, n = 20 mm,
load factor 1.35, dynamic factor 1.1; My,Ed = 40 kNm.

- Fz,Ed = 20 x 1.35 x 1.1/2 = 14.85 kN on one side
- m = (b - tw)/2 - 0.8 r - n = 71.45 - 12 - 20 = 39.45 mm, eq. (6.2)
- xw = 200 < 4 sqrt(2) (m + n) = 336.300: leff = 2 sqrt(2) (m + n) + 0.5 xw = 168.150 + 100 = 268.150 mm, table 6.2
- sigma f = 40e6/8.36e7 x 150 = 71.7703 N/mm2; 1 - (71.7703/355)^2 = 0.959127
- Ff,Rd = leff tf^2 fy/(4 m gamma M0) (1 - ...) = 268.150 x 114.49 x 355/157.8 x 0.959127 = 66.2435 kN, eq. (6.1)
- IR = 14.85/66.2435 = 0.224173)");
    Project project = DefaultProject(tables);
    project.CraneType = CraneKind::Monorail;
    project.NofSpans = 1;
    project.Span = {};
    project.Span(1) = 6000;
    project.SpanSection(1) = tables.SectionTable(findSection(tables, "IPE 300"));
    UpdateSections(tables, project);
    project.V = FixedArray<Single, 1, 8>::of(20, 20);
    project.Avst = FixedArray<Single, 1, 6>::of(200);
    project.Inn = 20;
    project.GammaM0 = 1;
    UlsResults uls;
    uls.MyMaxSpan = uls.MyMinSpan = Table<Single>(1, 9);
    uls.MyMaxSpan(1, 1) = 40e6;
    const CheckResult flange = runCheck("Local", {project, {}, uls, {}});
    document.compare({{"IR", "Fz,Ed/Ff,Rd", 0.2241731005, flange.spans(1).Ratio}});
}

}  // namespace

void wheelLoadExamples(Document& document, const ReferenceTables& tables) {
    patchLoad(document, tables);
    flangeBending(document, tables);
}

}  // namespace borvik::validation
