#include "checks/section_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "checks/samples.h"

namespace borvik {
namespace {

using testing::ElementsAre;

// Web term at rho = 1 and class 1: 400^2 x 10/4 x 250 = 100 kNm; in class 3: 66.667 kNm.
TEST(ReducedMoment, takesTheWebAwayAsShearGrows) {
    struct Case {
        double MyEd, VzEd, MyRdPos, GammaM0, expected;
        const char* why;
    };
    const Case cases[] = {
        {100, 250, 300, 1, 300, "exactly half of VzRd: no reduction"},
        {100, 275, 300, 1, 299, "rho = (1.1 - 1)^2 = 0.01"},
        {100, 375, 300, 1, 275, "rho = (1.5 - 1)^2 = 0.25"},
        {0, 375, 300, 1, 275, "no moment counts as positive"},
        {100, 500, 300, 1, 200, "rho = 1"},
        {100, 900, 300, 1, 200, "rho stops at 1"},
        {100, 500, 50, 1, -50, "no floor"},
        {100, 375, 300, 1.25, 220, "240 - 25/1.25"},
        {-100, 375, 300, 1, 250 - 100.0 / 6, "negative: MyRdNeg and ClassNeg 3, elastic web modulus"},
    };
    for (const Case& c : cases) {
        SectionRecord section = samples::section(1, 3);
        section.MyRdPos = c.MyRdPos;
        Project project = samples::project(1, section);
        project.GammaM0 = c.GammaM0;
        EXPECT_NEAR(reducedMoment(project, section, c.MyEd, c.VzEd), c.expected, 1e-4) << c.why;
    }
}

/// Section checks of equal spans of one section.
struct Girder {
    Project project;
    UlsResults uls;
    CheckResults checks;

    Girder(int spans, const SectionRecord& section)
        : project(samples::project(spans, section)), uls(samples::uls(spans)) {}
    void check() {
        const SlsResults sls = samples::sls(1);
        checks.all = {runCheck("Shear", {project, {}, uls, sls}), runCheck("Bend", {project, {}, uls, sls})};
    }
};

// MyEd 150, shear 250 (exactly half of VzRd: free), 275 (rho 0.01) or 375 kN (rho 0.25), MzEd 0 or 5. MyRdPos 300,
// MyRdNeg 250, MzRd 50. ClassNeg is 3 throughout and has no say in the formula, only in the reduction:
// Mr = 250 - 16.667 = 233.333. Class 3 positive: 300 - 16.667 = 283.333.
TEST(Bending, textsOfEveryFormula) {
    struct Case {
        bool largest;
        double VzEd, MzEd;
        int classPos;
        const char *formula, *numbers, *ratio, *reference;
    };
    const Case cases[] = {
        {true, 250, 0, 1, "IR = My,Ed/My,Rd = ", "150.0/300.0", "0.500", "Ch 6.2.5)"},
        {true, 250, 0, 3, "IR = My,Ed/My,Rd = ", "150.0/300.0", "0.500", "Ch 6.2.5)"},
        {true, 275, 0, 1, "IR = My,Ed/MV,y,Rd = ", "150.0/299.0", "0.502", "Ch 6.2.8)"},
        {true, 375, 0, 1, "IR = My,Ed/MV,y,Rd = ", "150.0/275.0", "0.545", "Ch 6.2.8)"},
        {true, 250, 5, 3, "IR = My,Ed/My,Rd + Mz,Ed/Mz,Rd = ", "150.0/300.0 + 5.0/50.0 = ", "0.600", "Ch 6.2.1)"},
        {true, 375, 5, 3, "IR = My,Ed/MV,y,Rd + Mz,Ed/Mz,Rd = ", "150.0/283.3 + 5.0/50.0 = ", "0.629", "Ch 6.2.1)"},
        {true, 250, 5, 2, "IR = [My,Ed/My,Rd]^a + Mz,Ed/Mz,Rd  = ", "[150.0/300.0]^2 + 5.0/50.0 = ", "0.350",
         "Ch 6.2.5/6.2.9)"},
        {true, 375, 5, 2, "IR = [My,Ed/MV,y,Rd]^a + Mz,Ed/Mz,Rd = ", "[150.0/275.0]^2 + 5.0/50.0 = ", "0.398",
         "Ch 6.2.5/6.2.9)"},
        {false, 250, 0, 1, "IR = My,Ed/My,Rd = ", "150.0/250.0", "0.600", "Ch 6.2.5)"},
        {false, 375, 0, 1, "IR = My,Ed/MV,y,Rd = ", "150.0/233.3", "0.643", "Ch 6.2.8)"},
        {false, 250, 5, 3, "IR = My,Ed/My,Rd] + Mz,Ed/Mz,Rd = ", "150.0/250.0 + 5.0/50.0 = ", "0.700", "Ch 6.2.1)"},
        {false, 375, 5, 3, "IR = My,Ed/MV,y,Rd + Mz,Ed/Mz,Rd = ", "150.0/233.3 + 5.0/50.0 = ", "0.743", "Ch 6.2.1)"},
        {false, 250, 5, 1, "IR = [My,Ed/My,Rd]^a + Mz,Ed/Mz,Rd = ", "[150.0/250.0]^2 + 5.0/50.0 = ", "0.460",
         "Ch 6.2.5/6.2.9)"},
        {false, 375, 5, 1, "IR = [My,Ed/MV,y,Rd]^a + Mz,Ed/Mz,Rd = ", "[150.0/233.3]^2 + 5.0/50.0 = ", "0.513",
         "Ch 6.2.5/6.2.9)"},
    };
    for (const Case& c : cases) {
        Girder girder(1, samples::section(c.classPos, 3));
        Table<Single>& steps = c.largest ? girder.uls.MyMaxSpan : girder.uls.MyMinSpan;
        samples::setRow(steps, 1,
                        {c.largest ? 150e6 : -150e6, -c.VzEd * 1e3, -c.MzEd * 1e6, 7e3, 1, 400, 1, 2500.5, 2250});
        girder.check();
        const RowSet& rows = c.largest ? girder.checks["Bend"].extremes[0](1) : girder.checks["Bend"].extremes[1](1);
        EXPECT_THAT(samples::texts(rows),
                    ElementsAre(c.formula, c.numbers, c.ratio, std::string(" <  1.00 ( 1/2250 mm; ") + c.reference, "1",
                                "400", "1", "2500.5"));
    }
}

TEST(Shear, textsAndTheTie) {
    Girder girder(1, samples::section());
    samples::setRow(girder.uls.VzMaxSpan, 1, {0, 600e3, 0, 0, 1, 100, 1, 2100, 0});
    samples::setRow(girder.uls.VzMinSpan, 1, {0, -600e3, 0, 0, 1, 3300, 1, 4900, 4999.6});
    girder.check();
    EXPECT_THAT(samples::texts(girder.checks["Shear"].extremes[0](1)),
                ElementsAre("IR = Vz,Ed/Vz,Rd = ", "600.0/500.0", "1.200", " <  1.00 ( 1/0mm; Ch 6.2.6)", "1", "100",
                            "1", "2100"));
    EXPECT_EQ(girder.checks["Shear"].extremes[1](1)(4), " <  1.00 ( 1/5000 mm; Ch 6.2.6)");
    // Equal ratios: the smallest Vz, with wheel 5 of the largest.
    EXPECT_THAT(samples::texts(girder.checks["Shear"].spans(1)),
                ElementsAre("IR = Vz,Ed/Vz,Rd = ", "600.0/500.0", "1.200", " <  1.00 ( 1/5000 mm; Ch 6.2.6)", "1",
                            "3300", "1", "2100"));
}

TEST(Shear, theRatioIsStoredBeforeItIsShown) {
    Girder girder(1, samples::section());
    girder.uls.VzMaxSpan(1, 2) = 1250;  // 1.25/500 = 0.0025, whose single is 0.00249999994
    girder.check();
    EXPECT_EQ(girder.checks["Shear"].extremes[0](1)(3), "0.002");
    EXPECT_EQ(girder.checks["Shear"].extremes[0](1).Ratio, double(Single(0.0025)));
}

// Resistance 500 kN: ratio 9 and 10 in both spans. Per span numbers count, over the beam texts.
TEST(Shear, numbersRankWithinASpanAndTextsOverTheBeam) {
    Girder girder(3, samples::section());
    samples::setRow(girder.uls.VzMaxSpan, 1, {0, 4500e3, 0, 0, 1, 1, 1, 1});
    samples::setRow(girder.uls.VzMaxSpan, 2, {0, 5000e3, 0, 0, 2, 2, 2, 2});
    samples::setRow(girder.uls.VzMinSpan, 2, {0, -4500e3, 0, 0, 2, 20, 2, 20});
    samples::setRow(girder.uls.VzMaxSpan, 3, {0, 4500e3, 0, 0, 3, 3, 3, 3});
    girder.check();
    EXPECT_EQ(girder.checks["Shear"].spans(2)(3), "10.000");
    EXPECT_EQ(girder.checks["Shear"].spans(2)(8), "2");
    EXPECT_EQ(girder.checks["Shear"].governing, girder.checks["Shear"].spans(1))
        << "9.000 ranks above 10.000, and the earlier span stays";
    EXPECT_EQ(girder.checks["Shear"].governing.Ratio, 9.0);
}

TEST(Bending, textsRankWithinASpanAndOverTheBeam) {
    Girder girder(3, samples::section());
    samples::setRow(girder.uls.MyMaxSpan, 1, {300e6, 0, 0, 0, 1, 11, 1, 12});
    samples::setRow(girder.uls.MyMinSpan, 1, {-250e6, 0, 0, 0, 1, 13, 1, 14});  // a tie of 1.000
    samples::setRow(girder.uls.MyMaxSpan, 2, {2700e6, 0, 0, 0, 2, 21, 2, 22});
    samples::setRow(girder.uls.MyMinSpan, 2, {-2500e6, 0, 0, 0, 2, 23, 2, 24});  // 10.000 ranks below 9.000
    samples::setRow(girder.uls.MyMaxSpan, 3, {2700e6, 0, 0, 0, 3, 31, 3, 32});
    girder.check();
    EXPECT_EQ(girder.checks["Bend"].spans(1)(2), "250.0/250.0");
    EXPECT_EQ(girder.checks["Bend"].spans(1)(6), "11") << "the wheels are always those of the largest moment";
    EXPECT_EQ(girder.checks["Bend"].spans(1)(8), "12");
    EXPECT_EQ(girder.checks["Bend"].spans(2)(3), "9.000");
    EXPECT_EQ(girder.checks["Bend"].spans(2).Ratio, 9.0);
    EXPECT_EQ(girder.checks["Bend"].governing, girder.checks["Bend"].spans(2));
}

}  // namespace
}  // namespace borvik
