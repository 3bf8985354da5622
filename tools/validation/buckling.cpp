#include "checks/ltb_checks.h"
#include "section/resistance.h"
#include "section/section.h"
#include "validation.h"

namespace borvik::validation {

namespace {

/// IPE 300 of S355 over one span of 6 m under My = 50 kNm, brought up to date by the program.
struct BuckledBeam {
    Project project;
    UlsResults uls;

    BuckledBeam(const ReferenceTables& tables, LtbCase curve, double C1, double C2, LoadPoint loadLevel)
        : project(DefaultProject(tables)) {
        project.NofSpans = 1;
        project.Span = {};
        project.Span(1) = 6000;
        project.RailOn = false;
        project.SpanSection(1) = tables.SectionTable(findSection(tables, "IPE 300"));
        project.LoadLevel = loadLevel;
        project.LtbCurve = curve;
        project.DefaultCfactor = false;
        project.C1EndPos = C1;
        project.C2EndPos = C2;
        UpdateSections(tables, project);
        uls.MyMaxSpan = uls.MyMinSpan = Table<Single>(1, 9);
        uls.MySupportSpan = Table<Single>(1, 8);
        uls.MyMaxSpan(1, 1) = 50e6;
    }
    [[nodiscard]] double ratio() { return runCheck("Ltb", {project, {}, uls, {}}).extremes[0](1).Ratio; }
    /// chiLT, from the ratio My/(chiLT MyRd).
    [[nodiscard]] double chi() { return 50 / (ratio() * project.SpanSection(1).MyRdPos); }
};

SectionRecord plateGirder(EndPost endPost) {
    SectionSetting setting;
    setting.fyk = 355;
    setting.Epsilon = epsilonOf(355);
    setting.Eta = 1.2;
    setting.GammaM0 = 1.0;
    setting.GammaM1 = 1.1;
    setting.StiffenerMode = endPost;
    SectionRecord s;
    s.Id = "Is";
    s.Fab = "W";
    s.h = 1240;
    s.b1 = 300;
    s.tw = 8;
    s.tf1 = 20;
    WeldedProperties(setting, s);
    SectionResistance(setting, s);
    return s;
}

}  // namespace

void bucklingExamples(Document& document, const ReferenceTables& tables) {
    document.section("Lateral torsional buckling, EN 1993-1-1, 6.3.2");
    document.text(
        R"(IPE 300, S355, one span L = 6000 mm, My,Ed = 50 kNm, gamma M1 = 1.0. Published: Iz = 6.04e6 mm4, It = 2.02e5 mm4,
Iw = 1.26e11 mm6, Wpl,y = 6.28e5 mm3. Class 1, h/b = 2. My,Rd = 6.28e5 x 355 = 222.94 kNm.

Critical moment by the three-factor formula (the pre-standard's annex F; doubly symmetric, zj = 0):

    Mcr = C1 pi^2 E Iz/L^2 ( sqrt( Iw/Iz + L^2 G It/(pi^2 E Iz) + (C2 zg)^2 ) - C2 zg )

- pi^2 E Iz/L^2 = 9.86960 x 210000 x 6.04e6/3.6e7 = 347739 N
- Iw/Iz = 1.26e11/6.04e6 = 20860.9 mm2
- L^2 G It/(pi^2 E Iz) = 80769.2 x 2.02e5/347739 = 46918.5 mm2)");

    document.example("Uniform moment, general case (6.3.2.2)");
    document.text(
        R"(C1 = 1, C2 = 0.

- Mcr = 347739 x sqrt(67779.4) = 347739 x 260.345 = 90.5320 kNm
- lambda = sqrt(222.94/90.5320) = 1.56925
- curve a (table 6.4, rolled, h/b <= 2), alpha = 0.21: Phi = 0.5 (1 + 0.21 (1.56925 - 0.2) + 1.56925^2) = 1.87505
- chi = 1/(1.87505 + sqrt(1.87505^2 - 1.56925^2)) = 0.344670
- IR = 50/(0.344670 x 222.94) = 0.650697)");
    BuckledBeam uniformGeneral(tables, LtbCase::General, 1.0, 0.0, LoadPoint::ShearCentre);
    document.compare({{"chi LT", "eq. (6.56)", 0.3446696158, uniformGeneral.chi()},
                      {"IR", "eq. (6.54)", 0.6506973042, uniformGeneral.ratio()}});

    document.example("Uniform moment, rolled sections (6.3.2.3)");
    document.text(
        R"(lambda LT,0 = 0.4, beta = 0.75, curve b (table 6.5), alpha = 0.34; kc = 1/sqrt(C1) = 1, so f = 1.

- Phi = 0.5 (1 + 0.34 (1.56925 - 0.4) + 0.75 x 2.46255) = 1.62223
- chi = 1/(1.62223 + sqrt(1.62223^2 - 0.75 x 2.46255)) = 0.398713, below 1/lambda^2 = 0.406083
- IR = 50/(0.398713 x 222.94) = 0.562500)");
    BuckledBeam uniformRolled(tables, LtbCase::RolledOrWelded, 1.0, 0.0, LoadPoint::ShearCentre);
    document.compare({{"chi LT,mod", "eq. (6.57), (6.58)", 0.3987125087, uniformRolled.chi()},
                      {"IR", "eq. (6.54)", 0.5624995076, uniformRolled.ratio()}});

    document.example("Load on the top flange");
    document.text(
        R"(C1 = 1.35, C2 = 0.59, zg = h/2 = 150 mm, C2 zg = 88.5 mm.

- Mcr = 1.35 x 347739 x (sqrt(67779.4 + 7832.25) - 88.5) = 469448 x (274.976 - 88.5) = 87.5406 kNm
- lambda = sqrt(222.94/87.5406) = 1.59584
- general case: Phi = 1.91992, chi = 0.334747, IR = 0.669985
- rolled: Phi = 1.65831, chi = 0.388380; kc = 1/sqrt(1.35) = 0.860663, f = 1 - 0.5 x 0.139337 x (1 - 2 x 0.795839^2)
  = 1.01862, at most 1; IR = 0.577464)");
    BuckledBeam topGeneral(tables, LtbCase::General, 1.35, 0.59, LoadPoint::TopFlange),
        topRolled(tables, LtbCase::RolledOrWelded, 1.35, 0.59, LoadPoint::TopFlange);
    document.compare({{"zg, mm", "h/2", 150, topGeneral.project.SpanSection(1).Zg},
                      {"IR, general case", "eq. (6.54), (6.56)", 0.6699847343, topGeneral.ratio()},
                      {"IR, rolled", "eq. (6.54), (6.57)", 0.5774639545, topRolled.ratio()}});

    document.section("Shear buckling, EN 1993-1-5, 5.2 and 5.3");
    document.text(
        R"(Welded I 1240 x 300, web 1200 x 8 mm, flanges 20 mm, S355, eta = 1.2, gamma M1 = 1.1, stiffeners at the supports only.

- epsilon = sqrt(235/355) = 0.813617; hw/tw = 150 > 72 epsilon/eta = 48.8170: the web is checked for buckling
- lambda w = hw/(86.4 tw epsilon) = 1200/(86.4 x 8 x 0.813617) = 2.13382, eq. (5.5)
- non-rigid end post: chi w = 0.83/2.13382 = 0.388974; rigid: 1.37/(0.7 + 2.13382) = 0.483446, table 5.1
- Vbw,Rd = chi w fyw hw tw/(sqrt(3) gamma M1) = chi w x 355 x 9600/1.90526 = chi w x 1788.74 kN, eq. (5.2))");
    document.compare(
        {{"chi w, non-rigid", "table 5.1", 0.3889737828, shearBucklingFactor(2.1338199046, 1.2, EndPost::NonRigid)},
         {"chi w, rigid", "table 5.1", 0.4834463890, shearBucklingFactor(2.1338199046, 1.2, EndPost::Rigid)},
         {"Vz,Rd, non-rigid, kN", "0.388974 x 1788.74", 695.7714498, plateGirder(EndPost::NonRigid).VzRd},
         {"Vz,Rd, rigid, kN", "0.483446 x 1788.74", 864.7580117, plateGirder(EndPost::Rigid).VzRd}});
}

}  // namespace borvik::validation
