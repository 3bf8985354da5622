#include "fatigue/stress_history.h"

#include <gtest/gtest.h>

#include "base/fault.h"
#include "girder.h"

namespace borvik {
namespace {

constexpr double kSmall = 1e-5;  // singles of some 100 MPa

FlsResults walked() {
    FlsResults fls;
    fls.FlsRzMax = fls.FlsRzMin = Array<Single>(1, 3);
    for (auto* point : {&fls.FlsMyMaxPoint, &fls.FlsMyMinPoint, &fls.FlsVzMaxPoint, &fls.FlsVzMinPoint}) {
        *point = Cube<Single>(2, 21, 6);
    }
    // Span 1: 100 kNm and -20 kNm at k = 5, 92 kN and -46 kN at k = 2.
    fls.FlsMyMaxPoint(1, 5, 1) = 100e6;
    fls.FlsMyMinPoint(1, 5, 1) = -20e6;
    fls.FlsVzMaxPoint(1, 2, 2) = 92e3;
    fls.FlsVzMinPoint(1, 2, 2) = -46e3;
    // What goes with an extreme of the other kind must not be read.
    fls.FlsMyMaxPoint(1, 5, 2) = fls.FlsVzMaxPoint(1, 2, 1) = 7e9;
    // Span 2: sagging only, the same at k = 8 and k = 9.
    fls.FlsMyMaxPoint(2, 8, 1) = fls.FlsMyMaxPoint(2, 9, 1) = 30e6;
    fls.FlsRzMax(1) = 60e3;
    fls.FlsRzMin(1) = -20e3;
    fls.FlsRzMax(2) = 240e3;
    fls.FlsRzMin(3) = -80e3;  // the last reaction has the sign of the shear
    return fls;
}

// Span 1: zt = -300 mm, zb = 200 mm, Iy = 2e8 mm4, tw Hw = 4600 mm2. LamSig = 0.5, LamTau = 0.3.
TEST(StressHistory, bendingAndShearAtAPoint) {
    const Girder girder;
    const StressSet set = stressHistory(StressHistoryCr1, girder.project, walked(), girder.factors.Cr1);
    EXPECT_NEAR(set.Sig1Max(1, 5), 15.0, kSmall);   // -20e6/2e8 x -300 x 0.5
    EXPECT_NEAR(set.Sig1Min(1, 5), -75.0, kSmall);  // 100e6/2e8 x -300 x 0.5
    EXPECT_NEAR(set.Sig1Range(1, 5), 90.0, kSmall);
    EXPECT_NEAR(set.Sig2Max(1, 5), 50.0, kSmall);  // 100e6/2e8 x 200 x 0.5
    EXPECT_NEAR(set.Sig2Min(1, 5), -10.0, kSmall);
    EXPECT_NEAR(set.Sig2Range(1, 5), 60.0, kSmall);
    EXPECT_NEAR(set.TauMax(1, 2), 6.0, kSmall);  // 92e3/4600 x 0.3
    EXPECT_NEAR(set.TauMin(1, 2), -3.0, kSmall);
    EXPECT_NEAR(set.TauRange(1, 2), 9.0, kSmall);
}

TEST(StressHistory, peaksStartAtZeroAndKeepTheFirstPoint) {
    const Girder girder;
    const StressSet set = stressHistory(StressHistoryCr2, girder.project, walked(), girder.factors.Cr1);
    EXPECT_NEAR(set.Sig1MinPeak(1, 1), -75.0, kSmall);
    EXPECT_NEAR(set.Sig1MaxPeak(1, 1), 15.0, kSmall);
    EXPECT_EQ(set.Sig1RangePeak(1, 2), 2000.0);  // (5 - 1)/20 of 10 m
    EXPECT_NEAR(set.TauRangePeak(1, 1), 9.0, kSmall);
    EXPECT_EQ(set.TauMinPeak(1, 2), 500.0);
    EXPECT_NEAR(set.Sig2MaxPeak(2, 1), 15.0, kSmall);  // 30e6/3e8 x 300 x 0.5
    EXPECT_EQ(set.Sig2MaxPeak(2, 2), 2800.0);          // k = 8 of 8 m, not k = 9
    EXPECT_EQ(set.Sig2MinPeak(2, 1), 0.0);
    EXPECT_EQ(set.Sig2MinPeak(2, 2), 0.0);
}

// Fat6d1 = 60: bearing 100 mm in span 1, 110 mm in span 2; stiffener 200 - 30 - 10 = 160 mm and 250 - 30 - 12 = 208 mm,
// two of them, 5 mm thick. Support 1 takes span 1; support 2 the stiffer span 2; support 3 span 2. LamSig = 0.5.
struct SupportCase {
    const char* name;
    History history;
    const char *W3, *Fab;
    double range1, range2, range3;
};
void PrintTo(const SupportCase& c, std::ostream* out) {
    *out << c.name;
}
class SupportStress : public testing::TestWithParam<SupportCase> {};

TEST_P(SupportStress, spreadsTheReactionOverWebAndStiffener) {
    const SupportCase& c = GetParam();
    Girder girder;
    girder.project.W3 = c.W3;
    girder.project.W3a = 4;
    girder.project.Fat6d1 = 60;
    girder.project.WS1t = "5,0";
    girder.project.StiffenerMode = EndPost::Rigid;
    girder.project.SpanSection(1).Fab = girder.project.SpanSection(2).Fab = c.Fab;
    const StressSet set = stressHistory(c.history, girder.project, walked(), girder.factors.Cr1);
    EXPECT_NEAR(set.SigSupRange(1), c.range1, kSmall);
    EXPECT_NEAR(set.SigSupRange(2), c.range2, kSmall);
    EXPECT_NEAR(set.SigSupRange(3), c.range3, kSmall);
    EXPECT_EQ(set.SigSupMax(1).stored(), set.SigSupRange(1).stored());
    EXPECT_EQ(set.SigSupMin(1), 0.0);
    EXPECT_EQ(set.RzMax(2), 240e3);
    EXPECT_EQ(set.RzMin(3), -80e3);
}

// Full penetration: 1000 + 5 x 160 x 2 = 2600 and 1320 + 5 x 208 x 2 = 3400 mm2.
// Fillets: 2 x 100 x 4 + 2 x 160 x 2 x 4 = 3360 and 880 + 3328 = 4208 mm2.
// Rolled, crane 1: 1000 + 2560 = 3560 and 1320 + 3328 = 4648 mm2.
INSTANTIATE_TEST_SUITE_P(
    Welds, SupportStress,
    testing::Values(SupportCase{"full", StressHistoryCr1, "FP", "W", 40e3 / 2600, 120e3 / 3400, 40e3 / 3400},
                    SupportCase{"fillet", StressHistoryCr1, "FW", "W", 40e3 / 3360, 120e3 / 4208, 40e3 / 4208},
                    SupportCase{"rolledCr1", StressHistoryCr1, "FW", "R", 40e3 / 3560, 120e3 / 4648, 40e3 / 4648},
                    SupportCase{"rolledCr2", StressHistoryCr2, "FW", "R", 40e3 / 3360, 120e3 / 4208, 40e3 / 4208},
                    SupportCase{"rolledCr12", StressHistoryCr12, "FW", "R", 40e3 / 3360, 120e3 / 4208, 40e3 / 4208},
                    SupportCase{"rolledFull", StressHistoryCr1, "FP", "R", 40e3 / 2600, 120e3 / 3400, 40e3 / 3400}),
    [](const auto& test) { return test.param.name; });

// Plate 8 x 50 = 400 mm2; two fillets of 4 on 50 mm as much: 2 x 50 x 4. Then 5 mm fillets: 500 mm2.
TEST(StressHistory, theMonorailsHangerTakesTheReactionAlone) {
    Girder girder;
    girder.project.RWS1t = "8";
    girder.project.RWS1d = 50;
    girder.project.RW1a = 5;
    StressSet set = stressHistory(StressHistoryMonorail, girder.project, walked(), girder.factors.Cr1);
    EXPECT_NEAR(set.SigSupMax(1), 75.0, kSmall);  // 0.5 x 60e3/400
    EXPECT_NEAR(set.SigSupMin(1), -25.0, kSmall);
    EXPECT_NEAR(set.SigSupRange(1), 100.0, kSmall);
    girder.project.RW1 = "FW";
    set = stressHistory(StressHistoryMonorail, girder.project, walked(), girder.factors.Cr1);
    EXPECT_NEAR(set.SigSupRange(1), 80.0, kSmall);
    EXPECT_NEAR(set.SigSupRange(2), 240.0, kSmall);
}

TEST(StressHistory, theLeftSpanCountsAtASupportBetweenEqualSections) {
    Girder girder;
    EXPECT_EQ(strongerSpanAtSupport(girder.project, 2), 2);
    girder.project.SpanSection(2).Iy = girder.project.SpanSection(1).Iy;
    EXPECT_EQ(strongerSpanAtSupport(girder.project, 2), 1);
    EXPECT_EQ(strongerSpanAtSupport(girder.project, 1), 1);
    EXPECT_EQ(strongerSpanAtSupport(girder.project, 3), 2);
}

TEST(StressHistory, aHangerWithoutAreaIsAFaultWithItsPlace) {
    Girder girder;
    girder.project.RWS1t = "";
    girder.project.RWS1d = 50;
    try {
        (void)stressHistory(StressHistoryMonorail, girder.project, walked(), girder.factors.Cr1);
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_STREQ(fault.what(), "Stress history of the monorail, span 1: division by zero");
    }
}

}  // namespace
}  // namespace borvik
