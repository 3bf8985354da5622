#include "dialogs/beam_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "base/number_text.h"
#include "boxes/section_combo.h"
#include "calculation/calculation.h"
#include "dialogs/span_list.h"
#include "pictures/beam_picture.h"
#include "section/section.h"

namespace borvik {

namespace {

QString trimmedName(const SectionRecord& section) {
    return QString::fromStdString(section.DisplayName).trimmed();
}

/// A file may bring fewer rows than the form offers, and another number for the first one. What it brings is shown in
/// its order from row 1 on.
void bringRows(Project& project) {
    Array<SectionRecord>& sections = project.SpanSection;
    if (sections.first() == 1 && sections.last() >= kMaxSpans) return;
    Array<SectionRecord> rows(1, std::max(kMaxSpans, sections.size()));
    std::copy(sections.begin(), sections.end(), rows.begin());
    sections = std::move(rows);
}

void updateSections(const ReferenceTables& tables, Project& project) {
    try {
        UpdateSections(tables, project);
    } catch (const RuntimeFault&) {
        // A beam still being laid out, such as a span without its section: the input check says so on closing.
    }
}

}  // namespace

BeamDialog::BeamDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmBeam", tr("Beam"), session, messages, std::move(changed), parent) {
    bringRows(project_);
    makeList30();
    auto* content = new QGridLayout;
    picture_ = new Picture(beamPicture(project_), 70, 6);
    picture_->setToolTip(tr("The spans to scale, each with its section"));
    content->addWidget(picture_, 0, 0, 1, 4);
    content->addWidget(entry().box, 1, 0, 1, 4);
    content->addWidget(lstViewTill_, 2, 0, 1, 4);
    content->setRowStretch(2, 1);
    chkDead_ = makeChoice<QCheckBox>("chkDead", tr("Include deadload of beam "),
                                     tr("The beam's own weight acts as a permanent load, EN 1991-1-1"), [this] {
                                         project_.SelfWeight = chkDead_->isChecked();
                                         bringSectionsUpToDate();
                                         inputChanged();
                                     });
    content->addWidget(chkDead_, 3, 0);
    content->addWidget(makeButton("cmdInsertSpan", tr("Insert span"), tr("Put an empty span before the selected row"),
                                  [this] { lstViewTill_->insertSpan(); }),
                       3, 1);
    content->addWidget(makeButton("cmdRemoveSpan", tr("Remove span"), tr("Take the selected spans out of the beam"),
                                  [this] { lstViewTill_->removeSpans(); }),
                       3, 2);
    content->addWidget(closeButton("cmdOK", tr("&Close"), tr("Check the beam and close the form"),
                                   [this] {
                                       bringSectionsUpToDate();
                                       accept();
                                   }),
                       3, 3);
    content->setColumnStretch(0, 1);
    setContent(content);
    binder_.afterLast = cboProf_;  // length, section, then row after row
    fillSections();
    Write();
}

void BeamDialog::Write() {
    BeamLengthText = generalText(project_.Span(1));
    binder_.show();
    lstViewTill_->showAll();
    chkDead_->setChecked(project_.SelfWeight);
    picture_->update();
}

void BeamDialog::showInput() {
    fillSections();
    Write();
}

void BeamDialog::settle(Project& project) const {
    bringRows(project);
    MessageList unheard;
    if (!CheckInput(project, unheard)) return;
    MarkSectionsInUse(project);
    updateSections(session_.tables, project);
}

bool BeamDialog::mayClose() {
    if (!lstViewTill_->commitCell()) return false;
    project_.BeamChecked = CheckInput(project_, messages_);
    inputChanged();
    if (const int span = refusedSpan(project_); span > 0 && !project_.BeamChecked) lstViewTill_->mark(span);
    return project_.BeamChecked;
}

void BeamDialog::showEvent(QShowEvent* event) {
    InputDialog::showEvent(event);
    const int width = lstViewTill_->viewport()->width();
    lstViewTill_->setColumnWidth(0, width * 16 / 100);
    lstViewTill_->setColumnWidth(1, width * 22 / 100);
    txtBeamLength_->setFocus(Qt::TabFocusReason);
}

Group BeamDialog::entry() {
    const Group group = makeGroup("Frame1", tr("Beam spanlength and Profile"));
    txtBeamLength_ =
        binder_.add({.name = "txtBeamLength",
                     .field = {[this] { return DecimalValue(BeamLengthText); },
                               [this](Single length) { BeamLengthText = formatNumber(length, "##0"); }},
                     .mask = "##0",
                     .range = fixed(spanLengthRange()),
                     .message = kLengthLimits,
                     .meaning = tr("Length of a span between its supports; give it to rows by the buttons")});
    cboProf_ = makeSectionList("cboProf", tr("Section to give to rows by the buttons; type its name"), [](int) {});
    cboProf_->installEventFilter(this);
    addRow(group.grid, tr("Length ="), txtBeamLength_, tr("mm"));
    auto* profile = new QLabel(tr("Profile ="));
    profile->setBuddy(cboProf_);
    group.grid->addWidget(profile, 1, 0);
    group.grid->addWidget(cboProf_, 1, 1, 1, 2);
    const auto button = [&](const char* name, const QString& text, const QString& tip, bool all, int what, int row,
                            int column) {
        const auto click = [this, all, what] {
            apply(all ? lstViewTill_->rowsInUse() : lstViewTill_->selectedRows(), what);
        };
        group.grid->addWidget(makeButton(name, text, tip, click), row, column);
    };
    button("Command4", tr("Length → row"), tr("Give the length to the selected row"), false, Length, 0, 3);
    button("Command5", tr("Length → all"), tr("All beam same length  "), true, Length, 0, 4);
    button("Command6", tr("Profile → row"), tr("Give the section to the selected row"), false, Profile, 1, 3);
    button("Command7", tr("Profile → all"), tr("All beam same profiletype"), true, Profile, 1, 4);
    button("Command1", tr("Both → all"), tr("All beam same profiletype"), true, Length | Profile, 0, 5);
    group.grid->addWidget(makeButton("cmdEgetTvsnitt", tr("Add New Profile"),
                                     tr("Open the section form to make a new section"), [this] { openSectionForm(); }),
                          1, 5);
    group.grid->setColumnStretch(2, 1);
    return group;
}

void BeamDialog::makeList30() {
    lstViewTill_ = new SpanList(project_, messages_);
    lstViewTill_->setMinimumHeight(lstViewTill_->fontMetrics().lineSpacing() * 22);
    connect(lstViewTill_, &SpanList::edited, this, [this] {
        picture_->update();
        inputChanged();
    });
    connect(lstViewTill_, &SpanList::enterPressed, this, [this] {
        apply(lstViewTill_->selectedRows(), Length | Profile);
        lstViewTill_->moveDown();
    });
    connect(lstViewTill_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem*, int column) {
        if (column > 0) apply(lstViewTill_->selectedRows(), column == 1 ? Length : Profile);
    });
}

/// Enter goes on from the section to the list.
bool BeamDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == cboProf_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && !key->modifiers().testFlag(Qt::ControlModifier)) {
            lstViewTill_->setFocus(Qt::TabFocusReason);  // on leaving, the section typed is chosen
            return true;
        }
    }
    return InputDialog::eventFilter(watched, event);
}

void BeamDialog::fillSections() {
    cboProf_->clear();
    for (const SectionRecord& section : project_.SectionList) cboProf_->addItem(trimmedName(section));
    cboProf_->setCurrentIndex(0);
}

void BeamDialog::apply(const std::vector<int>& rows, int what) {
    SpanEntry entry;
    if ((what & Length) != 0) entry.length = roundHalfEven(DecimalValue(BeamLengthText));
    if ((what & Profile) != 0) entry.section = cboProf_->currentIndex();
    lstViewTill_->give(rows, entry);
}

void BeamDialog::bringSectionsUpToDate() {
    updateSections(session_.tables, project_);
    if (project_.NofSpans > 0) session_.CurrentSection = project_.SpanSection(project_.NofSpans);
}

void BeamDialog::openSectionForm() {
    bringSectionsUpToDate();
    sectionForm_ = openOver(DialogKind::Profile, [this] { inputChanged(); });
    connect(sectionForm_.get(), &QDialog::finished, this, [this, before = project_.SectionList.size()] {
        const QString chosen = cboProf_->currentText();
        fillSections();
        Write();
        const int added = project_.SectionList.size() > before ? cboProf_->count() - 1 : cboProf_->named(chosen);
        cboProf_->setCurrentIndex(std::max(added, 0));
    });
}

}  // namespace borvik
