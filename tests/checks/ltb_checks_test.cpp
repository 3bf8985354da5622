#include "checks/ltb_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "checks/ltb_reduction.h"
#include "checks/samples.h"

namespace borvik {
namespace {

using testing::ElementsAre;

/// A section with W = 1e6 mm3; with fyk 250 a critical moment of 250e6/lam^2 gives the slenderness lam.
double criticalMomentFor(double slenderness) {
    return 250e6 / (slenderness * slenderness);
}

TEST(LtbReduction, generalCaseByHand) {
    struct Case {
        const char* Id;
        double h, lam, expected;
        const char* source;
    };
    const Case cases[] = {
        {"IPE", 440, 1, 0.665603, "h/b = 2: alpha 0.21, phi 1.084"},
        {"IPE", 441, 1, 0.597023, "alpha 0.34, phi 1.136"},
        {"Is", 440, 1, 0.539939, "alpha 0.49, phi 1.196"},
        {"Iu", 441, 1, 0.467091, "alpha 0.76, phi 1.304"},
        {"IPE", 440, 0.15, 1, "below 0.2: 1 at most"},
    };
    for (const Case& c : cases) {
        SectionRecord section = samples::section();
        section.Id = c.Id;
        section.h = c.h;
        const Project project = samples::project(1, section);
        EXPECT_NEAR(ReductionGeneral(project, section, true, criticalMomentFor(c.lam)), c.expected, 1e-6) << c.source;
    }
    // Under a negative moment the bottom flange and WyNeg count: h/b2 = 4, lam = sqrt(4).
    SectionRecord section = samples::section();
    section.b2 = 110;
    section.WyNeg = 4e6;
    EXPECT_NEAR(ReductionGeneral(samples::project(1, section), section, false, criticalMomentFor(1)),
                1 / (2.806 + std::sqrt(2.806 * 2.806 - 4)), 1e-6)
        << "phi = (1 + 0.34 x 1.8 + 4)/2";
}

TEST(LtbReduction, rolledOrWeldedByHand) {
    struct Case {
        const char* Id;
        double h, lam, lam0, beta, Kc, expected;
        const char* source;
    };
    const Case cases[] = {
        {"HEA", 440, 1, 0.4, 0.75, 1, 0.699668, "alpha 0.34, phi 0.977, f 1"},
        {"HEA", 441, 1, 0.4, 0.75, 1, 0.639115, "alpha 0.49, phi 1.022"},
        {"Is", 440, 1, 0.4, 0.75, 1, 0.639115, "alpha 0.49"},
        {"Iu", 441, 1, 0.4, 0.75, 1, 0.559883, "alpha 0.76, phi 1.103"},
        {"HEA", 440, 1, 0.4, 0.75, 0.9, 0.733405, "f = 1 - 0.05 x 0.92 = 0.954"},
        {"HEA", 440, 1.25, 0.2, 1, 0.5, 0.530681, "f = 1 - 0.25 x 0.595 = 0.85125"},
        {"HEA", 440, 2, 0.4, 0.75, 0.9, 0.25, "f = 1.094 counts as 1; 0.26721 stops at 1/lam^2"},
        {"HEA", 440, 0.5, 0.4, 0.75, 0.6, 1, "0.960186/0.836 = 1.1485 stops at 1"},
    };
    for (const Case& c : cases) {
        SectionRecord section = samples::section();
        section.Id = c.Id;
        section.h = c.h;
        Project project = samples::project(1, section);
        project.LamdaLT0w = c.lam0;
        project.Betaw = c.beta;
        project.LamdaLT0 = project.Beta = 99;  // not read
        EXPECT_NEAR(ReductionRolledWelded(project, section, true, criticalMomentFor(c.lam), c.Kc), c.expected, 1e-6)
            << c.source;
    }
}

TEST(DefaultCFactors, byNumberOfSpansAndCrane) {
    struct Case {
        int spans, crane;
        std::array<double, 12> expected;  // end+ 1 2 3, mid+ 1 2 3, end- 1 2 3, mid- 1 2 3; 7 = left alone
    };
    const Case cases[] = {{1, 1, {1.12, 0.45, 0.525, 7, 7, 7, 7, 7, 7, 7, 7, 7}},
                          {1, 2, {1.35, 0.59, 0.411, 7, 7, 7, 7, 7, 7, 7, 7, 7}},
                          {2, 1, {1.85, 1.01, 0.64, 1.85, 1.01, 0.64, 1.77, 7, 1, 1.31, 7, 1}},
                          {30, 2, {1.46, 0.93, 1.53, 1.46, 0.93, 1.53, 1.77, 7, 1, 1.31, 7, 1}}};
    for (const Case& c : cases) {
        Project p;
        const std::array<Single*, 12> factors = {&p.C1EndPos, &p.C2EndPos, &p.C3EndPos, &p.C1MidPos,
                                                 &p.C2MidPos, &p.C3MidPos, &p.C1EndNeg, &p.C2EndNeg,
                                                 &p.C3EndNeg, &p.C1MidNeg, &p.C2MidNeg, &p.C3MidNeg};
        for (Single* factor : factors) *factor = 7;
        p.NofSpans = static_cast<std::int16_t>(c.spans);
        p.CraneType = CraneKind(c.crane);
        DefaultCFactors(p);
        for (std::size_t i = 0; i < factors.size(); ++i)
            EXPECT_EQ(factors[i]->stored(), static_cast<float>(c.expected[i])) << c.spans << " spans, factor " << i;
    }
}

/// Critical moment by the three-factor formula with torsion written as G It, Nmm. @param t  C2 zg - C3 zj
double threeFactorMoment(const SectionRecord& s, double L, double C1, double t) {
    constexpr double E = 210000, G = E / 2.6, pi2 = std::numbers::pi * std::numbers::pi;
    const double euler = pi2 * E * s.Iz / (L * L);
    return C1 * euler * (std::sqrt(s.Iw / s.Iz + G * s.It / euler + t * t) - t);
}

/// Three spans of a section loaded 200 mm above the shear centre, monosymmetric.
struct Girder {
    Project project;
    UlsResults uls = samples::uls(3);
    CheckResults checks;

    Girder() {
        SectionRecord s = samples::section();
        s.Iw = 4e11;
        s.Zg = 200;
        s.ZjPos = 60;
        s.ZjNeg = -40;
        project = samples::project(3, s);
        project.C1EndPos = 1.1, project.C2EndPos = 0.4, project.C3EndPos = 0.5;
        project.C1MidPos = 1.2, project.C2MidPos = 0.6, project.C3MidPos = 0.7;
        project.C1EndNeg = 1.7, project.C3EndNeg = 0.9;
        project.C1MidNeg = 99, project.C3MidNeg = 0.8;
    }
    void check() { checks.all = {runCheck("Ltb", {project, {}, uls, samples::sls(3)})}; }
};

TEST(Ltb, factorsOfEachCase) {
    struct Case {
        int span;
        bool positive;
        double field, other;  // slots 2 and 3 of the support record, kNm; the support moment is -100
        double C1, t;
        const char* why;
    };
    const Case cases[] = {
        {1, true, 0, 0, 1.1, 0.4 * 200 - 0.5 * 60, "end span, positive"},
        {2, true, 0, 0, 1.2, 0.6 * 200 - 0.7 * 60, "mid span, positive"},
        {3, true, 0, 0, 1.1, 0.4 * 200 - 0.5 * 60, "the last span is an end span"},
        {1, false, 30, 0, 1.1, 0.4 * 200 + 0.5 * 40,
         "negative with a sagging field: factors of the positive case, ZjNeg"},
        {2, false, 30, -50, 1.2, 0.6 * 200 + 0.7 * 40, "the same in a mid span"},
        {1, false, -30, 0, 1.7, 0.9 * 40, "negative throughout, end span"},
        {3, false, 0, 0, 1.7, 0.9 * 40, "a field moment of zero counts as negative"},
        {2, false, -30, -50, 1.77 - 1.04 * 0.5 + 0.27 * 0.25, 0.8 * 40, "psi = 0.5"},
        {2, false, -30, -100, 1.0, 0.8 * 40, "psi = 1: equal end moments"},
        {2, false, -30, 50, 1.77 + 1.04 * 0.5 + 0.27 * 0.25, 0.8 * 40, "psi = -0.5"},
    };
    for (const Case& c : cases) {
        Girder girder;
        const SectionRecord& s = girder.project.SpanSection(c.span);
        if (c.positive)
            girder.uls.MyMaxSpan(c.span, 1) = 100e6;
        else
            samples::setRow(girder.uls.MySupportSpan, c.span, {-100e6, c.field * 1e6, c.other * 1e6});
        girder.check();
        const double Mcr = threeFactorMoment(s, 5000, c.C1, c.t);
        const double chi = ReductionGeneral(girder.project, s, c.positive, Mcr);
        EXPECT_LT(chi, 0.999) << "the case must tell";
        const RowSet& rows =
            c.positive ? girder.checks["Ltb"].extremes[0](c.span) : girder.checks["Ltb"].extremes[1](c.span);
        EXPECT_NEAR(rows.Ratio, 100 / (chi * (c.positive ? 300 : 250)), 1e-6) << c.why;
    }
}

// No warping, no levers: Mcr = pi/L sqrt(E Iz G It) = 258.769 kNm, lam = 0.98291, phi = 1.06526, chi = 0.67758.
TEST(Ltb, textsOfTheRows) {
    Girder girder;
    for (int span = 1; span <= 3; ++span) {
        SectionRecord& s = girder.project.SpanSection(span);
        s.Iw = s.Zg = s.ZjPos = s.ZjNeg = 0;
    }
    girder.project.C1EndPos = girder.project.C1MidPos = girder.project.C1EndNeg = 1;
    girder.project.GammaM1 = 1.25;
    samples::setRow(girder.uls.MyMaxSpan, 1, {120e6, 0, 0, 0, 1, 800, 1, 2800, 2000});
    samples::setRow(girder.uls.MyMaxSpan, 2, {120e6, 0, -4e6, 0, 2, 900, 2, 2900, 2000});
    samples::setRow(girder.uls.MyMaxSpan, 3, {120e6, 0, 4e6, 0, 3, 950, 3, 2950, 2000});
    samples::setRow(girder.uls.MySupportSpan, 1, {-120e6, -1, -1, 0, 1, 77, 2, 88});
    samples::setRow(girder.uls.MySupportSpan, 2, {-1e6, 1, -1, 0, 2, 66, 2, 55});
    girder.check();

    EXPECT_THAT(samples::texts(girder.checks["Ltb"].extremes[0](1)),
                ElementsAre("IR = My,Ed/(xLT*My,Rd) = ", "120.0/(0.68*240.0) = ", "0.738",
                            " <  1.00 Beam: 1 (Ch 6.3.2)", "1", "800", "1", "2800"));
    EXPECT_THAT(samples::texts(girder.checks["Ltb"].extremes[0](2)),
                ElementsAre("IR = My,Ed/(xLT*My,Ed) + Mz,Ed/Mz,Rd = ", "120.0/(0.68*240.0) + 4.0/40.0 = ", "0.838",
                            " <  1.00 Beam: 2 (Ch 6.3.3)", "2", "900", "2", "2900"));
    EXPECT_EQ(girder.checks["Ltb"].extremes[0](3)(1), "IR = My,Ed/(xLT*My,Rd) + Mz,Ed/Mz,Rd = ");
    EXPECT_THAT(samples::texts(girder.checks["Ltb"].extremes[1](1)),
                ElementsAre("IR = My,Ed/(xLT*My,Rd) = ", "120.0/(0.68*200.0) = ", "0.886",
                            " <  1.00 Beam: 1 (Ch 6.3.2)", "1", "77", "2", "88"));
    EXPECT_EQ(girder.checks["Ltb"].spans(1), girder.checks["Ltb"].extremes[1](1));
    EXPECT_EQ(girder.checks["Ltb"].spans(2), girder.checks["Ltb"].extremes[0](2));
    EXPECT_EQ(girder.checks["Ltb"].governing, girder.checks["Ltb"].extremes[1](1));
}

TEST(Ltb, numbersRankWithinASpanAndTextsOverTheBeam) {
    Girder girder;
    for (int span = 1; span <= 3; ++span) girder.project.SpanSection(span).WyPos = 1;  // so stocky that chi is 1
    samples::setRow(girder.uls.MyMaxSpan, 1, {2700e6});
    samples::setRow(girder.uls.MyMaxSpan, 2, {3000e6});
    samples::setRow(girder.uls.MyMaxSpan, 3, {2700e6, 0, 0, 0, 3});
    girder.check();
    EXPECT_EQ(girder.checks["Ltb"].spans(2)(3), "10.000");
    EXPECT_EQ(girder.checks["Ltb"].governing(3), "9.000");
    EXPECT_EQ(girder.checks["Ltb"].governing(4), " <  1.00 Beam: 1 (Ch 6.3.2)")
        << "of equal texts the earlier span stays";
}

TEST(Ltb, aSpanWithoutNegativeMomentNeedsNoFactors) {
    for (const double C1EndNeg : {0.0, 1.77}) {
        Girder girder;
        girder.project.C1EndNeg = C1EndNeg;
        girder.check();
        const std::string chi = C1EndNeg > 0 ? "0.8" : "1.0";  // with a factor the reduction is made as always
        EXPECT_EQ(girder.checks["Ltb"].extremes[1](1)(2).substr(0, 8), "0.0/(" + chi);
        EXPECT_EQ(girder.checks["Ltb"].extremes[1](2)(2), "0.0/(1.00*250.0) = ") << "a mid span has no psi";
        EXPECT_EQ(girder.checks["Ltb"].extremes[1](2)(3), "0.000");
    }
    Girder girder;
    girder.project.C1EndNeg = 0;
    girder.uls.MySupportSpan(1, 1) = -1e6;
    EXPECT_THROW(girder.check(), RuntimeFault) << "with a moment to check, a factor of zero is a fault";
}

}  // namespace
}  // namespace borvik
