#include "project/project.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "project/project_file.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

const std::string kSource = BORVIK_SOURCE_DIR;

class ProjectTest : public testing::Test {
protected:
    const ReferenceTables tables = LoadTables(kSource + "/data");
    Project project;
    ProjectContext context;
};

TEST_F(ProjectTest, defaultIsByteForByteTheOneOfAnIndependentProgram) {
    DefaultProject(tables, project, context);
    bool lost = false;
    EXPECT_EQ(ProjectBytes(project, lost), testing_support::bytesOf(kSource + "/tests/data/vectors/default.brvk"));
    EXPECT_FALSE(lost);
}

TEST_F(ProjectTest, defaultLeavesNothingOfAFormerProject) {
    DefaultProject(tables, project, context);
    const Project fresh = project;
    LoadProject(kSource + "/tests/data/vectors/case-24.brvk", project);
    ASSERT_FALSE(project == fresh);
    context.FileName = "other.brvk";
    context.CurrentSection.h = 1;
    DefaultProject(tables, project, context);
    EXPECT_TRUE(project == fresh);
    EXPECT_EQ(context.FileName, "test.brvk");
    EXPECT_EQ(context.FileTitle, "test.brvk");
    EXPECT_TRUE(context.CurrentSection == context.BlankSection);
}

TEST_F(ProjectTest, defaultContextFollowsTheTables) {
    DefaultProject(tables, project, context);
    EXPECT_EQ(context.MaterialIndex, 2);
    EXPECT_EQ(context.CurrentMaterial, "S355");
    EXPECT_EQ(context.RailIndex, 7);
    EXPECT_EQ(context.CurrentRail.Name, "Pl 50x30");
    EXPECT_EQ(context.Epsilon.stored(), 0.813616514F) << "sqrt(235/355), EN 1993-1-1 Table 5.2 gives 0.81";
    EXPECT_EQ(context.BlankSection.DisplayName, "HEA 300") << "a span without a name has no section";
    EXPECT_TRUE(context.BlankSection.InUse);
    EXPECT_EQ(double(context.BlankSection.ReinfD), 100);
}

TEST_F(ProjectTest, contextFollowsALoadedRecord) {
    DefaultProject(tables, project, context);
    project.SteelGrade = "S235";
    project.fyk = 500;  // stays, though the grade would give 235
    project.RailName = "A 75";
    FollowProject(tables, project, context);
    EXPECT_EQ(context.MaterialIndex, 0);
    EXPECT_EQ(context.RailIndex, 3);
    EXPECT_EQ(double(context.CurrentRail.RailHr), 85);
    EXPECT_EQ(double(project.fyk), 500);
    EXPECT_NEAR(context.Epsilon, 0.685565, 1e-6) << "sqrt(0.47)";

    project.SteelGrade = "unknown";
    project.RailName = "";
    for (const double fyk : {0.0, -355.0, std::nan("")}) {
        project.fyk = fyk;
        FollowProject(tables, project, context);
        EXPECT_EQ(double(context.Epsilon), 0) << fyk;
    }
    EXPECT_EQ(context.CurrentMaterial, "S235") << "a name that no table has leaves the current row";
    EXPECT_EQ(context.CurrentRail.Name, "A 75");
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
