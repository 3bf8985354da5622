#include "tutorial_steps.h"

#include <QTreeWidget>
#include <utility>

namespace borvik {

namespace {

void chooseSection(const FormHands& form) {
    form.choose("cboEuprofile", "HEB 400");
    form.click("addtoDBIu");
    form.click("OptLoadL1");
}

void layOutBeam(const FormHands& form) {
    auto& rows = form.control<QTreeWidget>("lstViewTill");
    const auto select = [&rows](int row) {
        rows.clearSelection();
        rows.setCurrentItem(rows.topLevelItem(row - 1));
    };
    select(3);
    QTest::keyClick(&rows, Qt::Key_Delete);
    select(1);
    form.enter("txtBeamLength", "6000");
    form.choose("cboProf", "HEB 400");
    form.click("Command1");
    form.tick("chkDead", true);
}

void putRailOn(const FormHands& form) {
    form.choose("cboRail", "A 55");
    form.click("optRail2");
    form.tick("chkRail", true);
}

void enterCrane(const FormHands& form) {
    form.click("optEn");
    form.click("optRorlig");
    form.choose("cboCraneClass1", "S4");
    const std::pair<const char*, const char*> entries[] = {{"txtPsiV1", "1.15"}, {"txtPsiH1", "1.5"}, {"txtV1", "70"},
                                                           {"txtH1", "8"},       {"txtV2", "70"},     {"txtH2", "-8"},
                                                           {"txtAvst1", "3000"}};
    for (const auto& [box, text] : entries) form.enter(box, text);
}

void chooseDetails(const FormHands& form) {
    form.click("Command10");
    form.tick("chkFat5", false);
}

constexpr TutorialStep kSteps[]{
    {DialogKind::Profile, "mnuProfile", "frmProfile", "Command1", "Profile", "tutorial-section", chooseSection},
    {DialogKind::Beam, "mnuBeam", "frmBeam", "cmdOK", "Beam", "tutorial-beam", layOutBeam},
    {DialogKind::Rail, "mnuRail", "frmRail", "cmdOK", "Rail", "tutorial-rail", putRailOn},
    {DialogKind::Load, "mnuLoad", "frmLoad", "cmdOK", "Loads", "tutorial-loads", enterCrane},
    {DialogKind::Fatigue1, "mnuFatigue", "frmFatigue1", "cmdOK", "Fatigue", "tutorial-fatigue", chooseDetails}};

}  // namespace

std::span<const TutorialStep> tutorialSteps() {
    return kSteps;
}

}  // namespace borvik
