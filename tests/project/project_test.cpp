#include "project/project.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "project/project_file.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

const std::string kSource = BORVIK_SOURCE_DIR;

TEST(DefaultProject, isByteForByteTheOneOfAnIndependentProgram) {
    bool lost = false;
    EXPECT_EQ(projectBytes(DefaultProject(LoadTables(kSource + "/data")), lost),
              testing_support::bytesOf(kSource + "/tests/data/vectors/default.brvk"));
    EXPECT_FALSE(lost);
}

TEST(DefaultProject, startsWithASectionForNewSpans) {
    const SectionRecord section = blankSection(LoadTables(kSource + "/data"));
    EXPECT_EQ(section.DisplayName, "HEA 300") << "a span without a name has no section";
    EXPECT_TRUE(section.InUse);
    EXPECT_EQ(double(section.ReinfD), 100);
}

TEST(Project, railAndEpsilonFollowTheRecord) {
    const ReferenceTables tables = LoadTables(kSource + "/data");
    Project project = DefaultProject(tables);
    EXPECT_EQ(railOf(project, tables).Name, "Pl 50x30");
    project.RailName = "A 75";
    EXPECT_EQ(double(railOf(project, tables).RailHr), 85);
    project.RailName = "";
    EXPECT_EQ(railOf(project, tables).Name, "Pl 50x30") << "a name that no table has: as in a new project";
    EXPECT_EQ(railOf(project, ReferenceTables()), RailRecord());

    EXPECT_EQ(epsilonOf(355).stored(), 0.813616514F) << "sqrt(235/355), EN 1993-1-1 Table 5.2 gives 0.81";
    EXPECT_NEAR(epsilonOf(500), 0.685565, 1e-6) << "sqrt(0.47)";
    for (const double fyk : {0.0, -355.0, std::nan("")}) EXPECT_EQ(double(epsilonOf(fyk)), 0) << fyk;
}

TEST(CraneClasses, damageFactorsAreThoseOfEN1991) {
    // neighbouring classes differ by a factor of two in the number of full cycles: 2^(1/3) for direct stress, 2^(1/5)
    // for shear
    for (int i = 1; i <= 8; ++i) {
        EXPECT_NEAR(LambdaSigma(i) / LambdaSigma(i - 1), std::cbrt(2.0), 0.004) << CraneClassName(i);
        EXPECT_NEAR(LambdaTau(i) / LambdaTau(i - 1), std::pow(2.0, 0.2), 0.004) << CraneClassName(i);
    }
    EXPECT_EQ(double(LambdaSigma(7)), 1.0);
    EXPECT_EQ(LambdaSigma(9).stored(), LambdaTau(9).stored()) << "1.32 for both, where 2^(2/3) would be 1.59";
    EXPECT_STREQ(CraneClassName(0), "S0");
    EXPECT_STREQ(CraneClassName(9), "S9");
}

}  // namespace
}  // namespace borvik
