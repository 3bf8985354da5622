#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>
#include <array>

#include "forms/form_support.h"

namespace borvik {
namespace {

class RailForm : public FormTest {
protected:
    std::vector<std::string> rows() {
        std::vector<std::string> texts;
        const auto& list = control<QTreeWidget>("lstRail");
        for (int i = 0; i < list.topLevelItemCount(); ++i) {
            const auto* item = list.topLevelItem(i);
            texts.push_back((item->text(0) + "|" + item->text(1) + "|" + item->text(2)).toStdString());
        }
        return texts;
    }
};

TEST_F(RailForm, FollowsTheProjectAndListsAFlatBar) {
    project.RailOn = true;
    project.RailFix = 3;
    open(DialogKind::Rail);
    EXPECT_EQ(control<QComboBox>("cboRail").currentText(), "Pl 50x30");
    EXPECT_TRUE(control<QCheckBox>("chkRail").isChecked());
    EXPECT_TRUE(control<QRadioButton>("optRail3").isChecked());
    const auto listed = rows();
    ASSERT_EQ(listed.size(), 6u);
    EXPECT_EQ(listed[0], "  h =|30.0 |mm");
    EXPECT_EQ(listed[1], "  b =|50.0 |mm");
    EXPECT_EQ(listed[4].substr(0, 6), "  k =|");
    EXPECT_EQ(listed[5], "  Iy =|1.125E+5|mm4");  // 50 * 30^3 / 12
}

TEST_F(RailForm, ACraneRailHasTwoRowsMoreAndBecomesTheRailInUse) {
    open(DialogKind::Rail);
    int row = 0;
    while (referenceTables().RailTable(row).Id != "A") ++row;
    const RailRecord& rail = referenceTables().RailTable(row);
    Q_EMIT control<QComboBox>("cboRail").activated(row);
    EXPECT_EQ(project.RailName, rail.Name);
    EXPECT_EQ(session.context.RailIndex, row);
    EXPECT_EQ(session.context.CurrentRail, rail);
    const auto listed = rows();
    ASSERT_EQ(listed.size(), 8u);
    EXPECT_EQ(listed[4].substr(0, 7), "  e1 =|");
    EXPECT_EQ(listed[5].substr(0, 7), "  h3 =|");
    EXPECT_GT(changes, 0);
}

TEST_F(RailForm, WeightAndFasteningAreSet) {
    open(DialogKind::Rail);
    click("chkRail");
    EXPECT_TRUE(project.RailOn);
    for (const int fix : {1, 2, 3}) {
        click("optRail" + std::to_string(fix));
        EXPECT_EQ(project.RailFix, fix);
    }
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
}

class BucklingForm : public FormTest {};

TEST_F(BucklingForm, DefaultFactorsAreShownAndLocked) {
    open(DialogKind::Lateral);
    EXPECT_TRUE(control<QCheckBox>("chkDefaultCfactor").isChecked());
    EXPECT_EQ(shown("txtC1EndPos"), "1.850");
    EXPECT_EQ(shown("txtC3MidNeg"), "1.000");
    EXPECT_TRUE(control("txtC1EndPos").isReadOnly());
    click("chkDefaultCfactor");
    EXPECT_FALSE(project.DefaultCfactor);
    EXPECT_FALSE(control("txtC1EndPos").isReadOnly());
    EXPECT_TRUE(control("txtC1EndPos").isEnabled());
    enter("txtC1EndPos", "1.2");
    EXPECT_EQ(static_cast<float>(project.C1EndPos), 1.2f);
    click("chkDefaultCfactor");
    EXPECT_TRUE(project.DefaultCfactor);
    EXPECT_EQ(static_cast<float>(project.C1EndPos), 1.85f);
    EXPECT_EQ(shown("txtC1EndPos"), "1.850");
}

TEST_F(BucklingForm, TheCurveIsChosen) {
    open(DialogKind::Lateral);
    EXPECT_TRUE(control<QRadioButton>("optCurve3").isChecked());
    click("optCurve2");
    EXPECT_EQ(project.LtbCurve, 2);
    click("optCurve3");
    EXPECT_EQ(project.LtbCurve, 3);
    click("ok");
    EXPECT_FALSE(form->isVisible());
}

class FatigueForms : public FormTest {};

TEST_F(FatigueForms, AnOddCategoryIsRoundedAndALowOneStays) {
    open(DialogKind::Fatigue1);
    enter("txtFat3C1", "159.5");
    EXPECT_EQ(project.Fat3C1, 160);
    EXPECT_EQ(shown("txtFat3C1"), "160");
    EXPECT_TRUE(messages.texts.empty());
    enter("txtFat1C1", "35");
    EXPECT_EQ(lastMessage(), " 36 <= C-factor <= 160 ");
    EXPECT_EQ(project.Fat1C1, 35);
}

TEST_F(FatigueForms, CheckBoxesSetTheirOwnFlags) {
    for (const auto kind : {DialogKind::Fatigue1, DialogKind::Fatigue2}) {
        open(kind);
        Project& p = project;
        bool* const overhead[] = {&p.Fat1, &p.Fat2, &p.Fat3, &p.Fat4, &p.Fat5, &p.Fat6};
        bool* const monorail[] = {&p.FatR1, &p.FatR2, &p.FatR3, &p.FatR4, &p.FatR5, &p.FatR6};
        auto& flags = kind == DialogKind::Fatigue1 ? overhead : monorail;
        for (int d = 1; d <= 6; ++d) {
            const Project before = p;
            click("chkFat" + std::to_string(d));
            EXPECT_EQ(*flags[d - 1],
                      !(kind == DialogKind::Fatigue1
                            ? std::array{before.Fat1, before.Fat2, before.Fat3, before.Fat4, before.Fat5, before.Fat6}
                            : std::array{before.FatR1, before.FatR2, before.FatR3, before.FatR4, before.FatR5,
                                         before.FatR6})[static_cast<std::size_t>(d - 1)])
                << d;
            click("chkFat" + std::to_string(d));
            EXPECT_EQ(p, before) << d;
        }
        form.reset();
    }
}

TEST_F(FatigueForms, SplicesTakeTheirSpanAndStayWithinIt) {
    for (const auto kind : {DialogKind::Fatigue1, DialogKind::Fatigue2}) {
        const bool overhead = kind == DialogKind::Fatigue1;
        auto& used = overhead ? project.ChkFat5Sp : project.ChkFatR5Sp;
        auto& span = overhead ? project.Fat5Span : project.FatR5Span;
        open(kind);
        auto& list = control<QComboBox>("cboFat5Sp(1)");
        EXPECT_EQ(list.count(), 3);
        EXPECT_EQ(list.currentText(), "2");
        list.setCurrentIndex(0);
        Q_EMIT list.activated(0);
        EXPECT_EQ(double(span(1)), 1.0);
        const std::string d = overhead ? "txtFat5d1(1)" : "txtFatR5d1(1)";
        enter(d, "4000");
        EXPECT_TRUE(messages.texts.empty());
        enter(d, "4001");
        EXPECT_EQ(lastMessage(), " 10 <= d <= L ");
        enter(d, "10");
        click("ChkFat5Sp(3)");
        EXPECT_TRUE(used(3));
        messages.texts.clear();
        form.reset();
    }
}

TEST_F(FatigueForms, WeldsAreFilletOrFullPenetration) {
    const struct {
        DialogKind form;
        const char* weld;
        std::string* kind;
    } welds[] = {{DialogKind::Fatigue1, "W1", &project.W1},   {DialogKind::Fatigue1, "W2", &project.W2},
                 {DialogKind::Fatigue1, "W3", &project.W3},   {DialogKind::Fatigue2, "RW1", &project.RW1},
                 {DialogKind::Fatigue2, "RW2", &project.RW2}, {DialogKind::Fatigue2, "RW3", &project.RW3},
                 {DialogKind::Fatigue2, "RW4", &project.RW4}};
    for (const auto& each : welds) {
        open(each.form);
        const std::string weld = each.weld;
        click("opt" + weld + "FW");
        EXPECT_EQ(*each.kind, "FW");
        EXPECT_TRUE(control("txt" + weld + "a").isEnabled());
        click("Opt" + weld + "FP");
        EXPECT_EQ(*each.kind, "FP");
        EXPECT_FALSE(control("txt" + weld + "a").isEnabled());
        form.reset();
    }
}

/// Every field that a button of defaults may touch, in one line.
std::string overheadFields(const Project& p) {
    const auto detail = [](bool on, std::int16_t c) {
        return std::string(on ? "on " : "off ") + std::to_string(c) + ", ";
    };
    return detail(p.Fat1, p.Fat1C1) + detail(p.Fat2, p.Fat2C1) + detail(p.Fat3, p.Fat3C1) + std::to_string(p.Fat3C2) +
           ", " + detail(p.Fat4, p.Fat4C1) + detail(p.Fat5, p.Fat5C1) + detail(p.Fat6, p.Fat6C1) + p.W1 +
           std::to_string(int(p.W1a)) + " " + p.W2 + std::to_string(int(p.W2a)) + " " + p.W3 +
           std::to_string(int(p.W3a));
}

std::string monorailFields(const Project& p) {
    const auto detail = [](bool on, std::int16_t c) {
        return std::string(on ? "on " : "off ") + std::to_string(c) + ", ";
    };
    return detail(p.FatR1, p.FatR1C1) + detail(p.FatR2, p.FatR2C1) + detail(p.FatR3, p.FatR3C1) +
           std::to_string(p.FatR3C2) + ", " + detail(p.FatR4, p.FatR4C1) + detail(p.FatR5, p.FatR5C1) +
           detail(p.FatR6, p.FatR6C1) + std::to_string(p.FatR6C2) + ", " + p.RW1 + std::to_string(int(p.RW1a)) + " " +
           p.RW2 + std::to_string(int(p.RW2a)) + " " + p.RW3 + std::to_string(int(p.RW3a)) + " " + p.RW4 +
           std::to_string(int(p.RW4a));
}

TEST_F(FatigueForms, DefaultButtonsSetWeldedAndRolledValues) {
    const auto press = [this](DialogKind kind, const char* button) {
        session = Session(referenceTables());
        Project& p = project;
        for (bool* flag : {&p.Fat1, &p.Fat2, &p.Fat3, &p.Fat4, &p.Fat5, &p.Fat6, &p.FatR1, &p.FatR2, &p.FatR3, &p.FatR4,
                           &p.FatR5, &p.FatR6})
            *flag = false;
        p.Fat4 = p.FatR4 = p.FatR6 = std::string(button) != "Command9";  // so that both directions are seen
        for (std::string* weld : {&p.W1, &p.W2, &p.W3, &p.RW1, &p.RW2, &p.RW3, &p.RW4}) *weld = "??";
        for (Single* throat : {&p.W1a, &p.W2a, &p.W3a, &p.RW1a, &p.RW2a, &p.RW3a, &p.RW4a}) *throat = 9;
        open(kind);
        click(button);
    };
    press(DialogKind::Fatigue1, "Command9");
    EXPECT_EQ(overheadFields(project), "on 90, on 80, on 71, 80, on 80, on 80, on 80, FP9 FW4 FW4");
    EXPECT_EQ(shown("txtFat3C1"), "71");
    EXPECT_TRUE(control("txtW2a").isEnabled());
    press(DialogKind::Fatigue1, "Command10");
    EXPECT_EQ(overheadFields(project), "on 90, on 80, on 160, 100, off 100, on 80, on 80, ??9 ??9 FW4");
    press(DialogKind::Fatigue2, "Command9");
    EXPECT_EQ(monorailFields(project), "on 56, on 80, on 80, 80, on 80, on 80, on 80, 80, FP9 FP9 FW4 FP9");
    press(DialogKind::Fatigue2, "Command8");
    EXPECT_EQ(monorailFields(project), "on 56, on 80, on 80, 100, off 100, on 80, off 160, 100, FP9 FP9 FP9 FP9");
    EXPECT_TRUE(messages.texts.empty());
}

TEST_F(FatigueForms, WithoutAnySpliceTheMonorailFormClearsTheOverheadFlagOnOk) {
    for (const bool byOk : {true, false}) {
        project.Fat5 = project.FatR5 = true;
        for (int j = 1; j <= 4; ++j) project.ChkFatR5Sp(j) = false;
        open(DialogKind::Fatigue2);
        if (byOk) {
            click("cmdOK");
        } else {
            form->close();
        }
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(project.Fat5, !byOk);
        EXPECT_TRUE(project.FatR5);
        form.reset();
    }
    project.Fat5 = true;
    project.ChkFatR5Sp(4) = true;
    open(DialogKind::Fatigue2);
    click("cmdOK");
    EXPECT_TRUE(project.Fat5);
}

TEST_F(FatigueForms, EachSmallPictureOpensItsLargeOne) {
    for (const auto kind : {DialogKind::Fatigue1, DialogKind::Fatigue2}) {
        open(kind);
        const auto pictures = form->findChildren<QToolButton*>();
        EXPECT_EQ(pictures.size(), kind == DialogKind::Fatigue1 ? 10 : 8);
        for (QToolButton* picture : pictures) {
            picture->click();
            auto* info = form->findChild<QDialog*>("frmInfoFatigue");
            ASSERT_NE(info, nullptr);
            EXPECT_EQ(info->windowTitle(), "Detail Categories Ref EN 1993-1-9 , ch 8");
            QTest::mouseClick(info, Qt::LeftButton);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }
        form.reset();
    }
}

}  // namespace
}  // namespace borvik
