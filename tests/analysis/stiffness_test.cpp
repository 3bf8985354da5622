// The walks against an independent stiffness solution of the same beam, at every position of the cranes.

#include <gtest/gtest.h>

#include <cmath>

#include "analysis/random_beam.h"
#include "analysis/walk.h"
#include "support/walked_beam.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing::BeamCase;
using testing::RandomBeams;
using testing_support::WalkedBeam;

/// Of the largest magnitude on the beam.
constexpr double kTolerance = 1e-5;

TEST(StiffnessSolution, agreesWithTheWalksOnRandomBeams) {
    RandomBeams beams(73);
    Progress progress;
    for (int number = 1; number <= testing_support::wantedCount("BORVIK_RANDOM_CASES", 500); ++number) {
        const BeamCase c = beams.next(5, 3000);
        MessageList messages;
        WalkedBeam walked(c.project, c.loads);
        walked.walk();
        SCOPED_TRACE("case " + std::to_string(number));
        const UlsResults uls = RunUls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        const SlsResults sls = RunSls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        const FlsResults fls = RunFls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        ASSERT_EQ(disagreement(uls, walked, c.project, kTolerance), "");
        ASSERT_EQ(disagreement(sls, walked, c.project, kTolerance), "");
        ASSERT_EQ(disagreement(fls, walked, c.project, kTolerance), "");
    }
}

TEST(StiffnessSolution, agreesOnLongBeams) {
    RandomBeams beams(74);
    Progress progress;
    for (int number = 1; number <= 8; ++number) {
        BeamCase c = beams.next(30, 3000);
        c.loads.NCranes = 1;
        MessageList messages;
        WalkedBeam walked(c.project, c.loads);
        walked.walk();
        SCOPED_TRACE("case " + std::to_string(number));
        const UlsResults uls = RunUls(c.project, c.loads, WalkMethod::Plain, messages, progress);
        ASSERT_EQ(disagreement(uls, walked, c.project, kTolerance), "");
    }
}

/// The crane position of a point record, if it can be known: a wheel off the beam leaves no trace of where.
struct RecordedPosition {
    RecordedPosition(const BeamCase& c, const WalkedBeam& walked, const Cube<Single>& record, int i, int k) {
        const bool independent = c.loads.NCranes == 2 && c.project.MinDistConst != 1.0 && !c.project.Fixerad;
        if (record(i, k, 5) == 0) return;
        if (c.project.StartStopOutside != 0 && (independent || record(i, k, 6) == 0)) return;
        x1 = walked.onAxis(static_cast<int>(record(i, k, 5)), record(i, k, 6));
        x5 = walked.wheel5(x1);
        known = true;
        if (!independent) return;
        known = record.slots() == 8 && x5 > 0;
        if (!known) return;
        const bool offTheBeam = record(i, k, 7) == 1 && record(i, k, 8) == 0;
        x5 = offTheBeam ? 1e9 : walked.onAxis(static_cast<int>(record(i, k, 7)), record(i, k, 8));
    }
    bool known = false;
    double x1 = 0, x5 = 0;
};

/// Whether the stiffness solution gives the forces of a record. A wheel that stands at the point but for rounding may
/// count on either side of it.
::testing::AssertionResult holds(const Cube<Single>& record, int i, int k, const RecordedPosition& position,
                                 const double (&largest)[5], WalkedBeam& walked) {
    std::array<double, 5> forces{};
    for (const double nudge : {0.0, -0.01, 0.01}) {
        forces = walked.forces(position.x1 + nudge, position.x5 + nudge, i, k);
        bool all = true;
        for (int q = 1; q <= 4; ++q)
            all = all && std::abs(record(i, k, q) - forces[static_cast<std::size_t>(q)]) <= kTolerance * largest[q];
        if (all) return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "span " << i << ", point " << k << ": My " << record(i, k, 1) << " is "
                                         << forces[1] << ", Vz " << record(i, k, 2) << " is " << forces[2] << ", Mz "
                                         << record(i, k, 3) << " is " << forces[3] << ", Vy " << record(i, k, 4)
                                         << " is " << forces[4];
}

/// A record holds the forces of one and the same position: solving the beam there gives all four of them.
TEST(StiffnessSolution, givesTheSimultaneousForcesOfEveryRecord) {
    const auto records = {&UlsResults::MyMaxPoint, &UlsResults::MyMinPoint, &UlsResults::VzMaxPoint,
                          &UlsResults::VzMinPoint, &UlsResults::MzMaxPoint, &UlsResults::MzMinPoint,
                          &UlsResults::VyMaxPoint, &UlsResults::VyMinPoint};
    RandomBeams beams(75);
    Progress progress;
    int compared = 0;
    for (int number = 1; number <= 200; ++number) {
        const BeamCase c = beams.next(4, 3000);
        MessageList messages;
        const UlsResults uls = RunUls(c.project, c.loads, WalkMethod::Fast, messages, progress);
        WalkedBeam walked(c.project, c.loads);
        double largest[5] = {};
        const auto forEveryPoint = [&](auto use) {
            for (auto record : records)
                for (int i = 1; i <= c.project.NofSpans; ++i)
                    for (int k = 1; k <= 21; ++k) use(uls.*record, i, k);
        };
        forEveryPoint([&](const Cube<Single>& record, int i, int k) {
            for (int q = 1; q <= 4; ++q) largest[q] = std::max(largest[q], std::abs(double(record(i, k, q))));
        });
        SCOPED_TRACE("case " + std::to_string(number));
        forEveryPoint([&](const Cube<Single>& record, int i, int k) {
            const RecordedPosition position(c, walked, record, i, k);
            if (!position.known) return;
            ++compared;
            EXPECT_TRUE(holds(record, i, k, position, largest, walked));
        });
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(compared, 20000);
}

}  // namespace
}  // namespace borvik
