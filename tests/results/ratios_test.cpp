#include "results/ratios.h"

#include <gtest/gtest.h>

namespace borvik {
namespace {

TEST(RatioVerdict, looksBehindTheShownRows) {
    Results results;
    EXPECT_EQ(verdictOf(results).largest, 0.0);
    // "10.000" ranks below "9.000" where the governing row is chosen; the largest is 10 all the same.
    Project project;
    project.NofSpans = 2;
    results.Checks = emptyChecks(project);
    results.Checks["Ltb"].governing.Ratio = 9;
    results.Checks["Ltb"].extremes[1](2).Ratio = 10;
    EXPECT_EQ(verdictOf(results).largest, 10.0);
    results.Fatigue.FatRows(6) = Array<RowSet>(1, 3);
    (*results.Fatigue.FatRows(6))(3).Ratio = 11;
    EXPECT_EQ(verdictOf(results).largest, 11.0);
    (*results.Fatigue.FatRows(6))(3).LargestOfPoints = 12;
    EXPECT_EQ(verdictOf(results).largest, 12.0);
    EXPECT_FALSE(verdictOf(results).exceeds(12.0));
    for (const double senseless : {-0.1, std::nan("")}) {
        results.Checks["DefZ"].governing.Ratio = senseless;
        EXPECT_TRUE(verdictOf(results).exceeds(12.0)) << "a check without a sound ratio is not satisfied";
        EXPECT_EQ(verdictOf(results).largest, 12.0);
        EXPECT_NE(verdictOf(results).remark(), "");
    }
}

}  // namespace
}  // namespace borvik
