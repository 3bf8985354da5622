#include "dialogs/setup_dialog.h"

#include <QLabel>
#include <QPushButton>

#include "boxes/combination_list.h"
#include "boxes/info_picture.h"
#include "pictures/info_pictures.h"

namespace borvik {

namespace {

/// Gives the boxes of groups that stand below each other one left edge and one width.
void alignBoxes(std::initializer_list<Group> groups) {
    constexpr int kRest = 3;  // the column behind labels, boxes and buttons takes the room that is left
    int widest = 0;
    for (const Group& group : groups)
        for (const auto* label : group.box->findChildren<QLabel*>())
            if (label->buddy() != nullptr) widest = std::max(widest, label->sizeHint().width());
    for (const Group& group : groups) {
        group.grid->setColumnMinimumWidth(0, widest);
        group.grid->setColumnStretch(kRest, 1);
        for (auto* box : group.box->findChildren<NumberBox*>()) box->setFixedWidth(box->sizeHint().width());
    }
}

}  // namespace

SetupDialog::SetupDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmSetup", tr("Setup"), session, messages, std::move(changed), parent) {
    const Group loads = loadFactors(), limits = deflectionLimits(), shear = shearFactor();
    const Group buckling = bucklingParameters(), factors = partialFactors();
    alignBoxes({loads, limits, shear});
    alignBoxes({buckling, factors});
    auto* content = new QGridLayout;
    content->addWidget(loads.box, 0, 0, 1, 2);
    content->addWidget(limits.box, 1, 0);
    content->addWidget(shear.box, 2, 0);
    content->addWidget(buckling.box, 1, 1);
    content->addWidget(factors.box, 2, 1);
    content->addWidget(closeButton("CmdOK", tr("Close"), tr("Close the form; all values are stored already")), 3, 1,
                       Qt::AlignRight);
    content->setRowStretch(4, 1);
    setContent(content);
    binder_.accepted = [this] {
        lstCombination_->write(project_, CombinationText::WithPermanentLoad);
        inputChanged();
    };
    WriteSetup();
}

void SetupDialog::WriteSetup() {
    binder_.show();
    lstCombination_->write(project_, CombinationText::WithPermanentLoad);
}

NumberBox* SetupDialog::factor(const char* name, Single& field, const char* message, const QString& meaning) {
    return binder_.add({.name = name, .field = field, .mask = "0.00", .message = message, .meaning = meaning});
}

Group SetupDialog::loadFactors() {
    const Group group = makeGroup("frULS", tr("ULS/SLS/FLS Loadfactors"));
    addRow(group.grid, tr("ULS   Brott   Loadfactor ="),
           factor("iLfULS", project_.LfULS, " 0 < Loadfactor < 4.0 ",
                  tr("Load factor of the ultimate limit state, EN 1990 Table A1.2(B), EN 1991-3 Annex A")));
    addRow(group.grid, tr("SLS   Bruk   Loadfactor ="),
           factor("iLfSLS", project_.LfSLS, " 0 < Loadfactor < 4.0 ",
                  tr("Load factor of the serviceability limit state, EN 1990, 6.5.3")));
    addRow(group.grid, tr("FLS   Bruk   Loadfactor ="),
           factor("igammaFf", project_.GammaFf, " 0.5 <= gammaFf <=1.5 ",
                  tr("γFf, partial factor of the fatigue load, EN 1993-1-9, 3")));
    lstCombination_ = new CombinationList;
    group.grid->addWidget(lstCombination_, 0, 3, group.grid->rowCount(), 1);
    group.grid->setColumnStretch(3, 1);
    return group;
}

Group SetupDialog::deflectionLimits() {
    const Group group = makeGroup("Frame1", tr("SLS - Deformation  Limit "));
    const char* message = " L/200  <= Deformation <= L/2000  ";
    addRow(group.grid, tr("Horisontal: dy<= L/ "),
           binder_.add({.name = "txtDefY",
                        .field = project_.DefY,
                        .mask = "#00",
                        .message = message,
                        .meaning = tr("Horizontal deflection limit L/…, EN 1993-6 Table 7.1 a)")}));
    addRow(group.grid, tr("Vertical:  dz <= L/ "),
           binder_.add({.name = "txtDefZ",
                        .field = project_.DefZ,
                        .mask = "#00",
                        .message = message,
                        .meaning = tr("Vertical deflection limit L/…, EN 1993-6 Table 7.2 a)")}));
    addWide(group.grid, new QLabel(tr("See EN 1993-6 Table: 7:1/7:2 ")));
    group.grid->addWidget(
        makeButton(
            "Command3", tr("Info"), tr("Explain the deflection limits"),
            [this] { showInfoPicture("frmInfoSetup", tr("Deformation limits"), deflectionLimitPicture(), this); }),
        group.grid->rowCount() - 1, 2);
    return group;
}

Group SetupDialog::shearFactor() {
    const Group group = makeGroup("frameneta", tr("Shear acc to 6.2.6 (3)"));
    addRow(group.grid, tr("Factor  n ="),
           factor("ineta", project_.Eta, " 1 <= neta <=1.2 ",
                  tr("η of the shear area, EN 1993-1-1, 6.2.6(3) and EN 1993-1-5, 5.1(2)")));
    addWide(group.grid, new QLabel(tr("See EN 1993-1-5, ch 5.1")));
    group.grid->setRowStretch(group.grid->rowCount(), 1);
    return group;
}

Group SetupDialog::bucklingParameters() {
    const Group group = makeGroup("framelamdabeta", tr("Parameters lamdaLT0 && beta"));
    const char* lamda = " 0.1 <= lamdaLT0 <= 0.8 ";
    group.grid->addWidget(new QLabel(tr("  Rolled I-section")), 0, 1);
    group.grid->addWidget(new QLabel(tr("  Welded     I-section")), 0, 2);
    const auto row = [&group](const QString& label, NumberBox* rolled, NumberBox* welded, const QString& note) {
        const int at = group.grid->rowCount();
        auto* text = new QLabel(label);
        text->setBuddy(rolled);
        group.grid->addWidget(text, at, 0);
        group.grid->addWidget(rolled, at, 1);
        group.grid->addWidget(welded, at, 2);
        group.grid->addWidget(new QLabel(note), at + 1, 0, 1, 3);
    };
    const QString lamdaMeaning = tr("λLT,0, length of the plateau of the buckling curves, EN 1993-1-1, 6.3.2.3(1)");
    const QString betaMeaning = tr("β of the buckling curves, EN 1993-1-1, 6.3.2.3(1)");
    auto* rolledLamda = factor("ilamdaLT0", project_.LamdaLT0, lamda, lamdaMeaning);
    auto* weldedLamda = factor("ilamdaLT0w", project_.LamdaLT0w, lamda, lamdaMeaning);
    row(tr("lamdaLT,0 ="), rolledLamda, weldedLamda, tr(" Recommended maximum value 0.4 "));
    auto* rolledBeta = factor("ibeta", project_.Beta, " 0.1 <= beta <= 0.8 ", betaMeaning);
    auto* weldedBeta = factor("ibetaw", project_.Betaw, " 0.1 <= beta <= 1 ", betaMeaning);
    row(tr("beta ="), rolledBeta, weldedBeta, tr(" Recommended minimum value 0.75 "));
    return group;
}

Group SetupDialog::partialFactors() {
    const Group group = makeGroup("framegamma", tr("Partial factor for Resistance"));
    addRow(group.grid, tr("Section Control:  gM0 ="),
           factor("igammam0", project_.GammaM0, " 0.5 <= gammam0 <=1.5 ",
                  tr("γM0, resistance of cross-sections, EN 1993-1-1, 6.1(1)")));
    addRow(group.grid, tr("Buckling Control:  gM1 ="),
           factor("igammam1", project_.GammaM1, " 0.5 <= gammam1 <=1.5 ",
                  tr("γM1, resistance of members to instability, EN 1993-1-1, 6.1(1)")));
    addRow(group.grid, tr("Fatigue resistance:gMf ="),
           factor("igammaMf", project_.GammaMf, " 0.5 <= gammaMf <=1.5 ",
                  tr("γMf, fatigue resistance, EN 1993-1-9 Table 3.1")));
    group.grid->addWidget(makeButton("Command2", tr("Info"), tr("Explain the partial factors of fatigue"),
                                     [this] {
                                         showInfoPicture("frmInfoSetup", tr("Fatigue resistance - gammaMf"),
                                                         fatigueFactorPicture(), this);
                                     }),
                          group.grid->rowCount() - 1, 2);
    return group;
}

}  // namespace borvik
