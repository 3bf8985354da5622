// What holds for every project, tried on many random ones.

#include <gtest/gtest.h>

#include "project/project_file.h"
#include "solved_projects.h"
#include "support/temp_folder.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing_support::randomProject;
using testing_support::TempFolder;
using testing_support::TestSession;

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
