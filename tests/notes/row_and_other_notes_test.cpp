#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

void spanOf(Session& session, int length) {
    oneWheel(session, 1, length);
}

const NoteCase kCases[]{
    // 10 kN in the middle of 6 m: 10000 x 6000^3/(48 E 63.1e6) = 3.396 mm of 10; the top flange alone has 14 x
    // 300^3/12 = 31.5e6.
    {"E1",
     [](Session& session) {
         spanOf(session, 6000);
         session.project.H(1) = 10;
     },
     [](Session& session) { spanOf(session, 6000); }, "horizontal deflection, span 1", 0.3396, 0.6803},
    // 100 kN in the middle of 18 m: 100000 x 18000^3/(48 E 182.6e6) = 316.9 mm, of 30 and of 25.
    {"E2", [](Session& session) { spanOf(session, 18000); }, [](Session& session) { spanOf(session, 6000); },
     "vertical deflection, span 1", 10.562, 12.674},
    {"E3a", {}, [](Session& session) { session.project.CraneType = CraneKind::Monorail; }},
    {"E3b", [](Session& session) { session.project.CraneType = CraneKind::Monorail; }, {}},
    // 11.735 mm under the wheel and 5 x 2 x 6000^4/(384 E 182.6e6) = 0.880 under the gangway, of 10; 1.1 x 11.735 +
    // 0.880.
    {"E4",
     [](Session& session) {
         spanOf(session, 6000);
         session.project.Gangway = 2;
         session.project.PsiV1 = 1.1;
     },
     {},
     "vertical deflection, span 1",
     1.2615,
     1.3789},
    // A deflection of 1.0002 times L/600: V = 1.0002 x 10 x 48 E 182.6e6/6000^3.
    {"H3",
     [](Session& session) {
         spanOf(session, 6000);
         session.project.V(1) = 1.0002 * 10 * 48 * 210000 * 182.6e6 / 6000 / 6000 / 6000 / 1000;
     },
     [](Session& session) { spanOf(session, 6000); }},
    {"H6", [](Session& session) { session.project.Fat4 = session.project.Fat6 = true; },
     [](Session& session) { session.project.Fat6 = false; }},
    // Flange 300 wide: i = 86.6 mm; 24000/86.6 = 277.
    {"I3", [](Session& session) { spanOf(session, 24000); }, [](Session& session) { spanOf(session, 6000); }},
    // hw/tw = 490 over 0.55 E/355 sqrt(1960 x 4/4000) = 455.
    {"I4",
     [](Session& session) {
         spanOf(session, 6000);
         weldedSection(session, "Is", 2000, 200, 200, 4, 20);
     },
     {}},
    {"I6", {}, [](Session& session) { session.project.CraneType = CraneKind::Monorail; }},
    {"J1", [](Session& session) { session.project.GammaM0 = 0.1; }, {}},
};

TEST(RowAndOtherNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

TEST(InputNotes, nameEachValueThatCountsAndItsRange) {
    const Session session = calculated([](Session& made) {
        made.project.GammaM0 = 0.1;
        made.project.PsiH1 = 0.9;
        made.project.DefaultCfactor = true;
        // Not read: factors by default, one crane, no support of a monorail.
        made.project.C1EndNeg = made.project.PsiH2 = made.project.RWS1d = 0;
    });
    EXPECT_EQ(findingOf(session, "J1")->remark,
              "Setup: gammaM0 = 0.1 lies outside 0.5 to 1.5; Loads: Psi1H = 0.9 is not at least 1");
}

TEST(MissingNotes, nameTheThickestPlate) {
    const Session session = calculated([](Session& made) {
        spanOf(made, 6000);
        weldedSection(made, "Is", 600, 300, 300, 12, 40);
    });
    EXPECT_FALSE(findingOf(calculated(), "I8"));
    EXPECT_EQ(findingOf(session, "I8")->remark, "a thickness of 40.0 mm in span 1");
}

TEST(RowNotes, everyCheckWithoutASoundRatioIsNamed) {
    Session session = calculated();
    session.results->Checks["Bend"].spans(2).Ratio = -0.1;
    session.results->Checks["DefZ"].spans(1).Ratio = session.results->Fatigue.FatResult(3)->Ratio = std::nan("");
    const auto finding = findingOf(session, "H8");
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->remark, "bending, span 2; vertical deflection, span 1; fatigue detail 3");
    for (const char* other : {"H1", "H2", "H3"}) EXPECT_FALSE(findingOf(session, other)) << other;
    EXPECT_FALSE(findingOf(calculated(), "H8"));
}

TEST(RowNotes, aLargerRatioThatRanksLowerIsNamed) {
    const Session session = calculated([](Session& made) {
        oneWheel(made, 2, 18000);
        made.project.Span(2) = 9000;
        made.project.V(1) = 150;
    });
    const auto& checks = session.results->Checks;
    ASSERT_GT(checks["DefZ"].spans(1).Ratio, 10);
    ASSERT_LT(checks["DefZ"].governing.Ratio, 10) << "by text";
    const auto finding = findingOf(session, "H1");
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->changes[0].what, "vertical deflection, span 1");
    EXPECT_EQ(finding->changes[0].shown, checks["DefZ"].governing.Ratio);
    EXPECT_EQ(finding->changes[0].other, checks["DefZ"].spans(1).Ratio);
    EXPECT_FALSE(findingOf(calculated(), "H1"));
}

TEST(RowNotes, anEarlierSpanWithMoreUnderAWheelIsNamed) {
    const Session session = calculated([](Session& made) { made.project.SpanSection(1).TableName = "IPE 300"; });
    const auto& checks = session.results->Checks;
    const auto finding = findingOf(session, "H2");
    ASSERT_TRUE(finding);
    EXPECT_EQ(finding->changes[0].what, "patch load, span 1");
    EXPECT_EQ(finding->changes[0].shown, checks["Local"].spans(3).Ratio);
    EXPECT_EQ(finding->changes[0].other, checks["Local"].spans(1).Ratio);
    EXPECT_FALSE(findingOf(calculated(), "H2"));
}

}  // namespace
