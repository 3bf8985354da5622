#include <gtest/gtest.h>

#include <QDir>
#include <filesystem>

#include "project/project_file.h"
#include "window_support.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TempFolder;
using testing_support::writeBytes;

class ProjectCommands : public testing::Test, public WindowFixture {
protected:
    TempFolder folder;

    /// A project file of that title.
    std::string makeFile(const std::string& name, const std::string& title) {
        Project made = DefaultProject(session.tables);
        made.Proj = title;
        const std::string path = folder.file(name);
        SaveProject(path, made);
        return path;
    }
    [[nodiscard]] std::vector<std::string> recentMenu() {
        std::vector<std::string> captions;
        for (int i = 1; i <= 4; ++i) {
            const auto& entry = control<QAction>(("mnuMRU" + std::to_string(i)).c_str());
            if (entry.isVisible()) captions.push_back(entry.text().toStdString());
        }
        return captions;
    }
    void open(const std::string& path) {
        questions.toOpen.push_back(path);
        trigger("mnuArkivÖppna");
    }
    void saveAs(const std::string& path) {
        questions.toSave.push_back(path);
        trigger("mnuArkivSparasom");
    }
};

TEST_F(ProjectCommands, newAsksAndObeys) {
    const std::string path = folder.file("a.brvk");
    saveAs(path);
    const std::string before = bytesOf(path);

    project().Span(1) = 7000;
    questions.answers = {Answer::Cancel};
    trigger("mnuArkivNytt");
    EXPECT_EQ(questions.asked.back(), "Vill du spara ändringarna i det aktuella projektet?");
    EXPECT_EQ(project().Span(1), 7000) << "Cancel stops";

    questions.answers = {Answer::No};
    trigger("mnuArkivNytt");
    EXPECT_EQ(project().Span(1), 4000);
    EXPECT_EQ(window.windowTitle(), "Borvik : test.brvk");
    EXPECT_EQ(bytesOf(path), before) << "No saves nothing";

    open(path);
    project().Span(1) = 7000;
    questions.answers = {Answer::Yes};
    trigger("mnuArkivNytt");
    EXPECT_EQ(project().Span(1), 4000);
    EXPECT_EQ(project().Proj, "TestProjekt");
    Project saved;
    LoadProject(path, saved);
    EXPECT_EQ(saved.Span(1), 7000) << "Yes saves first";
    EXPECT_FALSE(window.hasUnsavedChanges());
}

TEST_F(ProjectCommands, newStopsWhereSavingFails) {
    session.FileName = folder.file("no/such/folder/a.brvk");
    project().Span(1) = 7000;
    questions.answers = {Answer::Yes};
    trigger("mnuArkivNytt");
    EXPECT_EQ(project().Span(1), 7000);
    EXPECT_EQ(messages.texts.size(), 1U);
}

TEST_F(ProjectCommands, newForgetsTheResults) {
    click("cmdCalc");
    ASSERT_TRUE(session.Calculated);
    questions.answers = {Answer::No};
    trigger("mnuArkivNytt");
    EXPECT_FALSE(session.Calculated);
    EXPECT_TRUE(control<QPushButton>("cmdCalc").isEnabled());
    EXPECT_EQ(control<QTableView>("lstViewDetailed").model()->rowCount(), 0);
    EXPECT_TRUE(control<DiagramView>("picRes").diagrams().empty());
    EXPECT_FALSE(hasNode("Summary"));
}

TEST_F(ProjectCommands, openShowsTheProject) {
    const std::string path = makeFile("räls & balk.brvk", "Opened");
    open(path);
    EXPECT_EQ(questions.asked.back(), "*.brvk");
    EXPECT_EQ(control<QLineEdit>("iproj").text(), "Opened");
    EXPECT_EQ(window.windowTitle(), QString::fromStdString("Borvik : " + path));
    EXPECT_EQ(session.FileTitle, path);
    EXPECT_EQ(recentMenu(), std::vector<std::string>{"1. " + folder.file("räls && balk.brvk")});
    EXPECT_TRUE(control<QAction>("mnuMRU0").isVisible());
    EXPECT_FALSE(window.hasUnsavedChanges());
    trigger("mnuArkivÖppna");  // cancelled
    EXPECT_EQ(control<QLineEdit>("iproj").text(), "Opened");
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(ProjectCommands, aDamagedFileLeavesTheProjectIntact) {
    const std::string whole = bytesOf(makeFile("whole.brvk", "Whole"));
    project().Proj = "Mine";
    click("cmdCalc");
    ASSERT_TRUE(session.Calculated);
    const Project mine = project();
    for (const std::size_t cut :
         {std::size_t{0}, std::size_t{1}, std::size_t{100}, whole.size() / 2, whole.size() - 1}) {
        const std::string path = folder.file("cut.brvk");
        writeBytes(path, whole.substr(0, cut));
        open(path);
        EXPECT_EQ(lastMessage(), " End of file passed ") << cut;
        EXPECT_TRUE(project() == mine) << cut;
        EXPECT_EQ(window.windowTitle(), "Borvik : test.brvk") << cut;
        EXPECT_TRUE(session.Calculated) << cut;
    }
    open(folder.file("absent.brvk"));
    EXPECT_EQ(lastMessage(), " Can't find file ");
    EXPECT_TRUE(recentMenu().empty()) << "what can't be read isn't listed";
}

TEST_F(ProjectCommands, saveWritesTheDefaultNameToTheCurrentFolder) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(QString::fromStdString(folder.path().string()));
    project().Span(2) = 5500;
    EXPECT_TRUE(window.hasUnsavedChanges());
    trigger("mnuArkivSpara");
    QDir::setCurrent(before);
    Project saved;
    LoadProject(folder.file("test.brvk"), saved);
    EXPECT_EQ(saved.Span(2), 5500);
    EXPECT_TRUE(questions.asked.empty()) << "no dialog";
    EXPECT_FALSE(window.hasUnsavedChanges());
    EXPECT_EQ(window.windowTitle(), QString::fromStdString("Borvik : " + folder.file("test.brvk")));
    EXPECT_EQ(recentMenu(), std::vector<std::string>{"1. " + folder.file("test.brvk")});
}

TEST_F(ProjectCommands, aSaveNeverTakesTheFileOfAnotherUnasked) {
    const QString before = QDir::currentPath();
    QDir::setCurrent(QString::fromStdString(folder.path().string()));
    const std::string others = makeFile("test.brvk", "Somebody else's");
    const std::string bytes = bytesOf(others);
    trigger("mnuArkivSpara");
    EXPECT_EQ(questions.asked, std::vector<std::string>{"test.brvk"}) << "a new project asks where its name is taken";
    EXPECT_EQ(bytesOf(others), bytes);

    window.openProject("test.brvk");
    QDir::setCurrent(before);
    EXPECT_EQ(session.FileName, others) << "however it was named";
    const auto saveWith = [&](std::optional<std::size_t> choice) {
        questions.choices = {choice};
        questions.asked.clear();
        enter("iproj", "Mine");
        trigger("mnuArkivSpara");
        return questions.asked.size();
    };
    EXPECT_EQ(saveWith({}), 0U) << "its own file";
    const std::string theirs = bytesOf(makeFile("test.brvk", "Changed meanwhile"));
    EXPECT_EQ(saveWith({}), 1U);
    questions.toSave = {folder.file("aside.brvk")};
    EXPECT_EQ(saveWith(1), 2U);
    EXPECT_EQ(session.FileName, folder.file("aside.brvk"));
    EXPECT_EQ(bytesOf(others), theirs) << "neither a refusal nor another name touches it";
    trigger("mnuArkivÖppna");
    EXPECT_EQ(questions.openedIn, folder.path().string());

    window.openProject(others);
    makeFile("test.brvk", "Once more");
    saveWith(2);
    EXPECT_EQ(project().Proj, "Once more");
    makeFile("test.brvk", "And more");
    saveWith(0);
    EXPECT_EQ(project().Proj, "Mine");
    EXPECT_EQ(saveWith({}), 0U);
}

TEST_F(ProjectCommands, saveAsTakesTheNewName) {
    saveAs(folder.file("b.brvk"));
    EXPECT_EQ(questions.asked.back(), "test.brvk") << "proposes the name in use";
    EXPECT_EQ(window.windowTitle(), QString::fromStdString("Borvik : " + folder.file("b.brvk")));
    EXPECT_TRUE(std::filesystem::exists(folder.file("b.brvk")));
    trigger("mnuArkivSparasom");  // cancelled
    EXPECT_EQ(questions.asked.back(), folder.file("b.brvk"));
    EXPECT_EQ(recentMenu().size(), 1U);
    trigger("mnuArkivSpara");
    EXPECT_EQ(recentMenu(), (std::vector<std::string>{"1. " + folder.file("b.brvk"), "2. " + folder.file("b.brvk")}))
        << "the list tells what was saved";

    saveAs(folder.file("no/such/c.brvk"));
    EXPECT_EQ(messages.texts.size(), 1U);
    EXPECT_EQ(window.windowTitle(), QString::fromStdString("Borvik : " + folder.file("b.brvk")));
}

TEST_F(ProjectCommands, whatIsBeingTypedIsSaved) {
    auto& iproj = control<QLineEdit>("iproj");
    iproj.setFocus();
    iproj.selectAll();
    QTest::keyClicks(&iproj, "Half typed");
    saveAs(folder.file("typed.brvk"));
    Project saved;
    LoadProject(folder.file("typed.brvk"), saved);
    EXPECT_EQ(saved.Proj, "Half typed");
}

TEST_F(ProjectCommands, textsBeyondTheCodePageAreToldAbout) {
    project().Proj = "Träbalk \u4e2d";
    window.WritefrmInput();
    saveAs(folder.file("lost.brvk"));
    EXPECT_EQ(messages.texts.size(), 1U);
    Project saved;
    LoadProject(folder.file("lost.brvk"), saved);
    EXPECT_EQ(saved.Proj, "Träbalk ?");
}

TEST_F(ProjectCommands, recentFilesOpenByAClick) {
    std::vector<std::string> paths;
    for (const char* name : {"a", "b", "c"}) paths.push_back(makeFile(std::string(name) + ".brvk", name));
    for (const std::string& path : paths) open(path);  // c b a
    trigger("mnuMRU2");
    EXPECT_EQ(control<QLineEdit>("iproj").text(), "b");
    EXPECT_EQ(recentMenu(), (std::vector<std::string>{"1. " + paths[1], "2. " + paths[2], "3. " + paths[0]}));

    std::filesystem::remove(paths[0]);
    trigger("mnuMRU3");
    EXPECT_EQ(lastMessage(), "can't find file - " + paths[0]);
    EXPECT_EQ(recentMenu().size(), 3U) << "the entry stays";
    EXPECT_EQ(control<QLineEdit>("iproj").text(), "b");
}

TEST_F(ProjectCommands, aDraggedSplitterStandsThereAtTheNextStart) {
    const int before = control<ResultTableView>("lstViewDetailed").height();
    QWidget* handle = control<QSplitter>("splitterResults").handle(1);
    QTest::mousePress(handle, Qt::LeftButton, {}, {5, 2});
    QTest::mouseMove(handle, {5, 42});
    QTest::mouseRelease(handle, Qt::LeftButton, {}, {5, 42});
    EXPECT_EQ(control<ResultTableView>("lstViewDetailed").height(), before - 40);
    window.close();
    EXPECT_EQ(settings.get("Borvik", "Settings", "splitterMain"), "") << "never dragged";
    MainWindow next(session, {messages, questions, settings});
    next.show();
    EXPECT_EQ(next.findChild<QWidget*>("lstViewDetailed")->height(), before - 40);
}

TEST_F(ProjectCommands, closingKeepsTheEdgesAndAsksNothing) {
    project().Span(1) = 7000;
    window.setGeometry(30, 40, 1100, 800);
    window.close();
    EXPECT_TRUE(questions.asked.empty());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(settings.get("Borvik", "Settings", "MainLeft"), std::to_string(window.x()));
    EXPECT_EQ(settings.get("Borvik", "Settings", "MainTop"), std::to_string(window.y()));
    EXPECT_EQ(settings.get("Borvik", "Settings", "MainWidth"), "1100");
    EXPECT_EQ(settings.get("Borvik", "Settings", "MainHeight"), "800");
}

}  // namespace
}  // namespace borvik
