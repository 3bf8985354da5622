#include <gtest/gtest.h>

#include <QComboBox>
#include <QMenuBar>
#include <QRadioButton>
#include <QWheelEvent>
#include <cmath>
#include <functional>

#include "support/golden.h"
#include "window_support.h"

namespace borvik {
namespace {

class MainWindowTest : public testing::Test, public WindowFixture {
protected:
    void chooseMaterial(const char* name) {
        auto& box = control<QComboBox>("cbofyk");
        const int row = box.findText(name);
        ASSERT_GE(row, 0) << name;
        box.setFocus();
        box.setCurrentIndex(row);
        Q_EMIT box.activated(row);  // as a choice by the user does
    }
    void calculate() {
        click("cmdCalc");
        ASSERT_TRUE(session.Calculated) << lastMessage();
        ASSERT_FALSE(control<QPushButton>("cmdCalc").isEnabled());
    }
    void expectNotCalculated(const char* after) {
        EXPECT_FALSE(session.Calculated) << after;
        EXPECT_TRUE(control<QPushButton>("cmdCalc").isEnabled()) << after;
    }
};

TEST_F(MainWindowTest, startsWithTheDefaultProject) {
    EXPECT_EQ(window.size(), QSize(1024, 741));
    EXPECT_EQ(window.windowTitle(), "Borvik : test.brvk");
    EXPECT_EQ(control<QLineEdit>("iproj").text(), "TestProjekt");
    EXPECT_EQ(control<QLineEdit>("iident").text(), "TestTravers");
    EXPECT_EQ(control<QLineEdit>("ifyk").text(), "355");
    EXPECT_FALSE(control<QLineEdit>("ifyk").isEnabled());
    EXPECT_EQ(control<QComboBox>("cbofyk").currentText(), "S355");
    EXPECT_TRUE(control<QRadioButton>("OptOverH").isChecked());
    EXPECT_TRUE(project().BeamChecked);
    EXPECT_TRUE(control<QPushButton>("cmdCalc").isEnabled());
    EXPECT_FALSE(window.hasUnsavedChanges());
    for (const char* entry : {"mnuMRU0", "mnuMRU1", "mnuMRU2", "mnuMRU3", "mnuMRU4"})
        EXPECT_FALSE(control<QAction>(entry).isVisible()) << entry;
    for (const char* node : {"Setup", "Beam", "Profile", "Rail", "Lateral Tors Buckl", "Loads", "Fatigue"})
        EXPECT_TRUE(hasNode(node)) << node;
    EXPECT_FALSE(hasNode("Summary"));
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(MainWindowTest, fitsASmallScreen) {
    EXPECT_LE(window.minimumSizeHint().width(), 1024);
    EXPECT_LE(window.minimumSizeHint().height(), 700);
}

TEST_F(MainWindowTest, showsTenRowsOrEightNotesUncutAtItsStartSize) {
    trigger("mnuCalc");
    QCoreApplication::processEvents();
    const auto& list = control<ResultTableView>("lstViewDetailed");
    const auto& text = *list.model();
    const int governing = governingRow(list.table());
    EXPECT_EQ(text.index(governing, 1).data().toString(), "0.497");
    for (const int row : {0, 9, governing})
        EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(text.index(row, 0)))) << row;
    for (int row = 0; row < text.rowCount(); ++row) {
        const QRect cell = list.visualRect(text.index(row, 0));
        const QRect needed = list.fontMetrics().boundingRect(QRect(0, 0, cell.width() - 8, 1), Qt::TextWordWrap,
                                                             text.index(row, 0).data().toString());
        EXPECT_TRUE(needed.height() <= cell.height() && needed.width() < cell.width()) << row;
    }
    control<QToolButton>("stateNotes").click();
    QCoreApplication::processEvents();
    EXPECT_GE(list.viewport()->height(), 8 * list.rowHeight(0));
}

TEST_F(MainWindowTest, controlsHaveTheirCaptions) {
    std::string menu;
    for (const char* name :
         {"OptOverH", "OptRunW", "cmdCalc", "cmdProfile", "Command1", "Command2", "Command3", "chkStartStop"})
        menu += std::string(name) + " | " + control<QAbstractButton>(name).text().toStdString() + "\n";
    const std::function<void(const QList<QAction*>&, const std::string&)> print = [&](const auto& actions,
                                                                                      const std::string& indent) {
        for (const QAction* action : actions) {
            if (action->isSeparator() || action->objectName().isEmpty() || action->objectName().startsWith("mnuMRU"))
                continue;
            menu += indent + action->objectName().toStdString() + " | " + action->text().toStdString() + " | " +
                    QKeySequence::listToString(action->shortcuts(), QKeySequence::PortableText).toStdString() + "\n";
            if (action->menu() != nullptr) print(action->menu()->actions(), indent + "  ");
        }
    };
    print(window.menuBar()->actions(), "");
    EXPECT_EQ(testing_support::goldenDifference("menu.txt", menu), "");
}

TEST_F(MainWindowTest, aGradeSetsItsStrength) {
    calculate();
    chooseMaterial("S235");
    EXPECT_EQ(project().fyk, 235.0);
    EXPECT_EQ(project().SteelGrade, "S235");
    EXPECT_EQ(epsilonOf(session.project.fyk), 1.0);
    EXPECT_EQ(control<QLineEdit>("ifyk").text(), "235");
    EXPECT_FALSE(control<QLineEdit>("ifyk").isEnabled());
    expectNotCalculated("S235");
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(MainWindowTest, generalKeepsTheStrengthUntilTheUserTypes) {
    chooseMaterial("General");
    EXPECT_EQ(project().fyk, 355.0);
    EXPECT_TRUE(control<QLineEdit>("ifyk").isEnabled());
    enter("ifyk", "420,4");
    EXPECT_EQ(project().fyk, Single(420.4));
    EXPECT_EQ(control<QLineEdit>("ifyk").text(), "420");
    EXPECT_EQ(epsilonOf(session.project.fyk), Single(std::sqrt(235.0 / Single(420.4))));
}

TEST_F(MainWindowTest, strengthHasLimits) {
    struct Case {
        const char* typed;
        double stored;
        const char* message;
    };
    for (const Case& c :
         {Case{"50", 50.0, ""}, Case{"2000", 2000.0, ""}, Case{"49.9", 49.9, " 50 <= fyk <= 2000 "},
          Case{"2000,1", 2000.1, " 50 <= fyk <= 2000 "}, Case{"steel", 2000.0, "Input string mismatch "}}) {
        chooseMaterial("S355");
        chooseMaterial("General");
        enter("ifyk", "2000");
        calculate();
        messages.texts.clear();
        enter("ifyk", c.typed);
        EXPECT_EQ(lastMessage(), c.message) << c.typed;
        EXPECT_EQ(project().fyk, Single(c.stored)) << c.typed;
        const bool refused = *c.message != '\0';
        EXPECT_EQ(control<QLineEdit>("ifyk").hasFocus(), refused) << c.typed;
        window.WritefrmInput();
        EXPECT_EQ(control<NumberBox>("ifyk").refused(), refused) << c.typed;
        if (c.stored != 2000.0) expectNotCalculated(c.typed);
        if (refused) enter("ifyk", "2000");
    }
}

TEST_F(MainWindowTest, enterInTheIdentificationNamesTheProject) {
    chooseMaterial("General");
    auto& iident = control<QLineEdit>("iident");
    iident.setFocus();
    iident.selectAll();
    QTest::keyClicks(&iident, "Line 4");
    EXPECT_EQ(project().Proj, "TestProjekt");
    bool identWhenProjWasSet = false;
    QObject::connect(&control<ProjectPanel>(""), &ProjectPanel::namesChanged, &window, [&] {
        if (project().Proj == "Line 4" && project().Ident == "TestTravers") identWhenProjWasSet = true;
    });
    QTest::keyClick(&iident, Qt::Key_Return);
    EXPECT_TRUE(identWhenProjWasSet) << "Enter writes Proj, leaving writes Ident";
    EXPECT_EQ(project().Proj, "Line 4");
    EXPECT_EQ(project().Ident, "Line 4");
    EXPECT_TRUE(control<QLineEdit>("ifyk").hasFocus());
}

TEST_F(MainWindowTest, enterInTheProjectMovesOn) {
    calculate();
    auto& iproj = control<QLineEdit>("iproj");
    iproj.setFocus();
    iproj.selectAll();
    QTest::keyClicks(&iproj, "Harbour");
    QTest::keyClick(&iproj, Qt::Key_Return);
    EXPECT_EQ(project().Proj, "Harbour");
    EXPECT_EQ(project().Ident, "TestTravers");
    EXPECT_TRUE(control<QLineEdit>("iident").hasFocus());
    EXPECT_TRUE(session.Calculated) << "a name changes no result";
    EXPECT_TRUE(window.hasUnsavedChanges());
}

TEST_F(MainWindowTest, aMonorailStartsWithoutLoads) {
    project().NofCranes = 2;
    project().MinDistConst = 1;
    project().V(8) = 5;
    click("OptRunW");
    EXPECT_EQ(project().CraneType, CraneKind::Monorail);
    EXPECT_EQ(project().LoadLevel, LoadPoint::BottomFlange);
    EXPECT_EQ(project().NofCranes, 1);
    EXPECT_EQ(project().MinDistConst, 0.0);
    EXPECT_EQ(project().Avst, decltype(project().Avst){});
    EXPECT_EQ(project().V, decltype(project().V){});
    EXPECT_EQ(project().H, decltype(project().H){});
    expectNotCalculated("monorail");

    project().V(1) = 10;
    click("OptRunW");
    EXPECT_EQ(project().V(1), 10.0) << "a click on the type in use changes nothing";
    click("OptOverH");
    EXPECT_EQ(project().CraneType, CraneKind::Overhead);
    EXPECT_EQ(project().LoadLevel, LoadPoint::TopOfRail);
    EXPECT_EQ(project().V(1), 10.0);
}

TEST_F(MainWindowTest, aFixedCraneCannotStartOutside) {
    calculate();
    click("chkStartStop");
    EXPECT_EQ(project().StartStopOutside, 1);
    expectNotCalculated("start and stop outside");
    project().Fixerad = true;
    window.projectChanged("Position");
    EXPECT_EQ(project().StartStopOutside, 0);
    EXPECT_FALSE(control<QAbstractButton>("chkStartStop").isChecked());
    EXPECT_FALSE(control<QAbstractButton>("chkStartStop").isEnabled());
    project().Fixerad = false;
    window.WritefrmInput();
    EXPECT_TRUE(control<QAbstractButton>("chkStartStop").isEnabled());
}

TEST_F(MainWindowTest, railIsForOverheadCranesOnly) {
    click("OptRunW");
    trigger("mnuRail");
    EXPECT_EQ(lastMessage(), "Rail not available for  beams");
    clickNode("Rail");
    EXPECT_EQ(lastMessage(), " Rail not available for Monorails");
}

TEST_F(MainWindowTest, theWheelPassesBoxesWithoutFocus) {
    auto& box = control<QComboBox>("cbofyk");
    const auto turnWheel = [&] {
        QWheelEvent wheel({5, 5}, box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&box, &wheel);
    };
    control<QLineEdit>("iproj").setFocus();
    turnWheel();
    EXPECT_EQ(box.currentText(), "S355");
    EXPECT_EQ(project().fyk, 355.0);
    box.setFocus();
    turnWheel();
    EXPECT_NE(box.currentText(), "S355");
    EXPECT_NE(project().SteelGrade, "S355");
}

TEST_F(MainWindowTest, theStatusBarTellsOfValuesOutOfRange) {
    EXPECT_FALSE(control<QLabel>("stateRanges").isVisible());
    project().GammaM0 = 0.1;
    project().Fat1C1 = 35;
    window.WritefrmInput();
    EXPECT_TRUE(control<QLabel>("stateRanges").isVisible());
    EXPECT_TRUE(control<QLabel>("stateRanges").text().endsWith("gammaM0 = 0.1 lies outside 0.5 to 1.5, and 1 more"));
}

TEST_F(MainWindowTest, everyControlCanBeNamedAndReached) {
    for (QWidget* widget : window.centralWidget()->findChildren<QWidget*>()) {
        const bool input = qobject_cast<QLineEdit*>(widget) != nullptr || qobject_cast<QComboBox*>(widget) != nullptr ||
                           qobject_cast<QAbstractButton*>(widget) != nullptr;
        if (!input || widget->objectName().startsWith("qt_") || widget->objectName().isEmpty()) continue;
        const auto* option = qobject_cast<QRadioButton*>(widget);  // Tab goes to the chosen one
        EXPECT_EQ((widget->focusPolicy() & Qt::TabFocus) != 0, option == nullptr || option->isChecked())
            << widget->objectName().toStdString();
    }
}

}  // namespace
}  // namespace borvik
