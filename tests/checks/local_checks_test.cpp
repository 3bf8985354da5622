#include "checks/local_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "checks/governing_rows.h"
#include "checks/loaded_length.h"
#include "checks/samples.h"

namespace borvik {
namespace {

using testing::ElementsAre;

/// Area 5000, centroid at mid height 50, head 50 wide, h3 = 20.
RailRecord craneRail() {
    RailRecord rail;
    rail.Id = "A";
    rail.RailAx = 5000;
    rail.RailHr = 100;
    rail.RailE1 = 50;
    rail.RailKr = 50;
    rail.RailBr = 150;
    rail.RailH3 = 20;
    rail.RailIy = 4e6;
    return rail;
}

TEST(WornRail, losesAStripOfItsHead) {
    struct Case {
        RailRecord rail;
        double fraction, wear, area, centroid, secondMoment;
        const char* source;
    };
    const Case cases[] = {
        {craneRail(), kWearStatic, 5, 4750, 47.5, 4e6 - 125 * 50 / 12.0 - 50 * 50 * 250,
         "zr = (5000 x 50 - 97.5 x 250)/4750"},
        {craneRail(), kWearFatigue, 2.5, 4875, 48.75, 4e6 - 15.625 * 50 / 12 - 50 * 50 * 125, "strip 2.5 x 50"},
        {samples::flatRail(), kWearStatic, 10, 1800, 15, 30 * 30 * 30 * 60 / 12.0, "60 x 30 remain"},
        {samples::flatRail(), kWearFatigue, 5, 2100, 17.5, 35 * 35 * 35 * 60 / 12.0, "60 x 35 remain"},
    };
    for (const Case& c : cases) {
        const WornRail worn = wearRail(c.rail, c.fraction);
        EXPECT_DOUBLE_EQ(worn.Wear, c.wear) << c.source;
        EXPECT_DOUBLE_EQ(worn.Ared, c.area) << c.source;
        EXPECT_DOUBLE_EQ(worn.Zr, c.centroid) << c.source;
        EXPECT_NEAR(worn.Ired, c.secondMoment, 1e-7 * c.secondMoment) << c.source;
    }
}

// Flat bar 60 x 40 worn to 60 x 30 on a flange 20 thick, web 10. Of a flange 100 wide beff is all: Af = 2000, zc =
// 83000/3800, Iff = 66667, Irf = 793772. Of a wide one beff = 60 + 40 + 20 - 10 = 110, zc = 21.25, Irf = 827083.
TEST(LoadedLength, followsRailFixAndFlangeWidth) {
    struct Case {
        int railFix;
        double b1, expected;
        const char* source;
    };
    const Case cases[] = {
        {1, 100, 139.673904, "3.25 (793772/10)^(1/3)"},  {1, 110, 141.601043, "3.25 (82708.3)^(1/3)"},
        {1, 300, 141.601043, "3.25 (82708.3)^(1/3)"},    {2, 100, 88.462947, "3.25 (201667/10)^(1/3)"},
        {3, 100, 115.682315, "4.25/3.25 of the former"}, {0, 100, 115.682315, "any other value"}};
    for (const Case& c : cases) {
        SectionRecord section = samples::section();
        section.b1 = c.b1;
        const RailRecord rail = samples::flatRail();
        EXPECT_NEAR(effectiveLoadedLength(rail, wearRail(rail, kWearStatic), RailFixing(c.railFix), section),
                    c.expected, 1e-6)
            << c.source;
    }
}

// The rail above, not rigidly fixed, flange 100 x 20, Hw 500, fyk 355. Fz is wheel 8, as entered whatever the factors.
TEST(PatchLoad, resistanceByHand) {
    struct Case {
        double tw, span, GammaM1;
        const char *numbers, *ratio, *source;
    };
    const Case cases[] = {
        {10, 5000, 1, "150.0/749.6 = ", "0.200",
         "ss 48.463, ly 40 (1 + sqrt(22.5)) + ss = 278.2, lamF 0.6588, chiF 0.7590"},
        {10, 200, 1, "150.0/710.0 = ", "0.211", "ly stops at the span; kF 18.5, lamF 0.319: chiF 1; 355 x 200 x 10"},
        {40, 5000, 1.1, "150.0/2774.4 = ", "0.054", "leff 55.728, ss at least tf1 = 20, ly 214.919, chiF 1"},
    };
    for (const Case& c : cases) {
        SectionRecord section = samples::section();
        section.b1 = 100;
        section.Hw = 500;
        section.tw = c.tw;
        Project project = samples::project(1, section);
        project.Span(1) = static_cast<int>(c.span);
        project.fyk = 355;
        project.GammaM1 = c.GammaM1;
        project.LfULS = project.PsiV1 = 2;
        project.V(8) = 150;
        const CheckResult patch = runCheck("Local", {project, samples::flatRail(), samples::uls(1), samples::sls(1)});
        EXPECT_THAT(samples::texts(patch.spans(1), 4),
                    ElementsAre("IR = Fz,Ed/Fz,Rd = ", c.numbers, c.ratio, " <  1.00 (Ch 5.7.1/EN 1993-6)"))
            << c.source;
        EXPECT_THAT(samples::texts(patch.governing, 6),
                    ElementsAre("IR = Fz,Ed/Fz,Rd = ", c.numbers, c.ratio, " <  1.00 (Ch 5.7.1/EN 1993-6)", "", ""));
    }
}

/// A bottom flange 200 x 20 under a hoist whose largest wheel is 60 kN, factors 1.35 and 1.1.
struct Monorail {
    Project project;
    UlsResults uls = samples::uls(1);
    SlsResults sls = samples::sls(1);
    RailRecord rail;

    Monorail() {
        SectionRecord section = samples::section();
        section.b2 = 200;
        project = samples::project(1, section);
        project.CraneType = CraneKind::Monorail;
        project.V = FixedArray<Single, 1, 8>::of(50, 60, 0, 0, 500, 0, 0, 0);
        project.PsiV1 = 1.1;
        project.LfULS = 1.35;
        project.GammaM0 = 1.25;
    }
    CheckResult check(const char* key) const { return runCheck(key, {project, rail, uls, sls}); }
};

// Sf = 150e6/2e8 x 150 = 112.5; 1 - (112.5/250/1.25)^2 = 0.8704. Fz/2 = 60 x 1.35 x 1.1/2 = 44.55.
TEST(FlangeBending, resistanceByHand) {
    struct Case {
        const char* Fab;
        double spacing;
        const char *numbers, *ratio, *source;
    };
    const Case cases[] = {
        {"R", 1000, "44.6/144.1 = ", "0.309", "m = 95 - 16 - 25 = 54, leff = 4 sqrt(2) 79 = 446.9"},
        {"W", 200, "44.6/112.0 = ", "0.398", "m = 95 - 22.627 - 25 = 47.373, leff = 2 sqrt(2) 72.373 + 100 = 304.7"},
    };
    for (const Case& c : cases) {
        Monorail m;
        m.project.SpanSection(1).Fab = c.Fab;
        m.project.Inn = 25;
        m.project.Avst = FixedArray<Single, 1, 6>::of(100, c.spacing, 150, 9000, 0, 0);
        m.uls.MyMaxSpan(1, 1) = 100e6;
        m.uls.MyMinSpan(1, 1) = -150e6;
        EXPECT_THAT(samples::texts(m.check("Local").spans(1), 4),
                    ElementsAre("IR = Fz,Ed/Ff,Rd = ", c.numbers, c.ratio, " <  1.00 (Ch 6.7/EN 1993-6)"))
            << c.source;
    }
}

TEST(FlangeBending, aWheelAtTheRootOfTheWebIsAFault) {
    Monorail m;
    m.project.SpanSection(1).R = 0;
    m.project.Inn = 95;  // m = (200 - 10)/2 - 95
    try {
        (void)m.check("Local");
        FAIL() << "m = 0 was accepted";
    } catch (const RuntimeFault& fault) {
        EXPECT_STREQ(fault.what(), "Flange bending, span 1: division by zero");
    }
}

// F/tf2^2 = 30000/400 = 75, without factors. My and Mz are divided by 1.485: sb = 1e8/2e8 x 140 = 70, Mz/IzBottom = 0.1
// per mm.
TEST(VonMises, stressByHand) {
    struct Case {
        double Inn;
        FixedArray<Single, 1, 6> spacing;
        const char *numbers, *source;
    };
    const auto gaps = [](double a, double b, double c) { return FixedArray<Single, 1, 6>::of(a, b, c, 10, 0, 0); };
    const Case cases[] = {
        {0, gaps(1000, 0, 0), "351.5/250.0 = ", "point 2: 70 + 0.1 x 100 + 3.62 x 75, sy 0"},
        {0, gaps(0, 250, 1000), "623.0/250.0 = ", "closer than 1.5 b2 = 300, the zero skipped: 80 + 2 x 271.5"},
        {0, gaps(0, 300, 0), "351.5/250.0 = ", "exactly 1.5 b2: not doubled"},
        {19, gaps(1000, 0, 0), "200.1/250.0 = ", "mu 0.2: cx2 1.96755, cy2 0.93174; x = 70 + 8.1 + 147.57, sy = 69.88"},
    };
    for (const Case& c : cases) {
        Monorail m;
        m.project.Inn = c.Inn;
        m.project.Avst = c.spacing;
        samples::setRow(m.uls.MyMaxSpan, 1, {1.485e8, 0, -1.485e6});
        const CheckResult checked = m.check("VonMises");
        EXPECT_EQ(checked.spans(1)(2), c.numbers) << c.source;
        EXPECT_EQ(checked.spans(1)(1), "IR = SigvM/fyk = ");
        EXPECT_EQ(checked.governing(4), " <  1.00 (Ch 5.8/7.5/EN 1993-6)");
    }
    // The tip of the flange takes Mz with the whole width: 1 x 200 + 75 x (2.91 e^-1.2 - 1.1534 x 0.2) = 200 + 75 x
    // 0.645795.
    Monorail m;
    m.project.Inn = 19;
    m.project.Avst(1) = 1000;
    m.uls.MyMaxSpan(1, 3) = 1.485e7;
    const CheckResult checked = m.check("VonMises");
    EXPECT_EQ(checked.spans(1)(2), "248.4/250.0 = ");
    EXPECT_EQ(checked.spans(1)(3), "0.994");
}

TEST(LocalGoverning, onlyTheLastTwoSpansCount) {
    struct Case {
        std::vector<double> ratios;
        int governing;
    };
    const Case cases[] = {{{0.9}, 1},           {{0.3, 0.2}, 1},      {{0.9, 0.2, 0.1}, 2},
                          {{0.9, 0.1, 0.5}, 3}, {{0.1, 0.2, 0.2}, 3}, {{9, 10}, 2}};
    for (const Case& c : cases) {
        Array<RowSet> spans(1, static_cast<int>(c.ratios.size()));
        for (int i = 1; i <= spans.last(); ++i) {
            spans(i).Ratio = c.ratios[static_cast<std::size_t>(i - 1)];
            spans(i)(1) = std::to_string(i);
        }
        EXPECT_EQ(governingLocal(spans)(1), std::to_string(c.governing));
    }
}

}  // namespace
}  // namespace borvik
