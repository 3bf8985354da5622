#include "groups/group_runs.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calculation/calculation.h"
#include "exchange/attached.h"
#include "project/project_file.h"

namespace borvik {
namespace {

actions::CraneData workshopCrane() {
    actions::CraneData crane;
    crane.bridge = 65, crane.crab = 12, crane.hoist = 100, crane.span = 18, crane.emin = 0.9;
    crane.spacing = {3.2};
    crane.vh = 8.0 / 60.0;
    return crane;
}

struct Workshop {
    Workshop() : session(LoadTables(BORVIK_SOURCE_DIR "/data")) {
        LoadProject(BORVIK_SOURCE_DIR "/examples/workshop-single-span.brvk", session.project);
    }
    Session session;
};

const GroupRun& runOf(const GroupMatrix& matrix, const GroupChoice& choice) {
    for (const GroupRun& run : matrix.runs)
        if (run.choice == choice) return run;
    throw std::out_of_range(nameOf(choice));
}

/// The table of docs/crane-loads.md. Deflections are without dynamic factors here, phi5 too.
TEST(GroupRuns, areThoseOfTheWorkedExample) {
    Workshop workshop;
    const GroupMatrix matrix =
        compareGroups(workshop.session.project, workshop.session.tables, {workshopCrane()}, true);
    ASSERT_EQ(matrix.checks, (std::vector<std::string>{"shear", "bending", "lateral torsional buckling", "patch load",
                                                       "vertical deflection", "horizontal deflection", "fatigue"}));
    struct Row {
        GroupChoice choice;
        std::vector<double> ratios;
    };
    for (const auto& [choice, ratios] : {Row{{1}, {0.123, 0.165, 0.449, 0.033, 0.667, 0.374 / 1.5, 0.028}},
                                         Row{{4}, {0.109, 0.154, 0.412, 0.033, 0.667, 0.374 / 1.5, 0.023}},
                                         Row{{5}, {0.109, 0.242, 0.500, 0.033, 0.667, 0.489, 0.023}},
                                         Row{{6}, {0.109, 0.087, 0.346, 0.033, 0.667, 0.133, 0.023}},
                                         Row{{5, 0, false, true}, {0.035, 0.205, 0.298, 0.009, 0.219, 0.489, 0.000}}})
        for (std::size_t i = 0; i < ratios.size(); ++i)
            EXPECT_NEAR(*runOf(matrix, choice).ratios[i], ratios[i], 0.00051) << nameOf(choice) << matrix.checks[i];
    const auto governs = [&](std::size_t check) {
        return matrix.runs[std::size_t(matrix.governing[check])].choice.group;
    };
    EXPECT_EQ((std::vector<int>{governs(0), governs(1), governs(2), governs(5), governs(6)}),
              (std::vector<int>{1, 5, 5, 5, 1}));
    EXPECT_NEAR(matrix.largest, 0.667, 0.0005);
}

/// A cell is what a project says into which the same loads were typed, to the bit.
TEST(GroupRuns, areProjectsWithTheseLoadsTypedByHand) {
    Workshop workshop;
    const GroupMatrix matrix =
        compareGroups(workshop.session.project, workshop.session.tables, {workshopCrane()}, false);
    Project& typed = workshop.session.project;
    const actions::CraneLoads loads = actions::craneLoads(workshopCrane());
    for (const int group : {1, 5}) {
        const actions::GroupLoads& part = loads.groups.at(std::size_t(group) - 1);
        typed.V(1) = typed.V(2) = 138.9 / 2;
        typed.Avst(1) = 3200;
        typed.H(1) = part.crab.H[0];
        typed.H(2) = part.crab.H[1];
        typed.PsiV1 = part.crab.psiV;
        typed.PsiH1 = group == 1 ? 1.5 : 1.0;
        MessageList messages;
        Progress progress;
        ASSERT_TRUE(Calculate(workshop.session, messages, progress));
        const CheckResults& checks = workshop.session.results->Checks;
        const GroupRun& run = runOf(matrix, {group});
        const char* const keys[] = {"Shear", "Bend", "Ltb"};
        for (std::size_t i = 0; i < std::size(keys); ++i)
            EXPECT_EQ(*run.ratios[i], checks[keys[i]].governing.largest()) << group << keys[i];
        EXPECT_EQ(groupOf(run.project, {workshopCrane()}), (GroupChoice{group}));
        EXPECT_EQ(groupOf(typed, {workshopCrane()}), (GroupChoice{group})) << "found by comparing";
    }
    typed.V(1) = 70;
    EXPECT_EQ(groupOf(typed, {workshopCrane()}), std::nullopt) << "changed by hand";
}

TEST(GroupRuns, ofTwoCranesTakeEachAloneAndBoth) {
    Workshop workshop;
    workshop.session.project.MinAvst = 2000;
    actions::CraneData second = workshopCrane();
    second.spacing = {1.0, 2.5};
    second.release = actions::Release::Grab;
    second.released = 0.5;
    const GroupMatrix matrix =
        compareGroups(workshop.session.project, workshop.session.tables, {workshopCrane(), second}, false);
    EXPECT_EQ(runOf(matrix, {1}).project.NofCranes, 2);
    EXPECT_EQ(runOf(matrix, {4, 2}).project.NofCranes, 1);
    EXPECT_FLOAT_EQ(float(runOf(matrix, {4, 2}).project.Avst(2)), 2500.0F) << "in the place of crane 1";
    EXPECT_THROW((void)runOf(matrix, {2, 1}), std::out_of_range) << "crane 1 lets nothing go";
    EXPECT_EQ(runOf(matrix, {2, 2}).choice.group, 2);
    const Project& forward = runOf(matrix, {5, 2}).project;
    const Project& backward = runOf(matrix, {5, 2, true}).project;
    EXPECT_GT(std::abs(forward.H(1)), std::abs(forward.H(3))) << "most at the wheel that leads";
    EXPECT_GT(std::abs(backward.H(3)), std::abs(backward.H(1)));

    actions::CraneData wrong = second;
    wrong.emin = 10;
    EXPECT_THROW((void)compareGroups(workshop.session.project, workshop.session.tables, {wrong}, false),
                 std::invalid_argument);
    workshop.session.project.CraneType = CraneKind::Monorail;
    EXPECT_THROW((void)compareGroups(workshop.session.project, workshop.session.tables, {second}, false),
                 std::invalid_argument);
}

/// Crane data come back to the bit, with what a later version has attached beside them.
TEST(Attached, standsBesideTheRecordAndComesBack) {
    Workshop workshop;
    Project& project = workshop.session.project;
    project.Attached = R"({"Later":{"x":0.1}})";
    Attached made;
    made.cranes = {workshopCrane(), workshopCrane()};
    made.farRails = true;
    made.lateralSupports = {{2, 3000, std::nullopt}, {1, 100, -5}};
    attach(project, made);
    std::string fault = "?";
    const Attached read = attachedOf(project, &fault);
    EXPECT_EQ(fault, "");
    ASSERT_EQ(read.cranes.size(), 2U);
    EXPECT_EQ(read.cranes[1].vh, 8.0 / 60.0);
    EXPECT_TRUE(read.farRails);
    ASSERT_EQ(read.lateralSupports.size(), 2U);
    EXPECT_EQ(read.lateralSupports[1].z, -5.0);
    attach(project, {});
    EXPECT_EQ(project.Attached, R"({"Later":{"x":0.1}})");
    for (const char* text : {"[]", "{\"Cranes\":[{}]}", "{\"Cranes\":7}", "{\"LateralSupports\":[1]}", "{"}) {
        project.Attached = text;
        (void)attachedOf(project, &fault);
        EXPECT_NE(fault, "") << text;
    }
}

}  // namespace
}  // namespace borvik
