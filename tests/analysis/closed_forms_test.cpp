// Continuous beams against the closed forms of textbooks, position fixed, one load case at a time.

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/random_beam.h"
#include "analysis/walk.h"

namespace borvik {
namespace {

constexpr double E = 210000;
constexpr double Iy = 2e8, Iz = 5e7;

/// Equal or different spans of one section, with one fixed crane; nothing loads it yet.
struct FixedBeam {
    explicit FixedBeam(std::initializer_list<int> lengths) {
        project.SpanSection = Array<SectionRecord>(1, kMaxSpans);
        for (const int length : lengths) {
            const int i = ++project.NofSpans;
            project.Span(i) = length;
            project.SpanSection(i).Iy = Iy;
            project.SpanSection(i).Iz = Iz;
        }
        project.Fixerad = true;
        testing::setLengths(project);
    }
    FixedBeam& uniform(double q) {
        for (int i = 1; i <= project.NofSpans; ++i) loads.SpanLoad(i) = q;
        return *this;
    }
    /// One wheel; V and H in kN.
    FixedBeam& wheel(double x, double V, double H = 0) {
        project.Position = x;
        loads.WheelV(1) = V;
        loads.WheelH(1) = H;
        return *this;
    }
    /// The largest or the smallest moment at a point, whichever is not zero.
    [[nodiscard]] double My(int i, int k) const { return one(uls().MyMaxPoint, uls().MyMinPoint, i, k, 1); }
    [[nodiscard]] double Vz(int i, int k) const { return one(uls().VzMaxPoint, uls().VzMinPoint, i, k, 2); }
    [[nodiscard]] double Mz(int i, int k) const { return one(uls().MzMaxPoint, uls().MzMinPoint, i, k, 3); }
    [[nodiscard]] double Uz(int i, int k) const { return sls().UzMaxPoint(i, k, 1); }
    [[nodiscard]] double Uy(int i, int k) const { return sls().UyMaxPoint(i, k, 1); }
    /// Reaction of a support, upward positive, as the walk leaves it for all but the last.
    [[nodiscard]] double Rz(int support) const { return uls().RzMax(support) + uls().RzMin(support); }

    Project project;
    RunLoads loads;

private:
    static double one(const Cube<Single>& largest, const Cube<Single>& smallest, int i, int k, int key) {
        return largest(i, k, key) + smallest(i, k, key);
    }
    [[nodiscard]] UlsResults uls() const {
        MessageList messages;
        Progress progress;
        return RunUls(project, loads, WalkMethod::Plain, messages, progress);
    }
    [[nodiscard]] SlsResults sls() const {
        MessageList messages;
        Progress progress;
        return RunSls(project, loads, WalkMethod::Plain, messages, progress);
    }
};

void near(double ours, double expected, const char* source) {
    EXPECT_NEAR(ours, expected, 2e-6 * std::abs(expected)) << source;
}

constexpr double L = 6000;  // mm
constexpr double q = 10;    // N/mm
constexpr double P = 100;   // kN

TEST(ClosedForms, simpleBeam) {
    const FixedBeam uniform = FixedBeam({6000}).uniform(q);
    near(uniform.My(1, 11), q * L * L / 8, "q L^2 / 8");
    near(uniform.Vz(1, 1), q * L / 2, "q L / 2");
    near(uniform.Uz(1, 11), -5 * q * std::pow(L, 4) / (384 * E * Iy), "5 q L^4 / (384 EI)");

    const FixedBeam central = FixedBeam({6000}).wheel(3000, P, 7);
    near(central.My(1, 11), P * 1000 * L / 4, "P L / 4");
    near(central.Mz(1, 11), 7000 * L / 4, "P L / 4 in the horizontal plane");
    near(central.Uz(1, 11), -P * 1000 * L * L * L / (48 * E * Iy), "P L^3 / (48 EI)");
    near(central.Uy(1, 11), -7000 * L * L * L / (48 * E * Iz), "P L^3 / (48 EI) in the horizontal plane");

    // Off the middle: M = P a b / L under the load, and U = P a^2 b^2 / (3 EI L) there.
    const double a = 1500, b = 4500;
    const FixedBeam quarter = FixedBeam({6000}).wheel(a, P);
    near(quarter.My(1, 6), P * 1000 * a * b / L, "P a b / L");
    near(quarter.Vz(1, 6), P * 1000 * b / L, "shear left of the load, P b / L");
    near(quarter.Vz(1, 7), -P * 1000 * a / L, "shear right of the load, P a / L");
    near(quarter.Uz(1, 6), -P * 1000 * a * a * b * b / (3 * E * Iy * L), "P a^2 b^2 / (3 EI L)");
}

/// Timoshenko, Strength of Materials I, section 46: uniform load on equal spans. Schneider, Bautabellen, continuous
/// beams.
TEST(ClosedForms, equalSpansUnderUniformLoad) {
    const FixedBeam two = FixedBeam({6000, 6000}).uniform(q);
    near(two.My(1, 21), -q * L * L / 8, "two spans: -q L^2 / 8 over the support");
    near(two.My(2, 1), -q * L * L / 8, "two spans: the same from the right");
    near(two.Rz(1), 3 * q * L / 8, "two spans: 3 q L / 8");
    near(two.Rz(2), 10 * q * L / 8, "two spans: 10 q L / 8");
    near(two.Uz(1, 11), -q * std::pow(L, 4) / (192 * E * Iy), "two spans: q L^4 / (192 EI) in the middle");

    const FixedBeam three = FixedBeam({6000, 6000, 6000}).uniform(q);
    near(three.My(1, 21), -q * L * L / 10, "three spans: -q L^2 / 10");
    near(three.My(2, 11), q * L * L / 40, "three spans: q L^2 / 40 in the middle");
    near(three.My(1, 9), 0.08 * q * L * L, "three spans: 0.08 q L^2 at 0.4 L");
    near(three.Rz(1), 0.4 * q * L, "three spans: 0.4 q L");
    near(three.Rz(3), 1.1 * q * L, "three spans: 1.1 q L");

    const FixedBeam four = FixedBeam({6000, 6000, 6000, 6000}).uniform(q);
    near(four.My(1, 21), -3 * q * L * L / 28, "four spans: -3 q L^2 / 28");
    near(four.My(2, 21), -q * L * L / 14, "four spans: -q L^2 / 14");
    near(four.Rz(1), 11 * q * L / 28, "four spans: 11 q L / 28");
}

/// A load at a in the first of two equal spans gives -P a (L^2 - a^2) / (4 L^2) over the support.
TEST(ClosedForms, twoSpansUnderOneWheel) {
    for (const double a : {600.0, 3000.0, 3600.0, 5700.0}) {
        const double support = -P * 1000 * a * (L * L - a * a) / (4 * L * L);
        const FixedBeam left = FixedBeam({6000, 6000}).wheel(a, P, 5);
        near(left.My(1, 21), support, "P a (L^2 - a^2) / (4 L^2)");
        near(left.Mz(1, 21), support / P * 5, "the same in the horizontal plane");
        near(left.My(2, 11), support / 2, "half of it in the middle of the unloaded span");
        near(left.Uz(2, 11), -support * L * L / (16 * E * Iy), "uplift M L^2 / (16 EI) of the unloaded span");
        near(FixedBeam({6000, 6000}).wheel(2 * L - a, P).My(2, 1), support, "mirrored");
    }
    near(FixedBeam({6000, 6000}).wheel(3000, P).My(1, 21), -3 * P * 1000 * L / 32, "3 P L / 32 from the middle");
    near(FixedBeam({6000, 6000}).wheel(3000, P).Rz(2), 22 * P * 1000 / 32, "22 P / 32");
}

/// A second span of very great stiffness clamps the end of the first: a propped cantilever. One of very little
/// stiffness leaves it free.
TEST(ClosedForms, stiffAndSlackNeighbours) {
    FixedBeam propped = FixedBeam({6000, 6000}).wheel(3000, P);
    propped.project.SpanSection(2).Iy = 1e16;
    near(propped.My(1, 21), -3 * P * 1000 * L / 16, "propped cantilever: 3 P L / 16");
    near(propped.Rz(1), 5 * P * 1000 / 16, "propped cantilever: 5 P / 16");
    near(propped.Uz(1, 11), -7 * P * 1000 * L * L * L / (768 * E * Iy), "propped cantilever: 7 P L^3 / (768 EI)");

    FixedBeam slack = FixedBeam({6000, 6000}).wheel(3000, P);
    slack.project.SpanSection(2).Iy = 1;
    near(slack.My(1, 11), P * 1000 * L / 4, "simple beam: P L / 4");

    FixedBeam clamped = FixedBeam({6000, 6000, 6000}).wheel(9000, P);
    clamped.project.SpanSection(1).Iy = clamped.project.SpanSection(3).Iy = 1e16;
    near(clamped.My(2, 1), -P * 1000 * L / 8, "clamped at both ends: P L / 8");
    near(clamped.My(2, 11), P * 1000 * L / 8, "clamped at both ends: P L / 8");
}

/// Two spans of different length and section, from the three-moment equation by hand: with s = L1/I1 + L2/I2,
/// M = -(q L1^3/I1 + q L2^3/I2) / (8 s).
TEST(ClosedForms, unequalSpans) {
    FixedBeam beam = FixedBeam({4000, 8000}).uniform(q);
    beam.project.SpanSection(2).Iy = 4 * Iy;
    // q (64e9 + 512e9/4) / (8 (4000 + 2000)) = 10 x 192e9 / 48000 = 40e6 Nmm
    near(beam.My(1, 21), -40e6, "by hand");
    near(beam.Rz(1), 10e3, "20 kN - 40 kNm / 4 m");
    near(beam.Rz(2), 75e3, "20 + 10 + 40 + 5 kN");
}

/// The largest moment of a simple beam under two equal wheels at a fixed distance d stands under one of them, when
/// their resultant and that wheel are the same distance from the middle: P L / 2 (1 - d / (2 L))^2.
TEST(ClosedForms, greatestMomentOfTwoWheelsOnASimpleBeam) {
    FixedBeam beam({16000});
    beam.project.Fixerad = false;
    beam.project.Avst(1) = beam.loads.WheelGap(1) = 3200;
    testing::setLengths(beam.project);
    beam.wheel(0, P);
    beam.loads.WheelV(2) = P;
    // The walk first comes to wheel 2 standing d / 4 = 800 mm right of the middle, later to wheel 1 as far left of it.
    MessageList messages;
    Progress progress;
    const UlsResults uls = RunUls(beam.project, beam.loads, WalkMethod::Plain, messages, progress);
    const double expected = P * 1000 * 16000 / 2 * std::pow(1 - 3200.0 / 32000, 2);
    near(uls.MyMaxSpan(1, 1), expected, "P L / 2 (1 - d / 2L)^2");
    EXPECT_EQ(uls.MyMaxSpan(1, 9), 8800) << "the first of the two equal positions";
    EXPECT_EQ(uls.MyMaxSpan(1, 6), 8800 - 3200) << "wheel 1";
}

}  // namespace
}  // namespace borvik
