#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "base/fault.h"
#include "second_opinion/buckling.h"
#include "second_opinion/torsion.h"

namespace borvik {
namespace {

constexpr double kPi = std::numbers::pi;
// UB 457x191x82
constexpr LineSection kBeam{1871e4, 69.2e4, 0.922e12, 0};

double largest(const std::vector<TorsionState>& states, double TorsionState::*value) {
    double most = 0;
    for (const TorsionState& state : states) most = std::max(most, std::abs(state.*value));
    return most;
}

TEST(Torsion, torqueInTheMiddle) {
    for (const double L : {600.0, 6000.0, 60000.0}) {
        const double k = std::sqrt(kLineG * kBeam.It / (kLineE * kBeam.Iw));
        const auto states = TorsionBeam({{{L, kBeam}}}, {}).solve({{{L / 2, 1e6}}, {}});
        const double expected = 1e6 / (2 * k) * std::tanh(k * L / 2);
        EXPECT_NEAR(largest(states, &TorsionState::B), expected, 1e-5 * expected) << L;
    }
}

/// By a published worked example, which has G = 81000: 25.5 kN/m and 45 kN at 2 m, 40 mm off the web.
TEST(Torsion, publishedExample) {
    LineSection section = kBeam;
    section.It *= 81000 / kLineG;
    const TorsionBeam beam({{{6000, section}}}, {2000, 2340, 2800, 2850});
    const auto states = beam.solve({{{2000, 45e3 * 40}}, {25.5 * 40}});
    const double lever = 460 - 16;
    EXPECT_NEAR(largest(states, &TorsionState::phi), 0.06054, 1e-5);
    EXPECT_NEAR(largest(states, &TorsionState::B) / lever / 1e6, 7.736, 0.001);
    const TorsionState& there = states[2 * beam.mesh().nodeAt(2340)];
    EXPECT_NEAR(there.phi, 0.05828, 1e-5);
    EXPECT_NEAR(there.B / lever / 1e6, 7.426, 0.001);
}

TEST(Torsion, randomBeamsAreInEquilibriumAndMirrored) {
    std::mt19937 random(23);
    std::uniform_real_distribution<double> share(0.05, 0.95);
    for (int run = 0; run < 20; ++run) {
        LineBeam beam, mirror;
        if (run % 2 == 1) beam.warping = mirror.warping = InnerWarping::Free;
        Torques torques, mirrored;
        for (int i = 0; i < 4; ++i) {
            const double L = 12000 * share(random);
            beam.spans.push_back({L, {1e7, 1e6 * share(random), 1e12 * share(random), 0}});
            torques.uniform.push_back(1000 * share(random));
            torques.points.push_back(
                {beam.supportAt(static_cast<std::size_t>(i)) + L * share(random), 2e6 * (share(random) - 0.5)});
        }
        mirror.spans.assign(beam.spans.rbegin(), beam.spans.rend());
        mirrored.uniform.assign(torques.uniform.rbegin(), torques.uniform.rend());
        std::vector<double> places;
        for (const PointTorque& torque : torques.points) {
            mirrored.points.push_back({beam.length() - torque.x, torque.T});
            places.push_back(torque.x);
        }
        const TorsionBeam solved(beam, places);
        const auto states = solved.solve(torques);
        const auto other = TorsionBeam(mirror, {mirrored.points[0].x, mirrored.points[1].x, mirrored.points[2].x,
                                                mirrored.points[3].x})
                               .solve(mirrored);
        ASSERT_EQ(states.size(), other.size());
        const double scale = largest(states, &TorsionState::T);
        for (std::size_t i = 0; i < states.size(); ++i)
            EXPECT_NEAR(states[i].T, -other[states.size() - 1 - i].T, 1e-6 * scale);
        const auto between = [&](double from, double to) {
            double applied = 0;
            for (const PointTorque& torque : torques.points)
                if (torque.x > from && torque.x < to) applied += torque.T;
            return applied;
        };
        constexpr double kAside = 1e-6;
        for (std::size_t e = 0; e + 1 < states.size() / 2; ++e) {
            const LineMesh::Element& element = solved.mesh().elements[e];
            EXPECT_NEAR(states[2 * e].T - states[2 * e + 1].T,
                        torques.uniform[element.span] * element.h + between(element.x + kAside, element.end() - kAside),
                        1e-9 * scale);
            if (solved.mesh().isSupport[e + 1] != 0) continue;
            EXPECT_NEAR(states[2 * e + 1].T - states[2 * e + 2].T,
                        between(element.end() - kAside, element.end() + kAside), 1e-9 * scale);
        }
        const std::size_t node = solved.mesh().elements.size() / 3;
        const auto line = solved.bimomentAt(solved.mesh().elements[node].x);
        double B = 0;
        for (const PointTorque& torque : torques.points) B += torque.T * line.at(solved.placeAt(torque.x));
        EXPECT_NEAR(B, solved.solve({torques.points, {}})[2 * node].B, 1e-8 * largest(states, &TorsionState::B));
    }
}

/// Uniform moment: pi^2 E Iz/L^2 (sqrt(Iw/Iz + L^2 G It/(pi^2 E Iz) + zj^2) + zj).
double uniformMoment(const LineSection& s, double L) {
    const double Ncr = kPi * kPi * kLineE * s.Iz / (L * L);
    return Ncr * (std::sqrt(s.Iw / s.Iz + kLineG * s.It / Ncr + s.zj * s.zj) + s.zj);
}

TEST(Buckling, uniformMoment) {
    for (const double zj : {0.0, 60.0, -60.0}) {
        LineSection section = kBeam;
        section.zj = zj;
        const LineBeam beam{{{6000, section}}};
        SpanLoading loading;
        loading.Ma = loading.Mb = 1e8;
        const double expected = uniformMoment(section, 6000);
        EXPECT_NEAR(lowestBuckling(beam, {loading}, {}, 1e-6)->factor * 1e8, expected, 1e-6 * expected);
        // Held at two heights in the middle, each half buckles by itself.
        const double half = uniformMoment(section, 3000);
        EXPECT_NEAR(lowestBuckling(beam, {loading}, {{3000, -100}, {3000, 100}}, 1e-6)->factor * 1e8, half,
                    1e-6 * half);
    }
}

TEST(Buckling, loadInTheMiddle) {
    const auto factorAt = [](double z, const std::vector<LateralSupport>& supports) {
        SpanLoading loading;
        loading.loads = {{3000, 4e8 / 6000, z}};
        return lowestBuckling({{{6000, kBeam}}}, {loading}, supports)->factor * 1e8 / uniformMoment(kBeam, 6000);
    };
    EXPECT_NEAR(factorAt(0, {}), 1.365, 0.003 * 1.365);
    EXPECT_LT(factorAt(230, {}), 0.8 * factorAt(0, {}));
    EXPECT_GT(factorAt(-230, {}), 1.2 * factorAt(0, {}));
    EXPECT_GT(factorAt(230, {{3000, 230}}), 2 * factorAt(230, {}));
}

/// By a published runway beam, UB 406x178x60 of 6 m: Mb,Rd 215 kNm at the shear centre, 280 kNm at the bottom flange.
TEST(Buckling, publishedRunwayBeam) {
    const LineSection section{1200e4, 33.3e4, 0.466e12, 0};
    const auto MbRd = [&](double z) {
        SpanLoading loading;
        loading.loads = {{3000, 4e8 / 6000, z}};
        const double Mcr = lowestBuckling({{{6000, section}}}, {loading})->factor * 1e8;
        const double WF = 1200e3 * 355, lambda = std::sqrt(WF / Mcr);
        const double phi = 0.5 * (1 + 0.49 * (lambda - 0.4) + 0.75 * lambda * lambda);
        const double chi = 1 / (phi + std::sqrt(phi * phi - 0.75 * lambda * lambda));
        const double kc = 1 / std::sqrt(1.35);
        const double f = 1 - 0.5 * (1 - kc) * (1 - 2 * (lambda - 0.8) * (lambda - 0.8));
        return chi / f * WF / 1e6;
    };
    EXPECT_NEAR(MbRd(0), 215, 2);
    EXPECT_NEAR(MbRd(-190.4), 280, 0.025 * 280) << "published with C2 0.63; this load has 0.553, which gives 273.95";
    EXPECT_NEAR(MbRd(-190.4), 273.95, 0.3);
}

TEST(LineBeam, senselessInputIsNamed) {
    EXPECT_THROW(TorsionBeam({{{0, kBeam}}}, {}), RuntimeFault);
    EXPECT_THROW(TorsionBeam({{{6000, {1e7, 0, 0, 0}}}}, {}), RuntimeFault);
    SpanLoading loading;
    loading.Ma = loading.Mb = 1e8;
    EXPECT_THROW(static_cast<void>(lowestBuckling({{{6000, {1e7, 0, 1e12, 0}}}}, {loading})), RuntimeFault);
    EXPECT_FALSE(lowestBuckling({{{6000, kBeam}}}, {SpanLoading{}}));
}

}  // namespace
}  // namespace borvik
