#include "fatigue/detail_checks.h"
#include "fatigue/wheel_stress.h"
#include "validation.h"

namespace borvik::validation {

namespace {

/// The girder of the wheel on the top flange, crane of class S3 with four wheels of 150 kN and dynamic factor 1.1.
Project girder() {
    Project p;
    p.NofSpans = 1;
    p.Span(1) = 6000;
    p.SpanSection = Array<SectionRecord>(1, 1);
    SectionRecord& s = p.SpanSection(1);
    s.h = 800;
    s.b1 = s.b2 = 300;
    s.tw = 10;
    s.tf1 = s.tf2 = 20;
    s.Hw = 760;
    p.RailFix = RailFixing::NotRigid;
    p.V = FixedArray<Single, 1, 8>::of(150, 150, 150, 150);
    p.W1 = "FP";
    p.GammaFf = 1.0;
    p.GammaMf = 1.15;
    p.Fat1 = p.Fat3 = true;
    p.Fat1C1 = 90;
    p.Fat3C1 = 160;
    p.Fat3C2 = 100;
    return p;
}

}  // namespace

void fatigueExamples(Document& document, const ReferenceTables& tables) {
    document.section("Fatigue, EN 1991-3, 2.12; EN 1993-6, 9; EN 1993-1-9");
    document.text(
        R"(The girder and rail of the wheel on the top flange; crane of class S3, four wheels of 150 kN, dynamic factor 1.1,
gamma Ff = 1.0, gamma Mf = 1.15.

- phi fat = (1 + 1.1)/2 = 1.05, EN 1991-3, 2.12.1(7)
- class S3: lambda = 0.397 for direct stress, 0.575 for shear, table 2.12
- four wheels are four cycles of the stress under a wheel a crossing: 0.397 x 4^(1/3) = 0.397 x 1.58740 = 0.630198;
  0.575 x 4^(1/5) = 0.575 x 1.31951 = 0.758717
- rail worn by 12.5 % (EN 1993-6, 5.6.2(3)): 3.75 mm, Ir = 50 x 26.25^3/12 = 75366.2 mm4; beff = 96.25 mm,
  If = 64166.7 mm4; leff = 3.25 x 13953.3^(1/3) = 78.2424 mm
- direct stress under a wheel: 0.630198 x 1.05 x 150000/(78.2424 x 10) = 126.857 N/mm2
- shear, 0.2 of it to either side (EN 1993-6, 5.7.2): 0.4 x 0.758717 x 157500/782.424 = 61.0911 N/mm2)");
    const Project project = girder();
    const RailRecord& rail = tables.RailTable(findRail(tables, "Pl 50x30"));
    FatigueFactors factors;
    factors.Cr1 = craneFactors(3, countWheels(project, 1), dynamicFactor(1.1));
    const WheelStress wheel = wheelStress(project, rail, factors, project.SpanSection(1));
    document.compare({{"lambda, direct, four wheels", "0.397 x 4^(1/3)", 0.6301982176, factors.Cr1.LamSigN},
                      {"lambda, shear, four wheels", "0.575 x 4^(1/5)", 0.7587170487, factors.Cr1.LamTauN},
                      {"leff, mm", "table 5.1, row (b)", 78.2424086053, wheel.spread.leff},
                      {"sigma under the wheel, MPa", "lambda F/(leff tw)", 126.8573156760, wheel.SigLoc(1)},
                      {"tau under the wheel, MPa", "0.4 lambda F/(leff tw)", 61.0911332100, wheel.TauLoc(1)}});

    document.example("Damage sums");
    document.text(
        R"(Equivalent ranges of the beam itself at the governing point: 60 MPa in the top flange, 30 MPa shear in the web.

- rail to top flange, category 90: (1.0 x 60/(90/1.15))^3 = 0.766667^3 = 0.450630
- top flange to web, full penetration, categories 160 and 100: (126.857/139.130)^3 + ((30 + 61.0911)/86.9565)^5
  = 0.758019 + 1.26145 = 2.01947 (EN 1993-1-9, 8(3); EN 1993-6, 9.3))");
    StressSet stresses(1), none(1);
    stresses.Sig1Range(1, 7) = 60;
    stresses.TauRange(1, 7) = 30;
    FatigueResults results;
    checkDetails(kOverheadDetails, {project, rail, factors, stresses, none, none}, Cranes::Alone, results);
    document.compare({{"D, rail to top flange", "0.766667^3", 0.4506296296, results.FatResult(1)->Ratio},
                      {"D, top flange to web", "0.758019 + 1.26145", 2.0194681446, results.FatResult(3)->Ratio}});

    document.example("Bending of a bottom flange under a hoist");
    document.text(
        R"(IPE 300, wheel pair of 20 kN, n = 20 mm, without dynamic factor; EN 1993-6, 5.8, table 5.2, at the web.

- mu = 2 n/(b - tw) = 40/142.9 = 0.279916
- cy = -2.11 + 1.977 mu + 0.0076 e^(6.53 mu) = -2.11 + 0.553394 + 0.0472758 = -1.50933
- sigma = |cy| F/(2 tf^2) = 1.50933 x 10000/114.49 = 131.831 N/mm2; times 0.397 x 2^(1/3) = 0.500189: 65.9402 N/mm2)");
    Project hoist;
    hoist.V = FixedArray<Single, 1, 8>::of(20, 20);
    hoist.Inn = 20;
    factors.Cr1 = craneFactors(3, 2, 1.0);
    document.compare({{"sigma, MPa", "131.831 x 0.500189", 131.8307410367 * 0.5001886555,
                       flangeBending(hoist, factors, tables.SectionTable(findSection(tables, "IPE 300")))}});
}

}  // namespace borvik::validation
