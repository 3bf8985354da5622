#include <cmath>

#include "analysis/walk.h"
#include "checks/ltb_checks.h"
#include "section/resistance.h"
#include "section/section.h"
#include "validation.h"

namespace borvik::validation {

namespace {

/// UB 406x178x60 of S355 as published, over one span of 6 m, with partial factors of 1.
Project publishedBeam(double zg) {
    Project project;
    project.NofSpans = 1;
    project.Span(1) = 6000;
    project.SpanSection = Array<SectionRecord>(1, 1);
    project.fyk = 355;
    project.GammaM0 = project.GammaM1 = 1.0;
    project.LtbCurve = LtbCase::RolledOrWelded;
    project.LamdaLT0w = 0.4;
    project.Betaw = 0.75;

    SectionSetting setting;
    setting.fyk = 355;
    setting.Epsilon = epsilonOf(355);
    setting.Eta = 1.0;
    setting.GammaM0 = setting.GammaM1 = 1.0;
    SectionRecord& s = project.SpanSection(1);
    s.Id = "UB";
    s.Fab = "R";
    s.h = 406.4;
    s.b1 = s.b2 = 177.9;
    s.tf1 = s.tf2 = 12.8;
    s.tw = 7.9;
    s.R = 10.2;
    s.A = 7650;
    s.Iz = 1200e4;
    s.It = 33.3e4;
    s.Iw = 0.466e12;
    s.Wply = 1200e3;
    s.Iy = s.Wply * s.h / 2 / 1.13;  // not published there; nothing below depends on it
    RolledProperties(setting, s);
    SectionResistance(setting, s);
    s.Zg = zg;
    s.ZjPos = 0;
    return project;
}

double bucklingResistance(const Project& project, const CFactors& factors) {
    return ltbReduction(project, 1, true, factors) * project.SpanSection(1).MyRdPos;
}

UlsResults twoWheels() {
    Project project;
    project.NofSpans = 1;
    project.Span(1) = 6000;
    project.BeamLength = 6000;
    project.CranesLength = 2000;
    project.SpanSection = Array<SectionRecord>(1, 1);
    project.SpanSection(1).Iy = project.SpanSection(1).Iz = 1e8;
    RunLoads loads;
    loads.WheelV(1) = loads.WheelV(2) = 1.35 * 28.95;
    loads.WheelGap(1) = 2000;
    MessageList messages;
    Progress progress;
    return RunUls(project, loads, WalkMethod::Fast, messages, progress);
}

}  // namespace

void byOthers(Document& document) {
    document.section("By others");
    document.text(
        R"(Published calculations, with what was read off them. They are rounded to three digits, and the column "agree to" allows for
that. The crane data of other calculations are in [crane-loads.md](crane-loads.md), and torsion with warping against a published example
in the tests of the second opinion.)");
    document.example("Runway beam of a hoist");
    document.text(
        R"(New Steel Construction, 2015, "Eurocode verification of a runway beam subject to wheel loads", part 2: UB 406 x 178 x 60 (h 406.4, b 177.9,
tw 7.9, tf 12.8, r 10.2 mm; A 76.5 cm2, Iz 1200 cm4, It 33.3 cm4, Iw 0.466 dm6, Wpl 1200 cm3), S355, one span of 6 m, partial factors 1.0,
curve of 6.3.2.3 with 0.4 and 0.75, C1 = 1.35. Read off: the shear resistance, the buckling resistance with the load at the shear centre, and with
the load 190.4 mm below it. C2 could not be read; 0.63, the usual value for a load in the middle, gives the published number.)");
    const Project atCentre = publishedBeam(0), below = publishedBeam(-190.4);
    document.compare(
        {{"Vz,Rd, kN", "published", 709, atCentre.SpanSection(1).VzRd},
         {"Mb,Rd, load at the shear centre, kNm", "published", 215, bucklingResistance(atCentre, {1.35, 0, 0})},
         {"Mb,Rd, load 190.4 mm below, kNm", "published", 280, bucklingResistance(below, {1.35, 0.63, 0})}},
        0.005);
    document.example("Two wheels on one span");
    document.text(
        R"(A printed calculation of a crane girder: two wheels of 28.95 kN with a factor of 1.35, P = 39.08 kN, 2.0 m apart, on one span of 6 m. The published
87.3 kNm and 69.2 kN have the beam's own weight in them; what is left of them is 81.4 kNm and 65.3 kN.

- M = P (2 L - c)^2/(8 L) = 39.08 x 100/48 = 81.42 kNm, under a wheel half a metre from the middle. The program looks at the 21 points of the span and
  every 200 mm of the walk, and so finds a little less.
- V = P + P (L - c)/L = 39.08 x 1.6667 = 65.14 kN)");
    const UlsResults uls = twoWheels();
    document.compare({{"My, kNm, without own weight", "P (2 L - c)^2/(8 L)", 81.42, uls.MyMaxSpan(1, 1) / 1e6},
                      {"Vz, kN, without own weight", "P + P (L - c)/L", 65.14, uls.VzMaxSpan(1, 2) / 1e3}},
                     0.005);
}

}  // namespace borvik::validation
