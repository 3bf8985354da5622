#include "dialogs/crane_group.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>

namespace borvik {

namespace {

constexpr int kRows = 8;  // more than any crane's group has; what room is left goes below
constexpr const char* kPsiMessage = " Psi factor >= 0.8 ! ";

QString tr(const char* text) {
    return QCoreApplication::translate("CraneGroup", text);
}

std::string numbered(const std::string& stem, int number) {
    return stem + std::to_string(number);
}

QString boxOf(const LoadFault& fault) {
    switch (fault.item) {
        case LoadItem::Load:
            return (fault.number <= 4 ? "txtV" : "txtv") + QString::number(fault.number);
        case LoadItem::Distance:
            return (fault.number <= 3 ? "txtAvst" : "txtavst") + QString::number(fault.number);
        case LoadItem::Position:
            return "txtPosition";
        case LoadItem::MinDistance:
            return "txtMinAvst";
        case LoadItem::Nothing:
            break;
    }
    return {};
}

}  // namespace

bool mayCloseLoads(QWidget& form, Project& project, Messages& messages, LoadForm kind) {
    const LoadFault fault = loadRefusal(project, kind);
    if (fault.message.empty()) {
        settleLoads(project, kind);
        return true;
    }
    messages.show(fault.message);
    if (!fault.mendable) return true;
    if (auto* box = form.findChild<NumberBox*>(boxOf(fault))) {
        box->setFocus(Qt::OtherFocusReason);
        box->selectAll();
        box->markRefused(QString::fromStdString(fault.message).trimmed());
    }
    return false;
}

CraneGroup::CraneGroup(FormBinder& binder, Project& project, int crane, const CraneGroupText& text,
                       std::int16_t& craneClass, const char* gapMask, const std::function<void()>& changed)
    : group_(makeGroup(text.name, text.title)), craneClass_(craneClass) {
    QGridLayout* grid = group_.grid;
    grid->addWidget(new QLabel(tr("Dynamik factor:")), 0, 0, 1, 3);
    addRow(grid, text.vertical + QStringLiteral("   ") + text.psiV,
           binder.add({.name = numbered("txtPsiV", crane),
                       .field = crane == 1 ? project.PsiV1 : project.PsiV2,
                       .mask = "0.00",
                       .message = kPsiMessage,
                       .meaning = tr("Dynamic factor of the vertical wheel loads, φ1 to φ4 of EN 1991-3, 2.6")}));
    addRow(grid, text.horizontal + QStringLiteral("   ") + text.psiH,
           binder.add({.name = numbered("txtPsiH", crane),
                       .field = crane == 1 ? project.PsiH1 : project.PsiH2,
                       .mask = "0.00",
                       .message = kPsiMessage,
                       .meaning = tr("Dynamic factor of the horizontal wheel loads, φ5 of EN 1991-3, 2.6")}));
    class_ = makeList(numbered("cboCraneClass", crane), tr("Class of fatigue action S0 to S9, EN 1991-3 Table 2.11"),
                      [this, changed](int index) {
                          craneClass_ = static_cast<std::int16_t>(index);
                          changed();
                      });
    for (const char* name : CraneClassName) class_->addItem(QString::fromUtf8(name));
    addRow(grid, tr("Crane Class:"), class_);
    addWide(grid, wheels(binder, project, crane, text, gapMask));
    grid->setRowStretch(kRows, 1);
    show();
}

void CraneGroup::show() {
    class_->setCurrentIndex(craneClass_);
}

QGroupBox* CraneGroup::wheels(FormBinder& binder, Project& project, int crane, const CraneGroupText& text,
                              const char* gapMask) {
    const int wheel0 = crane == 1 ? 0 : 4, gap0 = crane == 1 ? 0 : 3;
    // The boxes of the second crane are written with a small letter.
    const std::string v = crane == 1 ? "txtV" : "txtv", h = crane == 1 ? "txtH" : "txth",
                      a = crane == 1 ? "txtAvst" : "txtavst";
    std::vector<NumberBox*> loads, sideLoads, gaps;
    for (int i = 1; i <= 4; ++i) {
        const bool first = i == 1;
        loads.push_back(binder.add(
            {.name = numbered(v, wheel0 + i),
             .field = project.V(wheel0 + i),
             .mask = "0.0",
             .message = first ? text.firstMessage : (i == 4 ? text.lastMessage : "Only positiv value!"),
             .meaning = tr("Characteristic vertical load of wheel %1, without dynamic factor").arg(wheel0 + i)}));
    }
    for (int i = 1; i <= 4; ++i)
        sideLoads.push_back(binder.add(
            {.name = numbered(h, wheel0 + i),
             .field = project.H(wheel0 + i),
             .mask = "0.0",
             .meaning =
                 tr("Characteristic horizontal load of wheel %1, either sign, EN 1991-3, 2.7").arg(wheel0 + i)}));
    for (int i = 1; i <= 3; ++i)
        gaps.push_back(binder.add(
            {.name = numbered(a, gap0 + i),
             .field = project.Avst(gap0 + i),
             .mask = "#0",
             .message = " Distance must be postitiv !",
             .meaning =
                 tr("Distance from wheel %1 to wheel %2; 0 = there is no wheel %2").arg(wheel0 + i).arg(wheel0 + i + 1),
             .maskWhenFilled = gapMask}));
    binder.addGrid({loads, sideLoads, gaps});

    const Group frame = makeGroup(numbered("frWheels", crane), text.wheelsTitle);
    const QString heads[] = {tr("Wheel:  "), tr("Vk (kN)"), tr("Hk (kN)"), tr("Distance (mm):")};
    for (int column = 0; column < 4; ++column)
        frame.grid->addWidget(new QLabel(heads[column]), 0, column, Qt::AlignHCenter);
    // Each wheel takes two lines, so that a distance can stand between its two wheels.
    for (int i = 0; i < 4; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto* number = new QLabel(QString::number(wheel0 + i + 1));
        number->setBuddy(loads[at]);
        frame.grid->addWidget(number, 1 + 2 * i, 0, 2, 1, Qt::AlignCenter);
        frame.grid->addWidget(loads[at], 1 + 2 * i, 1, 2, 1);
        frame.grid->addWidget(sideLoads[at], 1 + 2 * i, 2, 2, 1);
        if (i < 3) frame.grid->addWidget(gaps[at], 2 + 2 * i, 3, 2, 1);
    }
    frame.grid->setVerticalSpacing(1);
    QWidget* before = loads.front();
    for (std::size_t i = 0; i < 4; ++i) {
        if (i > 0) QWidget::setTabOrder(before, loads[i]);
        QWidget::setTabOrder(loads[i], sideLoads[i]);
        before = sideLoads[i];
        if (i < 3) QWidget::setTabOrder(before, gaps[i]);
        if (i < 3) before = gaps[i];
    }
    return frame.box;
}

PositionGroup::PositionGroup(FormBinder& binder, Project& project, const QString& title, const QString& label,
                             const std::function<void()>& changed)
    : group_(makeGroup("frPosition", title)), project_(project), binder_(binder) {
    optRorlig_ = makeChoice<QRadioButton>("optRorlig", tr("Moveable"), tr("The crane walks along the whole beam"),
                                          [this, changed] {
                                              project_.Position = 0;
                                              project_.Fixerad = false;
                                              show();
                                              changed();
                                          });
    optFixerad_ = makeChoice<QRadioButton>("optFixerad", tr("Fixed"), tr("The crane stands where wheel 1 is placed"),
                                           [this, changed] {
                                               project_.Fixerad = true;
                                               show();
                                               changed();
                                           });
    txtPosition_ = binder.add({.name = "txtPosition",
                               .field = project.Position,
                               .mask = "#0",
                               .message = "Positiv value",
                               .meaning = tr("Place of wheel 1 from the left end of the beam, for a fixed crane"),
                               .maskWhenFilled = "0"});
    group_.grid->addWidget(optRorlig_, 0, 0);
    group_.grid->addWidget(optFixerad_, 0, 1);
    auto* text = new QLabel(label);
    text->setBuddy(txtPosition_);
    group_.grid->addWidget(text, 1, 0, 1, 2);
    group_.grid->addWidget(txtPosition_, 1, 2);
    group_.grid->addWidget(new QLabel(tr("mm")), 1, 3);
    group_.grid->setColumnStretch(1, 1);
    show();
}

void PositionGroup::show() {
    (project_.Fixerad ? optFixerad_ : optRorlig_)->setChecked(true);
    txtPosition_->setEnabled(project_.Fixerad);
    binder_.show(txtPosition_);
}

}  // namespace borvik
