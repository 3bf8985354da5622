#include <gtest/gtest.h>

#include "notes/diagram_factors.h"
#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

/// 100 kN in the middle of the first of two spans of 12 m, at the shear centre: My = 243.75 kNm under the wheel and
/// -112.5 over the support. HEA 300, S355, class 3: My,Rd = 447.1 kNm, Mcr = C1 x 280.1 kNm.
void twoSpans(Session& session) {
    oneWheel(session, 2, 12000);
    standsAt(session, 6000);
    session.project.LoadLevel = LoadPoint::ShearCentre;
}

/// Wheel 1 carries V 100, wheel 2, 2 m behind, H 50 kN, at the shear centre.
void separateWheels(Session& session) {
    oneWheel(session, 1, 6000);
    session.project.H(2) = 50;
    session.project.Avst(1) = 2000;
    session.project.LoadLevel = LoadPoint::ShearCentre;
}

/// 100 kN in the middle of 12 m of a welded section of flanges 300 x 20 and a web 480 x 10.
void longPlateGirder(Session& session) {
    oneWheel(session, 1, 12000);
    standsAt(session, 6000);
    session.project.LoadLevel = LoadPoint::ShearCentre;
    weldedSection(session, "Iu", 520, 300, 300, 10, 20);
}

/// 60 kN in the middle of the first and 220 kN in that of the fourth of four spans of 12 m, at the shear centre; the
/// general case, and factors under which sagging doesn't govern.
void oppositeEndMoments(Session& session) {
    oneWheel(session, 4, 12000);
    standsAt(session, 6000);
    Project& project = session.project;
    project.V(1) = 60;
    project.V(2) = 220;
    project.Avst(1) = 36000;
    project.LoadLevel = LoadPoint::ShearCentre;
    project.LtbCurve = LtbCase::General;
    project.DefaultCfactor = false;
    project.C1EndPos = project.C1MidPos = project.C1EndNeg = 10;
}

const NoteCase kCases[]{
    // C1 = 1.85: lam = 0.929, chi = 0.648/0.872 = 0.743. Of the diagram, m = 2x/L to the wheel, then 1 - 2.923 (x/L -
    // 1/2): 2/L int m^2 sin^2 = 0.2680 + 0.2050, C1 = 1.454; C2 = 1.454 x 12/pi^2 x 100/243.75 = 0.725; lam = 1.048,
    // chi =
    // 0.671/0.925 = 0.725.
    {"F1", twoSpans,
     [](Session& session) {
         twoSpans(session);
         session.project.DefaultCfactor = false;
         session.project.C1EndPos = session.project.C1EndNeg = 1.85;
     },
     "lateral torsional buckling, span 1, C1 = 1.45, C2 = 0.73", 0.640, 0.752},
    // q = 3PL/8: 270 and 990 kNm, M3 = (270 + 990)/14 = 90, M2 = -(270 + 90)/4 = -90, psi = -1, C1 = 3.08. Mcr = 862.8
    // kNm, lam = 0.720, chi = 1/(0.814 + 0.379) = 0.838; C1 = 2.6: 728.4, 0.783, 1/(0.868 + 0.374) = 0.805.
    {"F2", oppositeEndMoments,
     [](Session& session) {
         oppositeEndMoments(session);
         session.project.V(1) = 180;
     },
     "lateral torsional buckling, span 2", 0.2402, 0.2500},
    // lam = 0.929 with the plateau 0.2 and beta = 1: phi = 1.055, chi = 0.643/0.872 = 0.737.
    {"F3",
     [](Session& session) {
         twoSpans(session);
         session.project.LamdaLT0 = 0.2;
         session.project.Beta = 1;
     },
     {},
     "lateral torsional buckling, span 1, values of rolled sections",
     0.640,
     0.740},
    // My,Rd = (480 x 10/4 + 6000) x 500 x 355 = 1278 kNm, Mcr = 602.3 kNm, lam = 1.457: chi = 0.406/0.996, by the
    // general case
    // 1/(1.869 + 1.171) = 0.329.
    {"F3", longPlateGirder,
     [](Session& session) {
         longPlateGirder(session);
         session.project.LtbCurve = LtbCase::General;
     },
     "lateral torsional buckling, span 1, general case", 0.5760, 0.7136},
    {"F4", {}, [](Session& session) { session.project.H = {}; }},
    // Mcr = 1.12 x 708.6 = 793.7 kNm, lam = 0.7505, chi = 0.8438/0.9726 = 0.8675; Mz,Rd = 74.55 kNm. Wheel 1 in the
    // middle: 150/(0.8675 x 447.1) + 25/74.55; wheel 2 in the middle: 50/(0.8675 x 447.1) + 75/74.55.
    {"F5", separateWheels,
     [](Session& session) {
         separateWheels(session);
         session.project.H = {};
     },
     "lateral torsional buckling, span 1, x = 3000 mm", 0.7221, 1.1350},
    {"F7", [](Session& session) { session.project.CraneType = CraneKind::Monorail; }, {}},
};

TEST(BucklingNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

// Tables of C1, C2 and C3 for fork supports, as the first edition of the standard (ENV 1993-1-1, annex F) gave them.
TEST(DiagramFactors, areThoseOfTheTables) {
    constexpr double L = 1000, M = 1e6;
    struct Case {
        const char* diagram;
        double (*m)(double u);  ///< over MyEd, u = x/L
        double loads;           ///< wheels, evenly spread; 0: none
        double load;            ///< of all, in MyEd/L
        double C1, C2, C3;
    };
    const Case cases[] = {
        {"even moment", [](double) { return 1.0; }, 0, 0, 1.000, 0, 1.000},
        {"triangle", [](double u) { return u; }, 0, 0, 1.879, 0, 0.939},
        {"load in the middle", [](double u) { return 2 * std::fmin(u, 1 - u); }, 1, 4, 1.365, 0.553, 0.411},
        {"even load", [](double u) { return 4 * u * (1 - u); }, 7, 8, 1.132, 0.459, 0.525},
    };
    for (const Case& c : cases) {
        PointSteps My{};
        for (int k = 1; k <= kPoints; ++k) My[k] = static_cast<float>(M * c.m((k - 1) / 20.0));
        SpanWheels wheels;
        for (int w = 0; w < c.loads; ++w)
            wheels.item[wheels.count++] = {L * (w + 1) / (c.loads + 1), c.load * M / L / (c.loads + 1)};
        if (wheels.count == 1) wheels.item[0].load = c.load * M / L;
        const CFactors factors = diagramFactors(My, M, wheels, L);
        EXPECT_NEAR(factors.C1, c.C1, 0.005 * c.C1) << c.diagram;
        EXPECT_NEAR(factors.C2, c.C2, 0.005 * c.C1) << c.diagram;
        EXPECT_NEAR(factors.C3, c.C3, 0.015 * c.C1) << c.diagram;
    }
}

}  // namespace
