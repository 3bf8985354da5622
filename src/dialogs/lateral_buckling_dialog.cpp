#include "dialogs/lateral_buckling_dialog.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "checks/ltb_checks.h"
#include "pictures/moment_picture.h"

namespace borvik {

LateralBucklingDialog::LateralBucklingDialog(Session& session, Messages& messages, std::function<void()> changed,
                                             QWidget* parent)
    : InputDialog("frmvipping", tr("Lateral Torsional Buckling"), session, messages, std::move(changed), parent,
                  "Input string mismatch") {
    auto* content = new QGridLayout;
    content->addWidget(method().box, 0, 0);
    content->addWidget(factors().box, 1, 0);
    content->addWidget(closeButton("ok", tr("Close"), tr("Close the form; all values are stored already")), 2, 0,
                       Qt::AlignRight);
    setContent(content);
    showInput();
}

void LateralBucklingDialog::showInput() {
    curves_[0]->setChecked(project_.LtbCurve == LtbCase::General);
    curves_[1]->setChecked(project_.LtbCurve == LtbCase::RolledOrWelded);
    chkDefaultCfactor_->setChecked(project_.DefaultCfactor);
    useDefaultFactors(project_.DefaultCfactor);
}

void LateralBucklingDialog::settle(Project& project) const {
    if (project.DefaultCfactor) DefaultCFactors(project);
}

Group LateralBucklingDialog::method() {
    const Group group = makeGroup("frCurve", tr("Reduction factor"));
    const struct {
        const char* name;
        LtbCase curve;
        QString text, tip;
    } options[] = {
        {"optCurve2", LtbCase::General, tr("&General case, EN 1993-1-1, 6.3.2.2"), tr("Buckling curves of Table 6.4")},
        {"optCurve3", LtbCase::RolledOrWelded,
         tr("&Rolled sections or equivalent welded sections, EN 1993-1-1, 6.3.2.3"),
         tr("Buckling curves of Table 6.5, with λLT,0 and β of the setup")}};
    for (const auto& each : options) {
        auto* option = makeChoice<QRadioButton>(each.name, each.text, each.tip, [this, curve = each.curve] {
            project_.LtbCurve = curve;
            inputChanged();
        });
        curves_[each.curve == LtbCase::General ? 0 : 1] = option;
        addWide(group.grid, option);
    }
    return group;
}

Group LateralBucklingDialog::factors() {
    const Group group = makeGroup("frFactors", tr("Factors of the critical moment"));
    chkDefaultCfactor_ =
        makeChoice<QCheckBox>("chkDefaultCfactor", tr("&Default C factors"),
                              tr("The factors follow from the number of spans and the kind of crane"), [this] {
                                  useDefaultFactors(chkDefaultCfactor_->isChecked());
                                  inputChanged();
                              });
    QGridLayout* grid = group.grid;
    addWide(grid, chkDefaultCfactor_);
    const QString heads[] = {tr("Zone"), tr("C1"), tr("C2"), tr("C3")};
    for (int column = 0; column < 4; ++column) grid->addWidget(new QLabel(heads[column]), 1, column, Qt::AlignHCenter);
    const struct {
        QString label;
        NumberBox* c[3];
        MomentZone zone;
    } zones[] = {{tr("End span, positive moment"),
                  {factor("txtC1EndPos", project_.C1EndPos, 1), factor("txtC2EndPos", project_.C2EndPos, 2),
                   factor("txtC3EndPos", project_.C3EndPos, 3)},
                  MomentZone::EndPositive},
                 {tr("Mid span, positive moment"),
                  {factor("txtC1MidPos", project_.C1MidPos, 1), factor("txtC2MidPos", project_.C2MidPos, 2),
                   factor("txtC3MidPos", project_.C3MidPos, 3)},
                  MomentZone::MidPositive},
                 {tr("End span, negative moment"),
                  {factor("txtC1EndNeg", project_.C1EndNeg, 1), nullptr, factor("txtC3EndNeg", project_.C3EndNeg, 3)},
                  MomentZone::EndNegative},
                 {tr("Mid span, negative moment"),
                  {factor("txtC1MidNeg", project_.C1MidNeg, 1), nullptr, factor("txtC3MidNeg", project_.C3MidNeg, 3)},
                  MomentZone::MidNegative}};
    for (const auto& zone : zones) {
        const int row = grid->rowCount();
        auto* label = new QLabel(zone.label);
        label->setBuddy(zone.c[0]);
        grid->addWidget(label, row, 0);
        for (int c = 0; c < 3; ++c)
            if (zone.c[c] != nullptr) grid->addWidget(zone.c[c], row, c + 1);
        auto* picture = new Picture(momentPicture(zone.zone), 30, 4);
        picture->setToolTip(tr("Moment diagram that the factors of this line belong to"));
        grid->addWidget(picture, row, 4);
    }
    grid->setColumnStretch(4, 1);
    return group;
}

NumberBox* LateralBucklingDialog::factor(const char* name, Single& field, int order) {
    const char* messages[] = {"C1 >= 1.0", "C2 >= 0.3", "C3 >= 0.3"};
    const QString meanings[] = {tr("C1, shape of the moment diagram, in Mcr = C1 π²EIz/L² (…)"),
                                tr("C2, height of the point of load application zg"),
                                tr("C3, asymmetry of the section zj")};
    NumberBox* box = binder_.add({.name = name,
                                  .field = field,
                                  .mask = "0.000",
                                  .message = messages[order - 1],
                                  .meaning = meanings[order - 1]});
    boxes_.push_back(box);
    return box;
}

void LateralBucklingDialog::useDefaultFactors(bool use) {
    project_.DefaultCfactor = use;
    if (use) DefaultCFactors(project_);
    binder_.show();
    for (NumberBox* box : boxes_) box->setLocked(use);
}

}  // namespace borvik
