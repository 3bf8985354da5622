#include "fatigue/crane_factors.h"

#include <gtest/gtest.h>

namespace borvik {
namespace {

TEST(CraneFactors, wheelsAreCountedUpToTheLastLoadedOne) {
    const struct {
        std::array<double, 4> loads;
        int crane1, crane2;
    } cases[] = {
        {{10, 0, 0, 0}, 1, 1},    {{0, 0, 0, 0}, 1, 1},   {{10, 10, 0, 0}, 2, 2}, {{10, 10, 10, 0}, 3, 3},
        {{10, 10, 10, 10}, 4, 4}, {{10, 0, 10, 0}, 3, 3}, {{10, 0, 0, 10}, 4, 2},  // a gap counts on crane 1 only
        {{10, 10, 0, 10}, 4, 2},
    };
    for (const auto& c : cases) {
        Project project;
        for (int i = 1; i <= 4; ++i) project.V(i) = project.V(i + 4) = c.loads[static_cast<std::size_t>(i - 1)];
        EXPECT_EQ(countWheels(project, 1), c.crane1) << c.loads[0] << c.loads[1] << c.loads[2] << c.loads[3];
        EXPECT_EQ(countWheels(project, 2), c.crane2) << c.loads[0] << c.loads[1] << c.loads[2] << c.loads[3];
    }
}

TEST(CraneFactors, aTrainAddsTheLoadedWheelsOfCrane2) {
    Project project;
    project.V = decltype(project.V)::of(10, 10, 0, 0, 5, 0, 0, 5);
    EXPECT_EQ(countTrainWheels(project), 4);
}

TEST(CraneFactors, bothTogetherAreTwoClassesBelowTheLowerButNotBelowS0) {
    const struct {
        std::int16_t class1, class2, both;
    } cases[] = {{3, 1, 0}, {5, 6, 3}, {6, 5, 3}, {2, 9, 0}, {3, 3, 1}, {9, 9, 7}};
    for (const auto& c : cases) {
        Project project;
        project.CraneClass1 = c.class1;
        project.CraneClass2 = c.class2;
        EXPECT_EQ(classOfBoth(project), c.both) << c.class1 << ", " << c.class2;
    }
}

// EN 1991-3 Table 2.12: S3 has 0.397 for direct stress and 0.575 for shear. 8^(1/3) = 2, 32^(1/5) = 2.
TEST(CraneFactors, localStressCountsEachWheelAsACycle) {
    const CraneFactors eight = craneFactors(3, 8, dynamicFactor(1.2));
    EXPECT_FLOAT_EQ(eight.LamSig.stored(), 0.397F);
    EXPECT_FLOAT_EQ(eight.LamSigN.stored(), 0.794F);
    EXPECT_FLOAT_EQ(eight.PhiFat.stored(), 1.1F);
    const CraneFactors thirtyTwo = craneFactors(3, 32, 1.0);
    EXPECT_FLOAT_EQ(thirtyTwo.LamTau.stored(), 0.575F);
    EXPECT_FLOAT_EQ(thirtyTwo.LamTauN.stored(), 1.15F);
    const CraneFactors one = craneFactors(3, 1, 1.0);
    EXPECT_EQ(one.LamSigN.stored(), one.LamSig.stored());
    EXPECT_EQ(one.LamTauN.stored(), one.LamTau.stored());
    EXPECT_FLOAT_EQ(craneFactors(9, 1, 1.0).LamSig.stored(), 1.32F);
    EXPECT_FLOAT_EQ(craneFactors(9, 1, 1.0).LamTau.stored(), 1.32F);
    EXPECT_THROW((void)craneFactors(10, 1, 1.0), RuntimeFault);
}

}  // namespace
}  // namespace borvik
