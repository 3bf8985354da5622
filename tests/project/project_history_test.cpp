#include "project/project_history.h"

#include <gtest/gtest.h>

#include <limits>

namespace borvik {
namespace {

class History : public testing::Test {
protected:
    Project project;
    ProjectHistory history{project, "test.brvk"};

    void change(const std::string& title) {
        project.Proj = title;
        history.changed("to " + title, project);
    }
    [[nodiscard]] std::string undone() { return (project = history.undo().project).Proj; }
    [[nodiscard]] std::string redone() { return (project = history.redo().project).Proj; }
};

TEST_F(History, goesBackAndForthAndForgetsWhatWasUndone) {
    EXPECT_EQ(history.undoName(), nullptr);
    change("a");
    change("b");
    EXPECT_FALSE(history.changed("nothing", project)) << "a form closed without a change is no step";
    EXPECT_EQ(*history.undoName(), "to b");
    EXPECT_EQ(undone(), "a");
    EXPECT_EQ(undone(), "");
    EXPECT_EQ(undone(), "") << "the first state stays";
    EXPECT_EQ(*history.redoName(), "to a");
    EXPECT_EQ(redone(), "a");
    change("c");
    EXPECT_EQ(history.redoName(), nullptr);
    EXPECT_EQ(undone(), "a");
}

TEST_F(History, knowsTheSavedStateOfEachProject) {
    change("a");
    history.saved(project, "a.brvk");
    change("b");
    EXPECT_TRUE(history.unsaved(project));
    history.replaced("Open", Project(), "other.brvk");
    EXPECT_FALSE(history.unsaved(history.present().project));
    EXPECT_EQ(undone(), "b");
    EXPECT_EQ(history.present().document->FileName, "a.brvk");
    EXPECT_TRUE(history.unsaved(project));
    EXPECT_EQ(undone(), "a");
    EXPECT_FALSE(history.unsaved(project)) << "back at what was saved";
    project.HasLoadsY = !project.HasLoadsY;
    history.settled(project);
    EXPECT_FALSE(history.unsaved(project)) << "what the program derives is no change";
    EXPECT_EQ(*history.redoName(), "to b") << "and no step";
}

TEST_F(History, takesANumberThatIsNoneForWhatItIs) {
    project.GammaM0 = std::numeric_limits<double>::quiet_NaN();
    history.replaced("Open", project, "damaged.brvk");
    EXPECT_FALSE(history.unsaved(project)) << "opened, not changed";
    EXPECT_FALSE(history.changed("Setup", project));
    change("a");
    EXPECT_TRUE(history.unsaved(project));
}

TEST_F(History, isBounded) {
    for (std::size_t i = 1; i <= Steps<ProjectStep>::kSteps + 50; ++i) change(std::to_string(i));
    for (std::size_t i = 1; i < Steps<ProjectStep>::kSteps; ++i) (void)undone();
    EXPECT_NE(history.undoName(), nullptr);
    EXPECT_EQ(undone(), "50");
    EXPECT_EQ(history.undoName(), nullptr);
}

}  // namespace
}  // namespace borvik
