#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "window/form_support.h"

namespace borvik {
namespace {

class SetupForm : public FormTest {};

TEST_F(SetupForm, theVerticalLimitDecidesWhetherAHorizontalOneIsTaken) {
    open(DialogKind::Setup);
    enter("txtDefY", "5");
    EXPECT_TRUE(messages.texts.empty());
    form.reset();
    project.DefZ = 199;
    open(DialogKind::Setup);
    for (const char* value : {"600", "2000"}) {
        messages.texts.clear();
        enter("txtDefY", value);
        EXPECT_EQ(lastMessage(), " L/200  <= Deformation <= L/2000  ");
    }
}

TEST_F(SetupForm, theCombinationsFollowTheFactorsAtOnce) {
    open(DialogKind::Setup);
    auto& list = control<QListWidget>("lstCombination");
    enter("iLfULS", "1.5");
    enter("igammaFf", "1,25");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.item(0)->text(), "ULS: 1.50*(qk + 1.10*Vk + 1.10*Hk)");
    EXPECT_EQ(list.item(1)->text(), "SLS: 1.00*(qk + Vk + Hk)");
    EXPECT_EQ(list.item(2)->text(), "FLS: 1.25*1.05*Vk");
}

class LoadForms : public FormTest {
protected:
    void twoCranes() {
        project.NofCranes = 2;
        project.MinAvst = 2000;
        project.V(5) = 20;
    }
};

TEST_F(LoadForms, numberOfCranesEnablesWhatBelongsToIt) {
    twoCranes();
    project.MinDistConst = 1.0;
    open(DialogKind::Load);
    EXPECT_TRUE(control<QRadioButton>("optTwo").isChecked());
    EXPECT_TRUE(control<QCheckBox>("chkMinDistConst").isChecked());
    click("optEn");
    EXPECT_EQ(project.NofCranes, 1);
    EXPECT_EQ(double(project.MinDistConst), 0.0);
    for (const char* name : {"txtMinAvst", "txtv5", "chkMinDistConst", "cboCraneClass2"})
        EXPECT_FALSE(control<QWidget>(name).isEnabled()) << name;
    EXPECT_TRUE(control<QGroupBox>("frIndepend").isEnabled());
    click("optTwo");
    EXPECT_EQ(project.NofCranes, 2);
    for (const char* name : {"txtMinAvst", "txtv5", "chkMinDistConst", "Frame5", "frIndepend"})
        EXPECT_TRUE(control<QWidget>(name).isEnabled()) << name;
    EXPECT_FALSE(control<QCheckBox>("chkMinDistConst").isChecked());
    click("chkMinDistConst");
    EXPECT_EQ(double(project.MinDistConst), 1.0);
    EXPECT_GT(changes, 0);
}

TEST_F(LoadForms, twoCranesActIndependentlyOrTogether) {
    twoCranes();
    open(DialogKind::Load);
    EXPECT_TRUE(control<QRadioButton>("optIndepend").isChecked());
    EXPECT_EQ(control<QLabel>("LblUF").text(), "IR = D(Cr1)^3 + D(Cr2)^3 ");
    click("optSimultan");
    EXPECT_EQ(project.TwoCraneMode, TwoCranes::Together);
    EXPECT_EQ(control<QLabel>("LblUF").text(), "IR = D(Cr1)^3 + D(Cr2)^3 + D(Cr1+Cr2)^3");
    click("optEn");
    click("optTwo");
    EXPECT_TRUE(control<QRadioButton>("optSimultan").isChecked());
    click("optIndepend");
    EXPECT_EQ(project.TwoCraneMode, TwoCranes::Independent);
}

TEST_F(LoadForms, aFixedCraneHasAPlaceAndAMovingOneHasNone) {
    for (const auto kind : {DialogKind::Load, DialogKind::LoadRunway}) {
        open(kind);
        EXPECT_FALSE(control("txtPosition").isEnabled());
        click("optFixerad");
        EXPECT_TRUE(project.Fixerad);
        enter("txtPosition", "1250");
        EXPECT_EQ(double(project.Position), 1250.0);
        click("optRorlig");
        EXPECT_FALSE(project.Fixerad);
        EXPECT_EQ(double(project.Position), 0.0);
        EXPECT_EQ(shown("txtPosition"), "0");
        EXPECT_FALSE(control("txtPosition").isEnabled());
        form.reset();
    }
}

TEST_F(LoadForms, classesGoToTheCraneTheyBelongTo) {
    twoCranes();
    open(DialogKind::Load);
    auto& first = control<QComboBox>("cboCraneClass1");
    EXPECT_EQ(first.currentText(), "S3");
    EXPECT_EQ(first.itemText(0), "S0");
    EXPECT_EQ(first.itemText(9), "S9");
    Q_EMIT first.activated(9);
    Q_EMIT control<QComboBox>("cboCraneClass2").activated(0);
    form.reset();
    open(DialogKind::LoadRunway);
    Q_EMIT control<QComboBox>("cboCraneClass1").activated(5);
    EXPECT_EQ(project.CraneClass1, 9);
    EXPECT_EQ(project.CraneClass2, 0);
    EXPECT_EQ(project.CraneClassR, 5);
}

TEST_F(LoadForms, theSmallestDistanceIsOfferedAndTakenAtTheNextLeaving) {
    twoCranes();
    open(DialogKind::Load);
    enter("txtMinAvst", "100");
    EXPECT_EQ(lastMessage(), " Min distance 100 ");
    EXPECT_EQ(shown("txtMinAvst"), "101");
    EXPECT_EQ(double(project.MinAvst), 100.0);
    leave();
    EXPECT_EQ(double(project.MinAvst), 101.0);
    EXPECT_EQ(messages.texts.size(), 1u);
}

TEST_F(LoadForms, combinationsNameCraneLoadsOnly) {
    twoCranes();
    open(DialogKind::Load);
    enter("txtPsiV2", "1.3");
    const auto& list = control<QListWidget>("lstCombination");
    EXPECT_EQ(list.item(0)->text(), "ULS: 1.35*(1.10*Vk1 + 1.10*Hk1 + 1.30*Vk2 + 1.10*Hk2)");
    EXPECT_EQ(list.item(1)->text(), "SLS: 1.00*(Vk + Hk)");
    EXPECT_EQ(list.item(2)->text(), "FLS: 1.00*(1.05*Vk1 + 1.15*Vk2)  ");
    form.reset();
    project.NofCranes = 1;
    open(DialogKind::LoadRunway);
    EXPECT_EQ(control<QListWidget>("lstCombination").item(0)->text(), "ULS: 1.35*(1.10*Vk + 1.10*Hk)");
}

TEST_F(LoadForms, aRefusedLoadKeepsTheFormOpenByWhicheverWayItIsClosed) {
    for (const auto kind : {DialogKind::Load, DialogKind::LoadRunway}) {
        project.Avst(1) = 0;
        project.V(2) = 40;
        open(kind);
        messages.texts.clear();
        for (const char* button : {"cmdOK", "Command1"}) {
            if (kind == DialogKind::LoadRunway && button == std::string("Command1")) continue;
            click(button);
            EXPECT_TRUE(form->isVisible());
            EXPECT_EQ(lastMessage(), " Distance between point 1/2 missing ");
        }
        form->close();
        EXPECT_TRUE(form->isVisible());
        enter("txtAvst1", "1900");
        click("cmdOK");
        EXPECT_FALSE(form->isVisible());
        form.reset();
    }
}

TEST_F(LoadForms, closingWithOneCraneClearsTheSecond) {
    twoCranes();
    project.H(5) = 2;
    project.Avst(4) = 1000;
    project.V(6) = 10;
    open(DialogKind::Load);
    click("optEn");
    click("cmdOK");
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(double(project.MinAvst), 0.0);
    for (int i = 5; i <= 8; ++i) EXPECT_EQ(project.V(i) + project.H(i), 0.0);
    for (int i = 4; i <= 6; ++i) EXPECT_EQ(double(project.Avst(i)), 0.0);
}

}  // namespace
}  // namespace borvik
