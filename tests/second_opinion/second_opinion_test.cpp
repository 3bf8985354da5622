#include "second_opinion/second_opinion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "analysis/steps.h"
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
