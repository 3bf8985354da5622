#include "forms/beam_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTreeWidget>
#include <numeric>

#include "base/number_text.h"
#include "calculation/calculation.h"
#include "forms/dialogs.h"
#include "pictures/beam_picture.h"
#include "section/section.h"

namespace borvik {

namespace {

QString trimmedName(const SectionRecord& section) {
    return QString::fromStdString(section.DisplayName).trimmed();
}

}  // namespace

BeamDialog::BeamDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmBeam", tr("Beam"), session, messages, std::move(changed), parent) {
    // A file may bring fewer rows than the form offers.
    if (project_.SpanSection.size() == 0) project_.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    while (project_.SpanSection.last() < kMaxSpans) project_.SpanSection.append({});

    makeList30();
    auto* content = new QGridLayout;
    picture_ = new Picture(beamPicture(project_), 70, 5);
    picture_->setToolTip(tr("The spans to scale, each with its section"));
    content->addWidget(picture_, 0, 0, 1, 2);
    content->addWidget(entry().box, 1, 0, 1, 2);
    content->addWidget(lstViewTill_, 2, 0, 1, 2);
    content->setRowStretch(2, 1);
    chkDead_ = makeChoice<QCheckBox>("chkDead", tr("Include deadload of beam "),
                                     tr("The beam's own weight acts as a permanent load, EN 1991-1-1"), [this] {
                                         project_.SelfWeight = chkDead_->isChecked();
                                         bringSectionsUpToDate();
                                         inputChanged();
                                     });
    content->addWidget(chkDead_, 3, 0);
    content->addWidget(closeButton("cmdOK", tr("&Close"), tr("Check the beam and close the form"),
                                   [this] {
                                       bringSectionsUpToDate();
                                       accept();
                                   }),
                       3, 1, Qt::AlignRight);
    setContent(content);
    fillSections();
    Write();
}

void BeamDialog::Write() {
    BeamLengthText = generalText(project_.Span(1));
    binder_.show();
    for (int row = 1; row <= kMaxSpans; ++row) showRow(row);
    chkDead_->setChecked(project_.SelfWeight);
    picture_->update();
}

bool BeamDialog::mayClose() {
    project_.BeamChecked = CheckInput(project_, messages_);
    inputChanged();
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
                     .message = " 200 < Beam length L < 2 ",
                     .meaning = tr("Length of a span between its supports; give it to rows by the buttons")});
    cboProf_ = makeList("cboProf", tr("Section to give to rows by the buttons"), [](int) {});
    addRow(group.grid, tr("Length ="), txtBeamLength_, tr("mm"));
    addRow(group.grid, tr("Profile ="), cboProf_);
    cboProf_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    const auto button = [&](const char* name, const QString& text, const QString& tip, bool all, int what, int row,
                            int column) {
        const auto click = [this, all, what] { apply(all ? rowsInUse() : selectedRows(), what); };
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
    lstViewTill_ = new QTreeWidget;
    lstViewTill_->setObjectName(QStringLiteral("lstViewTill"));
    lstViewTill_->setHeaderLabels({tr("Beam"), tr("Length"), tr("Profile")});
    lstViewTill_->headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    lstViewTill_->setStyleSheet(QStringLiteral("QTreeView::item { padding: 2px 8px; }"));
    lstViewTill_->setRootIsDecorated(false);
    lstViewTill_->setUniformRowHeights(true);
    lstViewTill_->setAlternatingRowColors(true);
    lstViewTill_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstViewTill_->setToolTip(
        tr("Enter gives length and section to the row and goes to the next; Delete clears the row; a double "
           "click on a length or a section takes the one above"));
    lstViewTill_->installEventFilter(this);
    lstViewTill_->header()->setSectionsClickable(true);
    lstViewTill_->header()->setStretchLastSection(true);
    QFont bold = lstViewTill_->font();
    bold.setBold(true);
    for (int row = 1; row <= kMaxSpans; ++row) {
        auto* item = new QTreeWidgetItem(lstViewTill_, {QString::number(row)});
        item->setFont(0, bold);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    lstViewTill_->setCurrentItem(lstViewTill_->topLevelItem(0));
    const QFontMetrics metrics = lstViewTill_->fontMetrics();
    lstViewTill_->setMinimumHeight(metrics.lineSpacing() * 22);
    connect(lstViewTill_->header(), &QHeaderView::sectionClicked, this, &BeamDialog::selectColumn);
    connect(lstViewTill_, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem*, int column) {
        if (column > 0) apply(selectedRows(), column == 1 ? Length : Profile);
    });
}

bool BeamDialog::eventFilter(QObject* watched, QEvent* event) {
    if (watched == lstViewTill_ && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Delete) {
            clearSelected();
            return true;
        }
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && !key->modifiers().testFlag(Qt::ControlModifier)) {
            apply(selectedRows(), Length | Profile);
            moveDown();
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void BeamDialog::fillSections() {
    cboProf_->clear();
    for (const SectionRecord& section : project_.SectionList) cboProf_->addItem(trimmedName(section));
    cboProf_->setCurrentIndex(0);
}

std::vector<int> BeamDialog::selectedRows() const {
    std::vector<int> rows;
    for (int row = 1; row <= kMaxSpans; ++row)
        if (lstViewTill_->topLevelItem(row - 1)->isSelected()) rows.push_back(row);
    return rows;
}

std::vector<int> BeamDialog::rowsInUse() const {
    int last = kMaxSpans;
    while (last > 0 && project_.Span(last) == 0) --last;
    const std::vector<int> selected = selectedRows();
    if (!selected.empty()) last = std::max(last, selected.back());
    std::vector<int> rows(static_cast<std::size_t>(last));
    std::iota(rows.begin(), rows.end(), 1);
    return rows;
}

void BeamDialog::apply(const std::vector<int>& rows, int what) {
    const int section = cboProf_->currentIndex();
    for (const int row : rows) {
        if ((what & Length) != 0) project_.Span(row) = roundHalfEven(DecimalValue(BeamLengthText));
        if ((what & Profile) != 0 && project_.SectionList.has(section)) {
            project_.SpanSection(row) = project_.SectionList(section);
            project_.SectionList(section).InUse = true;
        }
        showRow(row);
    }
    picture_->update();
    inputChanged();
}

void BeamDialog::clearSelected() {
    for (const int row : selectedRows()) {
        project_.Span(row) = 0;
        project_.SpanSection(row) = SectionRecord();
        showRow(row);
    }
    picture_->update();
    inputChanged();
}

void BeamDialog::selectColumn(int column) {
    for (int row = 1; row <= kMaxSpans; ++row) {
        QTreeWidgetItem* item = lstViewTill_->topLevelItem(row - 1);
        item->setSelected(column == 0 || (column == 1 ? project_.Span(row) != 0 : !item->text(2).isEmpty()));
    }
}

void BeamDialog::showRow(int row) {
    QTreeWidgetItem* item = lstViewTill_->topLevelItem(row - 1);
    item->setText(1, QString::number(project_.Span(row)));
    item->setText(2, trimmedName(project_.SpanSection(row)));
}

void BeamDialog::moveDown() {
    if (QTreeWidgetItem* below = lstViewTill_->itemBelow(lstViewTill_->currentItem()))
        lstViewTill_->setCurrentItem(below);
}

void BeamDialog::bringSectionsUpToDate() {
    try {
        UpdateSections(session_.tables, project_, session_.context);
    } catch (const RuntimeFault&) {
        // A beam still being laid out, such as a span without its section: the input check says so on closing.
    }
}

void BeamDialog::openSectionForm() {
    bringSectionsUpToDate();
    sectionForm_ = makeDialog(
        DialogKind::Profile, session_, messages_, [this] { inputChanged(); }, this);
    connect(sectionForm_.get(), &QDialog::finished, this, [this] {
        fillSections();
        Write();
    });
    sectionForm_->open();
}

}  // namespace borvik
