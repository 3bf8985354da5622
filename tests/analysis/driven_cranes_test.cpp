#include "analysis/driven_cranes.h"

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/random_beam.h"
#include "analysis/walk.h"

namespace borvik {
namespace {

using testing::BeamCase;

/// The same cranes, nailed down at one position of their walk.
Project stoppedAt(const Project& project, WalkPosition at) {
    Project stopped = project;
    stopped.Fixerad = true;
    stopped.Position = project.Position + at.j * 200.0;
    stopped.MinAvst = project.MinAvst + at.k * 200.0;
    return stopped;
}

double recorded(const Cube<Single>& largest, const Cube<Single>& smallest, int i, int k, int slot) {
    return double{largest(i, k, slot)} + double{smallest(i, k, slot)};  // of one position, one of them is 0
}

/// 100 positions of each of 50 beams: the forces, reactions and deflections are those of a walk that stops there.
TEST(DrivenCranes, haveTheBitsOfTheWalk) {
    testing::RandomBeams beams(18);
    MessageList messages;
    Progress progress;
    int compared = 0;
    for (int number = 0; number < 50; ++number) {
        const BeamCase c = beams.next(6);
        DrivenCranes cranes(c.project, c.loads, true);
        const int n = c.project.NofSpans;
        for (int trial = 0; trial < 100; ++trial) {
            const int j = beams.whole(0, cranes.steps().N1);
            cranes.standAt(cranes.nearest(j, beams.whole(0, cranes.steps().lastK(j))));
            const Project stopped = stoppedAt(c.project, cranes.position());
            // Where the sum is rounded otherwise on the way to wheel 5, that is another position.
            if (DrivenCranes(stopped, c.loads, true).place(5) != cranes.place(5)) continue;
            ++compared;
            const UlsResults uls = RunUls(stopped, c.loads, WalkMethod::Plain, messages, progress);
            const SlsResults sls = RunSls(stopped, c.loads, WalkMethod::Plain, messages, progress);
            PointSteps Uz, Uy;
            for (int i = 1; i <= n; ++i) {
                const SpanStep& forces = cranes.forces(i);
                cranes.deflections(i, false, Uz);
                cranes.deflections(i, true, Uy);
                for (int k = 1; k <= kPoints; ++k) {
                    ASSERT_EQ(forces.quantity[1][k], recorded(uls.MyMaxPoint, uls.MyMinPoint, i, k, 1));
                    ASSERT_EQ(forces.quantity[2][k], recorded(uls.VzMaxPoint, uls.VzMinPoint, i, k, 2));
                    ASSERT_EQ(forces.quantity[3][k], recorded(uls.MzMaxPoint, uls.MzMinPoint, i, k, 3));
                    ASSERT_EQ(forces.quantity[4][k], recorded(uls.VyMaxPoint, uls.VyMinPoint, i, k, 4));
                    ASSERT_EQ(Uz[k], sls.UzMaxPoint(i, k, 1));
                    ASSERT_EQ(Uy[k], sls.UyMaxPoint(i, k, 1));
                }
            }
            for (int support = 1; support <= n + 1; ++support) {
                const double sign = support > n ? -1 : 1;
                ASSERT_EQ(sign * cranes.reaction(support, false), uls.RzMax(support) + uls.RzMin(support));
                ASSERT_EQ(sign * cranes.reaction(support, true), uls.RyMax(support) + uls.RyMin(support));
            }
        }
    }
    EXPECT_GT(compared, 4500);
}

/// At the position of each record the cranes give the whole record: its forces and where the wheels stand.
TEST(DrivenCranes, standAtTheRecordsAgain) {
    testing::RandomBeams beams(5);
    MessageList messages;
    Progress progress;
    for (int number = 0; number < 50; ++number) {
        const BeamCase c = beams.next();
        const UlsResults uls = RunUls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        const SlsResults sls = RunSls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        DrivenCranes cranes(c.project, uls.Loads, true);
        const auto goTo = [&](WalkPosition at) {
            if (at.isKnown()) cranes.standAt(at);
            return at.isKnown();
        };
        for (int i = 1; i <= c.project.NofSpans; ++i) {
            for (int k = 1; k <= kWholeSpan; ++k)
                for (const auto& envelope : kUlsEnvelopes) {
                    const bool whole = k == kWholeSpan;
                    const Cube<Single>& points = uls.*envelope.point;
                    const Table<Single>& spans = uls.*envelope.span;
                    if (!goTo((uls.At.*envelope.at)(i, k))) continue;
                    const double share = whole ? spans(i, points.slots() + 1) / c.project.Span(i) : 0.0;
                    const int point = whole ? static_cast<int>(std::lround(share * 20)) + 1 : k;
                    for (int slot = 1; slot <= points.slots(); ++slot) {
                        const double record = whole ? spans(i, slot) : points(i, k, slot);
                        const Wheel& wheel = cranes.wheels()[slot < 7 ? 1 : 5];
                        const double now = slot <= 4       ? double{cranes.forces(i).quantity[slot][point]}
                                           : slot % 2 == 1 ? wheel.span
                                                           : wheel.a;
                        ASSERT_EQ(now, record) << number << ", " << i << ", " << k << ", " << slot;
                    }
                }
            PointSteps U;
            for (int k = 1; k <= kPoints; ++k)
                if (goTo(sls.At.Uz(i, k))) {
                    cranes.deflections(i, false, U);
                    ASSERT_EQ(U[k], sls.UzMaxPoint(i, k, 1));
                }
        }
        const struct {
            const Array<WalkPosition>& at;
            const Array<Single>& record;
            bool horizontal;
        } reactions[] = {{uls.At.RzMax, uls.RzMax, false},
                         {uls.At.RzMin, uls.RzMin, false},
                         {uls.At.RyMax, uls.RyMax, true},
                         {uls.At.RyMin, uls.RyMin, true}};
        const int last = c.project.NofSpans + 1;
        for (const auto& [at, record, horizontal] : reactions)
            for (int support = 1; support <= last; ++support)
                if (goTo(at(support))) {
                    const double sign = support == last ? -1 : 1;
                    ASSERT_EQ(sign * cranes.reaction(support, horizontal), record(support));
                }
    }
}

}  // namespace
}  // namespace borvik
