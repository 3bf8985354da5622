#include "reactions/support_reactions.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

#include "analysis/walk.h"
#include "base/units.h"
#include "calculation/solved_projects.h"
#include "reactions/joint.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing_support::TestSession;

double sumRz(const SupportForces& forces) {
    return std::accumulate(forces.begin(), forces.end(), 0.0,
                           [](double sum, const SupportForce& force) { return sum + force.Rz; });
}

double sumRy(const SupportForces& forces) {
    return std::accumulate(forces.begin(), forces.end(), 0.0,
                           [](double sum, const SupportForce& force) { return sum + force.Ry; });
}

double sumOfWheels(const ReactionCase& each, double PlacedWheel::*load) {
    return std::accumulate(each.wheels.begin(), each.wheels.end(), 0.0,
                           [load](double sum, const PlacedWheel& wheel) { return sum + wheel.*load; });
}

double factorOf(const Project& project, ReactionState state) {
    return state == ReactionState::Uls ? project.LfULS : state == ReactionState::Sls ? project.LfSLS : Single(0.0);
}

/// Of random projects: what is recorded is in equilibrium with the loads on the beam, and its parts add up to it.
TEST(SupportReactions, areInEquilibriumAndTheSumOfTheirParts) {
    std::mt19937 random(22);
    TestSession session;
    const Project start = session.project;
    const int projects = testing_support::wantedCount("BORVIK_RANDOM_CASES", 150);
    int cases = 0;
    for (int number = 0; number < projects; ++number) {
        session.project = start;
        session.project = testing_support::randomProject(session, random);
        if (!session.calculate()) continue;
        const Project& project = session.project;
        double deadLoad = 0;
        RunLoads loads;
        setDeadLoad(project, session.rail(), 1.0, loads);
        for (int i = 1; i <= project.NofSpans; ++i) deadLoad += loads.SpanLoad(i) * project.Span(i) / kPerKilo;
        for (const ReactionSet& set : supportReactions(project, *session.results).sets)
            for (const ReactionCase& each : set.cases) {
                SCOPED_TRACE(testing::Message() << number << ", support " << each.support << ", set "
                                                << static_cast<int>(set.state) << static_cast<int>(set.acting));
                ++cases;
                const double factor = factorOf(project, set.state);
                const double V = sumOfWheels(each, &PlacedWheel::V);
                const double close = 1e-5 * (V + deadLoad + 1);
                EXPECT_NEAR(sumRz(each.total), V + factor * deadLoad, close);
                if (set.state == ReactionState::Fatigue) continue;
                EXPECT_NEAR(sumRy(each.total), sumOfWheels(each, &PlacedWheel::H), close);
                EXPECT_NEAR(sumRz(each.dead), deadLoad, close);
                const bool dynamic = set.state == ReactionState::Uls;
                for (std::size_t s = 0; s < each.total.size(); ++s) {
                    const SupportForce& cranes = (dynamic ? each.craneDynamic : each.crane)[s];
                    EXPECT_NEAR(each.total[s].Rz, factor * (each.dead[s].Rz + cranes.Rz), close);
                    EXPECT_NEAR(each.total[s].Ry, factor * cranes.Ry, close);
                }
                EXPECT_EQ(each.ofCranesAlone, (each.value() > 0) != each.largest) << "the sign keeps it from the walk";
            }
    }
    EXPECT_GT(cases, 20 * projects);
}

/// What acts together is what a walk gives that is stopped at that position, to the bit; the design extremes are those
/// of the calculation.
TEST(SupportReactions, haveTheBitsOfTheWalk) {
    std::mt19937 random(23);
    TestSession session;
    const Project start = session.project;
    MessageList messages;
    Progress progress;
    const int projects = testing_support::wantedCount("BORVIK_RANDOM_CASES", 60);
    int compared = 0;
    for (int number = 0; number < projects; ++number) {
        session.project = start;
        session.project = testing_support::randomProject(session, random);
        if (!session.calculate()) continue;
        const Project& project = session.project;
        const UlsResults& uls = session.results->Uls;
        const SupportReactions reactions = supportReactions(project, *session.results);
        for (const ReactionCase& each : reactions.sets.front().cases) {
            if (each.ofCranesAlone) continue;
            const Array<Single>& record = each.effect == Effect::Rz ? (each.largest ? uls.RzMax : uls.RzMin)
                                                                    : (each.largest ? uls.RyMax : uls.RyMin);
            ASSERT_EQ(each.value(), record(each.support) / kPerKilo) << number;
            if (each.at.k > 0) continue;  // the way to wheel 5 may be rounded otherwise
            Project stopped = project;
            stopped.Fixerad = true;
            stopped.Position = project.Position + each.at.j * 200.0;
            UlsResults there = RunUls(stopped, uls.Loads, WalkMethod::Plain, messages, progress);
            turnReactionsUpward(there);
            for (int s = 1; s <= project.NofSpans + 1; ++s) {
                const SupportForce& force = each.total[static_cast<std::size_t>(s - 1)];
                ASSERT_EQ(force.Rz, (double{there.RzMax(s)} + double{there.RzMin(s)}) / kPerKilo) << number;
                ASSERT_EQ(force.Ry, (double{there.RyMax(s)} + double{there.RyMin(s)}) / kPerKilo) << number;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 15 * projects);
}

/// Two single spans with one joint: the influence line of its support is a triangle, and every position can be tried.
TEST(Joint, isTheLargestSumOfTwoTriangles) {
    std::mt19937 random(24);
    const auto whole = [&random](int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); };
    TestSession session;
    for (int number = 0; number < 40; ++number) {
        Project left = session.project;
        left.NofSpans = 1;
        for (int i = 2; i <= 3; ++i) left.Span(i) = 0.0;
        left.NofCranes = static_cast<std::int16_t>(whole(1, 2));
        left.MinDistConst = whole(0, 1);
        left.MinAvst = 100.0 * whole(5, 30);
        for (int w = 1; w <= 8; ++w) {
            left.V(w) = w <= 4 || left.NofCranes == 2 ? whole(0, 90) : 0;
            left.H(w) = w <= 4 || left.NofCranes == 2 ? whole(-9, 9) : 0;
        }
        for (int gap = 1; gap <= 6; ++gap) left.Avst(gap) = 50.0 * whole(4, 30);
        Project right = left;
        const int L1 = 50 * whole(80, 200), L2 = 50 * whole(80, 200);
        left.Span(1) = L1;
        right.Span(1) = L2;
        left.BeamLength = L1;
        right.BeamLength = L2;
        const auto influence = [&](double x) { return x < -L1 || x > L2 ? 0 : x <= 0 ? 1 + x / L1 : 1 - x / L2; };
        double most = 0;
        const double start = -std::floor(L1 / 200.0) * 200;
        for (double x1 = start; x1 <= L2; x1 += 200)
            for (double more = 0; more <= L1 + L2; more += 200) {
                double sum = 0, x = x1;
                for (int w = 1; w <= 8; ++w) {
                    sum += influence(x) * left.LfULS * (w <= 4 ? left.PsiV1 : left.PsiV2) * left.V(w);
                    if (w == 4)
                        x += left.MinAvst + more;
                    else if (w < 8)
                        x += left.Avst(w < 4 ? w : w - 1);
                }
                most = std::max(most, sum);
                if (left.NofCranes == 1 || left.MinDistConst == 1.0) break;
            }
        const RailRecord& rail = session.rail();
        const JointCase largest = jointReactions({left, rail}, {right, rail}, left).front();
        EXPECT_NEAR(largest.sum(&EndForces::total).Rz - left.LfULS * largest.sum(&EndForces::dead).Rz, most,
                    1e-3 * most)
            << number;
        EXPECT_NEAR(largest.sum(&EndForces::craneDynamic).Rz * left.LfULS, most, 1e-3 * most) << number;
    }
}

}  // namespace
}  // namespace borvik
