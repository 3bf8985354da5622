#include "dialogs/rail_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>

#include "base/number_text.h"
#include "pictures/rail_picture.h"

namespace borvik {

RailDialog::RailDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmRail", tr("Rail"), session, messages, std::move(changed), parent) {
    auto* content = new QGridLayout;
    picture_ = new Picture(railPicture(project_, session_.tables), 62, 20);
    picture_->setToolTip(tr("The rail to scale on the top flange, with its fastening"));
    content->addWidget(choice().box, 0, 0);
    content->addWidget(fastening().box, 1, 0);
    content->addWidget(picture_, 0, 1, 2, 1);
    content->setColumnStretch(1, 1);
    content->addWidget(closeButton("cmdOK", tr("Close"), tr("Close the form")), 2, 1, Qt::AlignRight);
    setContent(content);
    showInput();
}

void RailDialog::showInput() {
    cboRail_->setCurrentIndex(findRail(session_.tables, project_.RailName));
    chkRail_->setChecked(project_.RailOn);
    for (std::int16_t fix = 1; fix <= 3; ++fix) fixes_[fix - 1]->setChecked(project_.RailFix == RailFixing{fix});
    writeList();
}

Group RailDialog::choice() {
    const Group group = makeGroup("frRail", tr("Rail"));
    cboRail_ = makeList("cboRail", tr("Crane rail of the rail table"), [this](int row) { chooseRail(row); });
    for (const RailRecord& rail : session_.tables.RailTable) cboRail_->addItem(QString::fromStdString(rail.Name));
    chkRail_ = makeChoice<QCheckBox>("chkRail", tr("&Include deadload of rail"),
                                     tr("The rail's weight acts as a permanent load"), [this] {
                                         project_.RailOn = chkRail_->isChecked();
                                         picture_->update();
                                         inputChanged();
                                     });
    list_ = makePropertyList("lstRail");
    list_->setToolTip(tr("Properties of the rail; k is the width of the head"));
    addWide(group.grid, cboRail_);
    addWide(group.grid, chkRail_);
    addWide(group.grid, list_);
    return group;
}

Group RailDialog::fastening() {
    const Group group = makeGroup("frFix", tr("Fastening to the flange"));
    const QString clause = tr("Effective loaded length under a wheel, EN 1993-6 Table 5.1");
    const QString texts[] = {tr("&Rigidly fixed to the flange"), tr("&Not rigidly fixed to the flange"),
                             tr("&On a resilient bearing pad, at least 6 mm thick")};
    for (std::int16_t fix = 1; fix <= 3; ++fix) {
        auto* option = makeChoice<QRadioButton>("optRail" + std::to_string(fix), texts[fix - 1], clause, [this, fix] {
            project_.RailFix = RailFixing{fix};
            picture_->update();
            inputChanged();
        });
        fixes_[fix - 1] = option;
        addWide(group.grid, option);
    }
    return group;
}

void RailDialog::chooseRail(int row) {
    project_.RailName = session_.tables.RailTable(row).Name;
    writeList();
    inputChanged();
}

void RailDialog::writeList() {
    const RailRecord& rail = railOf(project_, session_.tables);
    const auto row = [](const char* label, Single value, const char* mask, const char* unit) {
        return PropertyRow{label, formatNumber(value, mask), unit};
    };
    std::vector<PropertyRow> rows = {row("  h =", rail.RailHr, "0.0 ", "mm"), row("  b =", rail.RailBr, "0.0 ", "mm"),
                                     row("  Ax =", rail.RailAx, "0.0 ", "mm2"),
                                     row("  Weight =", rail.RailWeight, "0.0 ", "kg")};
    if (rail.Id == "A") {
        rows.push_back(row("  e1 =", rail.RailE1, "0.0", "mm"));
        rows.push_back(row("  h3 =", rail.RailH3, "0.0", "mm"));
    }
    rows.push_back(row("  k =", rail.RailKr, "0.0", "mm"));
    rows.push_back(row("  Iy =", rail.RailIy, "0.000E+0", "mm4"));
    fillPropertyList(list_, rows);
    picture_->update();
}

}  // namespace borvik
