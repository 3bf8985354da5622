#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "forms/form_support.h"
#include "calculation/load_check.h"

namespace borvik {
namespace {

class SetupForm : public FormTest {};

TEST_F(SetupForm, TheVerticalLimitDecidesWhetherAHorizontalOneIsTaken) {
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

TEST_F(SetupForm, TheCombinationsFollowTheFactorsAtOnce) {
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

TEST_F(LoadForms, NumberOfCranesEnablesWhatBelongsToIt) {
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

TEST_F(LoadForms, TwoCranesActIndependentlyOrTogether) {
    twoCranes();
    open(DialogKind::Load);
    EXPECT_TRUE(control<QRadioButton>("optIndepend").isChecked());
    EXPECT_EQ(control<QLabel>("LblUF").text(), "IR = D(Cr1)^3 + D(Cr2)^3 ");
    click("optSimultan");
    EXPECT_EQ(project.TwoCraneMode, 2);
    EXPECT_EQ(control<QLabel>("LblUF").text(), "IR = D(Cr1)^3 + D(Cr2)^3 + D(Cr1+Cr2)^3");
    click("optEn");
    click("optTwo");
    EXPECT_TRUE(control<QRadioButton>("optSimultan").isChecked());
    click("optIndepend");
    EXPECT_EQ(project.TwoCraneMode, 1);
}

TEST_F(LoadForms, AFixedCraneHasAPlaceAndAMovingOneHasNone) {
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

TEST_F(LoadForms, ClassesGoToTheCraneTheyBelongTo) {
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

TEST_F(LoadForms, TheSmallestDistanceIsOfferedAndTakenAtTheNextLeaving) {
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

TEST_F(LoadForms, CombinationsNameCraneLoadsOnly) {
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

TEST_F(LoadForms, ARefusedLoadKeepsTheFormOpenByWhicheverWayItIsClosed) {
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

TEST_F(LoadForms, ClosingWithOneCraneClearsTheSecond) {
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

/// One closing test: what is set on top of a sound crane, and what is said.
struct Refusal {
    const char* name;
    std::function<void(Project&)> set;
    const char* overhead;
    const char* monorail;
    int cranes = 1;
};

void PrintTo(const Refusal& refusal, std::ostream* out) {
    *out << refusal.name;
}

std::string nameOf(const testing::TestParamInfo<Refusal>& info) {
    return info.param.name;
}

class LoadRefusals : public testing::TestWithParam<Refusal> {};

/// A beam of 15 m under a crane of two wheels, with a second crane of two wheels that counts only when asked for.
Project soundProject() {
    Project p;
    p.Span(1) = 4000;
    p.Span(2) = 5000;
    p.Span(3) = 6000;
    p.NofCranes = 1;
    p.V(1) = 30;
    p.V(2) = 40;
    p.Avst(1) = 1900;
    p.MinAvst = 1000;
    p.V(5) = p.V(6) = 20;
    p.Avst(4) = 2000;
    return p;
}

TEST_P(LoadRefusals, AreFoundInTheirOrderAndWording) {
    Project p = soundProject();
    if (GetParam().cranes == 2) p.NofCranes = 2;
    GetParam().set(p);
    EXPECT_EQ(LoadRefusal(p, LoadForm::Overhead), GetParam().overhead);
    if (GetParam().monorail != nullptr) {
        EXPECT_EQ(LoadRefusal(p, LoadForm::Monorail), GetParam().monorail);
    }
}

const char* kLoad2 = "Vertical force for wheel 2 is missing!";
const char* kLoad3 = "Vertical force for wheel 3 is missing!";
const char* kLoad4 = "Vertical force for wheel 4 is missing!";

INSTANTIATE_TEST_SUITE_P(
    Closing, LoadRefusals,
    testing::Values(Refusal{"Sound", [](Project&) {}, "", ""},
                    Refusal{"JustTooLong", [](Project& p) { p.Position = 15000 - 1900 - 1000 - 2000; },
                            "15000 > 15000 ; The crane is outside the beam !!",
                            "15000 > 15000 ; Traversen ryms ej på traversbalken!!"},
                    Refusal{"JustShortEnough", [](Project& p) { p.Position = 15000 - 1900 - 1000 - 2000 - 1; }, "", ""},
                    Refusal{"TooLongGoesBeforeAllElse",
                            [](Project& p) {
                                p.Fixerad = true;
                                p.Avst(2) = 20000.5;
                            },
                            "24900.5 > 15000 ; The crane is outside the beam !!", nullptr},
                    Refusal{"FixedNowhere", [](Project& p) { p.Fixerad = true; }, " Fixed position > 0 ",
                            " Fixed position > 0 "},
                    Refusal{"Load2", [](Project& p) { p.V(2) = 0; }, kLoad2, kLoad2},
                    Refusal{"Load3", [](Project& p) { p.Avst(2) = 1; }, kLoad3, kLoad3},
                    Refusal{"Load4", [](Project& p) { p.Avst(3) = 1; }, kLoad4, kLoad4},
                    Refusal{"Distance12", [](Project& p) { p.Avst(1) = 0; }, " Distance between point 1/2 missing ",
                            " Distance between point 1/2 missing "},
                    Refusal{"Distance12OfWheel3",
                            [](Project& p) {
                                p.Avst(1) = p.V(2) = 0;
                                p.V(3) = p.Avst(2) = 10;
                            },
                            " Distance between point 1/2 missing", " Distance between point 1/2  missing"},
                    Refusal{"Distance23OfWheel3", [](Project& p) { p.V(3) = 10; },
                            " Distance between point 2/3 missing", " Distance between point 2/3 missing"},
                    Refusal{"Distance34", [](Project& p) { p.V(3) = p.Avst(2) = p.V(4) = 10; },
                            "Distance between point 3/4 missing", "Distance between point 3/4 missing"},
                    Refusal{"Wheel4Alone", [](Project& p) { p.V(4) = 10; }, "Distance between point 3/4 missing",
                            "Distance between point 2/3 missing"},
                    Refusal{"Wheel4WithoutDistance23", [](Project& p) { p.V(4) = p.Avst(3) = 10; },
                            " Distance between point 2/3 missing", "Distance between point 2/3 missing"},
                    Refusal{"Wheel4WithoutDistance12",
                            [](Project& p) {
                                p.Avst(1) = p.V(2) = 0;
                                p.V(4) = p.Avst(3) = 10;
                            },
                            " Distance between point 2/3 missing", "Distance between point 1/2 missing"}),
    nameOf);

INSTANTIATE_TEST_SUITE_P(
    SecondCrane, LoadRefusals,
    testing::Values(Refusal{"First", [](Project& p) { p.V(5) = 0; },
                            "First wheel for Crane 2 must have a vertical force!", nullptr, 2},
                    Refusal{"Load6", [](Project& p) { p.V(6) = 0; },
                            "Vertical force for Crane 2 for wheel 2 is missing!", nullptr, 2},
                    Refusal{"Load7", [](Project& p) { p.Avst(5) = 1; },
                            "Vertical force for Crane 2 for wheel 3 is missing!", nullptr, 2},
                    Refusal{"Load8", [](Project& p) { p.Avst(6) = 1; },
                            "Vertical force for Crane 2 for wheel 4 is missing!", nullptr, 2},
                    Refusal{"Distance6", [](Project& p) { p.Avst(4) = 0; },
                            " Distance for Crane 2 between point 1/2 missing! ", nullptr, 2},
                    Refusal{"Distance7",
                            [](Project& p) {
                                p.Avst(4) = p.V(6) = 0;
                                p.V(7) = 1;
                            },
                            "Distance for Crane 2 between point 1/2 missing!", nullptr, 2},
                    Refusal{"Distance7b", [](Project& p) { p.V(7) = 1; },
                            "Distance for Crane 2 between point 2/3 missing!", nullptr, 2},
                    Refusal{"Distance8",
                            [](Project& p) {
                                p.Avst(4) = p.V(6) = 0;
                                p.V(8) = 1;
                            },
                            " Distance for Crane 2 between point 1/2 missing! ", nullptr, 2},
                    Refusal{"Distance8b", [](Project& p) { p.V(8) = 1; },
                            " Distance for Crane 2 between point 2/3 missing! ", nullptr, 2},
                    Refusal{"Distance8c", [](Project& p) { p.V(7) = p.Avst(5) = p.V(8) = 1; },
                            " Distance for Crane 2 between point 3/4 missing! ", nullptr, 2},
                    Refusal{"TooNear", [](Project& p) { p.MinAvst = 100; }, " Min distance 100 ", nullptr, 2},
                    Refusal{"JustFarEnough", [](Project& p) { p.MinAvst = 100.5; }, "", nullptr, 2}),
    nameOf);

TEST(SettledLoads, LoseTheHorizontalLoadsOfWheelsThatAreNotThere) {
    Project p = soundProject();
    p.NofCranes = 2;
    for (int i = 1; i <= 8; ++i) p.H(i) = i;
    SettleLoads(p, LoadForm::Overhead);
    const double left[] = {1, 2, 0, 0, 5, 6, 0, 0};
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(double(p.H(i)), left[i - 1]) << i;
    EXPECT_TRUE(p.HasLoadsY);
}

TEST(SettledLoads, AHorizontalLoadOnWheelSixAloneDoesNotCount) {
    for (int wheel = 1; wheel <= 8; ++wheel) {
        Project p = soundProject();
        p.NofCranes = 2;
        for (const int gap : {1, 2, 3, 4, 5, 6}) p.Avst(gap) = 500;
        p.H(wheel) = -1.5;
        SettleLoads(p, LoadForm::Overhead);
        EXPECT_EQ(p.HasLoadsY, wheel != 6) << wheel;
        SettleLoads(p, LoadForm::Monorail);
        EXPECT_EQ(p.HasLoadsY, wheel <= 4) << wheel;
    }
}

}  // namespace
}  // namespace borvik
