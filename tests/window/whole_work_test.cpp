#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>

#include "tutorial_steps.h"
#include "window_support.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TempFolder;

class WholeWork : public testing::Test {
protected:
    using Steps = std::function<void(FormHands)>;

    /// Opens a form by its command, works in it, and closes it by its button.
    static void inForm(WindowFixture& program, const char* command, const char* name, const char* close,
                       const Steps& steps) {
        bool worked = false;
        QTimer::singleShot(0, [&] {
            QWidget* form = QApplication::activeModalWidget();
            if (form == nullptr) return;
            EXPECT_EQ(form->objectName(), name);
            EXPECT_TRUE(QTest::qWaitForWindowActive(form));
            try {
                steps(FormHands(*form));
                FormHands(*form).click(close);
                worked = true;
            } catch (const std::exception& fault) {
                ADD_FAILURE() << fault.what();
            }
            if (form->isVisible()) {
                ADD_FAILURE() << name << " stays open: " << program.lastMessage();
                form->hide();
            }
        });
        program.trigger(command);
        EXPECT_TRUE(worked) << command;
    }

    static std::vector<std::string> calculatedSummary(WindowFixture& program) {
        program.click("cmdCalc");
        for (QWidget* other : QApplication::topLevelWidgets())
            if (other->objectName() == "frmProgress") other->close();
        EXPECT_TRUE(program.session.Calculated) << program.lastMessage();
        std::vector<std::string> texts;
        for (const auto& row : program.control<ResultTableView>("lstViewDetailed").table().rows) {
            std::string line;
            for (const auto& cell : row) line += cell.text + " | ";
            texts.push_back(line);
        }
        return texts;
    }

    TempFolder folder;
};

void makeSections(FormHands form) {
    form.choose("cboEuprofile", "HEB 400");
    form.click("addtoDBIu");
    form.control<QTabWidget>("SSTab1").setCurrentIndex(2);
    form.enter("iusth", "800");
    form.enter("iustb1", "360");
    form.enter("iusttf1", "22,5");
    form.click("addtoDBIu");
}

void layOutBeam(FormHands form) {
    auto& rows = form.control<QTreeWidget>("lstViewTill");
    const auto row = [&](int number, const char* length, const char* section) {
        form.enter("txtBeamLength", length);
        form.choose("cboProf", section);
        rows.clearSelection();
        rows.setCurrentItem(rows.topLevelItem(number - 1));
        form.click("Command4");
        form.click("Command6");
    };
    row(1, "6000", "HEB 400");
    row(2, "7500", "Iu 800x360x200x15x22.5x25");
    row(3, "6000", "HEB 400");
}

void enterCranes(FormHands form) {
    form.click("optTwo");
    const std::pair<const char*, const char*> entries[] = {
        {"txtGangway", "0,5"}, {"txtMinAvst", "2500"}, {"txtPsiV1", "1.15"}, {"txtV1", "60"},    {"txtV2", "55.5"},
        {"txtH1", "6"},        {"txtH2", "-4"},        {"txtAvst1", "2400"}, {"txtv5", "45"},    {"txtv6", "40"},
        {"txth5", "3"},        {"txth6", "3"},         {"txtavst4", "2000"}, {"txtPsiV2", "1.2"}};
    for (const auto& [box, text] : entries) form.enter(box, text);
    form.click("optSimultan");
    form.choose("cboCraneClass1", "S4");
    form.choose("cboCraneClass2", "S2");
}

TEST_F(WholeWork, isDoneSavedAndFoundAgain) {
    const std::string path = folder.file("hall.brvk");
    std::vector<std::string> summary;
    Project made;
    {
        WindowFixture program;
        program.questions.answers = {Answer::No};
        program.trigger("mnuArkivNytt");
        inForm(program, "mnuProfile", "frmProfile", "Command1", makeSections);
        inForm(program, "mnuBeam", "frmBeam", "cmdOK", layOutBeam);
        inForm(program, "mnuRail", "frmRail", "cmdOK", [](FormHands form) {
            form.choose("cboRail", "A 55");
            form.click("chkRail");
            form.click("optRail1");
        });
        inForm(program, "mnuLoad", "frmLoad", "cmdOK", enterCranes);
        inForm(program, "mnuFatigue", "frmFatigue1", "cmdOK", [](FormHands form) {
            form.click("Command9");
            form.click("ChkFat5Sp(2)");
            form.enter("txtFat5d1(1)", "1500");
        });
        inForm(program, "mnuSetup", "frmSetup", "CmdOK", [](FormHands form) { form.enter("igammam1", "1,1"); });
        summary = calculatedSummary(program);
        EXPECT_TRUE(program.messages.texts.empty()) << program.lastMessage();
        program.questions.toSave.push_back(path);
        program.trigger("mnuArkivSparasom");
        made = program.project();
    }
    EXPECT_EQ(made.NofSpans, 3);
    EXPECT_EQ(made.Span(2), 7500);
    EXPECT_EQ(made.SpanSection(1).DisplayName, "HEB 400");
    EXPECT_EQ(double(made.SpanSection(2).tf1), 22.5);
    EXPECT_EQ(double(made.H(2)), -4.0);
    EXPECT_EQ(made.TwoCraneMode, TwoCranes::Together);
    EXPECT_EQ(made.RailName, "A 55");
    EXPECT_GT(summary.size(), 5u);

    WindowFixture again;
    again.questions.toOpen.push_back(path);
    again.trigger("mnuArkivÖppna");
    EXPECT_EQ(again.project(), made);
    EXPECT_FALSE(again.session.Calculated);
    EXPECT_EQ(calculatedSummary(again), summary);
}

/// The steps of docs/help/tutorial.md as they stand there: a beginner must get through them without a refusal, to a
/// beam that holds.
TEST_F(WholeWork, theTutorialWorksAsWritten) {
    WindowFixture program;
    program.questions.answers = {Answer::No};
    program.trigger("mnuArkivNytt");
    for (const TutorialStep& step : tutorialSteps()) inForm(program, step.command, step.form, step.close, step.work);
    calculatedSummary(program);
    EXPECT_TRUE(program.messages.texts.empty()) << program.lastMessage();
    EXPECT_EQ(program.project().NofSpans, 2);
    EXPECT_EQ(program.project().SpanSection(2).DisplayName, "HEB 400");
    EXPECT_FALSE(program.project().Fat5);
    EXPECT_TRUE(program.control<QLabel>("stateGoverning").text().startsWith("\u2713"));
}

}  // namespace
}  // namespace borvik
