#include <gtest/gtest.h>

#include <QDir>
#include <QMenu>

#include "window_support.h"

namespace borvik {
namespace {

/// The menu is made with the window, from the folder that is known then.
struct ExampleFolder {
    explicit ExampleFolder(const char* path) { QDir::setSearchPaths(kExamplesPath, {path}); }
    ~ExampleFolder() { QDir::setSearchPaths(kExamplesPath, {}); }
};

struct Examples : ExampleFolder, WindowFixture {
    Examples() : ExampleFolder(BORVIK_SOURCE_DIR "/examples") {}
};

TEST(ExamplesMenu, opensAnExampleThatSavingLeavesAlone) {
    Examples program;
    const auto* menu = program.window.findChild<QMenu*>("mnuExamples");
    ASSERT_NE(menu, nullptr);
    QAction* workshop = nullptr;
    for (QAction* entry : menu->actions())
        if (entry->text() == "Workshop single span") workshop = entry;
    ASSERT_NE(workshop, nullptr);
    EXPECT_EQ(menu->actions().size(), QDir(BORVIK_SOURCE_DIR "/examples").entryList({"*.brvk"}).size());

    workshop->trigger();
    EXPECT_EQ(program.session.project.NofSpans, 1);
    EXPECT_EQ(program.session.FileName, "workshop-single-span.brvk");
    EXPECT_FALSE(program.window.hasUnsavedChanges());
    EXPECT_FALSE(program.control<QAction>("mnuMRU1").isVisible());
    program.trigger("mnuArkivSpara");
    EXPECT_EQ(program.questions.asked, std::vector<std::string>{"workshop-single-span.brvk"}) << "asks for a name";
}

TEST(ExamplesMenu, isHiddenWithoutExamples) {
    const ExampleFolder nowhere("/nowhere");
    WindowFixture program;
    EXPECT_FALSE(program.window.findChild<QMenu*>("mnuExamples")->menuAction()->isVisible());
}

}  // namespace
}  // namespace borvik
