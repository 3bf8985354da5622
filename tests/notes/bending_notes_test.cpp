#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

/// 50 kN/m on two spans: hogging governs, largest with the wheel at L/sqrt(3), between the steps 3400 and 3600.
void heavyGangway(Session& session) {
    oneWheel(session, 2, 6000);
    session.project.V(1) = 10;
    session.project.Gangway = 50;
}

const NoteCase kCases[]{
    // Wheel 1 carries V 100, wheel 2, 2 m behind, H 50 kN; span 6 m. HEA 300, S355, class 3: My,Rd = 182.6e6/145 x 355,
    // 447.1 kNm, Mz,Rd = 300^2 x 14/4 x 355/1.5 = 74.55 kNm. Wheel 1 in the middle: My = 150, Mz = 50 x 1 x 3/6 = 25:
    // 0.671. Wheel 2 in the middle: My = 100 x 1 x 3/6 = 50, Mz = 75: 0.112 + 1.006.
    {"C1",
     [](Session& session) {
         oneWheel(session, 1, 6000);
         session.project.H(2) = 50;
         session.project.Avst(1) = 2000;
     },
     [](Session& session) { oneWheel(session, 1, 6000); }, "bending, span 1, x = 3000 mm", 0.671, 1.118},
    // Two spans of 6 m, 500 kN and H 30 kN in the middle of the first: over the support 3PL/32: My = 281.25, Mz = 16.88
    // kNm. Plates 100 x 10 make the top flange internal (class 1), the bottom flange stays class 3. ez = 158.28, Iy =
    // 197.4e6: My,Rd = 197.4e6/158.28 x 355 = 442.8; Mz,Rd = (315000 + 310 x 1000) x 355 = 221.9 kNm.
    // 0.6352^2 + 0.0761 = 0.4795; 0.6352 + 0.0761.
    {"C2",
     [](Session& session) {
         oneWheel(session, 2, 6000);
         standsAt(session, 3000);
         session.project.V(1) = 500;
         session.project.H(1) = 30;
         for (int span = 1; span <= 2; ++span) session.project.SpanSection(span).Reinforced = true;
     },
     {},
     "bending, span 2",
     0.4795,
     0.7112},
    // 100 kN over the support: V/Vz,Rd = 100/763.5 (Av = 11250 - 2 x 300 x 14 + 62.5 x 14 = 3725). Rail 50 x 30, worn
    // to
    // 22.5: leff = 3.25 ((50 x 22.5^3 + 86.5 x 14^3)/12/8.5)^(1/3) = 64.76, 0.2 x 100000/(64.76 x 8.5) = 36.3 of 205.0
    // N/mm2.
    {"C3", [](Session& session) { oneWheel(session, 1, 6000); },
     [](Session& session) {
         oneWheel(session, 1, 6000);
         session.project.CraneType = CraneKind::Monorail;
     },
     "shear, span 1", 0.1310, 0.3082},
    // Vz,Rd = 1.2 x 480 x 10 x 205.0 = 1180.6 kN; half of the wheel is 0.75 of it, rho = 0.25. My = 1770.9 x 1.5/4 =
    // 664.1.
    // Wpl: flanges 6000 x 100 + 3000 x 400, web 10 (390^2 + 90^2)/2: 2601e3; less 0.25 x 480^2 x 10/4: 2457e3. With a
    // web of 7.5: 6000 x 50 + 3000 x 450 + 7.5 (440^2 + 40^2)/2 = 2382e3.
    {"C5",
     [](Session& session) {
         oneWheel(session, 1, 1500);
         standsAt(session, 750);
         session.project.V(1) = 1770.86;
         weldedSection(session, "Iu", 520, 300, 150, 10, 20);
     },
     [](Session& session) {
         oneWheel(session, 1, 1500);
         standsAt(session, 750);
         weldedSection(session, "Iu", 520, 300, 150, 10, 20);
     },
     "bending, span 1", 0.7614, 0.7853},
    // Nearly all web, slender (200): effective W of less than hw^2 tw/6 = 833e3 mm3, all of it lost beside 2 x 400 kN.
    {"C6",
     [](Session& session) {
         oneWheel(session, 1, 3000);
         standsAt(session, 1500);
         session.project.V(1) = 800;
         weldedSection(session, "Is", 1012, 20, 20, 5, 6);
     },
     {}},
    {"C7", heavyGangway, [](Session& session) { oneWheel(session, 2, 6000); }},
};

TEST(BendingNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

TEST(BendingNotes, remarksOfTheProject) {
    const auto remarkOf = [](const char* key, const std::function<void(Session&)>& change) {
        const auto finding = findingOf(calculated(change), key);
        return finding ? finding->remark : "silent";
    };
    // 80 kN over the support on a flange of 2/3 x 300 x 14 x 205.0 = 573.9 kN.
    EXPECT_EQ(remarkOf("C3",
                       [](Session& session) {
                           oneWheel(session, 1, 6000);
                           session.project.CraneType = CraneKind::Monorail;
                           session.project.H(1) = 80;
                       }),
              "the horizontal shear takes 0.139 of the flange in span 1");
    EXPECT_EQ(remarkOf("C7", heavyGangway), "bending, span 1: wheel 1 in span 1 at 3400 mm");
}

}  // namespace
