#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

const NoteCase kCases[]{
    // Largest wheel 30 kN, factors 1.35 x 1.1: the ratio grows by 1.485.
    {"D1",
     {},
     [](Session& session) { session.project.LfULS = session.project.PsiV1 = 1; },
     "patch load, span 3",
     0.057,
     0.084,
     0.02},
};

/// One span of HEA 300 under a hoist of one wheel pair of 40 kN, 25 mm from the flange's tip.
void hoist(Session& session) {
    oneWheel(session, 1, 6000);
    session.project.CraneType = CraneKind::Monorail;
    session.project.V(1) = 40;
    session.project.Inn = 25;
    session.project.LoadLevel = LoadPoint::BottomFlange;
}

/// 500 kN, or what is given, in the middle of 6 m.
void heavyWheel(Session& session, double V = 500) {
    oneWheel(session, 1, 6000);
    session.project.V(1) = V;
}

const NoteCase kWheelCases[]{
    // HEB 300 under a flat rail: leff = 67.8, ly = 38 (1 + sqrt(27.27 + 3.80)) + 29.8 = 279.6, lamF = 0.435: FRd = 355
    // x
    // 279.6 x 11 = 1091.9 kN; without m2 ly = 266.2: 1039.5.
    {"D2",
     [](Session& session) {
         oneWheel(session, 1, 6000);
         session.project.SpanSection(1).TableName = "HEB 300";
     },
     [](Session& session) { oneWheel(session, 1, 6000); }, "patch load, span 1", 0.0916, 0.0962, 0.002},
    // HEA 300: leff = 64.8, ly = 246.9, lamF = 0.529: FRd = 703.8 kN. (500/703.8 + 0.8 x 750/447.1)/1.4.
    {"D3", [](Session& session) { heavyWheel(session); }, [](Session& session) { oneWheel(session, 1, 6000); },
     "patch load, span 1", 0.7104, 1.466, 0.002},
    // 50 mm apart, nearer than leff: ss = 86.8, ly = 296.9, lamF = 0.580: FRd = 771.7 kN for 200.
    {"D4",
     [](Session& session) {
         oneWheel(session, 1, 6000);
         session.project.V(2) = 100;
         session.project.Avst(1) = 50;
     },
     {},
     "patch load, span 1",
     0.1421,
     0.2592,
     0.002},
    {"D5", [](Session& session) { session.project.RailOn = true; },
     [](Session& session) { session.project.CraneType = CraneKind::Monorail; }},
    // m = (300 - 8.5)/2 - 0.8 x 27 - 25 = 99.15, m + n = 124.15, leff = 248.3; 14^2 x 248.3 x 355/(4 x 99.15) = 43.56
    // kN for 20. Inside, one wheel: leff = 2 sqrt(2) 124.15 = 351.2; stress 60e6/182.6e6 x 145 = 47.6: 61.60 (1 -
    // 0.134^2) = 60.49.
    {"D6", hoist, [](Session& session) { session.project.CraneType = CraneKind::Overhead; }, "flange bending, span 1",
     0.3306, 0.4591},
    // Mz = 15 kNm on the flange: 15e6/31.5e6 x 125 = 59.5 more than 47.6: 61.60 (1 - 0.3018^2) = 55.99.
    {"D7",
     [](Session& session) {
         hoist(session);
         session.project.H(1) = 10;
     },
     hoist, "flange bending, span 1", 0.3306, 0.3572},
    // Under the wheel: 20000/14^2 = 102.0; sx = 45.3 + 2.0344 x 102.0 = 252.9, sy = 0.8380 x 102.0 = 85.5: 222.8; all
    // times 1.2.
    {"D8",
     [](Session& session) {
         hoist(session);
         session.project.PsiV1 = 1.2;
     },
     hoist, "von Mises stress, span 1", 0.6277, 0.7532},
    // Two spans, dead load alone: hogging is 16/9 of sagging.
    {"D9",
     [](Session& session) {
         hoist(session);
         session.project.Span(2) = 6000;
         session.project.SpanSection(2) = session.project.SpanSection(1);
         session.project.SelfWeight = true;
         session.project.V(1) = 1;
     },
     hoist},
    // 30 m, 10 kN: the beam's stress is some 130, at the web the local ones are 13 and -19 of opposite sign.
    {"D10",
     [](Session& session) {
         hoist(session);
         session.project.Span(1) = 30000;
         session.project.SelfWeight = true;
         session.project.V(1) = 10;
         session.project.Inn = 80;
     },
     hoist},
    // n = 10: mu = 0.0686; the tip has 0.730 - 0.1084 + 1.928 = 2.550 x 102.0 + 45.3 = 305.5; under the wheel 284.8.
    {"D11",
     [](Session& session) {
         hoist(session);
         session.project.Inn = 10;
     },
     [](Session& session) { oneWheel(session, 1, 6000); }, "von Mises stress, span 1", 0.8022, 0.8606},
    // 250 kN: 375e6/182.6e6 x 131 = 269, 250000/(64.8 x 8.5) = 454, 125000/(262 x 8.5) = 56: 407 of 355.
    {"I2", [](Session& session) { heavyWheel(session, 250); }, [](Session& session) { oneWheel(session, 1, 6000); },
     "bending, span 1", 0.8387, 1.147, 0.002},
};

TEST(WheelNotes, ofEveryOtherKind) {
    for (const NoteCase& noteCase : kWheelCases) expectNote(noteCase);
}

TEST(WheelNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

}  // namespace
