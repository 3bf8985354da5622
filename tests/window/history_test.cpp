// Undo, redo, and what is brought back after an end with unsaved changes.

#include <gtest/gtest.h>

#include <QDir>
#include <QRegularExpression>
#include <QTimer>
#include <array>
#include <chrono>
#include <filesystem>
#include <random>

#include "calculation/calculation.h"
#include "calculation/load_check.h"
#include "project/project_file.h"
#include "support/full_disk.h"
#include "window_support.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::FullDisk;
using testing_support::TempFolder;
using testing_support::writeBytes;

class UndoTest : public testing::Test, public WindowFixture {
protected:
    TempFolder folder;
    [[nodiscard]] std::string caption(const char* action) {
        auto& found = control<QAction>(action);
        return found.isEnabled() ? found.text().toStdString() : "";
    }
    [[nodiscard]] bool marked() { return !control<QLabel>("stateUnsaved").text().isEmpty(); }
};

/// Whether the forms' last guards would let the project pass, with nothing left to be settled.
bool accepted(const Project& project) {
    const LoadForm form = project.CraneType == CraneKind::Overhead ? LoadForm::Overhead : LoadForm::Monorail;
    Project settled = project;
    settleLoads(settled, form);
    MessageList messages;
    return loadRefusal(project, form).message.empty() && CheckInput(settled, messages) && settled == project;
}

TEST_F(UndoTest, putsBackOnlyWhatTheFormsHaveAccepted) {
    std::mt19937 random(7);
    const auto below = [&](auto count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
    const auto edit = [&](QWidget& form) {
        const auto boxes = form.findChildren<NumberBox*>();
        const auto buttons = form.findChildren<QAbstractButton*>(QRegularExpression("^(opt|chk|Command[4-7]$)"));
        NumberBox* box = boxes.at(below(boxes.size()));
        if (box->isEnabled()) {
            box->setFocus(Qt::TabFocusReason);
            QTest::keyClicks(box, QStringList{"0", "12", "900", "1000", "9000"}.at(below(5)));
            QTest::keyClick(box, Qt::Key_Return);
        }
        if (below(3) == 0 && !buttons.empty()) buttons.at(below(buttons.size()))->click();
        if (auto* rows = form.findChild<QTreeWidget*>("lstViewTill"); rows != nullptr && below(2) == 0) {
            rows->setCurrentItem(rows->topLevelItem(below(4)));
            QTest::keyClick(rows, Qt::Key_Delete);
        }
        QCoreApplication::processEvents();
    };
    int refused = 0;
    const auto visit = [&](const char* form) {
        QTimer::singleShot(0, &window, [&] {
            auto* open = QApplication::activeModalWidget();
            const int edits = below(5);
            for (int i = 0; i < edits; ++i) edit(*open);
            open->close();
            for (int i = 0; open->isVisible() && i < 20; ++i) {  // the way out of what the guard has refused
                ++refused;
                open->findChild<QAction*>("undo")->trigger();
                QCoreApplication::processEvents();
                open->close();
            }
            EXPECT_FALSE(open->isVisible()) << open->objectName().toStdString() << lastMessage();
            static_cast<QDialog*>(open)->hide();
        });
        trigger(form);
    };
    for (int i = 0; i < 60; ++i)
        visit(std::array{"mnuLoad", "mnuBeam", "mnuSetup"}.at(static_cast<std::size_t>(below(3))));
    EXPECT_GT(refused, 3) << "too tame edits";
    const Project last = project();
    for (const char* action : {"mnuUndo", "mnuRedo"}) {
        int steps = 0;
        for (; !caption(action).empty(); ++steps) {
            EXPECT_TRUE(accepted(project())) << caption(action);
            trigger(action);
        }
        EXPECT_TRUE(accepted(project())) << action;
        EXPECT_GT(steps, 5) << action;
    }
    EXPECT_TRUE(project() == last);
}

TEST_F(UndoTest, sharesItsKeyWithTheBoxBeingTypedIn) {
    const Project first = project();
    auto& title = control<QLineEdit>("iproj");
    click("chkStartStop");
    title.setFocus();
    QTest::keyClicks(&title, "Hall");
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(title.text().toStdString(), first.Proj);
    EXPECT_FALSE(project() == first) << "the typing came first";
    QTest::keyClick(&title, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(project() == first);
}

TEST_F(UndoTest, leadsBackToTheProjectThatWasOpen) {
    questions.toSave.push_back(folder.file("a.brvk"));
    trigger("mnuArkivSparasom");
    enter("iproj", "Unsaved");
    trigger("mnuCalc");
    ASSERT_TRUE(session.Calculated);
    EXPECT_EQ(caption("mnuUndo"), "&Undo: Names") << "a calculation is no change";
    Project other = project();
    other.Proj = "Other";
    SaveProject(folder.file("b.brvk"), other);
    ASSERT_TRUE(window.openProject(folder.file("b.brvk")));
    EXPECT_FALSE(marked());

    trigger("mnuUndo");
    EXPECT_EQ(window.windowTitle().toStdString(), "Borvik : " + folder.file("a.brvk"));
    EXPECT_EQ(project().Proj, "Unsaved");
    EXPECT_TRUE(marked());
    EXPECT_FALSE(session.Calculated);
    EXPECT_EQ(window.calculation(), nullptr) << "results of another project are not shown";
    trigger("mnuArkivSpara");
    trigger("mnuUndo");
    EXPECT_TRUE(marked()) << "the file holds what came after";
    trigger("mnuRedo");
    EXPECT_FALSE(marked());
}

/// Programs that start and end one after the other, with one folder for their copies.
class RecoveryTest : public testing::Test {
protected:
    struct Program : WindowFixture {
        explicit Program(const TempFolder& folder) : WindowFixture(folder.file("copies")) {}
        /// Starts with that answer to what it offers. @return what was asked
        std::vector<std::string> start(std::deque<Answer> answers) {
            questions.answers = std::move(answers);
            window.offerRecovery();
            return questions.asked;
        }
    };
    TempFolder folder;

    void endUnsaved(const char* title) {
        Program program(folder);
        program.questions.toSave.push_back(folder.file("a.brvk"));
        program.trigger("mnuArkivSparasom");
        program.enter("iproj", title);
        program.window.close();
    }
    [[nodiscard]] QStringList copies(const char* pattern = "*.copy") const {
        return QDir(QString::fromStdString(folder.file("copies"))).entryList({pattern}, QDir::Files);
    }
};

TEST_F(RecoveryTest, bringsBackWhatWasNotSaved) {
    endUnsaved("Ölhalle");
    Program next(folder);
    const auto asked = next.start({Answer::Yes});
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_NE(asked[0].find(folder.file("a.brvk") + "\nÖlhalle"), std::string::npos) << asked[0];
    EXPECT_EQ(next.project().Proj, "Ölhalle");
    EXPECT_EQ(next.window.windowTitle().toStdString(), "Borvik : " + folder.file("a.brvk"));
    EXPECT_TRUE(next.window.hasUnsavedChanges());
    EXPECT_EQ(copies().size(), 1) << "brought back is not yet saved";
    next.trigger("mnuArkivSpara");
    EXPECT_FALSE(next.window.hasUnsavedChanges());
    EXPECT_EQ(copies().size(), 0);
}

TEST_F(RecoveryTest, neverWritesOverAFileThatHasChangedMeanwhile) {
    endUnsaved("Mine");
    Project other;
    LoadProject(folder.file("a.brvk"), other);
    other.Proj = "Theirs";
    SaveProject(folder.file("a.brvk"), other);
    Program next(folder);
    next.start({Answer::Yes});
    next.trigger("mnuArkivSpara");
    EXPECT_EQ(next.questions.asked.size(), 2U);
    LoadProject(folder.file("a.brvk"), other);
    EXPECT_EQ(other.Proj, "Theirs");
}

TEST_F(RecoveryTest, onAFullDiskTheFormerCopyStaysAndTheWindowSaysSo) {
    Program program(folder);
    program.enter("iproj", "First");
    const std::string copy = folder.file("copies") + "/" + copies().at(0).toStdString();
    const std::string first = bytesOf(copy);
    EXPECT_EQ(std::filesystem::status(copy).permissions(), std::filesystem::perms(0600));
    EXPECT_EQ(std::filesystem::status(folder.file("copies")).permissions(), std::filesystem::perms(0700));
    const auto state = [&] { return program.control<QLabel>("stateUnsaved").text(); };
    EXPECT_EQ(state(), "Unsaved changes");
    {
        const FullDisk full(first.size() / 2);
        program.enter("iproj", "Second");
    }
    EXPECT_EQ(bytesOf(copy), first);
    EXPECT_EQ(state(), "Unsaved changes, no copy kept");
    program.enter("iproj", "Third");
    EXPECT_EQ(state(), "Unsaved changes");
}

TEST_F(RecoveryTest, aSpoiltLockHidesNothingAndNoLockStays) {
    endUnsaved("A");
    const std::string locks = folder.file("copies") + "/";
    const std::string run = copies().at(0).section('.', 0, 0).toStdString();
    for (const std::string& name : {run + ".lock", std::string("gone.lock")}) {
        writeBytes(locks + name, "");
        std::filesystem::last_write_time(locks + name,
                                         std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
    }
    EXPECT_EQ(Program(folder).start({}).size(), 1U);
    EXPECT_EQ(copies("*.lock").size(), 0);
}

TEST_F(RecoveryTest, throwsAwayOrAsksAgain) {
    endUnsaved("A");
    EXPECT_EQ(Program(folder).start({Answer::Cancel}).size(), 1U);
    EXPECT_EQ(Program(folder).start({Answer::No}).size(), 1U);
    EXPECT_EQ(Program(folder).start({}).size(), 0U);
}

TEST_F(RecoveryTest, keepsACopyOfEachProjectUntilItIsSafe) {
    Program program(folder);
    program.enter("iproj", "First");
    EXPECT_EQ(copies().size(), 1);
    program.trigger("mnuUndo");
    EXPECT_EQ(copies().size(), 0) << "back at the saved state";
    program.trigger("mnuRedo");
    Project other = program.project();
    SaveProject(folder.file("b.brvk"), other);
    program.window.openProject(folder.file("b.brvk"));
    EXPECT_EQ(copies().size(), 1) << "of the first, which nobody has saved";
    program.enter("iproj", "Second");
    EXPECT_EQ(copies().size(), 2);
    EXPECT_EQ(Program(folder).start({}).size(), 0U) << "a running program's copies are its own";
    program.questions.answers = {Answer::No};
    program.trigger("mnuArkivNytt");
    EXPECT_EQ(copies().size(), 1) << "the user has said that the second is not to be saved";
}

TEST_F(RecoveryTest, tellsOfASpoiltCopyOnceAndKeepsIt) {
    endUnsaved("A");
    std::filesystem::resize_file(folder.file("copies") + "/" + copies().at(0).toStdString(), 500);
    {
        Program next(folder);
        EXPECT_EQ(next.start({}).size(), 0U);
        EXPECT_EQ(next.messages.texts.size(), 1U);
    }
    EXPECT_EQ(copies("*.spoilt").size(), 1);
    Program last(folder);
    EXPECT_EQ(last.start({}).size(), 0U);
    EXPECT_EQ(last.messages.texts.size(), 0U);
}

TEST_F(RecoveryTest, worksOnWhereNoCopyCanBeKept) {
    writeBytes(folder.file("copies"), "a file where the folder should be");
    Program program(folder);
    program.enter("iproj", "A");
    EXPECT_EQ(program.messages.texts.size(), 0U);
    EXPECT_EQ(program.project().Proj, "A");
}

TEST_F(RecoveryTest, aVanishedFolderLeavesTheProjectInMemory) {
    const std::string gone = folder.file("gone");
    std::filesystem::create_directory(gone);
    Program program(folder);
    program.questions.toSave.push_back(gone + "/a.brvk");
    program.trigger("mnuArkivSparasom");
    std::filesystem::remove_all(gone);
    program.enter("iproj", "Kept");
    program.trigger("mnuArkivSpara");
    EXPECT_EQ(program.messages.texts.size(), 1U);
    EXPECT_EQ(program.project().Proj, "Kept");
    EXPECT_TRUE(program.window.hasUnsavedChanges());
    EXPECT_EQ(copies().size(), 1);
}

}  // namespace
}  // namespace borvik
