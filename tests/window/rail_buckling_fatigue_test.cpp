#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>
#include <QTreeWidget>

#include "base/number_text.h"
#include "window/form_support.h"

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

TEST_F(RailForm, followsTheProjectAndListsAFlatBar) {
    project.RailOn = true;
    project.RailFix = RailFixing::ResilientPad;
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

TEST_F(RailForm, aCraneRailHasTwoRowsMoreAndBecomesTheRailInUse) {
    open(DialogKind::Rail);
    int row = 0;
    while (referenceTables().RailTable(row).Id != "A") ++row;
    const RailRecord& rail = referenceTables().RailTable(row);
    Q_EMIT control<QComboBox>("cboRail").activated(row);
    EXPECT_EQ(project.RailName, rail.Name);
    EXPECT_EQ(session.rail(), rail);
    const auto listed = rows();
    ASSERT_EQ(listed.size(), 8u);
    EXPECT_EQ(listed[4].substr(0, 7), "  e1 =|");
    EXPECT_EQ(listed[5].substr(0, 7), "  h3 =|");
    EXPECT_GT(changes, 0);
}

TEST_F(RailForm, weightAndFasteningAreSet) {
    open(DialogKind::Rail);
    click("chkRail");
    EXPECT_TRUE(project.RailOn);
    for (const int fix : {1, 2, 3}) {
        click("optRail" + std::to_string(fix));
        EXPECT_EQ(project.RailFix, RailFixing(fix));
    }
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
}

class BucklingForm : public FormTest {};

TEST_F(BucklingForm, defaultFactorsAreShownAndLocked) {
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

TEST_F(BucklingForm, theCurveIsChosen) {
    open(DialogKind::Lateral);
    EXPECT_TRUE(control<QRadioButton>("optCurve3").isChecked());
    click("optCurve2");
    EXPECT_EQ(project.LtbCurve, LtbCase::General);
    click("optCurve3");
    EXPECT_EQ(project.LtbCurve, LtbCase::RolledOrWelded);
    click("ok");
    EXPECT_FALSE(form->isVisible());
}

class FatigueForms : public FormTest {};

/// What differs between two records of the fatigue details, in the order of the list: "Fat3 Fat3C1".
struct FatigueField {
    const char* name;
    std::function<std::string(const Project&)> text;
};

template <class Field>
FatigueField named(const char* name, Field Project::*field) {
    return {name, [field](const Project& p) {
                if constexpr (std::is_same_v<Field, std::string>) {
                    return p.*field;
                } else {
                    return generalText(Single(p.*field));
                }
            }};
}

#define FIELD(name) named(#name, &Project::name)
const FatigueField kFields[] = {
    FIELD(Fat1),  FIELD(Fat1C1),  FIELD(Fat2),  FIELD(Fat2C1),  FIELD(Fat3),    FIELD(Fat3C1), FIELD(Fat3C2),
    FIELD(Fat4),  FIELD(Fat4C1),  FIELD(Fat5),  FIELD(Fat5C1),  FIELD(Fat6),    FIELD(Fat6C1), FIELD(W1),
    FIELD(W1a),   FIELD(W2),      FIELD(W2a),   FIELD(W3),      FIELD(W3a),     FIELD(FatR1),  FIELD(FatR1C1),
    FIELD(FatR2), FIELD(FatR2C1), FIELD(FatR3), FIELD(FatR3C1), FIELD(FatR3C2), FIELD(FatR4),  FIELD(FatR4C1),
    FIELD(FatR5), FIELD(FatR5C1), FIELD(FatR6), FIELD(FatR6C1), FIELD(FatR6C2), FIELD(RW1),    FIELD(RW1a),
    FIELD(RW2),   FIELD(RW2a),    FIELD(RW3),   FIELD(RW3a),    FIELD(RW4),     FIELD(RW4a)};
#undef FIELD

/// "Fat1 on, W1 FW": what a click has changed.
std::string changed(const Project& before, const Project& after) {
    std::string all;
    for (const FatigueField& each : kFields)
        if (each.text(before) != each.text(after))
            all += (all.empty() ? "" : ", ") + (each.name + (" " + each.text(after)));
    return all;
}

TEST_F(FatigueForms, eachControlWritesItsOwnField) {
    for (const bool overhead : {true, false}) {
        const std::string detail = overhead ? "Fat" : "FatR", weld = overhead ? "W" : "RW";
        const auto expect = [&](const std::string& button, const std::string& change) {
            const Project before = project;
            click(button);
            EXPECT_EQ(changed(before, project), change) << button;
        };
        for (std::string* kind :
             {&project.W1, &project.W2, &project.W3, &project.RW1, &project.RW2, &project.RW3, &project.RW4})
            *kind = "??";
        open(overhead ? DialogKind::Fatigue1 : DialogKind::Fatigue2);
        for (int d = 1; d <= 6; ++d) {
            const std::string check = "chkFat" + std::to_string(d), field = detail + std::to_string(d);
            const bool on = control<QCheckBox>(check).isChecked();
            expect(check, field + (on ? " 0" : " 1"));
            expect(check, field + (on ? " 1" : " 0"));
        }
        for (int w = 1; w <= (overhead ? 3 : 4); ++w) {
            const std::string name = weld + std::to_string(w);
            expect("opt" + name + "FW", name + " FW");
            EXPECT_TRUE(control("txt" + name + "a").isEnabled());
            expect("Opt" + name + "FP", name + " FP");
            EXPECT_FALSE(control("txt" + name + "a").isEnabled());
        }
        form.reset();
    }
}

TEST_F(FatigueForms, defaultButtonsSetWeldedAndRolledValues) {
    const struct {
        DialogKind form;
        const char* button;
        const char* change;
    } cases[] = {
        {DialogKind::Fatigue1, "Command9",
         "Fat1 1, Fat1C1 90, Fat2 1, Fat2C1 80, Fat3 1, Fat3C1 71, Fat3C2 80, Fat4 1, Fat4C1 80, Fat5 1, Fat5C1 80, "
         "Fat6 1, Fat6C1 80, W1 FP, W2 FW, W2a 4, W3 FW, W3a 4"},
        {DialogKind::Fatigue1, "Command10",
         "Fat1 1, Fat1C1 90, Fat2 1, Fat2C1 80, Fat3 1, Fat3C1 160, Fat3C2 100, Fat4C1 100, Fat5 1, Fat5C1 80, Fat6 1, "
         "Fat6C1 80, W3 FW, W3a 4"},
        {DialogKind::Fatigue2, "Command9",
         "FatR1 1, FatR1C1 56, FatR2 1, FatR2C1 80, FatR3 1, FatR3C1 80, FatR3C2 80, FatR4 1, FatR4C1 80, FatR5 1, "
         "FatR5C1 80, FatR6 1, FatR6C1 80, FatR6C2 80, RW1 FP, RW2 FP, RW3 FW, RW3a 4, RW4 FP"},
        {DialogKind::Fatigue2, "Command8",
         "FatR1 1, FatR1C1 56, FatR2 1, FatR2C1 80, FatR3 1, FatR3C1 80, FatR3C2 100, FatR4C1 100, FatR5 1, FatR5C1 "
         "80, "
         "FatR6C1 160, FatR6C2 100, RW1 FP, RW2 FP, RW3 FP, RW4 FP"}};
    for (const auto& each : cases) {
        session = Session(referenceTables());
        Project blank;  // nothing checked, categories and throats 0
        blank.NofSpans = project.NofSpans;
        blank.Span = project.Span;
        blank.CraneType = project.CraneType;
        project = blank;
        open(each.form);
        click(each.button);
        EXPECT_EQ(changed(blank, project), each.change);
        EXPECT_TRUE(messages.texts.empty());
    }
}

TEST_F(FatigueForms, splicesTakeTheirSpanAndStayWithinIt) {
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

TEST_F(FatigueForms, withoutAnySpliceTheMonorailFormClearsTheOverheadFlagOnOk) {
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

TEST_F(FatigueForms, eachPictureButtonOpensItsPicture) {
    const auto expectPicture = [this](QAbstractButton& button, const char* name, const char* caption) {
        button.click();
        auto* info = form->findChild<QDialog*>(name);
        ASSERT_NE(info, nullptr);
        EXPECT_EQ(info->windowTitle(), caption);
        QTest::mouseClick(info, Qt::LeftButton);
        EXPECT_FALSE(info->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    open(DialogKind::Setup);
    expectPicture(control<QAbstractButton>("Command2"), "frmInfoSetup", "Fatigue resistance - gammaMf");
    expectPicture(control<QAbstractButton>("Command3"), "frmInfoSetup", "Deformation limits");
    for (const auto kind : {DialogKind::Fatigue1, DialogKind::Fatigue2}) {
        open(kind);
        const auto pictures = form->findChildren<QToolButton*>();
        EXPECT_EQ(pictures.size(), kind == DialogKind::Fatigue1 ? 10 : 8);
        for (QToolButton* picture : pictures)
            expectPicture(*picture, "frmInfoFatigue", "Detail Categories Ref EN 1993-1-9 , ch 8");
    }
}

}  // namespace
}  // namespace borvik
