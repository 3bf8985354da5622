// What holds for every project, tried on many random ones.

#include <gtest/gtest.h>

#include "project/project_file.h"
#include "solved_projects.h"
#include "support/temp_folder.h"
#include "support/walked_beam.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing_support::projectFiles;
using testing_support::randomProject;
using testing_support::TempFolder;
using testing_support::TestSession;
using testing_support::WalkedBeam;

/// The factored loads of a limit state, straight from the project. @param f  load factor
RunLoads loadsOf(const TestSession& session, double f, bool dynamic) {
    const Project& p = session.project;
    RunLoads loads;
    for (int w = 1; w <= 8; ++w) {
        loads.WheelV(w) = p.V(w) * f * (!dynamic ? 1.0 : w <= 4 ? double(p.PsiV1) : double(p.PsiV2));
        loads.WheelH(w) = p.H(w) * f * (!dynamic ? 1.0 : w <= 4 ? double(p.PsiH1) : double(p.PsiH2));
    }
    for (int i = 1; i <= p.NofSpans; ++i) {
        double kgPerMetre = 0;
        if (p.SelfWeight) kgPerMetre += p.SpanSection(i).Weight;
        if (p.RailOn && p.CraneType == 1) kgPerMetre += session.context.CurrentRail.RailWeight;
        loads.SpanLoad(i) = f * (kgPerMetre * 9.81 / 1000 + (p.CraneType == 1 ? double(p.Gangway) : 0.0));
    }
    loads.WheelGap = p.Avst;
    loads.NCranes = p.NofCranes;
    return loads;
}

/// What a finished calculation and the stiffness solution of the same beam disagree on.
std::string disagreementWithStiffness(const TestSession& session) {
    constexpr double kTolerance = 2e-5;
    const RunLoads ulsLoads = loadsOf(session, session.project.LfULS, true);
    WalkedBeam uls(session.project, ulsLoads);
    uls.walk();
    const RunLoads slsLoads = loadsOf(session, session.project.LfSLS, false);
    WalkedBeam sls(session.project, slsLoads);
    sls.walk();
    return disagreement(session.results->Uls, uls, session.project, kTolerance, true) +
           disagreement(session.results->Sls, sls, session.project, kTolerance);
}

TEST(Projects, agreeWithTheStiffnessSolution) {
    int compared = 0;
    for (const auto& file : projectFiles()) {
        TestSession session(file);
        if (!session.calculate()) continue;
        ++compared;
        EXPECT_EQ(disagreementWithStiffness(session), "") << file.stem();
    }
    EXPECT_GE(compared, 20);
}

TEST(Projects, giveTheSameBitsAfterAnyOtherProject) {
    TestSession used;
    for (const auto& file : projectFiles()) {
        LoadProject(file.string(), used.project);
        FollowProject(used.tables, used.project, used.context);
        const bool calculated = used.calculate();
        TestSession fresh(file);
        EXPECT_EQ(fresh.calculate(), calculated);
        if (!calculated) continue;
        EXPECT_EQ(used.json(), fresh.json()) << file.stem();
    }
}

TEST(Projects, giveTheSameBitsAfterSavingAndLoading) {
    const TempFolder folder;
    for (const auto& file : projectFiles()) {
        TestSession session(file);
        session.calculate();
        SaveProject(folder.file("saved.brvk"), session.project);
        TestSession loaded(folder.path() / "saved.brvk");
        loaded.calculate();
        EXPECT_EQ(loaded.json(), session.json()) << file.stem();
    }
}

/// Twice, saved and loaded, on the plain walk, beside another session: always the same bits.
TEST(RandomProjects, giveTheSameBitsInEveryWay) {
    const int kProjects = testing_support::wantedCount("BORVIK_RANDOM_CASES", 60);
    const TempFolder folder;
    std::mt19937 random(4711);
    TestSession session;
    const Project start = session.project;
    int finished = 0;
    for (int number = 1; number <= kProjects; ++number) {
        SCOPED_TRACE("project " + std::to_string(number));
        TestSession other;
        const Project project = session.project = other.project = [&] {
            session.project = start;
            return randomProject(session, random);
        }();
        for (TestSession* one : {&session, &other}) FollowProject(one->tables, one->project, one->context);
        SaveProject(folder.file("random.brvk"), project);

        if (session.calculate()) ++finished;
        const std::string results = session.json();
        session.calculate();
        EXPECT_EQ(session.json(), results) << "the second time";
        other.calculate(WalkMethod::Plain);
        EXPECT_EQ(other.json(), results) << "on the plain walk, in another session";
        TestSession loaded(folder.path() / "random.brvk");
        loaded.calculate();
        EXPECT_EQ(loaded.json(), results) << "saved and loaded";
    }
    EXPECT_GE(finished, kProjects * 9 / 10);
}

}  // namespace
}  // namespace borvik
