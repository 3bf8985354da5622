#include "dialogs/prof_reinf_dialog.h"

#include <QPushButton>
#include <QRadioButton>

#include "base/number_text.h"
#include "pictures/section_picture.h"
#include "section/section.h"

namespace borvik {

namespace {

constexpr const char* kHeightLimits = " 10 < hr < H/2 ";
constexpr const char* kThicknessLimits = " 0.5 < tr   ";

Range heightRange(const SectionRecord& section) {
    return {.lowest = 10, .highest = double(section.h) / 2, .withoutLowest = true, .withoutHighest = true};
}

Range thicknessRange() {
    return moreThan(0.5);
}

}  // namespace

const char* plateRefusal(const SectionRecord& section) {
    if (!section.Reinforced) return nullptr;
    if (!heightRange(section).holds(section.ReinfD)) return kHeightLimits;
    return thicknessRange().holds(section.ReinfT) ? nullptr : kThicknessLimits;
}

ProfReinfDialog::ProfReinfDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmProfReinf", tr("Reinforcement"), session, messages, std::move(changed), parent),
      current_(session.CurrentSection) {
    picture_ = new Picture(reinforcementPicture(current_), 56, 20);
    picture_->setToolTip(tr("The plates at the top flange, to scale"));
    auto* content = new QGridLayout;
    content->addWidget(arrangement().box, 0, 0);
    content->addWidget(plate().box, 1, 0);
    content->addWidget(picture_, 0, 1, 3, 1);
    content->setRowStretch(2, 1);
    content->setColumnStretch(1, 1);
    content->addWidget(closeButton("Command1", tr("Close"), tr("Close the form")), 3, 1, Qt::AlignRight);
    setContent(content);
    binder_.accepted = [this] { update(); };
    showInput();
}

void ProfReinfDialog::showInput() {
    const int arrangement = !current_.Reinforced ? 0 : current_.ReinfText == "PL1" ? 1 : 2;
    arrangements_[arrangement]->setChecked(true);
    binder_.show();
    picture_->update();
}

Group ProfReinfDialog::arrangement() {
    const Group group = makeGroup("frArrangement", tr("Reinforcement of the top flange"));
    const struct {
        const char* name;
        bool reinforced;
        const char* text;
        QString caption;
    } options[] = {{"optReNone", false, "", tr("None")},
                   {"optRePL1", true, "PL1", tr("Plates at the tips of the flange")},
                   {"optRePL2", true, "PL2", tr("Plates under the flange, flush with its tips")}};
    for (const auto& each : options) {
        auto* option = makeChoice<QRadioButton>(
            each.name, each.caption, tr("Two plates, one at each side"),
            [this, reinforced = each.reinforced, text = each.text] { arrange(reinforced, text); });
        arrangements_[group.grid->count()] = option;
        addWide(group.grid, option);
    }
    return group;
}

Group ProfReinfDialog::plate() {
    const Group group = makeGroup("frPlate", tr("One plate"));
    addRow(group.grid, tr("hr ="),
           binder_.add({.name = "ihr",
                        .field = current_.ReinfD,
                        .mask = "##0",
                        .range = [this] { return heightRange(current_); },
                        .message = kHeightLimits,
                        .meaning = tr("Height of a plate, from the middle of the flange down")}),
           tr("mm"));
    addRow(group.grid, tr("b ="),
           binder_.add({.name = "ibr",
                        .field = current_.ReinfB,
                        .mask = "##0",
                        .range = fixed(moreThan(10)),
                        .message = "  10 < b  ",
                        .meaning = tr("Width of a plate; kept with the section, no formula uses it")}),
           tr("mm"));
    addRow(group.grid, tr("tr ="),
           binder_.add({.name = "itr",
                        .field = current_.ReinfT,
                        .mask = "##0",
                        .range = fixed(thicknessRange()),
                        .message = kThicknessLimits,
                        .meaning = tr("Thickness of a plate")}),
           tr("mm"));
    return group;
}

void ProfReinfDialog::arrange(bool reinforced, const char* text) {
    current_.Reinforced = reinforced;
    current_.ReinfText = text;
    update();
}

void ProfReinfDialog::update() {
    picture_->update();
    inputChanged();  // the section form computes the section anew
}

bool ProfReinfDialog::mayClose() {
    if (const char* refusal = plateRefusal(current_)) {
        auto* box = findChild<NumberBox*>(QString::fromUtf8(refusal == kHeightLimits ? "ihr" : "itr"));
        messages_.show(refusal);
        box->markRefused(tr("Refused"));
        box->setFocus(Qt::TabFocusReason);
        return false;
    }
    current_.ReinfSuffix =
        current_.Reinforced ? "+PL" + generalText(current_.ReinfD) + "x" + generalText(current_.ReinfT) : std::string();
    SectionRecord named = current_;
    try {
        // The name is made anew with the suffix, so that a second visit doesn't add a second suffix.
        updateSection(session_.tables, project_, named);
        current_ = named;
    } catch (const RuntimeFault&) {
        // no section of these dimensions: the section form says so
    }
    return true;
}

}  // namespace borvik
