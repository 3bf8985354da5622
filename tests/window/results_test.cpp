#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QDialog>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSlider>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "exchange/attached.h"
#include "support/recording_surface.h"
#include "views/detailed_result_dialog.h"
#include "window_support.h"

namespace borvik {
namespace {

class ResultsTest : public testing::Test, public WindowFixture {
protected:
    void openExample(const char* name) {
        ASSERT_TRUE(window.openProject(std::string(BORVIK_SOURCE_DIR "/examples/") + name)) << lastMessage();
    }
    void calculate() {
        click("cmdCalc");
        ASSERT_TRUE(session.Calculated) << lastMessage();
    }
    ResultTableView& list() { return control<ResultTableView>("lstViewDetailed"); }
    DiagramView& picRes() { return control<DiagramView>("picRes"); }
    /// The nodes that show results in the window itself, in their order.
    static void collect(const TreeNode& node, std::vector<TreeNode>& nodes) {
        const auto shown = {NodeOpens::Table, NodeOpens::Picture, NodeOpens::Notes};
        if (std::find(shown.begin(), shown.end(), node.opens) != shown.end()) nodes.push_back(node);
        for (const TreeNode& child : node.children) collect(child, nodes);
    }
    bool shows(const ResultTableView& view, const std::string& table) {
        return tabSeparated(view.table()) == tabSeparated(findTable(table)->fill(project(), *session.results));
    }
    std::vector<std::string> headers() {
        std::vector<std::string> texts;
        for (const TableColumn& column : list().table().columns) texts.push_back(column.header);
        return texts;
    }
    /// Runs what opens a modal window, and closes that window. @return its object name; empty when none opened
    std::string nameOfModal(const std::function<void()>& open) {
        std::string name;
        QTimer closer;
        QObject::connect(&closer, &QTimer::timeout, &closer, [&] {
            if (QWidget* modal = QApplication::activeModalWidget()) {
                name = modal->objectName().toStdString();
                modal->close();
            }
        });
        closer.start(10);
        open();
        return name;
    }
};

TEST_F(ResultsTest, aCalculationShowsSketchDiagramAndSummary) {
    calculate();
    EXPECT_FALSE(control<QPushButton>("cmdCalc").isEnabled());
    EXPECT_EQ(control<DiagramView>("picBalk").diagrams(), std::vector<Diagram>{Diagram::Sketch});
    EXPECT_EQ(picRes().diagrams(), pictureDiagrams("MyVz", project()));
    EXPECT_EQ(headers(), (std::vector<std::string>{"Control", "Interaction Ratio", "Reference "}));
    EXPECT_EQ(list().table().rows.at(0).at(0).text, "ULS - Section Control/Lateral Torsional Buckling");
    EXPECT_EQ(control<QLabel>("stateCalculated").text(), "Calculated");
    EXPECT_FALSE(window.hasUnsavedChanges()) << "what a calculation writes back is no change of the user's";
    EXPECT_TRUE(messages.texts.empty());
    for (QWidget* other : QApplication::topLevelWidgets())
        EXPECT_FALSE(other->objectName() == "frmProgress" && other->isVisible())
            << "one crane needs no progress window";
}

TEST_F(ResultsTest, everyNodeShowsWhatItNamesWhileTheResultsStand) {
    openExample("turbine-hall-tandem-lift.brvk");
    calculate();
    std::vector<TreeNode> nodes;
    collect(mainTree({"Input", "Input"}, project(), true), nodes);
    for (const TreeNode& node : nodes) {
        SCOPED_TRACE(node.text);
        clickNode(node.text.c_str());
        EXPECT_TRUE(node.opens != NodeOpens::Table || shows(list(), node.name));
        EXPECT_TRUE(node.opens != NodeOpens::Picture || picRes().diagrams() == pictureDiagrams(node.name, project()));
        EXPECT_FALSE(picRes().diagrams().empty() || picRes().grab().isNull());
    }
    EXPECT_EQ(nameOfModal([this] { clickNode("Detailed Results"); }), "frmDetailedResult");
    clickNode("Summary");
    list().selectRow(1);
    EXPECT_EQ(nameOfModal([this] { QTest::keyClick(&list(), Qt::Key_Return); }), "frmWorking") << "how it comes about";
    list().selectRow(0);
    EXPECT_EQ(nameOfModal([this] { QTest::keyClick(&list(), Qt::Key_Return); }), "") << "a heading has no ratio";
    EXPECT_TRUE(messages.texts.empty());

    click("chkStartStop");
    const auto shown = picRes().diagrams();
    const std::size_t rows = list().table().rows.size();
    for (const TreeNode& node : nodes) clickNode(node.text.c_str());
    clickNode("Detailed Results");
    EXPECT_EQ(messages.texts,
              std::vector<std::string>(nodes.size() + 1, " Calculate before results can be presented "));
    for (const char* head : {"Borvik", "Input", "Results", "Diagram"}) clickNode(head);
    EXPECT_EQ(messages.texts.size(), nodes.size() + 1);
    EXPECT_EQ(picRes().diagrams(), shown);
    EXPECT_EQ(list().table().rows.size(), rows);
}

TEST_F(ResultsTest, withoutHorizontalLoadsTreeAndPictureStayWithTheVerticalOnes) {
    project().H = {};
    project().HasLoadsY = false;
    calculate();
    EXPECT_FALSE(hasNode("Cr2-Point 1"));
    clickNode("Uz + Uy");
    EXPECT_EQ(picRes().diagrams(), std::vector<Diagram>{Diagram::SlsUz});
    clickNode("Mz + Vy");
    EXPECT_EQ(lastMessage(), " No loads in y-direction");
    EXPECT_EQ(picRes().diagrams(), std::vector<Diagram>{Diagram::SlsUz});
    EXPECT_EQ(control<ResultTreeView>("TreeView1").currentItem()->text(0), "Uz + Uy");
}

TEST_F(ResultsTest, detailedResultsShowEveryTableAndOpenWideEnough) {
    for (const bool horizontal : {true, false}) {
        openExample("assembly-hall-two-cranes.brvk");
        if (!horizontal) project().H = {};
        project().HasLoadsY = horizontal;
        calculate();
        DetailedResultDialog detailed(window.calculation(), &window);
        detailed.show();
        auto* tree = detailed.findChild<ResultTreeView*>("TreeView1");
        auto* shown = detailed.findChild<ResultTableView*>("lstViewDetailed");
        EXPECT_EQ(tree->currentItem()->text(0), "MyVz max/min");
        EXPECT_TRUE(shows(*shown, "MyVz"));
        std::vector<TreeNode> nodes;
        collect(detailedTree(project()), nodes);
        EXPECT_EQ(nodes.size(), 8U);
        for (const TreeNode& node : nodes) {
            Q_EMIT tree->itemClicked(tree->itemOf(QString::fromStdString(node.text)), 0);
            EXPECT_EQ(shows(*shown, node.name), horizontal || !node.needsLoadsY) << node.text;
        }
        QTest::mouseClick(detailed.findChild<QPushButton*>("cmbOk"), Qt::LeftButton);
        EXPECT_FALSE(detailed.isVisible());
    }
}

TEST_F(ResultsTest, twoCranesShowTheirProgress) {
    openExample("assembly-hall-two-cranes.brvk");
    calculate();
    auto* progress = window.findChild<ProgressDialog*>("frmProgress");
    ASSERT_NE(progress, nullptr);
    EXPECT_TRUE(progress->isVisible());
    EXPECT_FALSE(progress->isModal());
    EXPECT_EQ(progress->windowTitle(), "Calculating...");
    const QString text = progress->findChild<QPlainTextEdit*>("txt")->toPlainText();
    for (const char* line : {"Calculating ULS ...100%", "Calculating SLS finnished", "Calculating FLS finnished",
                             "Calculation FLS finnished  - 00:00:0"})
        EXPECT_TRUE(text.contains(line)) << line << " in\n" << text.toStdString();
    auto* cmdOK = progress->findChild<QPushButton*>("cmdOK");
    EXPECT_EQ(cmdOK->text(), "Close");
    EXPECT_TRUE(cmdOK->isEnabled());
    QTest::mouseClick(cmdOK, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_FALSE(progress->isVisible());
    EXPECT_TRUE(control<QLineEdit>("iproj").hasFocus());
    window.WritefrmInput();
    EXPECT_TRUE(hasNode("Cr2-Point 1")) << "the window's own refresh keeps the results";
}

TEST_F(ResultsTest, aChangeMarksEverythingOutOfDate) {
    calculate();
    EXPECT_FALSE(picRes().outOfDate());
    const QImage current = picRes().grab().toImage();
    click("chkStartStop");
    EXPECT_TRUE(picRes().outOfDate());
    EXPECT_NE(picRes().grab().toImage(), current);
    EXPECT_TRUE(control<QLabel>("lstViewDetailedOutOfDate").isVisible());
    EXPECT_EQ(control<QLabel>("stateCalculated").text(), "Out of date: calculate again");
    EXPECT_FALSE(control<QLabel>("stateGoverning").isVisible());
    list().selectAll();
    QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_TRUE(QApplication::clipboard()->text().startsWith("Out of date"));

    project().Span(3) = 0;  // a shorter beam than the one that is shown
    project().NofSpans = 2;
    window.projectChanged("Beam");
    EXPECT_FALSE(picRes().grab().isNull());
    project().Span(3) = 6000;
    click("chkStartStop");
    calculate();
    EXPECT_FALSE(picRes().outOfDate());
    EXPECT_FALSE(control<QLabel>("lstViewDetailedOutOfDate").isVisible());
}

TEST_F(ResultsTest, aRefusedRunChangesNothingElse) {
    calculate();
    project().Span(2) = 0;
    window.projectChanged("Beam");
    trigger("mnuCalc");
    EXPECT_EQ(messages.texts, std::vector<std::string>{" An inner beam can't have length = 0 "});
    EXPECT_FALSE(session.Calculated);
    EXPECT_TRUE(control<QPushButton>("cmdCalc").isEnabled());
    EXPECT_TRUE(picRes().outOfDate());
}

TEST_F(ResultsTest, aRunTimeFaultLeavesTheWindowAlive) {
    project().SpanSection(2).TableName = "HEA 17";
    const Project entered = project();
    trigger("mnuCalc");
    ASSERT_EQ(messages.texts.size(), 1U);
    EXPECT_NE(lastMessage().find("HEA 17"), std::string::npos) << lastMessage();
    EXPECT_EQ(project().SpanSection, entered.SpanSection);
    EXPECT_FALSE(session.Calculated);
    project().SpanSection(2) = project().SpanSection(1);
    calculate();
}

TEST_F(ResultsTest, aClickOnTheSketchOpensTheLoads) {
    auto& sketch = control<DiagramView>("picBalk");
    const auto clickAt = [&](double x) {
        int pixel = 0;  // the first whose place is not below x
        while (sketch.toLogical(QPointF(pixel, 40)).x < x) ++pixel;
        return nameOfModal([&] { QTest::mouseClick(&sketch, Qt::LeftButton, {}, QPoint(pixel, 40)); });
    };
    EXPECT_EQ(clickAt(97.0), "");
    EXPECT_EQ(clickAt(100.0), "frmLoad");
    EXPECT_EQ(clickAt(797.0), "frmLoad");
    EXPECT_EQ(clickAt(800.0), "");
    click("OptRunW");
    EXPECT_EQ(clickAt(400.0), "frmLoadRunway");
}

TEST_F(ResultsTest, anInputFormPutsResultsOutOfReachUntilItClosesWithoutAnEdit) {
    calculate();
    for (const char* form : {"mnuLoad", "mnuBeam", "mnuProfile", "mnuRail", "mnuLateral", "mnuFatigue", "mnuSetup"}) {
        QTimer::singleShot(0, &window, [this] {
            EXPECT_FALSE(picRes().outOfDate());
            if (session.Calculated) return;  // the setup form alone waits for an edit
            EXPECT_EQ(control<QLabel>("stateCalculated").text(), "Form open");
            EXPECT_TRUE(control<QPushButton>("cmdCalc").isEnabled());
        });
        EXPECT_NE(nameOfModal([&] { trigger(form); }), "");
        EXPECT_TRUE(session.Calculated) << form;
        EXPECT_TRUE(hasNode("Summary")) << form;
        EXPECT_FALSE(picRes().outOfDate());
        EXPECT_FALSE(window.hasUnsavedChanges()) << form;
        EXPECT_FALSE(control<QAction>("mnuUndo").isEnabled()) << form;
    }
    click("chkStartStop");
    EXPECT_TRUE(picRes().outOfDate());
    trigger("mnuUndo");
    EXPECT_FALSE(picRes().outOfDate()) << "back at what was calculated";
    EXPECT_TRUE(hasNode("Summary"));
}

TEST_F(ResultsTest, theArrowKeysReadThePicture) {
    calculate();
    QSignalSpy read(&picRes(), &DiagramView::readingChanged);
    const auto press = [&](std::initializer_list<int> keys, Qt::KeyboardModifiers with = {}) {
        for (const int key : keys) QTest::keyClick(&picRes(), static_cast<Qt::Key>(key), with);
        return read.last().at(0).toString().section(':', 0, 0).toStdString();
    };
    const int half = static_cast<int>(double(project().Span(1)) / 2.0), part = half / 10;
    EXPECT_EQ(press({Qt::Key_Right}), "Span 1, x = 0 mm");
    EXPECT_EQ(press({Qt::Key_Right, Qt::Key_Right, Qt::Key_Left}), "Span 1, x = " + std::to_string(part) + " mm");
    EXPECT_EQ(press({Qt::Key_Right}, Qt::ControlModifier), "Support 2");
    EXPECT_EQ(press({Qt::Key_End, Qt::Key_Right}), "Span 3, x = " + formatNumber(project().Span(3), "0") + " mm");
    EXPECT_EQ(press({Qt::Key_Left, Qt::Key_Left}, Qt::ControlModifier), "Support 2");
    const auto quantity = [&] { return read.last().at(0).toString().section(": ", 1).left(3).toStdString(); };
    picRes().showResults({Diagram::UlsMyVz, Diagram::SlsUz}, window.calculation());
    press({Qt::Key_Home});
    EXPECT_EQ(quantity(), "My ");
    press({Qt::Key_Down});
    EXPECT_EQ(quantity().front(), 'U');
    EXPECT_EQ(nameOfModal([&] { QTest::keyClick(&control<DiagramView>("picBalk"), Qt::Key_Return); }), "frmLoad");
}

TEST_F(ResultsTest, theMenuCopiesThePictureThatHasTheFocus) {
    const auto copied = [this] {
        trigger("mnuCopyPicture");
        return QApplication::clipboard()->image().height();
    };
    EXPECT_EQ(copied(), 500) << "the sketch, as there are no results";
    calculate();
    picRes().showResults({Diagram::UlsMyVz, Diagram::SlsUz}, window.calculation());
    EXPECT_EQ(copied(), 1000);
    control<DiagramView>("picBalk").setFocus();
    EXPECT_EQ(copied(), 500);
}

TEST_F(ResultsTest, aDarkScreenHasDarkDiagramsAndCopiesWhiteOnes) {
    trigger("mnuCalc");
    QPalette dark = picRes().palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    picRes().setPalette(dark);
    const QImage shown = picRes().grab().toImage();
    EXPECT_EQ(shown.pixelColor(3, 3), QColor(30, 30, 30));
    int light = 0, red = 0;
    for (int x = 0; x < shown.width(); ++x)
        for (int y = 0; y < shown.height(); ++y) {
            const QColor colour = shown.pixelColor(x, y);
            light += colour.lightness() > 180 && colour.hslSaturation() < 20;
            red += colour.red() > colour.green() + 60 && colour.red() > colour.blue() + 60;
        }
    EXPECT_TRUE(light > 500 && light < shown.width() * shown.height() / 10) << light;
    EXPECT_GT(red, 300) << "the beam keeps its hue";
    picRes().copyPicture();
    EXPECT_EQ(QGuiApplication::clipboard()->image().pixelColor(3, 3), QColor(Qt::white));
}

TEST_F(ResultsTest, theKeyboardWalksOverResultsAndOpensNoWindow) {
    calculate();
    auto& tree = control<ResultTreeView>("TreeView1");
    tree.setFocus();
    tree.setCurrentItem(tree.itemOf("Mz + Vy"));
    EXPECT_EQ(nameOfModal([&] { QTest::keyClick(&tree, Qt::Key_Down); }), "");
    EXPECT_EQ(picRes().diagrams(), pictureDiagrams("Uz", project()));
    tree.setCurrentItem(tree.itemOf("Fatigue"));
    EXPECT_EQ(nameOfModal([&] { QTest::keyClick(&tree, Qt::Key_Up); }), "");
    EXPECT_EQ(nameOfModal([&] { QTest::keyClick(&tree, Qt::Key_Return); }), "frmLoad");
}

TEST_F(ResultsTest, stepsAndAboutOpen) {
    EXPECT_EQ(nameOfModal([this] { click("Command3"); }), "frmTemp");
    EXPECT_EQ(nameOfModal([this] { trigger("mnuAbout"); }), "frmabout");
    CranePositionsDialog before(nullptr, nullptr);
    auto* list = before.findChild<ResultTableView*>("lstViewTemp");
    EXPECT_EQ(list->table().columns.size(), 9U);
    EXPECT_TRUE(list->table().rows.empty());
    calculate();
    CranePositionsDialog after(window.calculation(), nullptr);
    EXPECT_FALSE(after.findChild<ResultTableView*>("lstViewTemp")->table().rows.empty());
}

/// A table with everything that a list has to cope with.
ResultTable mixedTable() {
    ResultTable table;
    table.columns = {{"Control", "", ""}, {"Interaction Ratio", "-", "help"}, {"Reference ", "", ""}};
    table.rows = {{{"Heading", Emphasis::Heading, {}, ""}},
                  {{"holds", {}, {}, ""}, {"1.000", Emphasis::None, 1.0, "0.000"}, {"ref", {}, {}, ""}},
                  {{"fails", {}, {}, ""}, {"1.000", Emphasis::OverLimit, 1.0001, "0.000"}, {"ref", {}, {}, ""}}};
    return table;
}

TEST(ResultTableModel, marksRatiosOverOneByMoreThanColour) {
    ResultTableModel model;
    const QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setTable(mixedTable());
    const QModelIndex holds = model.index(1, 1), fails = model.index(2, 1);
    EXPECT_EQ(fails.data().toString(), "1.000");
    EXPECT_EQ(fails.data(Qt::EditRole).toDouble(), 1.0001);
    EXPECT_EQ(fails.data(Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
    EXPECT_FALSE(fails.data(Qt::DecorationRole).isNull());
    EXPECT_TRUE(holds.data(Qt::ForegroundRole).isNull());
    EXPECT_TRUE(holds.data(Qt::DecorationRole).isNull());
    EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Interaction Ratio\n-");
    EXPECT_TRUE(model.index(0, 2).data().isNull()) << "a short row is empty to the right";
    model.setOutOfDate(true);
    EXPECT_EQ(fails.data(Qt::ForegroundRole), holds.data(Qt::ForegroundRole));
}

TEST(ResultTableView, copiesAsTabSeparatedText) {
    ResultTableView view;
    view.resize(600, 300);
    view.showTable(mixedTable());
    view.selectAll();
    EXPECT_EQ(view.selectionText(true),
              "Control\tInteraction Ratio -\tReference\nHeading\t\t\nholds\t1.000\tref\nfails\t1.000\tref\n");
    view.clearSelection();
    view.selectionModel()->select(view.model()->index(1, 2), QItemSelectionModel::Select);
    view.selectionModel()->select(view.model()->index(2, 0), QItemSelectionModel::Select);
    EXPECT_EQ(view.selectionText(false), "\tref\nfails\t\n") << "cells keep their columns";
    QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "\tref\nfails\t\n");
    EXPECT_TRUE(QApplication::clipboard()->mimeData()->hasHtml());
}

TEST(ResultTableView, theFirstColumnStaysInView) {
    ResultTable table;
    for (int column = 0; column < 12; ++column) table.columns.push_back({"Column " + std::to_string(column), "", ""});
    for (int row = 0; row < 50000; ++row) table.rows.push_back({{std::to_string(row), {}, double(row), "0"}});
    ResultTableView view;
    view.resize(400, 300);
    view.show();
    view.showTable(table);
    auto* first = view.findChild<QTableView*>();
    EXPECT_FALSE(first->isVisible());
    view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->maximum());
    view.verticalScrollBar()->setValue(777);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(first->columnAt(5), 0);
    EXPECT_EQ(first->rowAt(5), view.rowAt(5));
}

TEST(Pictures, areSavedAsPngAndSvg) {
    testing_support::TempFolder folder;
    MessageList messages;
    PreparedAnswers questions;
    SettingsInMemory settings;
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    DiagramView view({messages, questions, settings});
    view.showSketch(session.project);
    questions.toSave = {folder.file("a.png"), folder.file("a.svg"), folder.file("no/such/a.png"), std::nullopt};
    for (int i = 0; i < 4; ++i) view.savePictureAs();
    EXPECT_FALSE(QImage(QString::fromStdString(folder.file("a.png"))).isNull());
    EXPECT_NE(testing_support::bytesOf(folder.file("a.svg")).find("Beam Data"), std::string::npos);
    EXPECT_EQ(messages.texts.size(), 1U);
}

TEST_F(ResultsTest, theCranesGoWhereAResultIsReachedAndAreDrivenFromThere) {
    openExample("assembly-hall-two-cranes.brvk");
    calculate();
    auto& crane1 = control<QSlider>("driveCrane1");
    auto& crane2 = control<QSlider>("driveCrane2");
    const auto stand = [&](WalkPosition at) { return crane1.value() == at.j && crane2.value() == at.j + at.k; };
    const auto chooseRow = [&](const char* formula) {
        const auto& rows = list().table().rows;
        for (std::size_t row = 0; row < rows.size(); ++row)
            if (rows[row][0].text.rfind(formula, 0) == 0) {
                list().selectRow(static_cast<int>(row));
                QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                                  list().visualRect(list().currentIndex()).center());
                return;
            }
        FAIL() << formula;
    };
    const auto copiedHeight = [&] {
        picRes().copyPicture();
        return QApplication::clipboard()->image().height();
    };
    const int undriven = copiedHeight();
    const CheckResults& checks = session.results->Checks;
    chooseRow("IR = dz");
    EXPECT_EQ(picRes().diagrams(), pictureDiagrams("Uz", project()));
    EXPECT_TRUE(stand(checks["DefZ"].governing.Stands[0].at));
    chooseRow("IR = [My");
    const WalkPosition bending = checks["Bend"].governing.Stands[0].at;
    EXPECT_EQ(picRes().diagrams(), pictureDiagrams("MyVz", project()));
    EXPECT_TRUE(stand(bending));
    EXPECT_EQ(copiedHeight(), 2 * undriven) << "the sketch with the cranes stands above";

    QTest::keyClick(&crane1, Qt::Key_Right);
    QTest::keyClick(&crane1, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&crane1, Qt::Key_Left);
    EXPECT_EQ(crane1.value(), bending.j + 10);
    crane2.setValue(0);
    EXPECT_EQ(crane1.value(), 0) << "crane 2 stands right of crane 1";
    QTest::keyClick(&crane1, Qt::Key_Space);
    EXPECT_TRUE(QTest::qWaitFor([&] { return crane1.value() >= 3; }, 2000));
    QTest::keyClick(&crane1, Qt::Key_Space);
    const int stopped = crane1.value();
    QTest::qWait(60);
    EXPECT_EQ(crane1.value(), stopped);
    QTest::keyClick(&crane1, Qt::Key_Backspace);
    EXPECT_TRUE(stand(bending));

    crane1.setValue(30);
    const double total = project().BeamLength;
    const UlsResults& uls = session.results->Uls;
    const Place peak{50.0 + 900.0 * uls.MyMaxSpan(1, UlsResults::kPlaceSlot) / total, 76.0 + 40.0};
    const Place pixel = pictureFrame(picRes().diagrams()).pointOf(peak, picRes().width(), picRes().height());
    QTest::mouseClick(&picRes(), Qt::LeftButton, {}, QPointF(pixel.x, pixel.y).toPoint());
    EXPECT_TRUE(stand(uls.At.MyMax(1, kWholeSpan)));

    QTest::keyClick(&crane1, Qt::Key_Escape);
    EXPECT_EQ(copiedHeight(), undriven);
    window.projectChanged("Loads");
    EXPECT_FALSE(crane1.isEnabled()) << "the results are out of date";
}

TEST_F(ResultsTest, theMouseReadsThePointThatIsDrawnUnderIt) {
    project().Span(1) = 6000;
    project().Span(2) = 7000;
    calculate();
    DiagramView view({messages, questions, settings});
    view.showResults({Diagram::UlsMyVz}, window.calculation());
    RecordingSurface drawn(1000, 300);
    drawPicture(drawn, view.diagrams(), {project(), &*session.results});
    const auto total = static_cast<double>(project().Span(1) + project().Span(2) + project().Span(3));
    QSignalSpy read(&view, &DiagramView::readingChanged);
    const auto readingAt = [&](double along) {
        const double unit = 50.0 + 900.0 * along / total;
        const QPointF pixel((unit - drawn.left) / (drawn.right - drawn.left) * view.width(), 20.0);
        QMouseEvent move(QEvent::MouseMove, pixel, view.mapToGlobal(pixel), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&view, &move);
        return read.last().at(0).toString().toStdString();
    };
    const UlsResults& uls = session.results->Uls;
    for (const QSize size : {QSize(437, 150), QSize(1024, 300), QSize(2560, 900)}) {
        view.resize(size);
        EXPECT_THAT(readingAt(0.0), testing::StartsWith("Span 1, x = 0 mm: My max 0.0 kNm, My min 0.0 kNm, Vz max " +
                                                        formatNumber(uls.VzMaxPoint(1, 1, 2) / 1000.0, "0.0")));
        const std::string both = readingAt(6000.0);
        EXPECT_THAT(both, testing::StartsWith("Support 2: My max"));
        EXPECT_THAT(both, testing::HasSubstr("Vz max " + formatNumber(uls.VzMaxPoint(1, 21, 2) / 1000.0, "0.0") +
                                             " | " + formatNumber(uls.VzMaxPoint(2, 1, 2) / 1000.0, "0.0") + " kN"));
        EXPECT_THAT(readingAt(6000.0 + 3500.0), testing::StartsWith("Span 2, x = 3500 mm"));
        EXPECT_THAT(readingAt(total),
                    testing::StartsWith("Span 3, x = " + formatNumber(project().Span(3), "0") + " mm"));
    }
}

TEST_F(ResultsTest, theBeamIsSeenCloserAtThePointerInBothPicturesAndReadAtItsPoints) {
    calculate();
    auto& sketch = control<DiagramView>("picBalk");
    const double length = project().Span(1) + project().Span(2) + project().Span(3);
    const auto pixelOf = [&](double along) {
        const BeamPart part = picRes().part().isWhole() ? BeamPart{0.0, length} : picRes().part();
        const double unit = 50.0 + 900.0 * (along - part.from) / (part.to - part.from);
        return QPointF((unit + 6.0) / 1012.0 * picRes().width(), 20.0);
    };
    const auto mouse = [&](QEvent::Type type, QPointF at, Qt::MouseButton button) {
        QMouseEvent event(type, at, picRes().mapToGlobal(at), button, button, Qt::NoModifier);
        QApplication::sendEvent(&picRes(), &event);
    };
    const auto readingAt = [&](double along) {
        QSignalSpy read(&picRes(), &DiagramView::readingChanged);
        mouse(QEvent::MouseMove, pixelOf(along), Qt::NoButton);
        return read.last().at(0).toString().toStdString();
    };
    const double along = project().Span(1) + 0.25 * project().Span(2);
    const std::string there = readingAt(along);
    EXPECT_EQ(readingAt(along + 0.01 * project().Span(2)), there);  // the point next to it

    const QPointF at = pixelOf(along);
    QWheelEvent wheel(at, picRes().mapToGlobal(at), {}, {0, 480}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&picRes(), &wheel);
    const BeamPart part = picRes().part();
    EXPECT_NEAR(part.to - part.from, length / std::pow(1.25, 4), 1.0);
    EXPECT_NEAR(pixelOf(along).x(), at.x(), 1e-6);
    EXPECT_EQ(readingAt(along), there);
    EXPECT_EQ(sketch.part().from, part.from);

    mouse(QEvent::MouseButtonPress, {300.0, 20.0}, Qt::LeftButton);
    mouse(QEvent::MouseMove, {200.0, 20.0}, Qt::LeftButton);
    EXPECT_GT(sketch.part().from, part.from);
    EXPECT_NEAR(sketch.part().to - sketch.part().from, part.to - part.from, 1e-6);
    mouse(QEvent::MouseButtonRelease, {200.0, 20.0}, Qt::LeftButton);
    QTest::keyClick(&picRes(), Qt::Key_Home);
    EXPECT_TRUE(picRes().part().isWhole() && sketch.part().isWhole());
}

TEST_F(ResultsTest, textsBesideAHeadingAreNotCovered) {
    calculate();
    for (const char* name : {"CodeStatic", "CodeFatigue"}) {
        ResultTableView view;
        view.showTable(findTable(name)->fill(project(), *session.results));
        for (int row = 0; row < view.model()->rowCount(); ++row)
            for (int column = 0; column < view.model()->columnCount(); ++column) {
                const QModelIndex cell = view.model()->index(row, column);
                if (cell.data().toString().isEmpty()) continue;
                EXPECT_EQ(view.indexAt(view.visualRect(cell).center()).column(), column)
                    << name << ": " << cell.data().toString().toStdString();
            }
    }
}

/// With crane data the answer is that of all groups, and a row of the matrix opens its calculation.
TEST_F(ResultsTest, groupsOfCraneDataStandBesideEachOther) {
    EXPECT_FALSE(hasNode("Compare groups"));
    actions::CraneData crane;
    crane.bridge = 30, crane.crab = 8, crane.hoist = 60, crane.span = 15;
    crane.spacing = {1.9};
    attach(session.project, {.cranes = {crane}});
    calculate();
    clickNode("Compare groups");
    ASSERT_EQ(list().table().rows.size(), 7U) << "1, 3, 4, 5 both ways, 6, 8";
    EXPECT_EQ(list().table().rows[0][0].text, "Group 1");
    EXPECT_NE(control<QLabel>("stateGoverning").text().indexOf("(Group"), -1);
    list().selectRow(3);
    EXPECT_EQ(nameOfModal([this] { QTest::keyClick(&list(), Qt::Key_Return); }), "frmWorking");
}

}  // namespace
}  // namespace borvik
