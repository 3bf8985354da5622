#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

/// A simple beam of 10 m, HEA 300 (Iy 182.6e6, h 290, tf 14, tw 8.5 mm), rail Pl 50x30 not rigidly fixed, no detail
/// checked. All factors are 1 and all classes S7, so that lambda is 1 too; one wheel of 50 kN on each crane. So
///   bending at midspan  50 x 10/4 = 125 kNm, 125e6/182.6e6 x 145 = 99.26 MPa, 0.7941 MPa for each kNm
///   web                 50000/(8.5 x 262) = 22.45 MPa, the range of the shear of one wheel at any point
///   under the wheel     rail worn 26.25: I = 50 x 26.25^3/12 = 75366, flange 90.25 x 14^3/12 = 20637 mm4,
///                       leff = 3.25 (96003/8.5)^(1/3) = 72.92 mm, 50000/72.92/8.5 = 80.67 MPa
void simpleBeam(Project& p) {
    p.Span(1) = 10000;
    p.Span(2) = p.Span(3) = 0;
    p.SpanSection(2) = p.SpanSection(3) = {};
    p.V = decltype(p.V)::of(50, 0, 0, 0, 50, 0, 0, 0);
    p.H = {};
    p.Avst = {};
    p.PsiV1 = p.PsiV2 = p.PsiH1 = p.PsiH2 = p.GammaFf = p.GammaMf = 1;
    p.CraneClass1 = p.CraneClass2 = p.CraneClassR = 7;
    for (bool Project::*detail :
         {&Project::Fat1, &Project::Fat2, &Project::Fat3, &Project::Fat4, &Project::Fat5, &Project::Fat6,
          &Project::FatR1, &Project::FatR2, &Project::FatR3, &Project::FatR4, &Project::FatR5, &Project::FatR6})
        p.*detail = false;
    p.ChkFat5Sp(2) = p.ChkFatR5Sp(2) = false;
    p.Fat5Span(1) = p.FatR5Span(1) = 1;
    p.Fat5d1(1) = p.FatR5d1(1) = 5000;
    p.Fat3C2 = p.FatR3C2 = p.FatR6C2 = 10000;  // the shear of details of two terms counts for nothing
}

using Change = std::function<void(Project&)>;

/// The simple beam with one crane.
std::function<void(Session&)> oneCrane(const Change& change) {
    return [change](Session& session) {
        simpleBeam(session.project);
        change(session.project);
    };
}

/// With a monorail hoist.
std::function<void(Session&)> monorail(const Change& change) {
    return oneCrane([change](Project& p) {
        p.CraneType = CraneKind::Monorail;
        change(p);
    });
}

/// With two cranes at least 4 m from each other. Both together are of class S5: 0.63 for direct stress.
std::function<void(Session&)> twoCranes(int mode, const Change& change) {
    return oneCrane([mode, change](Project& p) {
        p.NofCranes = 2;
        p.TwoCraneMode = TwoCranes(mode);
        p.MinAvst = 4000;
        change(p);
    });
}

void detail3(Project& p) {
    p.Fat3 = true;
}

void splice(Project& p) {
    p.Fat5 = true;
    p.Fat5C1 = 100;
}

SectionRecord sectionOf(const Session& session, const char* name) {
    return session.tables.SectionTable(findSection(session.tables, name));
}

/// The simple beam of another section, with a splice at midspan.
std::function<void(Session&)> ofSection(const char* name) {
    return [name](Session& session) {
        simpleBeam(session.project);
        splice(session.project);
        session.project.Fat5C1 = 30;
        session.project.SpanSection(1) = sectionOf(session, name);
    };
}

std::function<void(Session&)> welded(double b1, double b2) {
    return oneCrane([b1, b2](Project& p) {
        splice(p);
        p.Fat5C1 = 20;
        SectionRecord& section = p.SpanSection(1);
        section = p.SectionList(2);
        section.b1 = b1;
        section.b2 = b2;
    });
}

const NoteCase kCases[]{
    // Crane 2 has 60 kN, and its dynamic factor in the train is 0: nothing is left. Two wheels:
    // 60/50 x 80.67 x 2^(1/3) = 121.97, (121.97/160)^3.
    {"G1",
     twoCranes(2,
               [](Project& p) {
                   detail3(p);
                   p.V(5) = 60;
                   p.MinDistConst = 1;
               }),
     twoCranes(1,
               [](Project& p) {
                   detail3(p);
                   p.MinDistConst = 1;
               }),
     "fatigue detail 3, span 1", 0.0, 0.443},

    // (1.32 x 99.26/90)^3, (1.587 x 99.26/90)^3.
    {"G2", oneCrane([](Project& p) {
         p.Fat1 = true;
         p.CraneClass1 = 9;
     }),
     oneCrane([](Project& p) { p.Fat1 = true; }), "fatigue detail 1, span 1", 3.0856, 5.3623},

    // 50000/((2 x 14 + 150) x 8.5) = 33.05; (33.05/80/1.15)^3, (33.05/80 x 1.15)^3.
    {"G3", monorail([](Project& p) {
         p.FatR3 = true;
         p.GammaMf = 1.15;
     }),
     monorail([](Project& p) { p.FatR3 = true; }), "fatigue detail 3, support 1", 0.04635, 0.10721},

    // 1.1 (22.45/20)^5, (1.1 x 22.45/20)^5.
    {"G4", oneCrane([](Project& p) {
         p.Fat4 = true;
         p.Fat4C1 = 20;
         p.W2 = "FP";
         p.GammaFf = 1.1;
     }),
     oneCrane([](Project& p) { p.Fat4 = true; }), "fatigue detail 4, span 1", 1.9609, 2.8710},

    // mu = 30/291.5, c = -1.8917; 50/2 x 1.8917 x 1000/14^2 = 241.29; (241.29/160)^3 and with (1 + 1.2)/2.
    {"G5", monorail([](Project& p) {
         p.FatR6 = true;
         p.PsiV1 = 1.2;
     }),
     monorail([](Project& p) { p.FatR6 = true; }), "fatigue detail 6, span 1", 3.4297, 4.5649},

    // Walked as crane 1 to 6 m: 50 x 6 x 1/10 = 30 kNm at 9 m; where it can stand 50 x 9 x 1/10 = 45.
    {"G6",
     twoCranes(1,
               [](Project& p) {
                   splice(p);
                   p.V(1) = 0;
                   p.Fat5d1(1) = 9000;
               }),
     twoCranes(1, splice), "fatigue detail 5, splice 1", 0.01352, 0.04563},

    // Two cranes with 0.9926^3 each. Both at 3 and 7 m: 150 kNm x 0.63 = 75.04 MPa.
    {"G7", twoCranes(1, splice), oneCrane(splice), "fatigue detail 5, splice 1", 1.9559, 2.3784},
    // At the support, on the areas of G18: crane 1 (50000/3703/10)^3 = 2.4619, crane 2 on fillets 2.1154; both
    // 0.63 (50 + 0.6 x 50) = 50.4 kN on the rolled web, (50400/3703/10)^3 = 2.5213 more.
    {"G7",
     twoCranes(1,
               [](Project& p) {
                   p.Fat6 = true;
                   p.Fat6C1 = 10;
                   p.W3a = 5;
               }),
     oneCrane([](Project& p) { p.Fat6 = true; }), "fatigue detail 6, support 1", 4.5773, 7.0986},

    // (80.67/160)^3, and at the edge of the flange 99.26 x 131/145 = 89.68, (89.68/160)^3 more.
    {"G8", oneCrane(detail3), oneCrane(splice), "fatigue detail 3, span 1", 0.12817, 0.30426},

    // 1200 mm reads at 1000: 50 x 1 x 9/10 = 45 kNm; at 1500 the wheel stands at 1600: 50 x 1.5 x 8.4/10 = 63.
    {"G10", oneCrane([](Project& p) {
         splice(p);
         p.Fat5d1(1) = 1200;
         p.Fat5C1 = 50;
     }),
     oneCrane(splice), "fatigue detail 5, splice 1", 0.3649, 1.0013},

    // Fillets of 5 mm: 80.67 x 8.5/10 = 68.57, (68.57/160)^3 = 0.07872. Both cranes: 0.63^3 x 2 wheels = 0.5.
    // Told three times 0.5, by one scheme 1 + 1 + 0.5.
    {"G11",
     twoCranes(2,
               [](Project& p) {
                   detail3(p);
                   p.W1 = "FW";
               }),
     twoCranes(1, detail3), "fatigue detail 3, span 1", 0.11808, 0.19680},

    // Told the wheel of 50 kN x 1, not that of 45 x (1 + 1.4)/2 = 54. Full penetration: 0.12817 x
    // (0.5 + 1 + 1), and (54/50)^3 of it.
    {"G13",
     twoCranes(2,
               [](Project& p) {
                   detail3(p);
                   p.V(5) = 45;
                   p.PsiV2 = 1.4;
               }),
     twoCranes(2, detail3), "fatigue detail 3, span 1", 0.32042, 0.40364},

    {"G14", {}, oneCrane([](Project& p) { p.GammaMf = 1.35; }), "", 0, 0},

    // HEM 300: Iy 592e6, h 340: 125e6/592e6 x 170 = 35.90, (35.90/30)^3; tf 39: times (39/25)^0.6.
    {"G15", ofSection("HEM 300"), ofSection("HEA 300"), "fatigue detail 5, splice 1", 1.7130, 2.2368},

    // Web and plate on fillets of 5: 2 x 128 x 5 + 2 x 261.5 x 5 = 3895 mm2, with the rolled web 128 x 8.5 + 2615
    // = 3703. 50000/3895 = 12.84, 50000/3703 = 13.50.
    {"G18",
     twoCranes(1,
               [](Project& p) {
                   p.Fat6 = true;
                   p.Fat6C1 = 10;
                   p.W3a = 5;
                   p.V(1) = 0;
               }),
     twoCranes(1,
               [](Project& p) {
                   p.Fat6 = true;
                   p.V(1) = 0;
               }),
     "fatigue detail 6, support 1", 2.1154, 2.4619},

    {"G19", oneCrane([](Project& p) {
         p.Fat1 = true;
         p.H(1) = 6;
     }),
     oneCrane([](Project& p) {
         p.Fat1 = true;
         p.H(1) = 5;
     }),
     "", 0, 0},

    // (22.45/20)^5, and in fillets of 3 mm (8.5/6)^5 of it.
    {"G20", monorail([](Project& p) {
         p.FatR6 = true;
         p.FatR6C1 = 10000;
         p.FatR6C2 = 20;
         p.RW4 = "FW";
         p.RW4a = 3;
     }),
     monorail([](Project& p) { p.FatR6 = true; }), "fatigue detail 6, span 1", 1.7827, 10.172},

    // Crane 1 of two wheels 400 mm apart: 2 x 50 x 4.8/2 = 240 kNm, 190.58 MPa. Both: on 4 m 150 kNm x 0.63 =
    // 75.04 MPa, right 120.07.
    {"G22",
     twoCranes(2,
               [](Project& p) {
                   splice(p);
                   p.V = decltype(p.V)::of(50, 50, 0, 0, 0, 0, 0, 0);
                   p.MinAvst = 0;
                   p.Avst(1) = 400;
                   p.Avst(4) = 4000;
               }),
     twoCranes(2, splice), "fatigue detail 5, splice 1", 7.345, 8.653},

    // A train of 50 kN each in S3: 150 kNm x 0.397 = 47.29 MPa; in S7 119.11.
    {"G23",
     twoCranes(1,
               [](Project& p) {
                   splice(p);
                   p.MinDistConst = 1;
                   p.CraneClass1 = 3;
               }),
     twoCranes(1,
               [](Project& p) {
                   splice(p);
                   p.MinDistConst = 1;
               }),
     "fatigue detail 5, splice 1", 0.10574, 1.6900},

    // Read beyond the beam: nothing. In its own span (99.26/80)^3.
    {"G24", monorail([](Project& p) {
         p.FatR5 = true;
         p.Fat5Span(1) = 2;
     }),
     monorail([](Project& p) { p.FatR5 = true; }), "fatigue detail 5, splice 1", 0.0, 1.9100},
};

TEST(FatigueNotes, speakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

/// Notes that change a ratio by a factor that is known by hand.
struct FactorCase {
    const char* key;
    std::function<void(Session&)> matters, silent;
    double factor;
};

const FactorCase kFactors[]{
    // HEA 300 beside HEB 300 (Iy 251.7e6, h 300): W 1259e3 and 1678e3 mm3.
    {"G9",
     [](Session& session) {
         session.project.Fat2C1 = 10;
         session.project.SpanSection(2) = sectionOf(session, "HEB 300");
         session.project.SpanSection(3) = session.project.SpanSection(2);
     },
     {},
     2.366},
    // tw/(2 x 5 mm) of the weld W1 goes.
    {"G12",
     twoCranes(2,
               [](Project& p) {
                   p.Fat4 = true;
                   p.Fat4C1 = 20;
               }),
     twoCranes(2,
               [](Project& p) {
                   p.Fat4 = true;
                   p.W1a = 4;
               }),
     2.2537},
    // Rail head 50: e = 12.5 mm. Flange 300 x 14: It = 274400 mm4. pi x 262/10000 = 0.08231; 0.75 x 10000 x 8.5^3/It
    // = 16.785, x sinh^2/(sinh - ) = 9.120: eta = 12.37. 6 x 12.5/(10000 x 8.5^2) x 12.37 = 1.2844e-3 for each N, under
    // the wheel 1/(72.92 x 8.5) = 1.6133e-3: 1.7961^3.
    {"G21", oneCrane([](Project& p) { detail3(p); }), oneCrane([](Project& p) {
         detail3(p);
         p.CraneClass1 = 3;
     }),
     5.794},
    // Top flange 200 x 25, bottom 300 x 25, web 650 x 15: centroid 312.1 of 700 mm.
    {"G25", welded(200, 300), welded(300, 200), 1.9206},
};

TEST(FatigueNotes, growByKnownFactors) {
    for (const FactorCase& each : kFactors) {
        EXPECT_FALSE(findingOf(calculated(each.silent), each.key)) << each.key;
        const auto finding = findingOf(calculated(each.matters), each.key);
        ASSERT_TRUE(finding && !finding->changes.empty()) << each.key;
        const NoteChange& change = finding->changes.front();
        EXPECT_NEAR(change.other / change.shown, each.factor, 0.002 * each.factor) << each.key << " " << change.what;
    }
}

}  // namespace
