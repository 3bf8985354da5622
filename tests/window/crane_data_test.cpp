#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "exchange/attached.h"
#include "window/form_support.h"

namespace borvik {
namespace {

class CraneDataForm : public FormTest {
protected:
    void enterWorkshopCrane() {
        for (const auto& [box, text] : {std::pair("txtbridge", "65"),
                                        {"txtcrab", "12"},
                                        {"txthoist", "100"},
                                        {"txtspan", "18"},
                                        {"txtemin", "0,9"},
                                        {"txtspacing", "3.2"},
                                        {"txtvh", "8"}})
            enter(box, text);
    }
    [[nodiscard]] std::string cell(int row, int column) {
        const auto* item = control<QTableWidget>("tblGroups").item(row, column);
        return item == nullptr ? "" : item->text().toStdString();
    }
};

/// The worked example of docs/crane-loads.md, typed: groups at once, nothing of the loads changed until they are used.
TEST_F(CraneDataForm, givesTheGroupsWhileTypingAndTheirLoadsOnDemand) {
    const Project before = project;
    open(DialogKind::CraneData);
    EXPECT_EQ(control<QTableWidget>("tblGroups").rowCount(), 0);
    enterWorkshopCrane();
    EXPECT_EQ(shown("txtemin"), "0.9");
    ASSERT_EQ(control<QTableWidget>("tblGroups").rowCount(), 7);
    EXPECT_EQ(cell(0, 1), "78.55");
    EXPECT_EQ(cell(0, 3), "12.48 / -12.48");
    EXPECT_EQ(cell(4, 3), "15.81 / 0.00");
    EXPECT_EQ(project.V, before.V);
    ASSERT_EQ(attachedOf(project).cranes.size(), 1U);
    EXPECT_NEAR(attachedOf(project).cranes[0].vh, 8.0 / 60.0, 1e-15);

    control<QTableWidget>("tblGroups").selectRow(4);
    click("cmdUse");
    EXPECT_FLOAT_EQ(static_cast<float>(project.V(1)), 69.45F);
    EXPECT_NEAR(project.H(1), 15.81, 0.005);
    EXPECT_EQ(double(project.PsiH1), 1.0);
    EXPECT_EQ(control<QLabel>("lblState").text().toStdString(), "Loads of the project: from crane data, Group 5");
    click("cmdCompare");
    EXPECT_GT(control<QTableWidget>("tblMatrix").rowCount(), 5);
    form->findChild<QAction*>("undo")->trigger();
    EXPECT_EQ(project.V, before.V) << "one step";
    EXPECT_EQ(attachedOf(project).cranes.size(), 1U);
    EXPECT_EQ(control<QLabel>("lblState").text().toStdString(), "Loads of the project: entered by hand");
}

TEST_F(CraneDataForm, isNamedByTheFormOfTheLoads) {
    open(DialogKind::CraneData);
    enterWorkshopCrane();
    click("cmdUse");
    form.reset();
    open(DialogKind::Load);
    EXPECT_EQ(control<QLabel>("lblSource").text().toStdString(), "from crane data, group 1");
    enter("txtV1", "80");
    EXPECT_EQ(control<QLabel>("lblSource").text().toStdString(), "changed by hand");
}

TEST_F(CraneDataForm, saysWhatIsWrongAndKeepsWhatWasEntered) {
    open(DialogKind::CraneData);
    enterWorkshopCrane();
    enter("txtemin", "10");
    EXPECT_EQ(control<QTableWidget>("tblGroups").rowCount(), 0);
    EXPECT_NE(control<QLabel>("lblFault").text().indexOf("mid-span"), -1);
    EXPECT_FALSE(control<QPushButton>("cmdUse").isEnabled());
    EXPECT_EQ(attachedOf(project).cranes[0].emin, 10.0) << "kept, to be mended";
    enter("txtemin", "0.9");
    enter("txtphi5", "12");
    EXPECT_TRUE(control("txtphi5").refused());
    EXPECT_EQ(attachedOf(project).cranes[0].phi5, 1.5);
    enter("txtphi5", "1.2");
    enter("txtK", "5");
    EXPECT_EQ(attachedOf(project).cranes[0].K, 5.0);
    enter("txtK", " ");
    EXPECT_FALSE(attachedOf(project).cranes[0].K) << "calculated again";
    enter("txtspacing", "1 / 2 / 3 / 4");
    EXPECT_TRUE(control("txtspacing").refused());
    Q_EMIT control<QComboBox>("cboType").activated(7);
    EXPECT_EQ(attachedOf(project).cranes[0].S, 7) << "grab or magnet crane";
    click("chkTonnes");
    EXPECT_EQ(shown("txtbridge").substr(0, 5), "6.625");
    enter("txtcrab", "1");
    EXPECT_NEAR(attachedOf(project).cranes[0].crab, 9.81, 1e-12);
}

}  // namespace
}  // namespace borvik
