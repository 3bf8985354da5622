#include "dialogs/load_runway_dialog.h"

#include <QLabel>
#include <QPushButton>

#include "boxes/combination_list.h"
#include "boxes/info_picture.h"
#include "pictures/crane_pictures.h"
#include "pictures/info_pictures.h"

namespace borvik {

LoadRunwayDialog::LoadRunwayDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmLoadRunway", tr("Monorail beam - Loads"), session, messages, std::move(changed), parent) {
    const auto edited = [this] { takeEdit(); };
    hoist_ = std::make_unique<CraneGroup>(
        binder_, project_, 1,
        CraneGroupText{"frHoist", tr("Hoist Load"), tr("Vertical "), tr("Horisontal "), tr("Psi1V ="), tr("Psi1H ="),
                       tr("Charcteristic loads"), "First wheel for Crane  1 must have a vertical force!",
                       "Only positiv value"},
        project_.CraneClassR, "0", edited);
    position_ = std::make_unique<PositionGroup>(binder_, project_, tr("Loadposition"),
                                                tr("Position for first wheel from left beamsupport:"), edited);
    auto* content = new QGridLayout;
    content->addWidget(hoist_->box(), 0, 0, 2, 1);
    content->addWidget(runway().box, 0, 1);
    content->addWidget(position_->box(), 1, 1);
    wheels_ = new Picture(hoistPicture(project_), 70, 8);
    wheels_->setToolTip(tr("Numbers of the wheels and their distances"));
    content->addWidget(wheels_, 2, 0, 1, 2);
    content->addWidget(combinations().box, 3, 0, 1, 2);
    content->addWidget(closeButton("cmdOK", tr("&Close"), tr("Check the loads and close the form")), 4, 1,
                       Qt::AlignRight);
    setContent(content);
    binder_.accepted = edited;
    Write();
}

void LoadRunwayDialog::Write() {
    binder_.show();
    position_->show();
    hoist_->show();
    lstCombination_->write(project_, CombinationText::CraneLoadsOnly);
}

void LoadRunwayDialog::showInput() {
    Write();
    wheels_->update();
    flange_->update();
}

bool LoadRunwayDialog::CheckLoads() {
    return mayCloseLoads(*this, project_, messages_, LoadForm::Monorail);
}

Group LoadRunwayDialog::runway() {
    const Group group = makeGroup("frmRunWay", tr("Monorail beam - load position"));
    flange_ = new Picture(bottomFlangePicture(project_), 40, 11);
    flange_->setToolTip(tr("Wheels of the hoist on the bottom flange"));
    addWide(group.grid, flange_);
    addRow(
        group.grid, tr("n ="),
        binder_.add({.name = "inn",
                     .field = project_.Inn,
                     .mask = "#0",
                     .message = " n >= 5 ",
                     .meaning = tr(
                         "Distance of the wheel's contact point from the tip of the flange, EN 1993-6, 5.8 and 6.7")}),
        tr("mm"));
    group.grid->setColumnStretch(2, 1);
    return group;
}

Group LoadRunwayDialog::combinations() {
    const Group group = makeGroup("frmRail", tr("Loads"));
    lstCombination_ = new CombinationList;
    group.grid->addWidget(lstCombination_, 0, 0);
    group.grid->addWidget(
        makeButton(
            "cmdInfoLoadComb", tr("Info"), tr("Explain the load combinations"),
            [this] { showInfoPicture("frmInfoLoadComb", tr("Load combinations"), loadCombinationPicture(), this); }),
        0, 1, Qt::AlignTop);
    return group;
}

void LoadRunwayDialog::takeEdit() {
    lstCombination_->write(project_, CombinationText::CraneLoadsOnly);
    wheels_->update();
    flange_->update();
    inputChanged();
}

}  // namespace borvik
