#include "dialogs/load_dialog.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "actions/crane_fields.h"
#include "boxes/combination_list.h"
#include "boxes/info_picture.h"
#include "exchange/attached.h"
#include "groups/group_runs.h"
#include "pictures/crane_pictures.h"
#include "pictures/info_pictures.h"

namespace borvik {

namespace {
constexpr int kTight = 3;
}

LoadDialog::LoadDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmLoad", tr("Overhead crane - Loads"), session, messages, std::move(changed), parent) {
    const auto edited = [this] { takeEdit(); };
    auto* left = new QVBoxLayout;
    left->addWidget(gangway().box);
    position_ = std::make_unique<PositionGroup>(binder_, project_, tr("Loadpositioning"),
                                                tr("Position for first wheel (Cr 1) from left beamsupport:"), edited);
    left->addWidget(position_->box());
    left->addWidget(loads().box);
    auto* content = new QGridLayout;
    left->setSpacing(kTight);  // the whole form on a small screen
    content->setVerticalSpacing(kTight);
    content->addLayout(left, 0, 0);
    content->addWidget(numberOfCranes().box, 0, 1);

    const char* last = "Only positiv value";
    const char* inner = "Only positiv value!";
    crane1_ = std::make_unique<CraneGroup>(
        binder_, project_, 1,
        CraneGroupText{"Frame4", tr("Crane 1 (Cr1)"), tr("Vertical load"), tr("Horisontal load"), tr("Psi1V ="),
                       tr("Psi1H ="), tr("Charachteristic loads"),
                       "First wheel for Crane  1 must have a vertical force!", last},
        project_.CraneClass1, nullptr, edited);
    crane2_ = std::make_unique<CraneGroup>(
        binder_, project_, 2,
        CraneGroupText{"Frame5", tr("Crane 2 (Cr 2)"), tr("Vertical load"), tr("Horisontal load"), tr("Psi2V ="),
                       tr("Psi2H ="), tr("Charachteristic loads"),
                       "First wheel for Crane  2 must have a vertical force!", inner},
        project_.CraneClass2, nullptr, edited);
    addWide(crane2_->grid(), new QLabel(tr("  Vertical load = Dead load + Hoist load ")));
    content->addWidget(crane1_->box(), 1, 0);
    content->addWidget(crane2_->box(), 1, 1);
    picture_ = new Picture(cranesPicture(project_), 90, 6);
    picture_->setToolTip(tr("Numbers of the wheels and their distances"));
    content->addWidget(picture_, 2, 0, 1, 2);
    content->setRowStretch(2, 1);
    auto* source = new QHBoxLayout;
    source->addWidget(makeButton("cmdCraneData", tr("Crane &data ..."),
                                 tr("Derives these loads from the data sheet of the crane, EN 1991-3"), [this] {
                                     craneData_ = openOver(DialogKind::CraneData, [this] {
                                         Write();
                                         inputChanged();
                                     });
                                 }));
    source_ = new QLabel;
    source_->setObjectName("lblSource");
    source->addWidget(source_, 1);
    content->addLayout(source, 3, 0);
    content->addWidget(closeButton("cmdOK", tr("&Close"), tr("Check the loads and close the form")), 3, 1,
                       Qt::AlignRight);
    setContent(content);
    binder_.accepted = edited;
    Write();
}

void LoadDialog::Write() {
    binder_.show();
    position_->show();
    crane1_->show();
    crane2_->show();
    const bool two = project_.NofCranes == 2;
    (two ? optTwo_ : optEn_)->setChecked(true);
    crane2_->box()->setEnabled(two);
    txtMinAvst_->setEnabled(two);
    chkMinDistConst_->setEnabled(two);
    chkMinDistConst_->setChecked(two && double(project_.MinDistConst) == 1.0);
    (project_.TwoCraneMode == TwoCranes::Independent ? optIndepend_ : optSimultan_)->setChecked(true);
    writeDamageSum();
    writeSource();
    lstCombination_->write(project_, CombinationText::CraneLoadsOnly);
    picture_->update();
}

/// Whose loads these are, found by comparing.
void LoadDialog::writeSource() {
    const std::vector<actions::CraneData> cranes = attachedOf(project_).cranes;
    const bool good = std::all_of(cranes.begin(), cranes.end(),
                                  [](const auto& crane) { return actions::checkCrane(crane).isGood(); });
    if (cranes.empty() || !good) {
        source_->clear();
        return;
    }
    const auto group = groupOf(project_, cranes);
    source_->setText(group ? tr("from crane data, %1").arg(QString::fromStdString(nameOf(*group)).toLower())
                           : tr("changed by hand"));
}

bool LoadDialog::CheckLoads() {
    return mayCloseLoads(*this, project_, messages_, LoadForm::Overhead);
}

Group LoadDialog::gangway() {
    const Group group = makeGroup("frGangway", tr("Gangway"));
    addRow(group.grid, tr("Load on gangway qk ="),
           binder_.add({.name = "txtGangway",
                        .field = project_.Gangway,
                        .mask = "0.0",
                        .message = " Load must be >= 0 ",
                        .meaning = tr("Characteristic load of the gangway along the beam, EN 1991-3, 2.9")}),
           tr("kN/m"));
    group.grid->setColumnStretch(0, 1);
    return group;
}

Group LoadDialog::numberOfCranes() {
    const Group group = makeGroup("frNumber", tr("Number of cranes"));
    optEn_ = makeChoice<QRadioButton>("optEn", tr("One crane"), tr("One crane on the beam"),
                                      [this] { setNumberOfCranes(1); });
    optTwo_ = makeChoice<QRadioButton>("optTwo", tr("Two cranes"), tr("Two cranes on the beam"),
                                       [this] { setNumberOfCranes(2); });
    group.grid->addWidget(optEn_, 0, 0);
    group.grid->addWidget(optTwo_, 0, 1);
    txtMinAvst_ =
        binder_.add({.name = "txtMinAvst",
                     .field = project_.MinAvst,
                     .mask = "#0",
                     .message = " Min distance 100 ",
                     .meaning = tr("Smallest distance from the last wheel of crane 1 to the first of crane 2"),
                     // The box offers the smallest whole distance; the record keeps what was entered until then.
                     .refused = [this] {
                         txtMinAvst_->setText(QStringLiteral("101"));
                         txtMinAvst_->setModified(true);
                     }});
    auto* label = new QLabel(tr("Min.distance last wheell (Cr 1) and first wheel (Cr 2):"));
    label->setBuddy(txtMinAvst_);
    group.grid->addWidget(label, 1, 0, 1, 2);
    group.grid->addWidget(txtMinAvst_, 1, 2);
    group.grid->addWidget(new QLabel(tr("mm")), 1, 3);
    chkMinDistConst_ = makeChoice<QCheckBox>("chkMinDistConst", tr("Constant distance between Cranes"),
                                             tr("The second crane follows the first at just this distance"), [this] {
                                                 project_.MinDistConst = chkMinDistConst_->isChecked() ? 1.0 : 0.0;
                                                 takeEdit();
                                             });
    group.grid->addWidget(chkMinDistConst_, 2, 0, 1, 4);

    const Group acting = makeGroup("frIndepend", tr("Two cranes acting "));
    frIndepend_ = acting.box;
    const QString tip = tr("Fatigue damage of two cranes, EN 1993-6, 9.4.2");
    optIndepend_ = makeChoice<QRadioButton>("optIndepend", tr("Independently"), tip,
                                            [this] { setTwoCraneMode(TwoCranes::Independent); });
    optSimultan_ = makeChoice<QRadioButton>("optSimultan", tr("Simultaneously"), tip,
                                            [this] { setTwoCraneMode(TwoCranes::Together); });
    LblUF_ = new QLabel;
    LblUF_->setObjectName(QStringLiteral("LblUF"));
    acting.grid->addWidget(optIndepend_, 0, 0);
    acting.grid->addWidget(optSimultan_, 0, 1);
    acting.grid->addWidget(LblUF_, 1, 0, 1, 2);
    LblUF_->setMinimumWidth(
        LblUF_->fontMetrics().horizontalAdvance(QStringLiteral("IR = D(Cr1)^3 + D(Cr2)^3 + D(Cr1+Cr2)^3  ")));
    group.grid->addWidget(acting.box, 3, 0, 1, 4);
    group.grid->setRowStretch(4, 1);
    return group;
}

Group LoadDialog::loads() {
    const Group group = makeGroup("frLoads", tr("Loads"));
    lstCombination_ = new CombinationList;
    group.grid->addWidget(lstCombination_, 0, 0, 2, 1);
    group.grid->addWidget(
        makeButton(
            "cmdInfoLoadComb", tr("Info"), tr("Explain the load combinations"),
            [this] { showInfoPicture("frmInfoLoadComb", tr("Load combinations"), loadCombinationPicture(), this); }),
        0, 1);
    QPushButton* second =
        makeButton("Command1", tr("&Close"), tr("Check the loads and close the form"), [this] { accept(); });
    second->setShortcut({});  // two buttons of one key would only pass the focus to each other
    group.grid->addWidget(second, 1, 1);
    return group;
}

void LoadDialog::takeEdit() {
    lstCombination_->write(project_, CombinationText::CraneLoadsOnly);
    picture_->update();
    writeSource();
    inputChanged();
}

void LoadDialog::setNumberOfCranes(int number) {
    project_.NofCranes = static_cast<std::int16_t>(number);
    if (number == 1) project_.MinDistConst = 0;
    frIndepend_->setEnabled(true);
    Write();
    inputChanged();
}

void LoadDialog::setTwoCraneMode(TwoCranes mode) {
    project_.TwoCraneMode = mode;
    writeDamageSum();
    inputChanged();
}

void LoadDialog::writeDamageSum() {
    LblUF_->setText(project_.TwoCraneMode == TwoCranes::Independent
                        ? QStringLiteral("IR = D(Cr1)^3 + D(Cr2)^3 ")
                        : QStringLiteral("IR = D(Cr1)^3 + D(Cr2)^3 + D(Cr1+Cr2)^3"));
}

}  // namespace borvik
