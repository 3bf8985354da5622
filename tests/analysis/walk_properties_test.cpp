// What holds for every beam and crane, tried on many random ones.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "analysis/random_beam.h"
#include "analysis/walk.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing::BeamCase;
using testing::RandomBeams;

const int kCases = testing_support::wantedCount("BORVIK_RANDOM_CASES", 300);

struct Walked {
    explicit Walked(const BeamCase& c)
        : uls(RunUls(c.project, c.loads, WalkMethod::Fast, messages, progress)),
          sls(RunSls(c.project, c.loads, WalkMethod::Fast, messages, progress)) {}
    MessageList messages;
    Progress progress;
    UlsResults uls;
    SlsResults sls;
};

using PointRecord = Cube<Single> UlsResults::*;
using SpanRecord = Table<Single> UlsResults::*;
constexpr PointRecord kPointRecords[] = {&UlsResults::MyMaxPoint, &UlsResults::MyMinPoint, &UlsResults::VzMaxPoint,
                                         &UlsResults::VzMinPoint, &UlsResults::MzMaxPoint, &UlsResults::MzMinPoint,
                                         &UlsResults::VyMaxPoint, &UlsResults::VyMinPoint};
constexpr SpanRecord kSpanRecords[] = {&UlsResults::MyMaxSpan, &UlsResults::MyMinSpan, &UlsResults::VzMaxSpan,
                                       &UlsResults::VzMinSpan, &UlsResults::MzMaxSpan, &UlsResults::MzMinSpan,
                                       &UlsResults::VyMaxSpan, &UlsResults::VyMinSpan};

// --- Scaled loads ---------------------------------------------------------------------------------------------------

/// Twice the load is twice every result, exactly: doubling a binary number loses nothing. Positions stay.
TEST(WalkProperties, twiceTheLoadIsTwiceTheResult) {
    RandomBeams beams(8001);
    for (int number = 1; number <= kCases; ++number) {
        SCOPED_TRACE("case " + std::to_string(number));
        const BeamCase once = beams.next(6, 3000);
        BeamCase twice = once;
        for (Single& load : twice.loads.WheelV) load *= 2;
        for (Single& load : twice.loads.WheelH) load *= 2;
        for (Single& load : twice.loads.SpanLoad) load *= 2;
        Walked a(once);
        const Walked b(twice);
        for (auto field : {&UlsResults::RzMax, &UlsResults::RzMin, &UlsResults::RyMax, &UlsResults::RyMin}) {
            for (Single& reaction : a.uls.*field) reaction *= 2;
            ASSERT_TRUE(a.uls.*field == b.uls.*field);
        }
        for (const PointRecord record : kPointRecords) {
            for (int i = 1; i <= (a.uls.*record).rows(); ++i)
                for (int k = 1; k <= kPoints; ++k)
                    for (int slot = 1; slot <= 4; ++slot) (a.uls.*record)(i, k, slot) *= 2;
            ASSERT_TRUE(a.uls.*record == b.uls.*record);
        }
        for (const SpanRecord record : kSpanRecords) {
            for (int i = 1; i <= (a.uls.*record).rows(); ++i)
                for (int slot = 1; slot <= 4; ++slot) (a.uls.*record)(i, slot) *= 2;
            ASSERT_TRUE(a.uls.*record == b.uls.*record);
        }
        for (int i = 1; i <= once.project.NofSpans; ++i)
            for (int k = 1; k <= kPoints; ++k) {
                ASSERT_EQ(2 * a.sls.UzMaxPoint(i, k, 1), b.sls.UzMaxPoint(i, k, 1));
                ASSERT_EQ(2 * a.sls.UyMaxPoint(i, k, 1), b.sls.UyMaxPoint(i, k, 1));
            }
    }
}

// --- Wheels without load --------------------------------------------------------------------------------------------

/// A wheel of no load between the two of a crane changes nothing: neither a number nor the position that gave it.
TEST(WalkProperties, aWheelWithoutLoadChangesNothing) {
    RandomBeams beams(8002);
    int compared = 0;
    while (compared < kCases) {
        BeamCase c = beams.next(6, 3000);
        RunLoads& loads = c.loads;
        loads.WheelV(3) = loads.WheelV(4) = loads.WheelH(3) = loads.WheelH(4) = 0;
        // Whole millimetres: a wheel's place is a sum of 32-bit numbers, which two gaps round otherwise than one.
        c.project.Position = std::floor(c.project.Position);
        for (int gap = 1; gap <= 6; ++gap) c.project.Avst(gap) = std::floor(c.project.Avst(gap));
        c.project.Avst(2) = c.project.Avst(3) = 0;
        loads.WheelGap = c.project.Avst;
        testing::setLengths(c.project);
        const int gap = static_cast<int>(c.project.Avst(1));
        if (gap < 2) continue;
        ++compared;
        SCOPED_TRACE("case " + std::to_string(compared));
        BeamCase with = c;
        std::swap(with.loads.WheelV(2), with.loads.WheelV(3));
        std::swap(with.loads.WheelH(2), with.loads.WheelH(3));
        with.loads.WheelGap(1) = with.project.Avst(1) = beams.whole(1, gap - 1);
        with.loads.WheelGap(2) = with.project.Avst(2) = gap - with.project.Avst(1);
        const Walked a(c), b(with);
        for (const PointRecord record : kPointRecords) ASSERT_TRUE(a.uls.*record == b.uls.*record);
        for (const SpanRecord record : kSpanRecords) ASSERT_TRUE(a.uls.*record == b.uls.*record);
        ASSERT_TRUE(a.uls.RzMax == b.uls.RzMax && a.uls.RyMin == b.uls.RyMin);
        ASSERT_TRUE(a.uls.MySupportSpan == b.uls.MySupportSpan);
        ASSERT_TRUE(a.sls.UzMaxPoint == b.sls.UzMaxPoint && a.sls.UyMaxSpan == b.sls.UyMaxSpan);
    }
}

// --- Mirrored beams -------------------------------------------------------------------------------------------------

/// The same beam and cranes seen from the other side.
BeamCase mirrored(const BeamCase& c) {
    BeamCase m = c;
    const int n = c.project.NofSpans;
    for (int i = 1; i <= n; ++i) {
        m.project.Span(i) = c.project.Span(n + 1 - i);
        m.project.SpanSection(i) = c.project.SpanSection(n + 1 - i);
        m.loads.SpanLoad(i) = c.loads.SpanLoad(n + 1 - i);
    }
    for (int w = 1; w <= 8; ++w) {
        m.loads.WheelV(w) = c.loads.WheelV(9 - w);
        m.loads.WheelH(w) = c.loads.WheelH(9 - w);
    }
    for (int gap = 1; gap <= 6; ++gap) m.project.Avst(gap) = c.project.Avst(7 - gap);
    m.loads.WheelGap = m.project.Avst;
    testing::setLengths(m.project);
    return m;
}

/// Makes the way of the cranes a whole number of steps, so that the mirrored walk comes to the mirrored positions.
bool fitToTheSteps(BeamCase& c) {
    if (c.project.Fixerad) return false;
    c.project.Position = 0;
    for (int gap = 1; gap <= 6; ++gap) c.project.Avst(gap) = std::floor(c.project.Avst(gap));
    c.project.MinAvst = std::floor(c.project.MinAvst);
    c.loads.WheelGap = c.project.Avst;
    testing::setLengths(c.project);
    const bool outside = c.project.StartStopOutside != 0;
    const int way = static_cast<int>(c.project.BeamLength + (outside ? 1 : -1) * double(c.project.CranesLength));
    const int excess = way % 200;
    c.project.Span(1) -= excess;
    testing::setLengths(c.project);
    return c.project.CranesLength <= c.project.BeamLength && c.project.Span(1) > 300;
}

/// Of the largest magnitude of the quantity: both walks round, in different order.
class Near {
public:
    void scale(double magnitude) { largest_ = std::max(largest_, std::abs(magnitude)); }
    [[nodiscard]] bool operator()(double a, double b) const { return std::abs(a - b) <= 1e-5 * largest_; }

private:
    double largest_ = 1e-3;
};

void expectMirroredMoments(const Cube<Single>& a, const Cube<Single>& b, int key, double least) {
    Near near;
    near.scale(least);
    const int n = a.rows();
    for (int i = 1; i <= n; ++i)
        for (int k = 1; k <= kPoints; ++k) near.scale(a(i, k, key));
    for (int i = 1; i <= n; ++i)
        for (int k = 1; k <= kPoints; ++k)
            EXPECT_TRUE(near(a(i, k, key), b(n + 1 - i, 22 - k, key)))
                << "slot " << key << " of span " << i << ", point " << k << ": " << a(i, k, key) << " and "
                << b(n + 1 - i, 22 - k, key);
}

/// The last support keeps the sign of the shear in a walk, the first does not.
void expectMirroredReactions(const Array<Single>& maxA, const Array<Single>& minA, const Array<Single>& maxB,
                             const Array<Single>& minB) {
    Near near;
    near.scale(1000);
    const int last = maxA.last();
    for (int s = 1; s <= last; ++s) {
        near.scale(maxA(s));
        near.scale(minA(s));
    }
    for (int s = 1; s <= last; ++s) {
        const bool end = s == 1 || s == last;
        EXPECT_TRUE(near(maxA(s), end ? -minB(last + 1 - s) : +maxB(last + 1 - s))) << "support " << s;
        EXPECT_TRUE(near(minA(s), end ? -maxB(last + 1 - s) : +minB(last + 1 - s))) << "support " << s;
    }
}

TEST(WalkProperties, aMirroredBeamHasMirroredEnvelopes) {
    RandomBeams beams(8003);
    int compared = 0;
    while (compared < kCases) {
        BeamCase c = beams.next(6, 3000);
        if (!fitToTheSteps(c)) continue;
        ++compared;
        SCOPED_TRACE("case " + std::to_string(compared));
        const Walked a(c), b(mirrored(c));
        expectMirroredMoments(a.uls.MyMaxPoint, b.uls.MyMaxPoint, 1, 1e5);
        expectMirroredMoments(a.uls.MyMinPoint, b.uls.MyMinPoint, 1, 1e5);
        expectMirroredMoments(a.uls.MzMaxPoint, b.uls.MzMaxPoint, 3, 1e5);
        expectMirroredMoments(a.uls.MzMinPoint, b.uls.MzMinPoint, 3, 1e5);
        expectMirroredReactions(a.uls.RzMax, a.uls.RzMin, b.uls.RzMax, b.uls.RzMin);
        expectMirroredReactions(a.uls.RyMax, a.uls.RyMin, b.uls.RyMax, b.uls.RyMin);
        for (int i = 1; i <= c.project.NofSpans; ++i) {
            const int j = c.project.NofSpans + 1 - i;
            EXPECT_NEAR(a.sls.UzMaxSpan(i, 1), b.sls.UzMaxSpan(j, 1), 1e-5 * a.sls.UzMaxSpan(i, 1) + 1e-6);
            EXPECT_NEAR(a.sls.UyMaxSpan(i, 1), b.sls.UyMaxSpan(j, 1), 1e-5 * a.sls.UyMaxSpan(i, 1) + 1e-6);
        }
        ASSERT_FALSE(HasFailure());
    }
}

}  // namespace
}  // namespace borvik
