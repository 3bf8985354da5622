// Each detail by hand, on the girder of girder.h. Terms: direct [1.1 r/100]^3, shear [1.1 r/80]^5 where C is 92.

#include "fatigue/detail_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "base/fault.h"
#include "girder.h"

namespace borvik {
namespace {

using testing::ElementsAre;

struct DetailCase {
    std::string name;
    const std::array<Detail, 6>& details;
    Cranes cranes;
    int result;
    std::function<void(Girder&)> set;
    const char *label, *numbers, *ratio, *place;
};
void PrintTo(const DetailCase& c, std::ostream* out) {
    *out << c.name;
}

std::vector<std::string> texts(const RowSet& rows) {
    return {rows.Text.begin(), rows.Text.begin() + kFatigueRows};
}

class DetailTexts : public testing::TestWithParam<DetailCase> {};

TEST_P(DetailTexts, areThoseOfTheHandCalculation) {
    const DetailCase& c = GetParam();
    Girder girder;
    c.set(girder);
    const FatigueResults results = girder.check(c.details, c.cranes);
    ASSERT_TRUE(results.FatResult(c.result));
    EXPECT_THAT(texts(*results.FatResult(c.result)), ElementsAre(c.label, c.numbers, c.ratio, c.place));
}

std::string nameOf(const testing::TestParamInfo<DetailCase>& test) {
    return test.param.name;
}

constexpr const char* kPoint7 = " <  1.00 ( 1/3000 mm)";  // span 1, k = 7

void railToFlange(Girder& g) {
    g.project.Fat1 = true;
    g.project.Fat1C1 = 115;
    g.Cr1.Sig1Range(1, 7) = 100;  // 1.1^3 = 1.331
    g.Cr2.Sig1Range(1, 7) = 50;   // 0.55^3 = 0.166375
    g.Cr12.Sig1Range(1, 7) = 80;  // 0.88^3 = 0.681472
}

// Support 2 takes the start of span 2, the stiffer one.
void stiffenerToFlange(Girder& g) {
    g.project.Fat2 = true;
    g.project.Fat2C1 = 115;
    g.Cr1.Sig2Range(1, 21) = 900;
    g.Cr1.Sig2Range(2, 1) = 100;
    g.Cr2.Sig2Range(2, 1) = 50;
    g.Cr12.Sig2Range(2, 1) = 80;
}

// Full penetration: 110 MPa direct and 28 + 22 = 50 MPa shear of crane 1; 24 and 15.2 + 4.8 = 20 MPa of crane 2.
void flangeToWeb(Girder& g) {
    g.project.Fat3 = true;
    g.project.Fat3C1 = 115;
    g.project.Fat3C2 = 92;
    g.Cr1.TauRange(1, 7) = 28;
    g.Cr2.TauRange(1, 7) = 15.2;
    g.Cr12.TauRange(1, 7) = 33;
}
// Two throats of 5.5 mm for a web of 10 mm: everything over 1.1.
void flangeToWebFillet(Girder& g) {
    flangeToWeb(g);
    g.project.W1 = "FW";
    g.project.W1a = 5.5;
}

// Two throats of 4 mm for a web of 10 mm: 1.25 times the shear.
void bottomWeld(Girder& g) {
    g.project.Fat4 = true;
    g.project.Fat4C1 = 115;
    g.Cr1.TauRange(1, 7) = 80;
    g.Cr2.TauRange(1, 7) = 40;
    g.Cr12.TauRange(1, 7) = 60;
    g.project.W1a = 5.5;
    g.project.W2a = 4;
}
void bottomWeldFillet(Girder& g) {
    bottomWeld(g);
    g.project.W2 = "FW";
}

// 2600 mm of 10 m is point 6.2.
void splice(Girder& g) {
    g.project.Fat5 = true;
    g.project.Fat5C1 = 115;
    g.project.ChkFat5Sp(3) = true;
    g.project.Fat5Span(3) = 1;
    g.project.Fat5d1(3) = 2600;
    g.Cr1.Sig2Range(1, 6) = 100;
    g.Cr2.Sig2Range(1, 6) = 50;
    g.Cr12.Sig2Range(1, 6) = 80;
}

void supportPoint(Girder& g) {
    g.project.Fat6 = true;
    g.project.Fat6C1 = 115;
    g.Cr1.SigSupRange(3) = 100;
    g.Cr2.SigSupRange(3) = 50;
    g.Cr12.SigSupRange(3) = 80;
}

INSTANTIATE_TEST_SUITE_P(
    Overhead, DetailTexts,
    testing::Values(
        // 1.21^3 + 0.6875^5
        DetailCase{"three", kOverheadDetails, Cranes::Alone, 3, flangeToWeb,
                   "3: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = ",
                   "[1.10*110.0/(115/1.15)]^3+[1.10*(50.0)/(92/1.15)]^5 = ", "1.925", kPoint7},
        // 1.1^3 + 0.625^5
        DetailCase{"threeFillet", kOverheadDetails, Cranes::Alone, 3, flangeToWebFillet,
                   "3: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = ",
                   "[1.10*100.0/(115/1.15)]^3+[1.10*(45.5)/(92/1.15)]^5 = ", "1.426", kPoint7},
        // + 0.264^3 + 0.275^5
        DetailCase{"threeIndependent", kOverheadDetails, Cranes::Independent, 3, flangeToWeb, "3: IR = ",
                   "[1.10*110.0/(115/1.15)]^3+[1.10*(50.0)/(92/1.15)]^5 + "
                   "[1.10*24.0/(115/1.15)]^3+[1.10*(20.0)/(92/1.15)]^5 = ",
                   "1.945", kPoint7},
        // + 0.24^3 + 0.25^5
        DetailCase{"threeIndependentFillet", kOverheadDetails, Cranes::Independent, 3, flangeToWebFillet, "3: IR = ",
                   "[1.10*100.0/(115/1.15)]^3+[1.10*(45.5)/(92/1.15)]^5 + "
                   "[1.10*21.8/(115/1.15)]^3+[1.10*(18.2)/(92/1.15)]^5 = ",
                   "1.441", kPoint7},
        // F = 110 kN for all: s = 129.41 x 0.51, 0.34, 0.34; t = 129.41 x 0.4 x 0.425, 0.17, 0.17
        DetailCase{"threeTogether", kOverheadDetails, Cranes::Together, 3, flangeToWeb,
                   "3: IR = D1^3 + D1^5 + D2^3 + D2^5 + D12^3 + D12^5 = ",
                   "0.726^3 + 0.756^5 + 0.484^3 + 0.330^5 + 0.484^3 + 0.575^5 = ", "0.923", kPoint7},
        // s = 129.41 x 0.51/1.1 three times; t over 1.1; no throat factor on 33, 15.2, 33 MPa
        DetailCase{"threeTogetherFillet", kOverheadDetails, Cranes::Together, 3, flangeToWebFillet,
                   "3: IR = D1^3 + D1^5 + D2^3 + D2^5 + D12^3 + D12^5 = ",
                   "0.660^3 + 0.729^5 + 0.660^3 + 0.319^5 + 0.660^3 + 0.564^5 = ", "1.128", kPoint7},
        // 1.1 x 0.8^5; with the load factor inside it would be 0.528
        DetailCase{"four", kOverheadDetails, Cranes::Alone, 4, bottomWeld,
                   "4: IR = [dTauE2/dTauc]^5 = ", "[1.10*80.0/(115/1.15)]^5 = ", "0.360", kPoint7},
        DetailCase{"fourFillet", kOverheadDetails, Cranes::Alone, 4, bottomWeldFillet,
                   "4: IR = [dTauE2/dTauc]^5 = ", "[1.10*100.0/(115/1.15)]^5 = ", "1.100", kPoint7},
        DetailCase{"fourIndependent", kOverheadDetails, Cranes::Independent, 4, bottomWeldFillet,
                   "4: IR = [dTauE2/dTauc]^5 + [dTauE2/dTauc]^5 = ",
                   "[1.10*100.0/(115/1.15)]^5 + [1.10*50.0/(115/1.15)]^5 = ", "1.134", kPoint7},
        // The throat factor of W2 alone, load factor inside: 1.1 x 1.25 x 0.8, 0.4, 0.6
        DetailCase{"fourTogether", kOverheadDetails, Cranes::Together, 4, bottomWeld,
                   "4: IR = D1^5 + D2^5 +D12^5 = ", "1.100^5 + 0.550^5 + 0.825^5 = ", "2.043", kPoint7},
        // and that of W1, 1/1.1, in addition
        DetailCase{"fourTogetherFillet", kOverheadDetails, Cranes::Together, 4, bottomWeldFillet,
                   "4: IR = D1^5 + D2^5 +D12^5 = ", "1.000^5 + 0.500^5 + 0.750^5 = ", "1.269", kPoint7}),
    nameOf);

// Details with one direct term and 100, 50 and 80 MPa: 1.1^3, + 0.55^3, and D = 1.1, 0.55, 0.88.
TEST(DetailChecks, directStressOfOneCraneOfTwoAndOfBothTogether) {
    const struct {
        int detail;
        void (*set)(Girder&);
        const char *alone, *independent, *together, *place;
    } cases[] = {
        {1, railToFlange, "1: IR =[dSigE2/dSigc]^3 = ", "1: IR =[dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
         "1: IR = D1^3 + D2^3 +D12^3 = ", kPoint7},
        {2, stiffenerToFlange, "2: IR =[dSigE2/dSigc]^3 = ", "2: IR =[dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
         "2: IR =D1^3 + D2^3 + D12^3 = ", " <  1.00 ( Support: 2)"},
        {5, splice, "5: IR = [dSigE2/dSigc]^3 = ", "5: IR = [dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
         "5: IR = D1^3 + D2^3 +D12^3 = ", " <  1.00 ( 1/2500 mm)"},
        {6, supportPoint, "6: IR = [dSigE2/dSigc]^3 = ", "6: IR = [dSigE2/dSigc]^3 + [dSigE2/dSigc]^3 = ",
         "6: IR = D1^3 + D2^3 +D12^3 = ", " <  1.00 ( Support: 3)"},
    };
    for (const auto& c : cases) {
        Girder girder;
        c.set(girder);
        const auto textsOf = [&](Cranes cranes) {
            return texts(*girder.check(kOverheadDetails, cranes).FatResult(c.detail));
        };
        EXPECT_THAT(textsOf(Cranes::Alone), ElementsAre(c.alone, "[1.10*100.0/(115/1.15)]^3 = ", "1.331", c.place));
        EXPECT_THAT(
            textsOf(Cranes::Independent),
            ElementsAre(c.independent, "[1.10*100.0/(115/1.15)]^3 + [1.10*50.0/(115/1.15)]^3 = ", "1.497", c.place));
        EXPECT_THAT(textsOf(Cranes::Together),
                    ElementsAre(c.together, "1.100^3 + 0.550^3 + 0.880^3 = ", "2.179", c.place));
    }
}

// At support 2 the span to the right counts, though it is the weaker one here.
void weakRightSpan(Girder& g) {
    g.project.SpanSection(2).Iy = 1e8;
    g.Cr1.Sig1Range(1, 21) = 900;
    g.Cr1.Sig1Range(2, 1) = 100;
}
void edgeOfSupport(Girder& g) {
    weakRightSpan(g);
    g.project.FatR1 = true;
    g.project.FatR1C1 = 115;
}

// LamSig = 0.5 and a range of reactions of 240 kN over (2 x 20 + 60) x 10 = 1000 mm2: 120 MPa.
void hanger(Girder& g) {
    g.project.FatR3 = true;
    g.project.FatR3C1 = 115;
    g.project.FatR3C2 = 92;
    g.project.RWS1d = 60;
    g.Cr1.RzMax(1) = 200e3;
    g.Cr1.RzMin(1) = -40e3;
    g.Cr1.TauRange(1, 1) = 80;
}
void hangerFillet(Girder& g) {  // 2 x 100 x 4 = 800 mm2: 150 MPa; shear 1.25 x 80 MPa
    hanger(g);
    g.project.RW2 = "FW";
    g.project.RW2a = 4;
}

void monorailShear(Girder& g) {
    g.Cr1.TauRange(1, 7) = 80;
    g.project.FatR4 = true;
    g.project.FatR4C1 = 115;
}
void monorailShearFillet(Girder& g) {
    monorailShear(g);
    g.project.RW3 = "FW";
    g.project.RW3a = 4;
}

// SigBend = 262.8 MPa (see flangeBending) x 0.5 = 131.4 MPa.
void wheelOnFlange(Girder& g) {
    g.project.FatR6 = true;
    g.project.FatR6C1 = 115;
    g.project.FatR6C2 = 92;
    g.factors.Cr1.LamSigN = 0.5;
    g.Cr1.TauRange(1, 7) = 80;
    g.project.RW4 = "FW";  // read by nothing
    g.project.RW4a = 4;
}
void wheelOnFlangeFillet(Girder& g) {
    wheelOnFlange(g);
    g.project.RW3 = "FW";
    g.project.RW4 = "FP";
}

void monorailSplice(Girder& g) {
    g.project.FatR5 = true;
    g.project.FatR5C1 = 115;
    g.project.ChkFatR5Sp(2) = true;
    g.project.FatR5Span(2) = 1;
    g.project.FatR5d1(2) = 2600;
    g.project.Fat5Span(2) = 2;  // where the stress is read
    g.Cr1.Sig2Range(1, 6) = 50;
    g.Cr1.Sig2Range(2, 6) = 100;
}

INSTANTIATE_TEST_SUITE_P(
    Monorail, DetailTexts,
    testing::Values(
        DetailCase{"one", kMonorailDetails, Cranes::Alone, 1, edgeOfSupport,
                   "1: IR =[dSigE2/dSigc]^3 = ", "[1.10*100.0/(115/1.15)]^3 = ", "1.331", " <  1.00 ( Support: 2)"},
        DetailCase{"two", kMonorailDetails, Cranes::Alone, 2,
                   [](Girder& g) {
                       g.project.FatR2 = true;
                       g.project.FatR2C1 = 115;
                       g.Cr1.SigSupRange(2) = 100;
                   },
                   "2: IR = [dSigE2/dSigc]^3 = ", "[1.10*100.0/(115/1.15)]^3 = ", "1.331", " <  1.00 ( Support: 2)"},
        // (120 x 1.1/115/1.15)^3 + 1.1 x 1^5
        DetailCase{"three", kMonorailDetails, Cranes::Alone, 3, hanger,
                   "3: IR = [dSigE2/dSigc]^3 + [dTauE2/dTauc]^5 = ",
                   "[1.10*120.0/(115/1.15)]^3+[1.10*80.0/(92/1.15)]^5 = ", "2.094", " <  1.00 ( Support: 1)"},
        // (150 x 1.1/115/1.15)^3 + 1.1 x 1.25^5
        DetailCase{"threeFillet", kMonorailDetails, Cranes::Alone, 3, hangerFillet,
                   "3: IR = [dSigE2/dSigc]^3 + [dTauE2/dTauc]^5 = ",
                   "[1.10*150.0/(115/1.15)]^3+[1.10*100.0/(92/1.15)]^5 = ", "5.299", " <  1.00 ( Support: 1)"},
        DetailCase{"four", kMonorailDetails, Cranes::Alone, 4, monorailShear,
                   "4: IR = [dTauE2/dTauc]^5 = ", "[1.10*(80.0)/(115/1.15)]^5 = ", "0.528", kPoint7},
        DetailCase{"fourFillet", kMonorailDetails, Cranes::Alone, 4, monorailShearFillet,
                   "4: IR = [dTauE2/dTauc]^5 = ", "[1.10*(100.0)/(115/1.15)]^5 = ", "1.611", kPoint7},
        DetailCase{"five", kMonorailDetails, Cranes::Alone, 5, monorailSplice,
                   "5: IR = [dSigE2/dSigc]^3 = ", "[1.10*100.0/(115/1.15)]^3 = ", "1.331", " <  1.00 ( 1/2500 mm)"},
        // 1.4454^3 + 1.1^5, and 1.375^5 in the fillet
        DetailCase{"six", kMonorailDetails, Cranes::Alone, 6, wheelOnFlange,
                   "6: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = ",
                   "[1.10*131.4/(115/1.15)]^3+[1.10*(80.0)/(92/1.15)]^5 = ", "4.630", kPoint7},
        DetailCase{"sixFillet", kMonorailDetails, Cranes::Alone, 6, wheelOnFlangeFillet,
                   "6: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = ",
                   "[1.10*131.4/(115/1.15)]^3+[1.10*(100.0)/(92/1.15)]^5 = ", "7.935", kPoint7}),
    nameOf);

std::string ratioAndPlace(const RowSet& row) {
    return row(3) + row(4);
}

TEST(DetailChecks, rowsOfSupportsAreWrittenWhateverTheirRatio) {
    Girder girder;
    stiffenerToFlange(girder);
    girder.Cr1.Sig2Range(1, 1) = 0;
    girder.Cr1.Sig2Range(2, 21) = 20;
    const auto rows = *girder.check(kOverheadDetails, Cranes::Alone).FatRows(2);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(ratioAndPlace(rows(1)), "0.000 <  1.00 ( Support: 1)");
    EXPECT_EQ(ratioAndPlace(rows(2)), "1.331 <  1.00 ( Support: 2)");
    EXPECT_EQ(ratioAndPlace(rows(3)), "0.011 <  1.00 ( Support: 3)");

    // Between equal sections support 2 takes the end of the left span: (1.1 x 900/100)^3.
    girder.project.SpanSection(2).Iy = girder.project.SpanSection(1).Iy;
    EXPECT_EQ(girder.check(kOverheadDetails, Cranes::Alone).FatRows(2)->operator()(2)(3), "970.299");
}

TEST(DetailChecks, ratiosAreRankedAsTexts) {
    Girder girder;
    railToFlange(girder);
    girder.project.GammaFf = 1.0;
    girder.project.Fat1C1 = 115;
    // r = 100 x 9.5^(1/3) and so on
    girder.Cr1.Sig1Range(1, 7) = 211.7912;
    girder.Cr1.Sig1Range(2, 3) = 228.9428;
    const FatigueResults results = girder.check(kOverheadDetails, Cranes::Alone);
    EXPECT_EQ((*results.FatRows(1))(2)(3), "12.000");
    EXPECT_EQ((*results.FatResult(1))(3), "9.500");
    EXPECT_NEAR(results.FatResult(1)->Ratio, 9.5, 1e-4);
    EXPECT_NEAR((*results.FatRows(1))(2).Ratio, 12.0, 1e-4);
}

TEST(DetailChecks, theFirstOfEqualPointsAndSpansStays) {
    Girder girder;
    railToFlange(girder);
    girder.Cr1.Sig1Range(1, 9) = girder.Cr1.Sig1Range(2, 2) = 100;
    EXPECT_EQ((*girder.check(kOverheadDetails, Cranes::Alone).FatResult(1))(4), kPoint7);

    Girder unloaded;
    unloaded.project.Fat1 = true;
    unloaded.project.GammaFf = 0;
    EXPECT_EQ(ratioAndPlace(*unloaded.check(kOverheadDetails, Cranes::Alone).FatResult(1)), "0.000 <  1.00 ( 1/0 mm)");
}

// One and the same sum all along the span. Its digits rank above the three decimals written first when these were
// rounded down, so that the last point is named, and below them when they were rounded up.
TEST(DetailChecks, flangeBendingRanksByFullDigits) {
    const struct {
        double LamSigN;
        const char* expected;
    } cases[] = {{0.1587, "0.097 <  1.00 ( 1/0 mm)"},       // (262.8 x 0.1587 x 1.1/100)^3 = 0.09656
                 {0.1584, "0.096 <  1.00 ( 1/10000 mm)"}};  // 0.09601
    for (const auto& c : cases) {
        Girder girder;
        wheelOnFlange(girder);
        girder.factors.Cr1.LamSigN = c.LamSigN;
        girder.Cr1.TauRange = Table<Single>(2, 21);
        EXPECT_EQ(ratioAndPlace((*girder.check(kMonorailDetails, Cranes::Alone).FatRows(6))(1)), c.expected);
    }
}

TEST(DetailChecks, splicesAreCheckedAtTheNearestPoint) {
    const struct {
        double span, distance;
        const char* place;
    } cases[] = {
        {1, 2750, " <  1.00 ( 1/2500 mm)"},      // point 6.5: to the even 6
        {1, 3250, " <  1.00 ( 1/3500 mm)"},      // point 7.5: to the even 8
        {1, 10000, " <  1.00 ( 1/10000 mm)"},    // point 21
        {2, 590, " <  1.00 ( 2/400 mm)"},        // point 2.475
        {1.5, 4000, " <  1.00 ( 1.5/4000 mm)"},  // span 2, printed as it is stored
    };
    for (const auto& c : cases) {
        Girder girder;
        splice(girder);
        girder.project.Fat5Span(3) = c.span;
        girder.project.Fat5d1(3) = c.distance;
        const FatigueResults results = girder.check(kOverheadDetails, Cranes::Alone);
        ASSERT_EQ(results.FatRows(5)->size(), 4);
        EXPECT_EQ((*results.FatRows(5))(3)(4), c.place);
        EXPECT_THAT(texts((*results.FatRows(5))(1)), ElementsAre("", "", "", ""));
    }
}

TEST(DetailChecks, aMonorailsSpliceReadBeyondTheBeamHasNoStress) {
    for (const double elsewhere : {0.0, 3.0}) {
        Girder girder;
        monorailSplice(girder);
        girder.project.Fat5Span(2) = elsewhere;
        EXPECT_EQ(ratioAndPlace(*girder.check(kMonorailDetails, Cranes::Alone).FatResult(5)),
                  "0.000 <  1.00 ( 1/2500 mm)");
    }
}

TEST(DetailChecks, rowsOfDetail4LiveInThoseOfDetail6) {
    Girder girder;
    bottomWeldFillet(girder);
    const FatigueResults alone = girder.check(kOverheadDetails, Cranes::Alone);
    EXPECT_FALSE(alone.FatRows(4));
    EXPECT_FALSE(alone.FatResult(6));
    ASSERT_TRUE(alone.FatRows(6));
    EXPECT_EQ((*alone.FatRows(6))(1)(3), "1.100");

    supportPoint(girder);
    const FatigueResults both = girder.check(kOverheadDetails, Cranes::Alone);
    EXPECT_EQ(both.FatRows(6)->size(), 3);
    EXPECT_EQ((*both.FatRows(6))(3)(3), "1.331");
    EXPECT_EQ((*both.FatResult(4))(3), "1.100");

    monorailShear(girder);
    EXPECT_TRUE(girder.check(kMonorailDetails, Cranes::Alone).FatRows(4));
    EXPECT_FALSE(girder.check(kMonorailDetails, Cranes::Alone).FatRows(6));
}

TEST(DetailChecks, withoutASecondCraneTheIndependentSumIsThatOfCrane1) {
    Girder girder;
    for (auto* set :
         {&railToFlange, &stiffenerToFlange, &flangeToWebFillet, &bottomWeldFillet, &splice, &supportPoint}) {
        (*set)(girder);
    }
    girder.Cr2 = StressSet(2);
    girder.factors.Cr2 = {};
    const FatigueResults alone = girder.check(kOverheadDetails, Cranes::Alone);
    const FatigueResults independent = girder.check(kOverheadDetails, Cranes::Independent);
    for (int d = 1; d <= 6; ++d) {
        EXPECT_EQ(ratioAndPlace(*alone.FatResult(d)), ratioAndPlace(*independent.FatResult(d))) << "detail " << d;
        EXPECT_EQ(alone.FatResult(d)->Ratio, independent.FatResult(d)->Ratio) << "detail " << d;
    }
}

// The three D values are held as singles, and the powers are taken of what is held.
TEST(DetailChecks, powersAreTakenOfTheHeldValues) {
    Girder girder;
    railToFlange(girder);
    const auto held = [](double range) { return double(float(double(1.1F) * range / (115.0 / double(1.15F)))); };
    EXPECT_DOUBLE_EQ(girder.check(kOverheadDetails, Cranes::Together).FatResult(1)->Ratio,
                     std::pow(held(100), 3) + std::pow(held(50), 3) + std::pow(held(80), 3));
}

// The direct stress of the six: 120 kN of crane 2 when its largest wheel is the larger one, or as large.
TEST(DetailChecks, bothTogetherTakeTheLargerWheelWithItsOwnDynamicFactor) {
    Girder girder;
    flangeToWeb(girder);
    girder.project.V(8) = 100;
    const FatigueResults results = girder.check(kOverheadDetails, Cranes::Together);
    // s = 120e3/85/10 x 0.51 = 72 MPa: D = 0.792
    EXPECT_THAT((*results.FatResult(3))(2), testing::StartsWith("0.792^3 + "));
}

TEST(DetailChecks, aThroatOfZeroIsAFaultThatNamesDetailAndSpan) {
    Girder girder;
    bottomWeld(girder);
    girder.project.W2a = 0;  // full penetration: read all the same when both cranes act together
    EXPECT_NO_THROW((void)girder.check(kOverheadDetails, Cranes::Independent));
    try {
        (void)girder.check(kOverheadDetails, Cranes::Together);
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_STREQ(fault.what(), "Fatigue detail 4, bottom flange to web, span 1: division by zero");
    }
}

}  // namespace
}  // namespace borvik
