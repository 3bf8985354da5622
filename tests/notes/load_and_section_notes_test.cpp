#include <gtest/gtest.h>

#include <algorithm>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

void oneWheelOnSixMetres(Session& session) {
    oneWheel(session, 1, 6000);
}

/// 500 kN and H 30 kN in the middle of the first of two spans, a reinforced section: class 1 sagging, 3 hogging.
void reinforcedTwoSpans(Session& session) {
    oneWheel(session, 2, 6000);
    standsAt(session, 3000);
    session.project.V(1) = 500;
    session.project.H(1) = 30;
    for (int span = 1; span <= 2; ++span) session.project.SpanSection(span).Reinforced = true;
}

void welded(Session& session, double tf) {
    oneWheel(session, 1, 6000);
    session.project.V(1) = 1000;
    weldedSection(session, "Is", 600, 300, 300, 12, tf);
}

void monorailOf(Session& session, const char* section) {
    session.project.CraneType = CraneKind::Monorail;
    for (int span = 1; span <= 3; ++span) session.project.SpanSection(span).TableName = section;
}

const NoteCase kCases[]{
    {"A1", {}, [](Session& session) { session.project.CraneType = CraneKind::Monorail; }},
    // P = 135 in the middle of the first of two spans: -3/32 P at the far end; dead load 0.866 kN/m: 3/8 q L = 1.95, or
    // 2.63 with 1.35.
    {"A4",
     [](Session& session) {
         oneWheel(session, 2, 6000);
         standsAt(session, 3000);
         session.project.SelfWeight = true;
         session.project.LfULS = 1.35;
     },
     [](Session& session) {
         oneWheel(session, 2, 6000);
         standsAt(session, 3000);
         session.project.SelfWeight = true;
     },
     "smallest reaction, support 3, kN", -10.03, -10.71},
    // Wheel in the middle: My = 150, Mz = 20 x 6/4 = 30 kNm; 150/447.1 + 30/74.55. The rail is 30 high, the flanges 276
    // apart: 30 (1 + 37/276) = 34.02.
    {"A6",
     [](Session& session) {
         oneWheelOnSixMetres(session);
         session.project.H(1) = 20;
     },
     oneWheelOnSixMetres, "bending, span 1", 0.7379, 0.7919},
    {"A6a", {}, [](Session& session) { session.project.CraneType = CraneKind::Monorail; }},
    {"A8",
     [](Session& session) {
         oneWheelOnSixMetres(session);
         session.project.NofCranes = 2;
         session.project.V(5) = session.project.V(6) = 10;
         session.project.Avst(4) = 1000;
         session.project.H(6) = 5;
         session.project.HasLoadsY = false;  // as the form of the loads leaves it
     },
     {}},
    {"A9", [](Session& session) { session.project.CraneType = CraneKind::Monorail; }, {}},
    // Axis in the top flange at equal areas, 26.875 below the top: Wpl = 10750 x 13.44 + 5250 x 6.56 + 3500 x 188.1 +
    // 2000 x 368.1 = 1573.6e3, My,Rd = 558.6 kNm; 375 kNm.
    {"B5",
     [](Session& session) {
         reinforcedTwoSpans(session);
         for (int span = 1; span <= 2; ++span) session.project.SpanSection(span).ReinfT = 5;
     },
     reinforcedTwoSpans},
    // Over the support My = 0.6352 My,Rd, Mz = 0.0761 Mz,Rd of the plastic flange: 0.6352^2 + 1.5 x 0.0761.
    {"B9", reinforcedTwoSpans, oneWheelOnSixMetres, "bending, span 2", 0.4795, 0.5176},
    {"B13", [](Session& session) { monorailOf(session, "IPN 300"); },
     [](Session& session) { monorailOf(session, "HEA 300"); }},
    // Wpl: 6000 x 580 + 12 x 560^2/4 = 4420.8e3; the short formula has 12 x 560/2 x 290 for the web: 4454.4e3. My =
    // 1500 kNm.
    {"B15", [](Session& session) { welded(session, 20); }, oneWheelOnSixMetres, "bending, span 1", 0.9486, 0.9558},
};

TEST(LoadAndSectionNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

/// The change of that name, or zeros.
NoteChange changeOf(const std::optional<NoteFinding>& finding, const std::string& what) {
    if (finding)
        for (const NoteChange& change : finding->changes)
            if (change.what == what) return change;
    return {};
}

TEST(LoadNotes, aWheelBetweenTheStepsIsFound) {
    // 5 m: the worst a step of 200 mm finds is a wheel at 2200 seen from 2250, 100 x 2.2 x 2.75/5 = 121 kNm; in the
    // middle it is 125.
    const auto finding = findingOf(calculated([](Session& session) { oneWheel(session, 1, 5000); }), "A3");
    const NoteChange bending = changeOf(finding, "bending");
    EXPECT_NEAR(bending.shown, 121 / 447.1, 0.0003);
    EXPECT_NEAR(bending.other, 125 / 447.1, 0.0003);
    EXPECT_FALSE(findingOf(calculated([](Session& session) {
                               oneWheel(session, 1, 5000);
                               standsAt(session, 2400);
                           }),
                           "A3"))
        << "a crane that stands still";
}

TEST(LoadNotes, aCraneAloneCanBeWorse) {
    const auto bending = [](const Session& session) {
        const auto& rows = session.results->Checks["Bend"].spans;
        return std::max(rows(1).Ratio, rows(2).Ratio);
    };
    for (const bool fixed : {false, true}) {
        const double gap = fixed ? 1000 : 3000;
        const auto cranes = [=](int first, int last) {
            return [=](Session& session) {
                oneWheel(session, 2, 6000);
                Project& project = session.project;
                project.NofCranes = static_cast<std::int16_t>(last - first + 1);
                project.PsiV2 = 1;
                if (first != last) project.MinAvst = fixed ? 7000 : 4000;
                if (first == 2) {
                    project.V(1) = project.V(2) = 60;
                    project.Avst(1) = gap;
                } else {
                    project.V(1) = fixed ? 30 : 100;
                    if (last == 2) {
                        project.V(5) = project.V(6) = 60;
                        project.Avst(4) = gap;
                    }
                }
                if (fixed) standsAt(session, first == 2 ? 8000 : 1000);
            };
        };
        const Session both = calculated(cranes(1, 2));
        const double alone = std::max(bending(calculated(cranes(1, 1))), bending(calculated(cranes(2, 2))));
        ASSERT_GT(alone, bending(both));
        const NoteChange change = changeOf(findingOf(both, "A2"), "bending");
        EXPECT_NEAR(change.shown, bending(both), 1e-6);
        EXPECT_NEAR(change.other, alone, 1e-6);
    }
    // One span: beside crane 2 a wheel comes to 2000 mm at most; alone it passes the middle, 100 x 6/4 = 150 kNm.
    const Session far = calculated([](Session& session) {
        oneWheel(session, 1, 6000);
        session.project.NofCranes = 2;
        session.project.MinAvst = 4000;
        session.project.V(5) = 1;
    });
    EXPECT_NEAR(changeOf(findingOf(far, "A2"), "bending").other, 150 / 447.1, 0.0003);
    EXPECT_FALSE(findingOf(calculated(), "A2"));
}

TEST(LoadNotes, theGangwayLoadsTheWorstSpans) {
    const auto gangway = [](int spans) {
        return [spans](Session& session) {
            oneWheel(session, spans, 6000);
            standsAt(session, 0);
            session.project.Gangway = 10;
        };
    };
    // Three spans: 0.1 q L^2 = 36 kNm at a support; 0.1167 q L^2 = 42 with two neighbours loaded.
    const NoteChange bending = changeOf(findingOf(calculated(gangway(3)), "A5"), "bending");
    EXPECT_NEAR(bending.shown, 36 / 447.1, 1e-4);
    EXPECT_NEAR(bending.other, 42 / 447.1, 1e-4);
    EXPECT_FALSE(findingOf(calculated(gangway(1)), "A5"));
}

TEST(SectionNotes, aNarrowBottomFlangeTwistsMore) {
    const auto changeAt = [](double b2) {
        const auto finding = findingOf(calculated([b2](Session& session) {
                                           oneWheel(session, 1, 12000);
                                           weldedSection(session, "Iu", 600, 300, b2, 12, 20);
                                       }),
                                       "B2");
        return finding && !finding->changes.empty() ? finding->changes[0] : NoteChange{};
    };
    // It = (20^3 x 600 + 12^3 x 560)/3 = 1922.6e3, with its own width (20^3 x 450 + ...)/3 = 1522.6e3 mm4; Mcr 446.3
    // and 408.2 kNm, Wpl,y fyk = 1194.0 kNm, chi 0.3417 and 0.3188; My = 300.
    EXPECT_NEAR(changeAt(150).shown, 0.7353, 0.0005);
    EXPECT_NEAR(changeAt(150).other, 0.7881, 0.0005);
    EXPECT_GT(changeAt(150).growth(), changeAt(250).growth());
    EXPECT_EQ(changeAt(300).growth(), 0) << "equal flanges";
    EXPECT_EQ(changeAt(350).growth(), 0) << "a wide one is safe";
}

TEST(SectionNotes, aThickFlangeIsWeaker) {
    const auto finding = findingOf(calculated([](Session& session) { welded(session, 45); }), "B1");
    ASSERT_TRUE(finding && finding->changes.size() == 1);
    EXPECT_GE(finding->changes[0].other / finding->changes[0].shown, 1.02);
    EXPECT_LE(finding->changes[0].other / finding->changes[0].shown, 355.0 / 335 + 1e-4);
    EXPECT_FALSE(findingOf(calculated([](Session& session) { welded(session, 20); }), "B1"));
}

TEST(SectionNotes, theAxisInAThickTopFlange) {
    // Equal areas 26.875 below the top: Wpl = 10750 x 13.44 + 5250 x 6.56 + 3500 x 188.1 + 2000 x 368.1 = 1573.6e3 mm3,
    // 558.6 kNm; My = 150.
    const auto finding = findingOf(calculated([](Session& session) {
                                       oneWheel(session, 1, 6000);
                                       weldedSection(session, "Iu", 400, 400, 200, 10, 10);
                                       session.project.SpanSection(1).tf1 = 40;
                                   }),
                                   "B3");
    EXPECT_NEAR(changeOf(finding, "bending, span 1").other, 150 / 558.6, 0.0002);
    EXPECT_FALSE(findingOf(calculated(), "B3"));
}

}  // namespace
