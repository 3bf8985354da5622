#include "section/properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "outline.h"
#include "section_cases.h"

namespace borvik {
namespace {

using namespace test;

#define EXPECT_STORED(actual, expected) EXPECT_NEAR(double(actual), (expected), kStored* std::abs(expected))

// Iu 700x300x200x15x25x25 by hand. Areas: top flange 7500, web 650 x 15 = 9750, bottom flange 5000, together 22250 mm2.
TEST(WeldedSection, matchesTheHandCalculation) {
    SectionRecord s = welded("Iu", 700, 300, 200, 15, 25, 25);
    WeldedProperties(settingS235(), s);

    EXPECT_EQ(s.DisplayName, "Iu 700x300x200x15x25x25");
    EXPECT_STORED(s.R, 6.0);
    EXPECT_STORED(s.Hw, 650.0);
    EXPECT_STORED(s.CWeb, 638.0);
    EXPECT_STORED(s.CTop, 150.0 - 6.0 - 7.5);
    EXPECT_STORED(s.CBottom, 100.0 - 6.0 - 7.5);
    EXPECT_STORED(s.A, 22250.0);
    EXPECT_STORED(s.Weight, 22250.0 * 1000.0 * 7.9e-6);
    EXPECT_STORED(s.Av, 1.2 * 650.0 * 15.0);     // EN 1993-1-1, 6.2.6(3)d
    EXPECT_STORED(s.EzEl, 8631250.0 / 22250.0);  // 7500 * 687.5 + 9750 * 350 + 5000 * 12.5
    EXPECT_STORED(s.It, 11568750.0 / 3.0);       // 25^3 * 300 twice, 15^3 * 650: b1 for either flange
    EXPECT_STORED(s.GIt, 89100.0 * (4687500.0 + 3125000.0 + 2193750.0) / 3.0);
    EXPECT_STORED(s.IzTop, 56250000.0);
    EXPECT_STORED(s.IzBottom, 50000000.0 / 3.0);
    EXPECT_STORED(s.WplZTop, 562500.0);
    EXPECT_STORED(s.WplZBottom, 250000.0);
    // Half of the area, 11125, lies below 675 - (14750 - 11125) / 15.
    EXPECT_STORED(s.EzPl, 675.0 - 3625.0 / 15.0);
    EXPECT_STORED(s.Wply, 5698958.0 + 1.0 / 3.0);  // 1906250 + 7.5 * (241.667^2 + 408.333^2) + 2104166.7
    // Flanges 675 mm apart, beta1 = 56.25 / 72.9167 = 27/35: the shear centre is 12.5 + 675 * 27/35 above the
    // underside.
    const double shearCentre = 12.5 + 675.0 * 27.0 / 35.0;
    EXPECT_NEAR(s.Zs, shearCentre - 8631250.0 / 22250.0, 3e-5);
    EXPECT_NEAR(s.Zg, 765.0 - shearCentre, 6e-5);
    EXPECT_STORED(s.ZjPos, 0.4 * (19.0 / 35.0) * 675.0);
    EXPECT_STORED(s.ZjNeg, -0.5 * (19.0 / 35.0) * 675.0);
    EXPECT_STORED(s.Iw, 675.0 * 675.0 * 90e6 / 7.0);              // IzTop IzBottom / (IzTop + IzBottom) = 90e6 / 7
    EXPECT_STORED(s.EIw, 210000.0 * 675.0 * 675.0 * 90e6 / 7.0);  // the same flanges turning about the shear centre
}

// The short way of a section of equal flanges, (hw tw / 4 + b tf)(h - tf): the web's halves count at the flanges'
// lever.
TEST(WeldedSection, equalFlangesTakeTheShortPlasticModulus) {
    SectionRecord is = welded("Is", 700, 300, 200, 15, 25, 40);
    WeldedProperties(settingS235(), is);
    EXPECT_EQ(is.DisplayName, "Is 700x300x15x25");
    EXPECT_EQ(is.b2, 300.0) << "what an unequal section left behind";
    EXPECT_EQ(is.tf2, 25.0);
    EXPECT_STORED(is.Wply, 9937.5 * 675.0);
    EXPECT_EQ(is.EzPl, 350.0);
    EXPECT_EQ(is.Zs, 0.0);
    EXPECT_EQ(is.ZjPos, 0.0);
    EXPECT_EQ(is.ZjNeg, 0.0);
    EXPECT_EQ(is.WelMin, is.Wely2);

    SectionRecord iu = welded("Iu", 700, 300, 300, 15, 25, 25);
    WeldedProperties(settingS235(), iu);
    EXPECT_EQ(iu.Wply, is.Wply);
    EXPECT_EQ(iu.Iy, is.Iy);
}

TEST(PlasticAxis, standsWhereTheFlangesPutIt) {
    struct Case {
        const char* name;
        SectionRecord section;
        double EzPl, Wply;
        const char* source;
    };
    const Case cases[] = {
        {"bottom flange", welded("Iu", 400, 100, 400, 8, 10, 40), 24.75, 1071975.0,
         "9900/16000 * 40; 200 * (24.75^2 + 15.25^2) + 2800 * 190.25 + 1000 * 370.25"},
        {"top flange", welded("Iu", 400, 400, 50, 5, 20, 20), 386.5, 757100.0,
         "400 - 5400/400; 1000 * 376.5 + 1800 * 186.5 + 200 * (6.5^2 + 13.5^2)"},
        {"top flange of another thickness", welded("Iu", 400, 400, 100, 8, 40, 10), 345.25, 1346690.5,
         "350 + 2 * 10 - 9900/400, in the web; 1000 * 340.25 + 4 * (335.25^2 + 14.75^2) + 16000 * 34.75"},
        {"web", welded("Iu", 300, 210, 110, 10, 10, 10), 200.0, 635000.0,
         "290 - (3900 - 3000)/10; 2100 * 95 + 5 * (90^2 + 190^2) + 1100 * 195"},
    };
    for (const Case& c : cases) {
        SectionRecord s = c.section;
        WeldedProperties(settingS235(), s);
        EXPECT_STORED(s.EzPl, c.EzPl) << c.name << ": " << c.source;
        EXPECT_STORED(s.Wply, c.Wply) << c.name << ": " << c.source;
    }
}

class RandomPlates {
public:
    SectionRecord next() {
        const double h = whole(200, 1500);
        return welded("Iu", h, whole(80, 600), whole(80, 600), whole(4, 30), whole(6, 40), whole(6, 40));
    }
    double whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }

private:
    std::mt19937 engine_{20};
};

TEST(WeldedSection, agreesWithIntegrationAroundTheOutline) {
    RandomPlates plates;
    for (int i = 0; i < 300; ++i) {
        SectionRecord s = plates.next();
        if (s.b1 == s.b2 && s.tf1 == s.tf2) continue;
        WeldedProperties(settingS235(), s);
        SCOPED_TRACE(s.DisplayName);
        const std::vector<Polygon> outline{iOutline(s.h, s.b1, s.b2, s.tw, s.tf1, s.tf2)};
        const Integrals sum = integrate(outline);
        const double centroid = sum.Sy / sum.A;
        EXPECT_STORED(s.A, sum.A);
        EXPECT_STORED(s.EzEl, centroid);
        EXPECT_STORED(s.Iy, sum.Iyy - centroid * sum.Sy);
        EXPECT_STORED(s.Iz, sum.Izz);
        // Near the axis the height h - EzEl feels the rounding of EzEl more.
        const double Iy = sum.Iyy - centroid * sum.Sy;
        const double top = s.h - centroid;
        EXPECT_NEAR(s.Wely1, Iy / top, kStored * s.h / top * s.Wely1);
        EXPECT_STORED(s.Wely2, Iy / centroid);
        EXPECT_EQ(s.WelMin, std::min<double>(s.Wely1, s.Wely2));
        EXPECT_STORED(s.Wply, plasticModulus(outline, s.EzPl));
        const double axis = equalAreaAxis(outline, s.h);
        if (axis <= s.h - s.tf1 || s.tf1 == s.tf2) {
            EXPECT_STORED(s.EzPl, axis);
        }
    }
}

TEST(ReinforcedSection, agreesWithIntegrationAroundTheOutlines) {
    RandomPlates plates;
    for (int i = 0; i < 100; ++i) {
        SectionRecord s = plates.next();
        const double d = plates.whole(40, int(s.h) / 2 - 20);
        const double t = plates.whole(5, 25);
        s = reinforced(s, d, t);
        WeldedProperties(settingS235(), s);
        ReinforcedProperties(settingS235(), s);
        SCOPED_TRACE(s.DisplayName + " " + std::to_string(d) + "x" + std::to_string(t));
        const double top = s.h - s.tf1 / 2.0;
        const std::vector<Polygon> outlines{iOutline(s.h, s.b1, s.b2, s.tw, s.tf1, s.tf2), tipPlate(1, s.b1, t, d, top),
                                            tipPlate(-1, s.b1, t, d, top)};
        const Integrals sum = integrate(outlines);
        const double centroid = sum.Sy / sum.A;
        EXPECT_STORED(s.A, sum.A);
        EXPECT_NEAR(s.EzEl, centroid, 2 * kStored * centroid);
        EXPECT_NEAR(s.Iy, sum.Iyy - centroid * sum.Sy, 1e-6 * s.Iy);  // parallel axes from two stored numbers
        EXPECT_STORED(s.Iz, sum.Izz);
        EXPECT_NEAR(s.IzTop, sum.Izz - s.tf2 * cube(s.b2) / 12 - (s.h - s.tf1 - s.tf2) * cube(s.tw) / 12, 2e-7 * s.Iz);
        // The search stops at its first step of 0.1 mm with half of the area below.
        const double axis = equalAreaAxis(outlines, s.h);
        EXPECT_GE(s.EzPl, axis - 1e-4);
        EXPECT_LT(s.EzPl, axis + 0.1001);
        EXPECT_STORED(s.Wply, plasticModulus(outlines, s.EzPl));
    }
}

// HEA 300 with plates 100 x 10: what is added to the published values.
TEST(ReinforcedSection, addsPlatesToARolledSection) {
    SectionRecord s = reinforced(rolled("HEA 300"), 100, 10);
    LoadRolled(smallTables(), "HEA 300", s);
    RolledProperties(settingS235(), s);
    ReinforcedProperties(settingS235(), s);

    EXPECT_EQ(s.DisplayName, "HEA 300+PL");
    EXPECT_STORED(s.A, 13250.0);
    const double ez = (145.0 * 11250.0 + 2000.0 * 233.0) / 13250.0;  // plates reach from 183 to 283 mm
    EXPECT_STORED(s.EzEl, ez);
    const double steiner = 11250.0 * (ez - 145.0) * (ez - 145.0) + 2000.0 * (233.0 - ez) * (233.0 - ez);
    EXPECT_STORED(s.Iy, 182.6e6 + 2.0 * 10.0 * 1e6 / 12.0 + steiner);
    EXPECT_STORED(s.It, 856000.0 + 2.0 / 3.0 * 1000.0 * 100.0);
    const double plates = 2.0 * (1000.0 * 100.0 / 12.0 + 155.0 * 155.0 * 1000.0);
    EXPECT_STORED(s.Iz, 63.1e6 + plates);
    EXPECT_STORED(s.IzTop, 31.5e6 + plates);
    EXPECT_EQ(s.IzBottom, 31.5e6);
    EXPECT_EQ(s.IzLoadedFlange, s.IzTop);
    const double top = 31.5e6 + plates;
    EXPECT_STORED(s.Iw, 276.0 * 276.0 * top * 31.5e6 / (top + 31.5e6));
    EXPECT_STORED(s.EIw, 276.0 * 276.0 * top * 31.5e6 / (top + 31.5e6));  // here without the factor E
    EXPECT_NEAR(s.Zs, 276.0 * top / (top + 31.5e6) + 7.0 - ez, 3e-5);
    EXPECT_NEAR(s.ZjPos, 0.4 * 276.0 * (top - 31.5e6) / (top + 31.5e6), 1e-5);
    EXPECT_NEAR(s.ZjNeg, -0.5 * 276.0 * (top - 31.5e6) / (top + 31.5e6), 1e-5);
    EXPECT_STORED(s.WplZTop, 315000.0 + 310.0 * 1000.0);
    EXPECT_EQ(s.WplZ, 421000.0) << "stays as published";
    EXPECT_EQ(s.WplZBottom, 315000.0);
    EXPECT_EQ(s.Av, 3725.0);
}

TEST(PlasticAxisBySearch, refusesAHeightThatItCanNotStepThrough) {
    const Strip strip{10.0, 1e9, 0.0};
    EXPECT_THROW((void)plasticAxisBySearch({&strip, 1}), RuntimeFault);
}

// The area below the start is taken as nothing, so that even half of the area there asks for one more step.
TEST(PlasticAxisBySearch, startsAtTwoMillimetresAndStepsInSingles) {
    const Strip two[] = {{10.0, 2.0, 2.0}, {10.0, 2.0, 0.0}};
    EXPECT_EQ(plasticAxisBySearch(two).EzPl, 2.1f);  // nothing counts as below before the first step
    float z = 2.0f;
    while (z < 500.0f) z = static_cast<float>(static_cast<double>(z) + 0.1);
    const Strip high{10.0, 1000.0, 0.0};
    EXPECT_EQ(plasticAxisBySearch({&high, 1}).EzPl, z);
}

// HEA 300. EN 1993-1-1, 6.2.6(3)a: Av = 11250 - 2 * 300 * 14 + (8.5 + 54) * 14.
TEST(RolledSection, keepsThePublishedValuesAndAddsItsOwn) {
    SectionRecord s = rolled("HEA 300");
    LoadRolled(smallTables(), "HEA 300", s);
    EXPECT_EQ(s.TableIndex, 1);
    RolledProperties(settingS235(), s);
    EXPECT_EQ(s.DisplayName, "HEA 300");
    EXPECT_EQ(s.A, 11250.0);
    EXPECT_EQ(s.Iz, 63.1e6);
    EXPECT_EQ(s.WplZ, 421000.0);
    EXPECT_EQ(s.Av, 3725.0);
    EXPECT_EQ(s.Hw, 262.0);
    EXPECT_EQ(s.CWeb, 208.0);
    EXPECT_EQ(s.CTop, 118.75);
    EXPECT_EQ(s.CBottom, 118.75);
    EXPECT_EQ(s.TfMax, 14.0);
    EXPECT_EQ(s.EzEl, 145.0);
    EXPECT_EQ(s.EzPl, 145.0);
    EXPECT_STORED(s.WelMin, 182.6e6 / 145.0);
    EXPECT_EQ(s.IzTop, 31.5e6);
    EXPECT_EQ(s.WplZBottom, 315000.0);
}

TEST(LoadLevel, setsTheHeightAboveTheShearCentre) {
    // The Iu has its shear centre 12.5 + 675 * 27/35 above the underside, and flanges of 25 mm.
    const double iuShear = 12.5 + 675.0 * 27.0 / 35.0;
    struct Case {
        int level;
        double rolled, welded;
    };
    const Case cases[] = {
        {1, 145.0 + 65.0, 765.0 - iuShear}, {2, 145.0, 700.0 - iuShear}, {3, 0.0, 0.0},
        {4, -131.0, 25.0 - iuShear},        {0, -131.0, 25.0 - iuShear},
    };
    for (const Case& c : cases) {
        SectionSetting setting = settingS235();
        setting.LoadLevel = LoadPoint(c.level);
        SectionRecord hea = rolled("HEA 300");
        LoadRolled(smallTables(), "HEA 300", hea);
        RolledProperties(setting, hea);
        EXPECT_EQ(hea.Zg, c.rolled) << c.level;
        SectionRecord iu = welded("Iu", 700, 300, 200, 15, 25, 25);
        WeldedProperties(setting, iu);
        EXPECT_NEAR(iu.Zg, c.welded, 6e-5) << c.level;

        // With plates a rolled section is taken as the unsymmetric one that it has become.
        hea = reinforced(hea, 100, 10);
        ReinforcedProperties(setting, hea);
        const double shear = 7.0 + 276.0 * hea.IzTop / (hea.IzTop + hea.IzBottom);
        const double expected = c.level == 1   ? 355.0 - shear
                                : c.level == 2 ? 290.0 - shear
                                : c.level == 3 ? 0.0
                                               : 14.0 - shear;
        EXPECT_NEAR(hea.Zg, expected, 6e-5) << c.level;
    }
}

TEST(LoadedFlange, isTheBottomOneUnderAMonorail) {
    SectionSetting setting = settingS235();
    setting.CraneType = CraneKind::Monorail;
    SectionRecord s = welded("Iu", 700, 300, 200, 15, 25, 25);
    WeldedProperties(setting, s);
    EXPECT_EQ(s.IzLoadedFlange, s.IzBottom);
}

TEST(UpdateSections, givesTheSameTwiceAndLeavesNothingOfFormerPlates) {
    const ReferenceTables tables = smallTables();
    Project project;
    project.NofSpans = 3;
    project.CraneType = CraneKind::Overhead;
    project.LoadLevel = LoadPoint::TopOfRail;
    project.fyk = 235.0;
    project.Eta = 1.2;
    project.GammaM0 = project.GammaM1 = 1.0;
    project.SpanSection = Array<SectionRecord>(1, 30);
    project.SpanSection(1) = rolled("HEA 300");
    project.SpanSection(2) = reinforced(rolled("HEA 300"), 100, 10);
    project.SpanSection(3) = reinforced(welded("Iu", 700, 300, 200, 15, 25, 25), 120, 8);

    UpdateSections(tables, project);
    const Array<SectionRecord> once = project.SpanSection;
    EXPECT_NE(once(1).Iy, once(2).Iy);
    UpdateSections(tables, project);
    EXPECT_EQ(project.SpanSection, once);

    project.SpanSection(2).Reinforced = false;
    UpdateSections(tables, project);
    const SectionRecord& bare = project.SpanSection(2);
    EXPECT_EQ(bare.DisplayName, "HEA 300");
    EXPECT_EQ(bare.A, once(1).A);
    EXPECT_EQ(bare.Iy, once(1).Iy);
    EXPECT_EQ(bare.WplZTop, once(1).WplZTop);
    EXPECT_EQ(bare.MyRdPos, once(1).MyRdPos);
    EXPECT_EQ(bare.ZjPos, 0.0);
    EXPECT_EQ(bare.ZjNeg, 0.0);
}

TEST(UpdateSections, aFaultNamesTheSpan) {
    struct Case {
        SectionRecord section;
        const char* text;
    };
    const Case cases[] = {{rolled("HEA 301"), "HEA 301"}, {welded("Iu", 0, 0, 0, 0, 0, 0), "invalid operation"}};
    for (const Case& c : cases) {
        Project project;
        project.NofSpans = 2;
        project.fyk = 235.0;
        project.Eta = 1.2;
        project.GammaM0 = project.GammaM1 = 1.0;
        project.SpanSection = Array<SectionRecord>(1, 2);
        project.SpanSection(1) = rolled("HEA 300");
        project.SpanSection(2) = c.section;
        try {
            UpdateSections(smallTables(), project);
            ADD_FAILURE() << "no fault: " << c.text;
        } catch (const RuntimeFault& fault) {
            EXPECT_THAT(fault.what(), testing::AllOf(testing::HasSubstr("span 2"), testing::HasSubstr(c.text)));
        }
    }
}

TEST(MarkSectionsInUse, goesByTheNameShown) {
    Project project;
    project.SectionList = Array<SectionRecord>(0, 2);
    project.SectionList(0) = rolled("HEA 300");
    project.SectionList(0).InUse = true;
    project.SectionList(1) = rolled("HEA 300");
    project.SectionList(1).DisplayName = "HEA 300+PL100x10";
    project.SpanSection = Array<SectionRecord>(1, 30);
    project.SpanSection(7) = project.SectionList(1);
    MarkSectionsInUse(project);
    EXPECT_FALSE(project.SectionList(0).InUse);
    EXPECT_TRUE(project.SectionList(1).InUse);
    EXPECT_FALSE(project.SectionList(2).InUse) << "the empty names of unused spans name nothing";
}

}  // namespace
}  // namespace borvik
