#include "analysis/fast_walk.h"

#include <gtest/gtest.h>

#include <cstring>

#include "analysis/post_process.h"
#include "analysis/random_beam.h"
#include "analysis/walk.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing::BeamCase;
using testing::RandomBeams;

template <class T>
std::size_t differingBits(const T& a, const T& b, std::size_t items) {
    std::size_t differing = 0;
    for (std::size_t i = 0; i < items; ++i) differing += std::memcmp(a.data() + i, b.data() + i, sizeof *a.data()) != 0;
    return differing;
}
std::size_t differing(const Array<Single>& a, const Array<Single>& b) {
    return a.size() != b.size() ? 1 : differingBits(a, b, static_cast<std::size_t>(a.size()));
}
std::size_t differing(const Table<Single>& a, const Table<Single>& b) {
    return differingBits(a, b, static_cast<std::size_t>(a.rows() * a.columns()));
}
std::size_t differing(const Cube<Single>& a, const Cube<Single>& b) {
    return differingBits(a, b, static_cast<std::size_t>(a.rows() * a.columns() * a.slots()));
}

/// Number of stored values that differ in some bit.
std::size_t differing(const UlsResults& a, const UlsResults& b) {
    std::size_t count = 0;
    for (const auto& envelope : kUlsEnvelopes) count += a.At.*envelope.at != b.At.*envelope.at;
    for (auto field : {&UlsPositions::RzMax, &UlsPositions::RzMin, &UlsPositions::RyMax, &UlsPositions::RyMin,
                       &UlsPositions::MySupport})
        count += a.At.*field != b.At.*field;
    for (auto field : {&UlsResults::RzMax, &UlsResults::RzMin, &UlsResults::RyMax, &UlsResults::RyMin})
        count += differing(a.*field, b.*field);
    for (auto field :
         {&UlsResults::MyMaxPoint, &UlsResults::MyMinPoint, &UlsResults::VzMaxPoint, &UlsResults::VzMinPoint,
          &UlsResults::MzMaxPoint, &UlsResults::MzMinPoint, &UlsResults::VyMaxPoint, &UlsResults::VyMinPoint})
        count += differing(a.*field, b.*field);
    for (auto field : {&UlsResults::MyMaxSpan, &UlsResults::MyMinSpan, &UlsResults::VzMaxSpan, &UlsResults::VzMinSpan,
                       &UlsResults::MzMaxSpan, &UlsResults::MzMinSpan, &UlsResults::VyMaxSpan, &UlsResults::VyMinSpan,
                       &UlsResults::MySupportSpan})
        count += differing(a.*field, b.*field);
    return count;
}
std::size_t differing(const SlsResults& a, const SlsResults& b) {
    return differing(a.UzMaxPoint, b.UzMaxPoint) + differing(a.UyMaxPoint, b.UyMaxPoint) +
           differing(a.UzMaxSpan, b.UzMaxSpan) + differing(a.UyMaxSpan, b.UyMaxSpan) +
           static_cast<std::size_t>((a.At.Uz != b.At.Uz) + (a.At.Uy != b.At.Uy));
}
std::size_t differing(const FlsResults& a, const FlsResults& b) {
    std::size_t count = differing(a.FlsRzMax, b.FlsRzMax) + differing(a.FlsRzMin, b.FlsRzMin);
    for (const auto& envelope : kFlsEnvelopes) count += a.At.*envelope.at != b.At.*envelope.at;
    count += static_cast<std::size_t>((a.At.RzMax != b.At.RzMax) + (a.At.RzMin != b.At.RzMin));
    for (auto field : {&FlsResults::FlsMyMaxPoint, &FlsResults::FlsMyMinPoint, &FlsResults::FlsVzMaxPoint,
                       &FlsResults::FlsVzMinPoint})
        count += differing(a.*field, b.*field);
    for (auto field :
         {&FlsResults::FlsMyMaxSpan, &FlsResults::FlsMyMinSpan, &FlsResults::FlsVzMaxSpan, &FlsResults::FlsVzMinSpan})
        count += differing(a.*field, b.*field);
    return count;
}

template <class Run>
std::size_t plainAgainstFast(Run run, const BeamCase& c) {
    MessageList messages;
    Progress progress;
    const auto plain = run(c.project, c.loads, WalkMethod::Plain, messages, progress);
    const auto fast = run(c.project, c.loads, WalkMethod::Fast, messages, progress);
    return differing(plain, fast);
}

const int kCases = testing_support::wantedCount("BORVIK_WALK_CASES", 400);

TEST(FastWalk, hasTheSameBitsAsThePlainWalk) {
    RandomBeams beams(20261122);
    double positions = 0;
    for (int number = 1; number <= kCases; ++number) {
        const BeamCase c = beams.next();
        positions += countPositions(c.project, c.loads.NCranes);
        SCOPED_TRACE("case " + std::to_string(number));
        ASSERT_EQ(plainAgainstFast(RunUls, c), 0U);
        ASSERT_EQ(plainAgainstFast(RunSls, c), 0U);
        ASSERT_EQ(plainAgainstFast(RunFls, c), 0U);
    }
    RecordProperty("positions", std::to_string(positions));
}

/// The crane starts in the last span and leaves the beam. Over the second support its load pulls up, so that the
/// smallest moment there is that of the dead load, first reached where the last wheel has just left.
TEST(FastWalk, findsTheFirstPositionBehindTheBeam) {
    BeamCase c;
    c.project.NofSpans = 3;
    c.project.SpanSection = Array<SectionRecord>(1, 3);
    for (int i = 1; i <= 3; ++i) {
        c.project.Span(i) = 3000;
        c.project.SpanSection(i).Iy = 1e8;
        c.project.SpanSection(i).Iz = 1e7;
        c.loads.SpanLoad(i) = 5;
    }
    c.project.Position = 7100;
    c.loads.WheelV(1) = 50;
    c.loads.NCranes = 1;
    testing::setLengths(c.project);
    EXPECT_EQ(plainAgainstFast(RunUls, c), 0U);
}

/// These comparisons would be worth nothing if the fast walk gave way to the plain one.
TEST(FastWalk, takesMostBeams) {
    RandomBeams beams(7);
    int taken = 0;
    for (int number = 0; number < 200; ++number) {
        const BeamCase c = beams.next();
        const LoadedBeam loaded(c.project, c.loads, true);
        UlsResults results;
        UlsPostProcess post(loaded, results);
        Progress progress;
        taken += walkFast(WalkSteps(c.project, c.loads.NCranes), loaded, Quantity::Forces, post, Walk::Uls, progress);
    }
    EXPECT_GE(taken, 150);
}

/// Keeps the number of positions that the search asks for.
class CountingPost : public PostProcess {
public:
    void record(const SolvedPosition&, SpanMask) override { ++count; }
    int count = 0;
};

/// What makes it fast: of all pairs of positions only a few are solved.
TEST(FastWalk, solvesFewPositions) {
    BeamCase c;
    Project& project = c.project;
    project.NofSpans = 6;
    project.SpanSection = Array<SectionRecord>(1, 30);
    for (int i = 1; i <= 6; ++i) {
        project.Span(i) = 12000;
        project.SpanSection(i).Iy = 2e9;
        project.SpanSection(i).Iz = 1e8;
        c.loads.SpanLoad(i) = 3;
    }
    for (int w : {1, 2, 5, 6}) {
        c.loads.WheelV(w) = 90 + w;
        c.loads.WheelH(w) = 8;
    }
    project.Avst(1) = project.Avst(4) = 3600;
    project.MinAvst = 500;
    c.loads.WheelGap = project.Avst;
    c.loads.NCranes = 2;
    testing::setLengths(project);
    const LoadedBeam loaded(project, c.loads, true);
    CountingPost post;
    Progress progress;
    const WalkSteps steps(project, 2);
    ASSERT_TRUE(walkFast(steps, loaded, Quantity::Forces, post, Walk::Uls, progress));
    EXPECT_GT(steps.positions(), 50000);
    EXPECT_LT(post.count, 2000);
}

}  // namespace
}  // namespace borvik
