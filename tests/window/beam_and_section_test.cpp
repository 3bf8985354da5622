#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <cstring>

#include "dialogs/span_list.h"
#include "window/form_support.h"

namespace borvik {
namespace {

class BeamForm : public FormTest {
protected:
    void openBeam() {
        open(DialogKind::Beam);
        list = &control<QTreeWidget>("lstViewTill");
    }
    void select(int row) {
        list->clearSelection();
        list->setCurrentItem(list->topLevelItem(row - 1));
    }
    std::string cell(int row, int column) { return list->topLevelItem(row - 1)->text(column).toStdString(); }

    QTreeWidget* list = nullptr;
};

TEST_F(BeamForm, showsThirtyRowsAndTheFirstLength) {
    openBeam();
    EXPECT_EQ(focused(), "txtBeamLength");
    EXPECT_EQ(shown("txtBeamLength"), "4000");
    ASSERT_EQ(list->topLevelItemCount(), 30);
    EXPECT_EQ(cell(2, 1), "5000");
    EXPECT_EQ(cell(2, 2), "HEA 300");
    EXPECT_EQ(cell(30, 0), "30");
    EXPECT_TRUE(list->topLevelItem(29)->font(0).bold());
    EXPECT_EQ(cell(30, 1), "0");
}

TEST_F(BeamForm, buttonsGiveLengthAndSectionToOneRow) {
    openBeam();
    enter("txtBeamLength", "7200");
    control<QComboBox>("cboProf").setCurrentIndex(2);
    select(2);
    click("Command4");
    EXPECT_EQ(project.Span(2), 7200);
    EXPECT_EQ(cell(2, 1), "7200");
    EXPECT_EQ(project.SpanSection(2).DisplayName, "HEA 300");
    click("Command6");
    EXPECT_EQ(project.SpanSection(2).DisplayName, "Iu 700x300x200x15x25x25");
    EXPECT_EQ(double(project.SpanSection(2).b2), 200.0);
    EXPECT_EQ(cell(2, 2), "Iu 700x300x200x15x25x25");
    EXPECT_TRUE(project.SectionList(2).InUse);
    EXPECT_EQ(project.Span(1), 4000);
    EXPECT_GT(changes, 0);
}

TEST_F(BeamForm, rowsInUseReachToTheLastLengthOrToTheSelectedRow) {
    const struct {
        const char* button;
        int selected, last;
        bool length, section;
    } cases[] = {{"Command5", 1, 3, true, false},
                 {"Command5", 5, 5, true, false},
                 {"Command7", 2, 3, false, true},
                 {"Command1", 4, 4, true, true}};
    for (const auto& each : cases) {
        session = Session(referenceTables());
        openBeam();
        enter("txtBeamLength", "3000");
        control<QComboBox>("cboProf").setCurrentIndex(1);
        select(each.selected);
        click(each.button);
        SCOPED_TRACE(each.button);
        for (int row = 1; row <= 30; ++row) {
            const bool within = row <= each.last;
            EXPECT_EQ(project.Span(row) == 3000, within && each.length) << row;
            EXPECT_EQ(project.SpanSection(row).Id == "Is", within && each.section) << row;
        }
        EXPECT_EQ(project.Span(1), each.length ? 3000 : 4000);
        form.reset();
    }
}

TEST_F(BeamForm, headsSelectRows) {
    project.SpanSection(3) = SectionRecord();
    project.Span(7) = 1000;
    openBeam();
    const auto selected = [this](int column) {
        Q_EMIT list->header()->sectionClicked(column);
        return list->selectedItems().size();
    };
    EXPECT_EQ(selected(0), 30);
    EXPECT_EQ(selected(1), 4);
    EXPECT_EQ(selected(2), 2);
}

TEST_F(BeamForm, deleteClearsARowAndAHoleIsRefusedOnClosing) {
    openBeam();
    select(2);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(project.Span(2), 0);
    EXPECT_EQ(project.SpanSection(2), SectionRecord());
    EXPECT_EQ(cell(2, 1), "0");
    EXPECT_EQ(cell(2, 2), "");
    session.Calculated = true;
    click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(lastMessage(), " An inner beam can't have length = 0 ");
    EXPECT_FALSE(project.BeamChecked);
    EXPECT_FALSE(session.Calculated);
    select(3);
    QTest::keyClick(list, Qt::Key_Delete);
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(project.BeamChecked);
    EXPECT_EQ(project.NofSpans, 1);
}

/// A key of the keyboard, to whatever has the focus.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QCoreApplication::processEvents();
}
void typeKeys(const char* text) {
    for (const char* each = text; *each != 0; ++each) QTest::keyClick(QApplication::focusWidget(), *each);
}

TEST_F(BeamForm, twelveSpansWithThreeSectionsAreAMatterOfFewKeys) {
    openBeam();
    int keys = 0;
    const auto type = [&keys](const char* text) {
        typeKeys(text);
        keys += static_cast<int>(std::strlen(text));
    };
    const auto times = [&keys](int n, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        for (int i = 0; i < n; ++i) press(key, modifiers);
        keys += n;
    };
    type("7500");
    times(2, Qt::Key_Return);  // length, section, list
    times(12, Qt::Key_Return);
    times(1, Qt::Key_Up);
    times(3, Qt::Key_Up, Qt::ShiftModifier);
    type("is");
    times(1, Qt::Key_Return);
    times(5, Qt::Key_Up);
    times(3, Qt::Key_Up, Qt::ShiftModifier);
    type("iu");
    times(1, Qt::Key_Return);
    EXPECT_LT(keys, 40);
    for (int row = 1; row <= 12; ++row) {
        EXPECT_EQ(project.Span(row), 7500) << row;
        EXPECT_EQ(project.SpanSection(row).Id, row < 5 ? "HEA" : row < 9 ? "Iu" : "Is") << row;
    }
    EXPECT_EQ(project.Span(13), 0);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(BeamForm, aCellTakesALengthOrASectionForAllSelectedRows) {
    const struct {
        const char *text, *message;
        int length;
    } cases[] = {{"200", "", 200},
                 {"7500,5", "", 7501},
                 {"4000000", "", 4000000},
                 {"199", " 200 < Beam length L < 2 ", 5000},
                 {"4000001", " 200 < Beam length L < 2 ", 5000},
                 {"1 850", "Input string mismatch ", 5000},
                 {"HEB 400", "The project's list has no section of this name", 5000},
                 {"iu700x300x200x15x25x25", "", 5000}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.text);
        session = Session(referenceTables());
        messages.texts.clear();
        openBeam();
        list->setFocus();
        list->clearSelection();
        list->setCurrentItem(list->topLevelItem(1));
        list->topLevelItem(2)->setSelected(true);
        typeKeys(each.text);
        press(Qt::Key_Return);
        EXPECT_EQ(lastMessage(), each.message);
        EXPECT_EQ(project.Span(1), 4000);
        EXPECT_EQ(project.Span(2), each.length);
        EXPECT_EQ(project.Span(3) == each.length, *each.message == 0 && each.length != 5000) << project.Span(3);
        EXPECT_EQ(project.SpanSection(3).Id, each.text[0] == 'i' ? "Iu" : "HEA");
        const bool open = focused() != "lstViewTill";
        EXPECT_EQ(open, *each.message != 0);
        if (open) press(Qt::Key_Escape);
        EXPECT_TRUE(form->isVisible());
        form.reset();
    }
}

TEST_F(BeamForm, aPasteIsTakenAsAWholeOrNotAtAll) {
    openBeam();
    const Project before = project;
    const std::pair<const char*, const char*> refused[] = {
        {"6000\n150\n", "Row 2 of what is pasted, \"150\":  200 < Beam length L < 2 "},
        {"6000\n7 000", "Row 2 of what is pasted, \"7 000\": Input string mismatch "},
        {"6000\tHEB 1\n", "Row 1 of what is pasted, \"6000 HEB 1\": the project's list has no section \"HEB 1\""},
        {"1\t\t2", "Row 1 of what is pasted, \"1 2\": more than a length and a section"}};
    auto& spans = dynamic_cast<SpanList&>(*list);
    select(2);
    for (const auto& [text, message] : refused) {
        spans.paste(QString::fromUtf8(text));
        EXPECT_EQ(lastMessage(), message);
        EXPECT_EQ(project.Span, before.Span);
    }
    spans.paste(QString("300\n").repeated(30));
    EXPECT_EQ(lastMessage(), "Row 30 of what is pasted lies below the last row of the list");
    QApplication::clipboard()->setText("6000\tIs 700x300x15x25\r\n7000,4\t\r\nHEA 300\n\n");
    list->setFocus();
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(project.Span(2), 6000);
    EXPECT_EQ(project.SpanSection(2).Id, "Is");
    EXPECT_EQ(project.Span(3), 7000);
    EXPECT_EQ(project.SpanSection(4).Id, "HEA");
    EXPECT_EQ(project.Span(1), 4000);
}

TEST_F(BeamForm, spansGoInAndOutAndSplicesStayInTheirSpans) {
    project.ChkFat5Sp(1) = project.ChkFat5Sp(2) = true;
    project.Fat5Span(1) = 2;
    project.Fat5Span(2) = 3;
    openBeam();
    select(2);
    QTest::keyClick(list, Qt::Key_Insert);
    EXPECT_EQ(project.Span(2), 0);
    EXPECT_EQ(project.Span(3), 5000);
    EXPECT_EQ(project.Fat5Span(1), Single(3));
    EXPECT_EQ(project.Fat5Span(2), Single(4));
    click("cmdOK");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(dynamic_cast<SpanList&>(*list).marked(), 2);
    list->topLevelItem(2)->setSelected(true);
    QTest::keyClick(list, Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(project.SpanSection(2).Id, "HEA");
    EXPECT_EQ(project.Span(3), 0);
    EXPECT_FALSE(project.ChkFat5Sp(1));
    EXPECT_EQ(project.Fat5Span(2), Single(2));
}

TEST_F(BeamForm, sectionsThatStartAtAnotherRowAreShownFromTheFirst) {
    for (const int first : {2, 31, 1000000}) {
        Array<SectionRecord> moved(first, first + 2);
        for (SectionRecord& section : moved) section = project.SectionList(0);
        project.SpanSection = moved;
        openBeam();
        EXPECT_EQ(cell(3, 2), "HEA 300");
        EXPECT_EQ(cell(4, 2), "");
        form.reset();
    }
}

TEST_F(BeamForm, ownWeightFollowsItsBoxAndTheSectionFormBringsNewSections) {
    openBeam();
    click("chkDead");
    EXPECT_FALSE(project.SelfWeight);
    click("cmdEgetTvsnitt");
    auto* sections = form->findChild<QDialog*>("frmProfile");
    ASSERT_NE(sections, nullptr);
    sections->findChild<QComboBox*>("cboEuprofile")->setCurrentIndex(0);
    Q_EMIT sections->findChild<QComboBox*>("cboEuprofile")->activated(0);
    sections->findChild<QPushButton*>("addtoDBIu")->click();
    sections->findChild<QPushButton*>("Command1")->click();
    EXPECT_EQ(control<QComboBox>("cboProf").count(), 4);
    EXPECT_EQ(control<QComboBox>("cboProf").currentIndex(), 3);
    EXPECT_EQ(control<QComboBox>("cboProf").itemText(3).toStdString(), referenceTables().SectionTable(0).TableName);
}

class SectionForm : public FormTest {
protected:
    SectionRecord& current = session.CurrentSection;
    /// The value beside a label of the list of properties; empty when there is no such row.
    std::string property(const char* label) {
        const auto found = control<QTreeWidget>("lstResult").findItems(label, Qt::MatchExactly);
        return found.isEmpty() ? "" : found.front()->text(1).toStdString();
    }
};

TEST_F(SectionForm, startsWithTheFirstSectionOfTheProject) {
    current = SectionRecord();
    open(DialogKind::Profile);
    EXPECT_EQ(current.DisplayName, "HEA 300");
    EXPECT_EQ(control<QTabWidget>("SSTab1").currentIndex(), 0);
    EXPECT_EQ(control<QComboBox>("cboEuprofile").currentText(), "HEA 300");
    EXPECT_EQ(property("  A ="), "1.125E+4");   // 112.5 cm2 by the section tables
    EXPECT_EQ(property("  Iy ="), "1.826E+8");  // 18260 cm4
    EXPECT_EQ(property("  Section Class Pos/Neg Mom   "), "3/3");
    EXPECT_EQ(property("  zs (shear center) ="), "");
}

TEST_F(SectionForm, propertiesFollowADimensionAtOnce) {
    open(DialogKind::Profile);
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    EXPECT_EQ(current.Id, "Is");
    enter("isth", "500");
    enter("istb1", "200");
    enter("isttw", "10");
    enter("isttf1", "20");
    EXPECT_EQ(current.DisplayName, "Is 500x200x10x20");
    // A = 2 * 200 * 20 + 460 * 10; Iy = (200 * 500^3 - 190 * 460^3) / 12
    EXPECT_EQ(property("  A ="), "1.260E+4");
    EXPECT_EQ(property("  Iy ="), "5.422E+8");
    EXPECT_EQ(property("  CoG ez(el) ="), "250.0");
    EXPECT_EQ(shown("isttf1"), "20.0");
}

TEST_F(SectionForm, dimensionsThatMakeNoSectionAreSaidInTheListOnly) {
    open(DialogKind::Profile);
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    enter("isth", "50");
    enter("isttf1", "40");
    EXPECT_TRUE(messages.texts.empty());
    enter("isttf1", "5");
    EXPECT_EQ(property("  CoG ez(el) ="), "25.0");
}

TEST_F(SectionForm, tabsKeepTheWeldedSections) {
    open(DialogKind::Profile);
    auto& tabs = control<QTabWidget>("SSTab1");
    tabs.setCurrentIndex(2);
    EXPECT_EQ(current.Id, "Iu");
    enter("iustb2", "250");
    tabs.setCurrentIndex(0);
    EXPECT_EQ(current.DisplayName, "HEA 300");
    EXPECT_EQ(double(current.b1), 300.0);
    tabs.setCurrentIndex(2);
    EXPECT_EQ(current.DisplayName, "Iu 700x300x250x15x25x25");
    EXPECT_EQ(shown("iustb2"), "250");
}

TEST_F(SectionForm, anEntryOfTheListIsShownOnItsTab) {
    open(DialogKind::Profile);
    auto& list = control<QListWidget>("lstDatabase");
    list.setCurrentRow(1);
    EXPECT_EQ(current.Id, "Is");
    EXPECT_EQ(control<QTabWidget>("SSTab1").currentIndex(), 2);
    EXPECT_FALSE(control("iustb2").isEnabled());
    list.setCurrentRow(2);
    EXPECT_EQ(current.Id, "Iu");
    EXPECT_TRUE(control("iustb2").isEnabled());
    EXPECT_EQ(shown("iustb2"), "200");
    list.setCurrentRow(0);
    EXPECT_EQ(control<QTabWidget>("SSTab1").currentIndex(), 0);
}

TEST_F(SectionForm, aSectionIsAddedOnce) {
    open(DialogKind::Profile);
    click("addtoDBIu");
    EXPECT_EQ(lastMessage(), "The Section exists already");
    EXPECT_EQ(project.SectionList.size(), 3);
    auto& table = control<QComboBox>("cboEuprofile");
    const int row = findSection(referenceTables(), "IPE 300");
    ASSERT_GE(row, 0);
    table.setCurrentIndex(row);
    Q_EMIT table.activated(row);
    current.InUse = true;
    click("addtoDBIu");
    ASSERT_EQ(project.SectionList.size(), 4);
    EXPECT_EQ(project.SectionList(3).DisplayName, "IPE 300");
    EXPECT_EQ(double(project.SectionList(3).h), 300.0);
    EXPECT_FALSE(project.SectionList(3).InUse);
    EXPECT_EQ(control<QListWidget>("lstDatabase").count(), 4);
}

TEST_F(SectionForm, aSectionOfTheBeamStaysAndOthersCanGo) {
    open(DialogKind::Profile);
    click("cmdX");
    EXPECT_EQ(lastMessage(), "Profile used in the Project, not able to remove");
    EXPECT_EQ(project.SectionList.size(), 3);
    control<QListWidget>("lstDatabase").setCurrentRow(1);
    click("cmdX");
    ASSERT_EQ(project.SectionList.size(), 2);
    EXPECT_EQ(project.SectionList(1).Id, "Iu");
    EXPECT_EQ(messages.texts.size(), 1u);
}

TEST_F(SectionForm, entriesMoveUpAndDownWithinTheList) {
    open(DialogKind::Profile);
    auto& list = control<QListWidget>("lstDatabase");
    const auto order = [this] {
        std::string ids;
        for (const auto& section : project.SectionList) ids += section.Id + " ";
        return ids;
    };
    click("Cmd_pilupp");
    EXPECT_EQ(order(), "HEA Is Iu ");
    list.setCurrentRow(1);
    click("Cmd_pilupp");
    EXPECT_EQ(order(), "Is HEA Iu ");
    EXPECT_EQ(list.currentRow(), 0);
    click("Cmd_pilner");
    click("Cmd_pilner");
    EXPECT_EQ(order(), "HEA Iu Is ");
    click("Cmd_pilner");
    EXPECT_EQ(order(), "HEA Iu Is ");
    EXPECT_EQ(list.currentRow(), 2);
}

TEST_F(SectionForm, endPostAndLoadLevelAreSet) {
    open(DialogKind::Profile);
    click("optStyv");
    EXPECT_EQ(project.StiffenerMode, EndPost::Rigid);
    click("optVek");
    EXPECT_EQ(project.StiffenerMode, EndPost::NonRigid);
    for (int level = 4; level >= 1; --level) {
        click("OptLoadL" + std::to_string(level));
        EXPECT_EQ(project.LoadLevel, LoadPoint(level));
        EXPECT_EQ(double(current.Zg) < 0, level == 4);
    }
}

TEST_F(SectionForm, theLoadedFlangeIsNamed) {
    open(DialogKind::Profile);
    EXPECT_NE(property("  MzRd = (Top flange)"), "");
    form.reset();
    project.CraneType = CraneKind::Monorail;
    open(DialogKind::Profile);
    EXPECT_NE(property("  MzRd = (Bottom flange)"), "");
    EXPECT_EQ(property("  MzRd = (Top flange)"), "");
}

TEST_F(SectionForm, aTypedNameFindsItsSection) {
    open(DialogKind::Profile);
    auto& table = control<QComboBox>("cboEuprofile");
    const std::pair<const char*, const char*> cases[] = {{"HEB 400", "HEB 400"},
                                                         {"HEA 100", "HEA 100"},
                                                         {"hea1000", "HEA 1000"},
                                                         {"IPE 30", "IPE 300"},
                                                         {"XY", "IPE 300"}};
    for (const auto& [typed, found] : cases) {
        table.setFocus(Qt::TabFocusReason);
        table.lineEdit()->selectAll();
        typeKeys(typed);
        press(Qt::Key_Return);
        EXPECT_EQ(current.DisplayName, found);
        EXPECT_EQ(table.currentText().toStdString(), found);
    }
}

TEST_F(SectionForm, platesStayWithTheSectionForWhichTheyWereEntered) {
    open(DialogKind::Profile);
    const auto choose = [this](const char* name) {
        auto& table = control<QComboBox>("cboEuprofile");
        table.setCurrentIndex(findSection(referenceTables(), name));
        Q_EMIT table.activated(table.currentIndex());
    };
    const auto plates = [this] {
        click("cmdReinfEu");
        return form->findChild<QDialog*>("frmProfReinf");
    };
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    QDialog* reinforcement = plates();
    reinforcement->findChild<QRadioButton*>("optRePL1")->click();
    reinforcement->accept();
    EXPECT_EQ(current.DisplayName, "Is 700x300x15x25+PL100x10");
    control<QTabWidget>("SSTab1").setCurrentIndex(0);
    EXPECT_EQ(current.DisplayName, "HEA 300");
    EXPECT_FALSE(current.Reinforced);
    choose("IPE 80");
    reinforcement = plates();
    reinforcement->findChild<QRadioButton*>("optRePL1")->click();
    reinforcement->accept();
    EXPECT_EQ(lastMessage(), " 10 < hr < H/2 ");
    EXPECT_TRUE(reinforcement->isVisible());
    click("addtoDBIu");
    EXPECT_EQ(messages.texts.size(), 2u);
    EXPECT_EQ(project.SectionList.size(), 3);
    choose("HEM 200");
    EXPECT_FALSE(current.Reinforced);
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    EXPECT_EQ(current.DisplayName, "Is 700x300x15x25+PL100x10");
}

TEST_F(SectionForm, anEntryIsReplacedInTheListAndInItsSpans) {
    open(DialogKind::Profile);
    const auto name = [this] { return control<QLabel>("lblName").text().toStdString(); };
    EXPECT_EQ(name(), "HEA 300\nin the list");
    EXPECT_FALSE(control<QPushButton>("cmdReplace").isEnabled());
    auto& table = control<QComboBox>("cboEuprofile");
    table.setCurrentIndex(findSection(referenceTables(), "HEB 400"));
    Q_EMIT table.activated(table.currentIndex());
    EXPECT_EQ(name(), "HEB 400\nnot in the list; can replace HEA 300");
    EXPECT_EQ(control<QListWidget>("lstDatabase").currentRow(), -1);
    click("cmdReplace");
    EXPECT_EQ(project.SectionList(0).DisplayName, "HEB 400");
    EXPECT_EQ(project.SpanSection(3).DisplayName, "HEB 400");
    EXPECT_EQ(project.SpanSection(4).DisplayName, "");
    EXPECT_EQ(control<QListWidget>("lstDatabase").currentRow(), 0);
    control<QTabWidget>("SSTab1").setCurrentIndex(1);
    enter("isth", "50");
    EXPECT_EQ(control<QLabel>("lblWarning").text(), "Web height h - tf1 - tf2 <= 0");
}

TEST_F(SectionForm, reinforcementNamesTheSectionAndGoesAgain) {
    open(DialogKind::Profile);
    const double plain = current.Iy;
    for (const char* arrangement : {"PL1", "PL2"}) {
        click("cmdReinfEu");
        auto* plates = form->findChild<QDialog*>("frmProfReinf");
        ASSERT_NE(plates, nullptr);
        plates->findChild<QRadioButton*>(QStringLiteral("optRe") + arrangement)->click();
        EXPECT_TRUE(current.Reinforced);
        EXPECT_EQ(current.ReinfText, arrangement);
        EXPECT_GT(double(current.Iy), plain);
        plates->findChild<QPushButton*>("Command1")->click();
        EXPECT_EQ(current.ReinfSuffix, "+PL100x10");
        EXPECT_EQ(current.DisplayName, "HEA 300+PL100x10");
    }
    click("cmdReinfEu");
    auto* plates = form->findChild<QDialog*>("frmProfReinf");
    EXPECT_TRUE(plates->findChild<QRadioButton*>("optRePL2")->isChecked());
    plates->findChild<QRadioButton*>("optReNone")->click();
    EXPECT_EQ(current.ReinfText, "");
    plates->findChild<QPushButton*>("Command1")->click();
    EXPECT_EQ(current.ReinfSuffix, "");
    EXPECT_EQ(current.DisplayName, "HEA 300");
    EXPECT_EQ(double(current.Iy), plain);
}

}  // namespace
}  // namespace borvik
