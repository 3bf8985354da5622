// The drivers, on a simple beam of 10 m: a wheel P at midspan gives P L/4 there.

#include "fatigue/fatigue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "girder.h"

namespace borvik {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::StartsWith;

/// One wheel a crane: 80 kN x 1.1 = 88 kN in class S3, 50 kN x 1.25 = 62.5 kN in class S1, 4 m apart. Both together are
/// S0. Sig2 of My is My/2e8 x 200, so that 1 kNm is 1 MPa; factors 0.397 (S3), 0.25 (S1), 0.198 (S0).
class Fatigue : public testing::Test {
protected:
    Fatigue() {
        Project& p = girder.project;
        p.NofSpans = 1;
        p.Span(2) = 0;
        p.CraneType = CraneKind::Overhead;
        p.NofCranes = 1;
        p.TwoCraneMode = TwoCranes::Independent;
        p.BeamLength = 10000;
        p.MinAvst = 4000;
        p.CranesLength = 4000;
        p.V = decltype(p.V)::of(80, 0, 0, 0, 50, 0, 0, 0);
        p.PsiV1 = 1.2;
        p.PsiV2 = 1.5;
        p.CraneClass1 = 3;
        p.CraneClass2 = 1;
        p.CraneClassR = 1;
        p.Fat5 = true;
        p.Fat5C1 = 115;
        p.ChkFat5Sp(1) = true;
        p.Fat5Span(1) = 1;
        p.Fat5d1(1) = 5000;
        p.SpanSection(1).Iz = 1e7;
        for (Single& load : loads.SpanLoad) load = 5;
        for (Single& load : loads.WheelH) load = 9;
        for (Single& gap : loads.WheelGap) gap = 111;
        loads.NCranes = 2;
    }

    FatigueResults run(FatigueResults (*driver)(const FatigueRun&) = RunFatigueOverhead) {
        return driver({girder.project, girder.rail, loads, WalkMethod::Plain, messages, progress, steps});
    }

    /// Range of the bottom flange's stress at midspan.
    static double midspan(const std::optional<StressSet>& set) { return set.value().Sig2Range(1, 11); }

    Girder girder;
    RunLoads loads;
    MessageList messages;
    Progress progress;
    PositionLog steps;
};

constexpr double kSmall = 1e-4;

TEST_F(Fatigue, oneCrane) {
    girder.project.Avst = decltype(girder.project.Avst)::of(0, 0, 0, 1, 2, 3);
    const FatigueResults results = run();
    EXPECT_NEAR(midspan(results.Cr1), 220 * 0.397, kSmall);
    EXPECT_FALSE(results.Cr2);
    EXPECT_FALSE(results.Cr12);
    EXPECT_NEAR(results.Cr1->RzMax(1), 88e3, 0.01);
    EXPECT_EQ((*results.FatResult(5))(2), "[1.10*87.3/(115/1.15)]^3 = ");
    EXPECT_EQ(loads.SpanLoad(1), 0.0);
    EXPECT_EQ(loads.NCranes, 1);
    EXPECT_THAT(loads.WheelV.items_, ElementsAre(Single(88.0), 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
    EXPECT_THAT(loads.WheelGap.items_, ElementsAre(0.0, 0.0, 0.0, 1.0, 2.0, 3.0));
    EXPECT_GT(steps.StepNo.size(), 0);
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(Fatigue, independentCranesAddTheirDamage) {
    girder.project.NofCranes = 2;
    const FatigueResults results = run();
    EXPECT_NEAR(midspan(results.Cr1), 220 * 0.397, kSmall);
    EXPECT_NEAR(midspan(results.Cr2), 156.25 * 0.25, kSmall);
    EXPECT_FALSE(results.Cr12);
    EXPECT_EQ((*results.FatResult(5))(2), "[1.10*87.3/(115/1.15)]^3 + [1.10*39.1/(115/1.15)]^3 = ");
}

TEST_F(Fatigue, cranesTogetherRollOnTheGapsOfCrane2) {
    girder.project.NofCranes = 2;
    girder.project.TwoCraneMode = TwoCranes::Together;
    girder.project.Avst = decltype(girder.project.Avst)::of(0, 0, 0, 2000, 0, 0);
    girder.project.CranesLength = 6000;
    const FatigueResults results = run();
    // The train is 6 m long, so that wheel 1 stops 4 m from the left support: 88 x 4/2 = 176 kNm alone, and 62.5 x 4/2
    // = 125 kNm for crane 2. Both: wheel 5 stands 2 + 4 = 6 m in front, at the support. (On the gaps of crane 1 it
    // would stand 2 m before it, and add 62.5 kNm.)
    EXPECT_NEAR(midspan(results.Cr12), 176 * 0.198, kSmall);
    EXPECT_EQ(girder.project.FatigueSpare, 0);
    EXPECT_EQ((*results.FatResult(5))(2), "0.769^3 + 0.344^3 + 0.383^3 = ");  // 1.1 x 69.87, 31.25, 34.85
    EXPECT_THAT(loads.WheelV.items_, ElementsAre(Single(88.0), 0.0, 0.0, 0.0, 62.5, 0.0, 0.0, 0.0));
    EXPECT_THAT(loads.WheelH.items_, Each(0.0));
    EXPECT_THAT(loads.WheelGap.items_, ElementsAre(2000.0, 0.0, 0.0, 2000.0, 0.0, 0.0));
    EXPECT_EQ(loads.NCranes, 1);
}

// 88 kN over 85 mm and 10 mm are 103.53 MPa; LamSigN of both is 0.198 x 2^(1/3): D = 1.1 x 25.83/(36/1.15).
TEST_F(Fatigue, bothTogetherCountTheWheelsOfBoth) {
    girder.project.NofCranes = 2;
    girder.project.TwoCraneMode = TwoCranes::Together;
    girder.project.Fat3 = true;
    EXPECT_THAT((*run().FatResult(3))(2), StartsWith("0.908^3 + "));
}

// No bearing length and no stiffener: 2 x 20 x 10 mm2 of web for crane 1, 2 x 2 x 20 x 3 mm2 of fillet for the others.
TEST_F(Fatigue, onlyCrane1TakesTheWholeWebOfARolledSection) {
    girder.project.NofCranes = 2;
    girder.project.TwoCraneMode = TwoCranes::Together;
    girder.project.W3 = "FW";
    girder.project.SpanSection(1).Fab = "R";
    const FatigueResults results = run();
    EXPECT_NEAR(results.Cr1->SigSupRange(1), results.Cr1->RzMax(1) * 0.397 / 400, kSmall);
    EXPECT_NEAR(results.Cr2->SigSupRange(1), results.Cr2->RzMax(1) * 0.25 / 240, kSmall);
    EXPECT_NEAR(results.Cr12->SigSupRange(1), results.Cr12->RzMax(1) * 0.198 / 240, kSmall);
}

// Crane 2 runs with the dynamic factor and the class of crane 1: 88 x 10/4 + 50 x 1.1 x 1/2 = 247.5 kNm.
TEST_F(Fatigue, aTrainIsOneCrane) {
    girder.project.NofCranes = 2;
    girder.project.MinDistConst = 1;
    girder.project.FatigueSpare = 7;
    FatigueResults results = run();
    EXPECT_NEAR(midspan(results.Cr1), 247.5 * 0.397, kSmall);
    EXPECT_FALSE(results.Cr2);
    EXPECT_FALSE(results.Cr12);
    EXPECT_EQ((*results.FatResult(5))(1), "5: IR = [dSigE2/dSigc]^3 = ");

    girder.project.TwoCraneMode = TwoCranes::Together;
    results = run();
    EXPECT_FALSE(results.Cr12);
    EXPECT_EQ((*results.FatResult(5))(2), "1.081^3 + 0.000^3 + 0.000^3 = ");  // 1.1 x 98.26
    EXPECT_EQ(girder.project.FatigueSpare, 7);
}

// Two wheels of the train: LamSigN = 0.397 x 2^(1/3), and 88 kN over 85 mm and 10 mm: 103.53 MPa.
TEST_F(Fatigue, theWheelsOfATrainCountForTheLocalStress) {
    girder.project.NofCranes = 2;
    girder.project.MinDistConst = 1;
    girder.project.Fat3 = true;
    EXPECT_THAT((*run().FatResult(3))(2), StartsWith("[1.10*51.8/(36/1.15)]^3+"));
    girder.project.MinDistConst = 0;
    girder.project.NofCranes = 1;
    EXPECT_THAT((*run().FatResult(3))(2), StartsWith("[1.10*41.1/(36/1.15)]^3+"));
}

// A second crane without load changes nothing but the labels and the second text.
TEST_F(Fatigue, anUnloadedSecondCraneAddsNothing) {
    Project& p = girder.project;
    p.Fat1 = p.Fat2 = p.Fat3 = p.Fat4 = p.Fat6 = true;
    for (int wheel = 5; wheel <= 8; ++wheel) p.V(wheel) = 0;
    const FatigueResults one = run();
    p.NofCranes = 2;
    const FatigueResults two = run();
    for (int d = 1; d <= 6; ++d) {
        EXPECT_EQ(one.FatResult(d)->Ratio, two.FatResult(d)->Ratio) << "detail " << d;
        EXPECT_EQ((*one.FatResult(d))(3), (*two.FatResult(d))(3)) << "detail " << d;
        EXPECT_EQ((*one.FatResult(d))(4), (*two.FatResult(d))(4)) << "detail " << d;
    }
    EXPECT_NE((*one.FatResult(1))(1), (*two.FatResult(1))(1));
}

TEST_F(Fatigue, aMonorailHasItsOwnClassAndDetails) {
    girder.project.CraneType = CraneKind::Monorail;
    girder.project.RWS1t = "8";
    girder.project.RWS1d = 50;
    girder.project.FatR2 = true;
    girder.project.FatR2C1 = 115;
    const FatigueResults results = run(RunFatigueMonorail);
    EXPECT_NEAR(midspan(results.Cr1), 220 * 0.25, kSmall);
    EXPECT_FALSE(results.FatResult(5));  // the overhead crane's splice is not checked
    // 0.25 x 88e3/400 = 55 MPa
    EXPECT_EQ((*results.FatRows(2))(1)(2), "[1.10*55.0/(115/1.15)]^3 = ");
    EXPECT_THAT(loads.WheelV.items_, ElementsAre(Single(88.0), 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0));
}

}  // namespace
}  // namespace borvik
