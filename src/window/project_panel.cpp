#include "window/project_panel.h"

#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

#include "base/number_text.h"
#include "dialogs/input_dialog.h"
#include "project/usual_values.h"

namespace borvik {

namespace {

/// A text that is there already, or is just being typed, is left alone; a new one is shown from its beginning.
void showName(QLineEdit* box, const std::string& name) {
    const QString text = QString::fromStdString(name);
    box->setToolTip(text + (text.isEmpty() ? "" : "\n") + box->whatsThis());  // a long name is cut in its box
    if (box->text() == text || (box->hasFocus() && box->isModified())) return;
    box->setText(text);
    box->setCursorPosition(0);
}

bool isGeneral(const Project& project) {
    return project.SteelGrade == kGeneralSteel;
}

}  // namespace

ProjectPanel::ProjectPanel(Session& session, Messages& messages, QWidget* parent)
    : QWidget(parent), session_(session), binder_(session.project, messages, "Input string mismatch ", this) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(namesBox());
    layout->addWidget(materialBox());
    layout->addWidget(craneTypeBox());
    joinOptions(this);
    for (QLineEdit* box : findChildren<QLineEdit*>()) undoKeys_.watch(box);
}

QWidget* ProjectPanel::namesBox() {
    iproj_ = new QLineEdit;
    iproj_->setObjectName("iproj");
    iproj_->setWhatsThis(tr("Title of the project, stands in the head of the report"));
    iident_ = new QLineEdit;
    iident_->setObjectName("iident");
    iident_->setWhatsThis(tr("Identification of the girder"));
    for (QLineEdit* box : {iproj_, iident_}) box->installEventFilter(this);
    auto* names = new QWidget;
    auto* form = new QFormLayout(names);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow("Project:", iproj_);
    form->addRow("Identification:", iident_);
    return names;
}

QWidget* ProjectPanel::materialBox() {
    cbofyk_ = new QComboBox;
    cbofyk_->setObjectName("cbofyk");
    cbofyk_->setAccessibleName("Material");
    cbofyk_->setToolTip(tr("Steel grade; \"General\" lets you type the strength"));
    for (const SteelGradeRow& row : session_.tables.MaterialTable)
        cbofyk_->addItem(QString::fromStdString(row.MatName));
    connect(cbofyk_, &QComboBox::activated, this, &ProjectPanel::chooseMaterial);

    const auto changed = [this] { Q_EMIT inputChanged(tr("Strength of the steel")); };
    ifyk_ = binder_.add({.name = "ifyk",
                         .field = session_.project.fyk,
                         .mask = "#00",
                         .message = " 50 <= fyk <= 2000 ",
                         .meaning = tr("Characteristic yield strength"),
                         .accepted = changed,
                         .refused = changed,
                         .maskWhenFilled = "#000"});
    auto* fyk = new QLabel("fyk =");
    fyk->setBuddy(ifyk_);

    auto* frame = new QGroupBox("Material");
    auto* row = new QHBoxLayout(frame);
    row->addWidget(cbofyk_, 1);
    row->addWidget(fyk);
    row->addWidget(ifyk_);
    row->addWidget(new QLabel("MPa"));
    return frame;
}

QWidget* ProjectPanel::craneTypeBox() {
    optOverH_ = new QRadioButton("Overhead Crane");
    optOverH_->setObjectName("OptOverH");
    optRunW_ = new QRadioButton("Monorail");
    optRunW_->setObjectName("OptRunW");
    const auto chooses = [this](QRadioButton* option, bool (*choose)(Project&)) {
        connect(option, &QRadioButton::clicked, this, [this, choose] {
            if (choose(session_.project)) Q_EMIT inputChanged(tr("Crane type"));
        });
    };
    chooses(optOverH_, chooseOverheadCrane);
    chooses(optRunW_, chooseMonorail);
    chkStartStop_ = new QCheckBox("Load start and stop outside borvik");
    chkStartStop_->setObjectName("chkStartStop");
    chkStartStop_->setToolTip(tr("The crane comes onto the beam wheel by wheel and leaves it in the same way"));
    connect(chkStartStop_, &QCheckBox::clicked, this, [this](bool ticked) {
        session_.project.StartStopOutside = ticked ? 1 : 0;
        Q_EMIT inputChanged(tr("Load start and stop"));
    });

    auto* frame = new QGroupBox("CraneType");
    auto* column = new QVBoxLayout(frame);
    auto* types = new QHBoxLayout;
    types->addWidget(optOverH_);
    types->addWidget(optRunW_);
    types->addStretch();
    column->addLayout(types);
    column->addWidget(chkStartStop_);
    return frame;
}

void ProjectPanel::showProject() {
    const Project& project = session_.project;
    showName(iproj_, project.Proj);
    showName(iident_, project.Ident);
    const bool refusedHere = ifyk_->standsRefused() && ifyk_->text().toStdString() == formatNumber(project.fyk, "#00");
    const bool beingTyped = ifyk_->hasFocus() && ifyk_->edited();
    if (!beingTyped && !refusedHere && !binder_.refusalPending()) binder_.show(ifyk_);
    ifyk_->setEnabled(isGeneral(project));

    const int row = findMaterial(session_.tables, project.SteelGrade);
    if (row >= 0) cbofyk_->setCurrentIndex(row);

    optOverH_->setChecked(project.CraneType == CraneKind::Overhead);
    optRunW_->setChecked(project.CraneType != CraneKind::Overhead);

    chkStartStop_->setEnabled(!project.Fixerad);
    chkStartStop_->setChecked(project.StartStopOutside != 0);
}

std::string& ProjectPanel::nameOf(const QLineEdit* box) {
    return box == iproj_ ? session_.project.Proj : session_.project.Ident;
}

bool ProjectPanel::commit() {
    for (QLineEdit* box : {iproj_, iident_})
        if (box->hasFocus()) storeName(box, nameOf(box));
    return binder_.commitFocused();
}

void ProjectPanel::storeName(QLineEdit* from, std::string& to) {
    const std::string text = from->text().toStdString();
    if (&to == &nameOf(from)) from->setModified(false);
    if (text == to) return;
    to = text;
    Q_EMIT namesChanged();
}

bool ProjectPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        for (QLineEdit* box : {iproj_, iident_})
            if (watched == box) storeName(box, nameOf(box));
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            if (watched == iproj_) {
                storeName(iproj_, session_.project.Proj);
                focusNextChild();
            } else {
                enterInIdent();
            }
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

/// Enter in the identification names the project too: the text goes to Proj at once, and to Ident on leaving the box.
void ProjectPanel::enterInIdent() {
    storeName(iident_, session_.project.Proj);
    showName(iproj_, session_.project.Proj);
    if (ifyk_->isEnabled()) {
        ifyk_->setFocus(Qt::TabFocusReason);
    } else {
        focusNextChild();
    }
}

void ProjectPanel::chooseMaterial(int row) {
    Project& project = session_.project;
    const SteelGradeRow& grade = session_.tables.MaterialTable(row);
    project.SteelGrade = grade.MatName;
    if (!isGeneral(project)) {
        project.fyk = grade.fyk1;
        binder_.show(ifyk_);
    }
    ifyk_->setEnabled(isGeneral(project));
    Q_EMIT inputChanged(tr("Material"));
}

}  // namespace borvik
