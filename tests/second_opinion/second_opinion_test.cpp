#include "second_opinion/second_opinion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/steps.h"
#include "calculation/calculation.h"
#include "second_opinion/interaction.h"
#include "second_opinion/solved_positions.h"
#include "support/samples.h"

namespace borvik {
namespace {

/// By a published worked example: UB 457x191x82, S275, with phi My in Mz and CMz = 1.
TEST(AnnexA, publishedExample) {
    SectionRecord section;
    section.h = 460;
    section.b1 = section.b2 = 191.3;
    section.tf1 = section.tf2 = 16;
    section.EzEl = 230;
    section.Iy = 37100e4;
    const WarpingSection warping(section);
    const double BRd = 275 * warping.WplFlange * warping.flangeDistance();
    const AnnexA annex = annexA({168.80e6, 9.873e6, 7.403e6 * warping.flangeDistance(), 285.04e6, 304e3 * 275, BRd,
                                 168.80e6 / (1 - 1 / 1.7358), 1});
    EXPECT_NEAR(annex.kw, 0.6632, 2e-4);
    EXPECT_NEAR(annex.kzw, 0.8819, 1e-4);
    EXPECT_NEAR(annex.kalpha, 1.7358, 1e-4);
    EXPECT_NEAR(annex.ratio, 0.897, 5e-4);
}

using testing_support::Sample;
using testing_support::sessionOf;

/// Every position of the walk solved, against the search by influence lines.
TEST(LargestBimoments, noPositionGivesMore) {
    const Session& session = sessionOf(Sample::TwoCranes);
    const Project& project = session.project;
    SolvedPositions positions(session, {});
    const std::vector<LargestBimoment> found = positions.largestBimoments();
    std::vector<double> largest(found.size());
    const WalkSteps steps(project, session.results->Uls.Loads.NCranes);
    ASSERT_TRUE(steps.secondCraneMoves);
    for (int j = 0; j <= steps.N1; j += 3)
        for (int k = 0; k <= steps.lastK(j); k += 3)
            for (const auto& states : positions.at({std::int16_t(j), std::int16_t(k)}).torsion)
                for (std::size_t n = 0; n < states.size(); ++n) {
                    const std::size_t i = positions.spanOf(states, n);
                    const double share = (states[n].x - positions.beam().supportAt(i)) / project.Span(int(i) + 1) * 20;
                    if (std::abs(share - std::round(share)) < 1e-6)
                        largest[i] = std::max(largest[i], std::abs(states[n].B));
                }
    for (std::size_t i = 0; i < found.size(); ++i) {
        EXPECT_LE(largest[i], std::abs(found[i].B) * 1.0005) << i;
        double there = 0;
        for (const auto& states : positions.at(found[i].at).torsion)
            for (std::size_t n = 0; n < states.size(); ++n)
                if (positions.spanOf(states, n) == i) there = std::max(there, std::abs(states[n].B));
        EXPECT_GE(there, std::abs(found[i].B) * 0.9995) << i;
    }
}

TEST(SecondOpinion, looksAtEveryProjectAndChangesNothing) {
    for (const Sample sample : testing_support::kSamples) {
        const Session& session = sessionOf(sample);
        const Project before = session.project;
        const SecondOpinion opinion = secondOpinion(session);
        EXPECT_EQ(opinion.fault, "");
        EXPECT_EQ(session.project, before);
        ASSERT_EQ(int(opinion.spans.size()), session.project.NofSpans);
        for (int span = 1; span <= session.project.NofSpans; ++span) {
            const SpanOpinion& of = opinion.spans[std::size_t(span - 1)];
            ASSERT_GE(of.atLargest, 0);
            const BucklingOfSign& sagging = of.positions[std::size_t(of.atLargest)].sagging;
            EXPECT_NEAR(sagging.My, session.results->Uls.MyMaxSpan(span, 1), 1e-5 * sagging.My) << "the same moment";
            for (const PositionOpinion& position : of.positions) {
                EXPECT_GT(position.stresses.ratio, 0);
                EXPECT_EQ(position.annex.has_value(), opinion.noAnnex.empty());
            }
        }
    }
}

/// One wheel of 100 kN and 10 kN sideways in the middle of HEA 300 over 6 m, rail Pl 50x30.
TEST(SecondOpinion, oneWheelByHand) {
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    Project& project = session.project;
    for (int span = 2; span <= 3; ++span) {
        project.Span(span) = 0;
        project.SpanSection(span) = {};
    }
    project.Span(1) = 6000;
    project.V = project.H = {};
    project.V(1) = 100;
    project.H(1) = 10;
    project.SelfWeight = project.RailOn = false;
    project.Gangway = 0;
    project.PsiV1 = project.PsiH1 = project.LfULS = 1;
    project.Fixerad = true;
    project.Position = 3000;
    MessageList messages;
    Progress progress;
    ASSERT_TRUE(Calculate(session, messages, progress));
    const SecondOpinion opinion = secondOpinion(session);
    ASSERT_EQ(opinion.spans.front().positions.size(), 1u) << "all extremes at the only position";
    const PositionOpinion& only = opinion.spans.front().positions.front();

    const double T = 10e3 * (30 + 145) + 100e3 * 50 / 4;
    const LineSection line{6310e4, 85.6e4, 1.2e12, 0};
    const double k = std::sqrt(kLineG * line.It / (kLineE * line.Iw));
    const double B = T / (2 * k) * std::tanh(k * 3000);
    const double phi = T / (2 * kLineG * line.It) * (3000 - std::tanh(k * 3000) / k);
    EXPECT_NEAR(only.B, B, 1e-4 * B);
    EXPECT_NEAR(only.phi, phi, 1e-4 * phi);
    EXPECT_NEAR(only.Tw, T / 2, 1e-4 * T) << "beside the wheel";
    const double My = 100e3 * 1500, Mz = 10e3 * 1500 + My * phi;
    EXPECT_NEAR(only.Mz, Mz, 1e-4 * Mz);
    const double tip = My * 145 / 18260e4 + 150 * (Mz / line.Iz + 138 * B / line.Iw);
    EXPECT_NEAR(-only.stresses.tips[1], tip, 2e-4 * tip) << "top flange, on the side that the load comes from";
    ASSERT_TRUE(only.annex);
    EXPECT_NEAR(only.annex->of.BRd, 355 * 300.0 * 300 * 14 / 4 / 1.5 * 276 / project.GammaM1, 1) << "class 3";
    EXPECT_NEAR(only.sagging.Mcr, *only.factor * My, 1e-5 * only.sagging.Mcr);
    EXPECT_EQ(only.hogging.My, 0);
}

/// Narrow strips of the section added up.
TEST(WarpingSection, monosymmetryIsTheIntegral) {
    const SectionRecord& section = sessionOf(Sample::Together).project.SpanSection(2);
    ASSERT_NE(section.b1, section.b2);
    double sum = 0;
    constexpr int kStrips = 20000;
    for (int i = 0; i < kStrips; ++i) {
        const double above = (i + 0.5) * section.h / kStrips, z = above - section.EzEl;
        const double b = above < section.tf2 ? section.b2 : above > section.h - section.tf1 ? section.b1 : section.tw;
        sum += z * (z * z + b * b / 12) * b * section.h / kStrips;
    }
    EXPECT_NEAR(WarpingSection(section).line.zj, section.Zs - sum / (2 * section.Iy), 0.1);
}

TEST(SecondOpinion, lateralSupportsRaiseTheFactorAndSenselessInputIsAWord) {
    const Session& session = sessionOf(Sample::Overloaded);
    SecondOpinionOptions options;
    options.lateralSupports = {{1, session.project.Span(1) / 2.0, {}}};
    EXPECT_GT(secondOpinion(session, options).lowestFactor, 1.5 * secondOpinion(session).lowestFactor);
    options.lateralSupports = {{9, 100, {}}};
    EXPECT_NE(secondOpinion(session, options).fault, "");
    Session stiffless = session;
    stiffless.project.SpanSection(1).It = 0;
    const SecondOpinion opinion = secondOpinion(stiffless);
    EXPECT_THAT(opinion.fault, testing::HasSubstr("stiffness"));
    EXPECT_TRUE(opinion.spans.empty());
}

}  // namespace
}  // namespace borvik
