// What the walk visits, and which of several extremes it keeps.

#include <gtest/gtest.h>

#include <algorithm>

#include "analysis/position.h"
#include "analysis/random_beam.h"
#include "analysis/walk.h"

namespace borvik {
namespace {

/// Spans of one section, nothing on them, one crane without wheels.
struct Girder {
    explicit Girder(std::initializer_list<int> lengths) {
        project.SpanSection = Array<SectionRecord>(1, kMaxSpans);
        for (const int length : lengths) {
            const int i = ++project.NofSpans;
            project.Span(i) = length;
            project.SpanSection(i).Iy = 2e8;
            project.SpanSection(i).Iz = 5e7;
        }
        testing::setLengths(project);
    }
    Girder& gap(int number, double mm) {
        project.Avst(number) = loads.WheelGap(number) = mm;
        testing::setLengths(project);
        return *this;
    }
    Girder& wheel(int w, double V, double H = 0) {
        loads.WheelV(w) = V;
        loads.WheelH(w) = H;
        return *this;
    }
    Girder& uniform(int span, double q) {
        loads.SpanLoad(span) = q;
        return *this;
    }
    Girder& fixedAt(double x) {
        project.Fixerad = true;
        project.Position = x;
        return *this;
    }
    Girder& twoCranes(double distance, bool constant = false) {
        loads.NCranes = 2;
        project.MinAvst = distance;
        project.MinDistConst = constant ? 1 : 0;
        testing::setLengths(project);
        return *this;
    }
    Girder& startStopOutside() {
        project.StartStopOutside = 1;
        return *this;
    }
    [[nodiscard]] UlsResults uls(WalkMethod method = WalkMethod::Plain) {
        return RunUls(project, loads, method, messages, progress);
    }
    [[nodiscard]] SlsResults sls() { return RunSls(project, loads, WalkMethod::Plain, messages, progress); }
    [[nodiscard]] FlsResults fls() { return RunFls(project, loads, WalkMethod::Plain, messages, progress); }

    Project project;
    RunLoads loads;
    MessageList messages;
    Progress progress;
};

template <class Numbers>
bool allZero(const Numbers& numbers, int count) {
    return std::all_of(numbers.data(), numbers.data() + count, [](Single number) { return number == 0.0; });
}
bool empty(const Cube<Single>& cube) {
    return allZero(cube, cube.rows() * cube.columns() * cube.slots());
}
bool empty(const Table<Single>& table) {
    return allZero(table, table.rows() * table.columns());
}

// --- Wheels ---------------------------------------------------------------------------------------------------------

TEST(Wheels, standInTheSpanThatTheyReach) {
    const struct {
        const char* what;
        double start;
        bool outside;
        int span;
        double a, b, V;
    } cases[] = {
        {"at the start of the beam", 0, false, 1, 0, 4000, 50},
        {"within the first span", 1500, false, 1, 1500, 2500, 50},
        {"over an interior support: the span on its left", 4000, false, 1, 4000, 0, 50},
        {"just behind the support", 4000.5, false, 2, 0.5, 5999.5, 50},
        {"at the end of the beam", 10000, false, 2, 6000, 0, 50},
        {"behind the end: nowhere, without load", 10000.5, false, 1, 0, 0, 0},
        {"a crane of 1 m outside: the beam starts at 1 m", 1000, true, 1, 0, 4000, 50},
        {"still outside", 999.5, true, 1, 0, 0, 0},
        {"over the support of a beam that starts at 1 m", 5000, true, 1, 4000, 0, 50},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Girder girder({4000, 6000});
        girder.gap(3, 1000).wheel(1, 50, 5).fixedAt(c.start);
        if (c.outside) girder.startStopOutside();
        const LoadedBeam loaded(girder.project, girder.loads, true);
        Wheels wheels;
        loaded.placer.PlaceWheels(0, 0, wheels);
        EXPECT_EQ(wheels[1].span, c.span);
        EXPECT_EQ(wheels[1].a, c.a);
        EXPECT_EQ(wheels[1].b, c.b);
        EXPECT_EQ(wheels[1].V, c.V);
        EXPECT_EQ(wheels[1].H, c.V / 10);
    }
}

TEST(Wheels, followOneAnotherAtTheirDistances) {
    for (const bool constant : {false, true}) {
        Girder girder({40000});
        girder.gap(1, 1000).gap(3, 700).gap(5, 300).gap(6, 0).twoCranes(2500, constant);
        girder.project.Position = 50;
        const LoadedBeam loaded(girder.project, girder.loads, true);
        Wheels wheels;
        loaded.placer.PlaceWheels(3, 4, wheels);
        const double x5 = 650 + 1700 + 2500 + (constant ? 0 : 800);
        const double x[] = {650, 1650, 1650, 2350, x5, x5, x5 + 300, x5 + 300};
        for (int w = 1; w <= 8; ++w) EXPECT_EQ(wheels[static_cast<std::size_t>(w)].x, x[w - 1]) << w;
    }
}

TEST(Wheels, overASupportLoadThatSupportAlone) {
    const UlsResults interior = Girder({4000, 6000}).wheel(1, 50).wheel(2, 50).fixedAt(4000).uls();
    EXPECT_EQ(interior.VzMinPoint(1, 21, 2), -100e3) << "both wheels count at the end of the left span";
    EXPECT_TRUE(empty(interior.VzMaxPoint));
    EXPECT_TRUE(empty(interior.MyMinPoint)) << "no support moment";
    for (int k = 1; k <= 20; ++k) EXPECT_EQ(interior.VzMinPoint(1, k, 2), 0);
    for (int support = 1; support <= 3; ++support) EXPECT_EQ(interior.RzMax(support), support == 2 ? 100e3 : 0);

    const UlsResults start = Girder({4000, 6000}).wheel(1, 50).fixedAt(0).uls();
    EXPECT_EQ(start.VzMaxPoint(1, 1, 2), 50e3);
    EXPECT_EQ(start.VzMaxPoint(1, 2, 2), 0);
    EXPECT_EQ(start.RzMax(1), 50e3);

    Girder atEnd({4000, 6000});
    atEnd.wheel(1, 50, -4).fixedAt(10000);
    const UlsResults end = atEnd.uls();
    EXPECT_EQ(end.VzMinPoint(2, 21, 2), -50e3);
    EXPECT_EQ(end.RzMin(3), -50e3) << "the far end keeps the sign of the shear";
    EXPECT_EQ(end.RzMax(3), 0);
    EXPECT_EQ(end.RyMax(3), 4e3);
    EXPECT_EQ(atEnd.fls().FlsRzMin(3), -50e3);
}

// --- Positions ------------------------------------------------------------------------------------------------------

TEST(Positions, coverTheBeamInStepsOf200) {
    const struct {
        const char* what;
        int length, train;
        bool fixed, outside, secondMoves;
        double positions;
    } cases[] = {
        {"a train of 1 m on 5 m: 20 steps", 5000, 1000, false, false, false, 21},
        {"190 mm short of a step more", 5190, 1000, false, false, false, 21},
        {"as long as the beam", 5000, 5000, false, false, false, 1},
        {"longer than the beam", 5000, 5001, false, false, false, 0},
        {"fixed", 5000, 1000, true, false, false, 1},
        {"from outside to outside: 30 steps", 5000, 1000, false, true, false, 31},
        {"two cranes: 21 + 20 + ... + 1", 5000, 1000, false, false, true, 231},
        {"two cranes on 5.19 m: the same", 5190, 1000, false, false, true, 231},
        {"two fixed cranes", 5000, 1000, true, false, true, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Girder girder({c.length});
        girder.gap(2, c.train);
        if (c.secondMoves) girder.twoCranes(0);
        if (c.fixed) girder.fixedAt(0);
        if (c.outside) girder.startStopOutside();
        EXPECT_EQ(countPositions(girder.project, girder.loads.NCranes), c.positions);
    }
    Girder constant({5000});
    constant.twoCranes(1000, true);
    EXPECT_EQ(countPositions(constant.project, 2), 21);
    EXPECT_EQ(countPositions(constant.twoCranes(1000).project, 1), 21) << "one crane in this run";
}

TEST(Positions, aTrainThatIsTooLongGivesAMessageAndNoResults) {
    Girder girder({5000});
    girder.gap(1, 5001).wheel(1, 50);
    const UlsResults uls = girder.uls();
    const SlsResults sls = girder.sls();
    const FlsResults fls = girder.fls();
    const std::string text = "De angivna måtten för traversen/traverserna ryms ej på balken!";
    EXPECT_EQ(girder.messages.texts, std::vector<std::string>(3, text));
    EXPECT_TRUE(empty(uls.MyMaxPoint) && empty(uls.VzMinPoint) && empty(sls.UzMaxPoint) && empty(fls.FlsMyMaxPoint));
    EXPECT_EQ(uls.MyMaxPoint.rows(), 1);
    EXPECT_EQ(uls.RzMax(2), 0);
    EXPECT_EQ(uls.Steps.StepNo.size(), 0);
}

TEST(Positions, areLoggedWithTheLastDistanceOfTheSecondCrane) {
    Girder girder({2000, 2000});
    girder.gap(1, 400).gap(4, 200).wheel(1, 10).wheel(2, 11).wheel(5, 20).wheel(6, 21).twoCranes(600);
    const PositionLog log = girder.uls().Steps;
    ASSERT_EQ(log.StepNo.first(), 0);
    ASSERT_EQ(log.StepNo.last(), 14) << "(4000 - 1200) / 200";
    const struct {
        int j;
        double span1, a1, b1, span2, a5, b5;
    } rows[] = {
        {0, 1, 0, 2000, 1, 1800, 200},     // wheel 5 ends 200 mm short of the beam's end
        {8, 1, 1600, 400, 1, 1800, 200},   // wheel 2 over the support still stands in span 1
        {9, 1, 1800, 200, 2, 1800, 200},   //
        {10, 1, 2000, 0, 2, 1800, 200},    // wheel 1 over the support
        {14, 2, 800, 1200, 2, 1800, 200},  //
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.j);
        EXPECT_EQ(log.StepNo(row.j), row.j);
        EXPECT_EQ(log.StepSpan1(row.j), row.span1);
        EXPECT_EQ(log.StepV1(row.j), 10);
        EXPECT_EQ(log.StepA1(row.j), row.a1);
        EXPECT_EQ(log.StepB1(row.j), row.b1);
        EXPECT_EQ(log.StepSpan2(row.j), row.span2) << "of wheel 2";
        EXPECT_EQ(log.StepV5(row.j), 20);
        EXPECT_EQ(log.StepA5(row.j), row.a5);
        EXPECT_EQ(log.StepB5(row.j), row.b5);
    }
}

TEST(Positions, outsideTheBeamLeaveTheDeadLoadAlone) {
    Girder girder({4000});
    girder.gap(1, 1000).wheel(1, 50).wheel(2, 50).startStopOutside();
    const UlsResults uls = girder.uls();
    ASSERT_EQ(uls.Steps.StepNo.last(), 25);
    for (const int j : {0, 4}) {
        EXPECT_EQ(uls.Steps.StepV1(j), 0) << "left of the beam at step " << j;
        EXPECT_EQ(uls.Steps.StepSpan1(j), 1);
        EXPECT_EQ(uls.Steps.StepA1(j), 0);
    }
    EXPECT_EQ(uls.Steps.StepV1(5), 50);
    EXPECT_EQ(uls.Steps.StepV1(25), 50) << "wheel 1 at the very end, wheel 2 outside";
    EXPECT_EQ(uls.RzMax(1), 50e3 + 50e3 * 0.75) << "wheel 1 at the start";
    EXPECT_EQ(uls.RzMin(2), -50e3 - 50e3 * 0.75) << "wheel 2 at the end";
}

// --- Records --------------------------------------------------------------------------------------------------------

TEST(Records, stayEmptyWhereNothingHappens) {
    Girder girder({4000, 6000});
    const UlsResults uls = girder.uls();
    for (const auto* record : {&uls.MyMaxPoint, &uls.MyMinPoint, &uls.VyMaxPoint}) EXPECT_TRUE(empty(*record));
    for (const auto* record : {&uls.MyMaxSpan, &uls.VzMinSpan, &uls.MzMaxSpan, &uls.MySupportSpan})
        EXPECT_TRUE(empty(*record)) << "no wheel, no x";
    EXPECT_TRUE(empty(girder.sls().UzMaxSpan));

    // In a simple span under downward loads no moment is negative: the range of fatigue is the largest value alone.
    Girder simple({6000});
    simple.wheel(1, 50);
    EXPECT_TRUE(empty(simple.fls().FlsMyMinPoint));
    EXPECT_EQ(simple.fls().FlsMyMaxSpan(1, 1), 50e3 * 6000 / 4);
    EXPECT_EQ(simple.fls().FlsMyMaxSpan(1, 3), 0) << "nothing of the horizontal plane";
    EXPECT_TRUE(empty(simple.uls().MySupportSpan));
}

TEST(Records, haveTheFormOfTheirPlane) {
    const UlsResults uls = Girder({4000, 6000}).wheel(1, 50, 5).uls();
    EXPECT_EQ(uls.MyMaxPoint.slots(), 8);
    EXPECT_EQ(uls.MzMaxPoint.slots(), 6);
    EXPECT_EQ(uls.VzMinSpan.columns(), 9);
    EXPECT_EQ(uls.VyMinSpan.columns(), 7);
    EXPECT_EQ(uls.RzMax.last(), 3);
}

/// Two wheels of 100 kN at the quarters of 8 m: the moment is 200 kNm all the way between them, exactly.
TEST(Records, takeTheLeftmostOfEqualPoints) {
    const UlsResults uls = Girder({8000}).gap(1, 4000).wheel(1, 100).wheel(2, 100).fixedAt(2000).uls();
    for (int k = 6; k <= 16; ++k) ASSERT_EQ(uls.MyMaxPoint(1, k, 1), 200e6);
    EXPECT_EQ(uls.MyMaxSpan(1, 9), 2000);
}

TEST(Records, takeTheFirstOfEqualPositions) {
    for (const WalkMethod method : {WalkMethod::Plain, WalkMethod::Fast}) {
        // Dead load alone: every position gives the same.
        const UlsResults dead = Girder({8000}).uniform(1, 8).uls(method);
        EXPECT_EQ(dead.MyMaxSpan(1, 1), 64e6);
        EXPECT_EQ(dead.MyMaxSpan(1, 5), 1);
        EXPECT_EQ(dead.MyMaxSpan(1, 6), 0) << "the first position of the walk";

        // A fixed distance of 4 m between two equal cranes of one wheel: the middle is reached by wheel 5 at j = 0,
        // when wheel 1 stands over the support, and by wheel 1 at j = 20, when wheel 5 stands over the other one.
        Girder equal({8000});
        const UlsResults twice = equal.wheel(1, 100).wheel(5, 100).twoCranes(4000, true).uls(method);
        EXPECT_EQ(twice.MyMaxPoint(1, 11, 1), 200e6);
        EXPECT_EQ(twice.MyMaxPoint(1, 11, 6), 0);
        EXPECT_EQ(twice.MyMaxPoint(1, 11, 8), 4000) << "wheel 5";

        // Independent cranes: wheel 5 alone in the middle, or both there at once, which is twice as much; of the two
        // ways to have a wheel over the support, j = 0 with any k, the first is k = 0.
        Girder apart({8000});
        const UlsResults both = apart.wheel(1, 100).wheel(5, 100).twoCranes(0).uls(method);
        EXPECT_EQ(both.MyMaxSpan(1, 1), 400e6);
        EXPECT_EQ(both.MyMaxSpan(1, 6), 4000);
        EXPECT_EQ(both.MyMaxSpan(1, 8), 4000);
        EXPECT_EQ(both.VzMaxSpan(1, 2), 200e3);
        EXPECT_EQ(both.VzMaxSpan(1, 6), 0);
        EXPECT_EQ(both.VzMaxSpan(1, 8), 0);
    }
}

/// The span record of the support moment: end spans have one continuous end.
TEST(SupportMoment, comesFromTheContinuousEndOfAnEndSpan) {
    Girder girder({6000, 6000});
    girder.uniform(1, 10).uniform(2, 10);
    const UlsResults uls = girder.uls();
    const double support = -10 * 6000.0 * 6000.0 / 8;
    for (const int span : {1, 2}) {
        EXPECT_FLOAT_EQ(static_cast<float>(uls.MySupportSpan(span, 1)), static_cast<float>(support));
        EXPECT_EQ(uls.MySupportSpan(span, 3), 0) << "the hinged end";
        EXPECT_EQ(uls.MySupportSpan(span, 2), uls.MyMaxPoint(span, 10, 1)) << "point 10, left of the middle";
    }
    // q x (L - x) / 2 - M x / L at x = 0.45 L, from the left; and at 0.55 L from the hinge of the right span.
    EXPECT_NEAR(uls.MySupportSpan(1, 2), 44.55e6 - 0.45 * 45e6, 50);
    EXPECT_NEAR(uls.MySupportSpan(2, 2), 44.55e6 - 0.55 * 45e6, 50);
}

TEST(SupportMoment, ofAnInnerSpanIsThatOfItsMoreNegativeEnd) {
    const struct {
        const char* what;
        double q1, q3;
        bool right;
    } cases[] = {{"more load on the left", 20, 10, false}, {"more load on the right", 10, 20, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        Girder girder({6000, 6000, 6000});
        girder.uniform(1, c.q1).uniform(2, 10).uniform(3, c.q3).wheel(1, 0, 5).fixedAt(3000);
        const UlsResults uls = girder.uls();
        const double left = uls.MyMinPoint(2, 1, 1), right = uls.MyMinPoint(2, 21, 1);
        EXPECT_EQ(uls.MySupportSpan(2, 1), c.right ? right : left);
        EXPECT_EQ(uls.MySupportSpan(2, 3), c.right ? left : right);
        EXPECT_EQ(uls.MySupportSpan(2, 4), c.right ? uls.MzMaxPoint(2, 21, 3) : uls.MzMinPoint(2, 1, 3));
        EXPECT_EQ(uls.MySupportSpan(2, 5), 1);
        EXPECT_EQ(uls.MySupportSpan(2, 6), 3000);
    }
}

/// The horizontal moment tells the ends apart where the vertical ones are equal: a wheel that only pushes sideways in
/// the first span gives -Mz at the left end and +Mz at the right one.
TEST(SupportMoment, ofEqualEndsIsThatOfTheRightOne) {
    Girder girder({2000, 6000, 2000});
    girder.uniform(2, 6).wheel(1, 0, 5).fixedAt(1000);
    const UlsResults uls = girder.uls();
    ASSERT_EQ(uls.MyMinPoint(2, 1, 1), uls.MyMinPoint(2, 21, 1));
    ASSERT_LT(uls.MyMinPoint(2, 1, 1), 0);
    EXPECT_GT(uls.MySupportSpan(2, 4), 0);
    EXPECT_EQ(uls.MySupportSpan(2, 4), uls.MzMaxPoint(2, 21, 3));
}

TEST(SupportMoment, isNothingWhereSupportsLift) {
    const UlsResults uls = Girder({6000, 6000}).wheel(1, -50).uls();
    EXPECT_GT(uls.MyMaxPoint(1, 21, 1), 0);
    EXPECT_TRUE(empty(uls.MySupportSpan));
}

/// A long span beside a short one: where the wheel stands in the long one, the short one rises, by more than the wheel
/// in the short one ever bends it down.
TEST(Deflections, keepTheLargestMagnitudeWithItsSign) {
    Girder girder({8000, 2000});
    girder.wheel(1, 100);
    const SlsResults sls = girder.sls();
    const double rise = sls.UzMaxPoint(2, 11, 1);
    EXPECT_GT(rise, 0);
    EXPECT_EQ(sls.UzMaxPoint(2, 11, 2), 1) << "the wheel stands in the long span";
    EXPECT_GT(sls.UzMaxSpan(2, 1), rise * 0.99);
    EXPECT_LT(sls.UzMaxPoint(1, 11, 1), 0);
    EXPECT_GE(sls.UzMaxSpan(1, 1), -sls.UzMaxPoint(1, 11, 1)) << "a magnitude";

    // Upward loads give the mirror image: the point holds the sign, the span the magnitude.
    const SlsResults up = Girder({8000, 2000}).wheel(1, -100).sls();
    for (int k = 1; k <= 21; ++k) EXPECT_EQ(up.UzMaxPoint(1, k, 1), -sls.UzMaxPoint(1, k, 1));
    EXPECT_TRUE(up.UzMaxSpan == sls.UzMaxSpan);
    EXPECT_NEAR(sls.UzMaxPoint(1, 21, 1), 0, 1e-6) << "over a support";
}

// --- Dead load ------------------------------------------------------------------------------------------------------

TEST(DeadLoad, isTheSumOfGangwayRailAndBeam) {
    const struct {
        const char* what;
        int craneType;
        bool rail, self;
        double expected;
    } cases[] = {
        // 2.5 x 1.35 = 3.375; (40 x 1.35 / 1000) x 9.81 = 0.52974; (1.35 x 100 / 1000) x 9.81 = 1.32435
        {"gangway alone", 1, false, false, 3.375},
        {"with rail", 1, true, false, 3.90474},
        {"with rail and beam", 1, true, true, 5.22909},
        {"a monorail carries its own weight alone", 2, true, true, 1.32435},
        {"a monorail without weight", 2, true, false, 0},
    };
    for (const auto& c : cases) {
        Girder girder({4000, 6000});
        girder.project.CraneType = CraneKind(c.craneType);
        girder.project.RailOn = c.rail;
        girder.project.SelfWeight = c.self;
        girder.project.Gangway = 2.5;
        girder.project.SpanSection(2).Weight = 100;
        RailRecord rail;
        rail.RailWeight = 40;
        girder.loads.SpanLoad(2) = girder.loads.SpanLoad(3) = 99;
        setDeadLoad(girder.project, rail, 1.35, girder.loads);
        EXPECT_NEAR(girder.loads.SpanLoad(2), c.expected, 1e-6) << c.what;
        EXPECT_EQ(girder.loads.SpanLoad(3), 99) << "behind the beam nothing is set";
    }
}

}  // namespace
}  // namespace borvik
