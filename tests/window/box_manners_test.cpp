#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <set>

#include "boxes/form_binder.h"
#include "window/form_support.h"

namespace borvik {
namespace {

QColor ground(const NumberBox& box) {
    return box.palette().color(QPalette::Active, QPalette::Base);
}

class BoxManners : public FormTest {};

TEST_F(BoxManners, selectsOnEntryAndIsGreenWhileFocusedWithDarkTextOnBoth) {
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    const QPalette before = QApplication::palette();
    QApplication::setPalette(dark);
    open(DialogKind::Setup);
    NumberBox& box = control("igammam0");
    box.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(box.selectedText(), "1.00");
    EXPECT_EQ(ground(box).rgb(), qRgb(0, 255, 0));
    EXPECT_LT(box.palette().color(QPalette::Active, QPalette::Text).lightness(), 64);
    leave();
    EXPECT_EQ(ground(box).rgb(), qRgb(255, 255, 255));
    EXPECT_LT(box.palette().color(QPalette::Active, QPalette::Text).lightness(), 64);
    EXPECT_FALSE(box.hasSelectedText());
    QApplication::setPalette(before);
}

TEST_F(BoxManners, aNumberTypedIsTheNumberUsed) {
    open(DialogKind::Load);
    const struct {
        const char* text;
        double value;
        const char* shown;
    } cases[] = {{"12.5", 12.5, "12.5"},  {"12,5", 12.5, "12.5"},   {" 7", 7, "7.0"},
                 {",5", 0.5, "0.5"},      {"1,2E+2", 120, "120.0"}, {"+3", 3, "3.0"},
                 {"\t4\u00a0", 4, "4.0"}, {"0.25", 0.25, "0.3"},    {"\u22120", 0, "0.0"}};
    for (const auto& each : cases) {
        enter("txtV2", each.text);
        EXPECT_EQ(static_cast<float>(project.V(2)), static_cast<float>(each.value)) << each.text;
        EXPECT_EQ(shown("txtV2"), each.shown) << each.text;
    }
    EXPECT_TRUE(messages.texts.empty());
    EXPECT_EQ(plainNumber(QStringLiteral("\u22121,5e-3")), "-1,5e-3");
}

TEST_F(BoxManners, aCommaOfTheKeypadIsADecimalSign) {
    open(DialogKind::Load);
    NumberBox& box = control("txtV2");
    box.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&box, Qt::Key_4, Qt::KeypadModifier);
    QTest::keyClick(&box, Qt::Key_Comma, Qt::KeypadModifier);
    QTest::keyClick(&box, Qt::Key_5, Qt::KeypadModifier);
    leave();
    EXPECT_EQ(double(project.V(2)), 4.5);
}

TEST_F(BoxManners, lookingAtAValueKeepsTheDigitsThatItsMaskDoesNotShow) {
    project.V(2) = 40.125;
    open(DialogKind::Load);
    control("txtV2").setFocus(Qt::TabFocusReason);
    leave();
    EXPECT_EQ(double(project.V(2)), 40.125);
    EXPECT_EQ(shown("txtV2"), "40.1");
    EXPECT_EQ(changes, 0);
}

TEST_F(BoxManners, aTextThatIsNoNumberIsSaidKeptAndChangesNothing) {
    open(DialogKind::Setup);
    for (const char* text : {"abc", "-", " ", ".", "1 850,5", "1\u00a0850", "1.850,5", "12,5,5", "1.1 kN", "1.1abc",
                             "0x10", "1e999", "-4e38", "1e", "- 1", "\u0661", "inf", "nan"}) {
        messages.texts.clear();
        enter("ineta", text);
        EXPECT_EQ(messages.texts, std::vector<std::string>{"Input string mismatch "}) << text;
        EXPECT_EQ(shown("ineta"), text);
        EXPECT_EQ(focused(), "ineta");
        EXPECT_EQ(static_cast<float>(project.Eta), 1.2f);
    }
    enter("ineta", "1.1");
    EXPECT_EQ(static_cast<float>(project.Eta), 1.1f);
    EXPECT_EQ(focused(), "frmSetup");
}

TEST_F(BoxManners, sectionAndBucklingFormsSayItWithoutTheBlank) {
    project.DefaultCfactor = false;
    open(DialogKind::Lateral);
    enter("txtC1EndPos", "x");
    EXPECT_EQ(lastMessage(), "Input string mismatch");
}

TEST_F(BoxManners, aRefusedBoxCarriesItsRangeInTheToolTipUntilItIsMended) {
    open(DialogKind::Setup);
    const QString meaning = control("ilamdaLT0").toolTip();
    EXPECT_TRUE(meaning.endsWith("\nAllowed: 0.1 to 0.8"));
    enter("ilamdaLT0", "0.9");
    EXPECT_EQ(control("ilamdaLT0").toolTip(), "Refused\n" + meaning);
    enter("ilamdaLT0", "0.755");
    EXPECT_EQ(control("ilamdaLT0").toolTip(), meaning + "\nHolds 0.755");
}

TEST_F(BoxManners, aRefusalDoesNotTestTheBoxThatTheFocusPassed) {
    project.NofCranes = 2;
    project.MinAvst = 2000;
    open(DialogKind::Load);
    type("txtV2", "-1");
    control("txtv5").setFocus(Qt::TabFocusReason);  // holds 0, which it would refuse
    settle();
    EXPECT_EQ(messages.texts, std::vector<std::string>{"Only positiv value!"});
    EXPECT_EQ(focused(), "txtV2");
    EXPECT_EQ(control("txtV2").selectedText(), "-1.0");
}

/// A message box takes the window's activity, and the form hears nothing of the focus until it has closed.
struct BoxOnTop : Messages {
    void show(const std::string&) override {
        QDialog box;
        box.show();
        box.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
    }
};

TEST_F(BoxManners, afterARefusalOneBoxIsGreen) {
    BoxOnTop onTop;
    form = makeDialog(
        DialogKind::Setup, session, onTop, [] {}, nullptr);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    type("ineta", "3");
    QTest::keyClick(&control("ineta"), Qt::Key_Tab);
    settle();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    for (const auto* box : form->findChildren<NumberBox*>())
        EXPECT_EQ(ground(*box) == QColor(0, 255, 0), box->objectName() == "ineta") << box->objectName().toStdString();
}

TEST_F(BoxManners, whatAFileBringsInOutsideItsLimitsIsMarked) {
    project.GammaM0 = 0.1;
    project.Fat5 = true;
    project.ChkFat5Sp(1) = true;
    project.Fat5Span(1) = project.Fat5d1(1) = std::nan("");
    project.Fat5Span(2) = 31;
    project.W1 = "FP";
    project.W1a = 0;
    open(DialogKind::Setup);
    EXPECT_TRUE(control("igammam0").refused());
    EXPECT_FALSE(control("igammam1").refused());
    form.reset();
    open(DialogKind::Fatigue1);
    EXPECT_EQ(shown("txtFat5d1(1)"), "nan");
    EXPECT_TRUE(control("txtFat5d1(1)").refused());
    EXPECT_EQ(control<QComboBox>("cboFat5Sp(1)").placeholderText(), "! nan");
    EXPECT_EQ(control<QComboBox>("cboFat5Sp(2)").placeholderText(), "! 31");
    EXPECT_FALSE(control("txtW1a").refused());
    click("optW1FW");
    EXPECT_TRUE(control("txtW1a").refused());
    control("txtFat5d1(1)").setFocus();
    leave();
    EXPECT_EQ(messages.texts, std::vector<std::string>{"Input string mismatch "});
}

TEST_F(BoxManners, enterGoesToTheNextBoxThatCanBeUsed) {
    open(DialogKind::Load);
    type("txtGangway", "0");
    std::vector<std::string> road;
    for (int i = 0; i < 14; ++i) {
        QTest::keyClick(QApplication::focusWidget(), i % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        settle();
        road.push_back(focused());
    }
    const std::vector<std::string> expected = {"txtPsiV1", "txtPsiH1", "txtV1",    "txtV2", "txtV3",
                                               "txtV4",    "txtH1",    "txtH2",    "txtH3", "txtH4",
                                               "txtAvst1", "txtAvst2", "txtAvst3", "cmdOK"};
    EXPECT_EQ(road, expected);
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(BoxManners, enterSkipsTheThroatOfAFullPenetrationWeld) {
    project.W1 = "FW";
    project.W2 = "FP";
    project.W3 = "FW";
    open(DialogKind::Fatigue1);
    type("txtW1a", "4");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    settle();
    EXPECT_EQ(focused(), "txtW3a");
}

TEST_F(BoxManners, arrowsWalkOverTheWheelsOfACrane) {
    open(DialogKind::Load);
    const struct {
        const char* from;
        Qt::Key key;
        const char* to;
    } moves[] = {{"txtAvst1", Qt::Key_Left, "txtH1"},     {"txtAvst1", Qt::Key_Up, "txtAvst3"},
                 {"txtAvst1", Qt::Key_Down, "txtAvst2"},  {"txtAvst3", Qt::Key_Down, "txtAvst1"},
                 {"txtV1", Qt::Key_Right, "txtH1"},       {"txtH4", Qt::Key_Right, "txtAvst3"},
                 {"txtV1", Qt::Key_Up, "txtV4"},          {"txtV1", Qt::Key_Left, "txtV1"},
                 {"txtAvst2", Qt::Key_Right, "txtAvst2"}, {"txtGangway", Qt::Key_Down, "txtGangway"}};
    for (const auto& move : moves) {
        control(move.from).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&control(move.from), move.key);
        EXPECT_EQ(focused(), move.to) << move.from;
    }
}

TEST_F(BoxManners, numbersBeyondTheirFieldStayAtItsEndAndAreRefused) {
    open(DialogKind::Fatigue1);
    enter("txtFat1C1", "99999");
    EXPECT_EQ(project.Fat1C1, 32767);
    EXPECT_EQ(lastMessage(), " 36 <= C-factor <= 160 ");
    enter("txtFat1C1", "-1e30");
    EXPECT_EQ(project.Fat1C1, -32768);
    enter("txtFat1C1", "90");
    enter("txtFat6d1", "3e38");
    EXPECT_EQ(lastMessage(), " 25 <= e <= 1000 ");
}

TEST_F(BoxManners, closingStoresTheBoxBeingEdited) {
    open(DialogKind::Setup);
    type("ineta", "1.05");
    QTest::keyClick(&control("ineta"), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(static_cast<float>(project.Eta), 1.05f);
}

TEST_F(BoxManners, aRefusalKeepsTheFormOpenOnceButLocksNobodyIn) {
    open(DialogKind::Setup);
    type("ineta", "3");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(messages.texts, std::vector<std::string>{" 1 <= neta <=1.2 "});
    EXPECT_EQ(focused(), "ineta");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(messages.texts.size(), 1u);
    EXPECT_EQ(double(project.Eta), 3.0);
}

TEST_F(BoxManners, closingAFormPutsTheResultsOutOfReach) {
    for (const auto kind : {DialogKind::Setup, DialogKind::Beam, DialogKind::Load, DialogKind::Profile,
                            DialogKind::Rail, DialogKind::Lateral, DialogKind::Fatigue1, DialogKind::Fatigue2}) {
        open(kind);
        session.Calculated = true;
        form->close();
        EXPECT_FALSE(form->isVisible()) << static_cast<int>(kind);
        EXPECT_FALSE(session.Calculated) << static_cast<int>(kind);
        form.reset();
    }
}

TEST_F(BoxManners, everyFormFitsASmallScreenAndEveryBoxSaysWhatItIs) {
    for (const FormKind& kind : formKinds()) {
        open(kind.kind);
        EXPECT_LE(form->sizeHint().width(), 1024 - 8) << form->objectName().toStdString();
        EXPECT_LE(form->sizeHint().height(), 741 - 36) << form->objectName().toStdString();
        for (const auto* box : form->findChildren<NumberBox*>())
            EXPECT_FALSE(box->toolTip().isEmpty()) << box->objectName().toStdString();
        for (const auto* button : form->findChildren<QPushButton*>()) EXPECT_FALSE(button->isDefault());
        form.reset();
    }
}

TEST_F(BoxManners, everyFormIsWalkedByKeysFromItsFirstBoxToClosing) {
    project.NofCranes = 2;
    project.MinAvst = 2000;
    project.V(5) = 20;
    project.RailFix = RailFixing::ResilientPad;
    const std::vector<std::string> first = {"iLfULS",    "txtBeamLength", "cboEuprofile", "ihr",
                                            "cboRail",   "optCurve3",     "txtGangway",   "txtPsiV1",
                                            "txtFat1C1", "txtFatR1C1",    "txtbridge"};
    for (std::size_t i = 0; i < formKinds().size(); ++i) {
        open(formKinds()[i].kind);
        SCOPED_TRACE(form->objectName().toStdString());
        EXPECT_TRUE(focused() == first.at(i) ||
                    QApplication::focusWidget()->parentWidget()->objectName().toStdString() == first.at(i))
            << focused();
        std::set<QWidget*> reached;
        while (reached.insert(QApplication::focusWidget()).second) {
            const QWidget* stop = QApplication::focusWidget();
            EXPECT_TRUE(stop->isVisible()) << stop->metaObject()->className();
            EXPECT_EQ(qobject_cast<const QScrollArea*>(stop), nullptr);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            settle();
        }
        for (QWidget* each : form->findChildren<QWidget*>()) {
            const auto* button = qobject_cast<QAbstractButton*>(each);
            const bool option = qobject_cast<QRadioButton*>(each) != nullptr;
            const auto* box = qobject_cast<NumberBox*>(each);
            const bool control = (box != nullptr && !box->isReadOnly()) || qobject_cast<QComboBox*>(each) != nullptr ||
                                 (button != nullptr && (!option || button->isChecked()));
            const bool usable = each->isVisible() && each->isEnabled() && !each->objectName().isEmpty();
            EXPECT_TRUE(!control || !usable || reached.contains(each)) << each->objectName().toStdString();
        }
        messages.texts.clear();
        QTest::keyClick(form.get(), Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !form->isVisible(); })) << lastMessage();
        form.reset();
    }
}

}  // namespace
}  // namespace borvik
