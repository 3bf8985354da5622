#include "dialogs/span_list.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>
#include <numeric>

#include "boxes/section_combo.h"
#include "project/input_ranges.h"

namespace borvik {

namespace {

QString nameOf(const SectionRecord& section) {
    return QString::fromStdString(section.DisplayName).trimmed();
}

/// Splices keep their spans when those get other numbers. @param renumbered  new number of a span, 0 for one that goes
template <class Renumbered>
void renumberSplices(Project& project, const Renumbered& renumbered) {
    const auto each = [&](auto& inUse, auto& spans) {
        for (int splice = 1; splice <= kFormSplices; ++splice) {
            if (!inUse(splice) || !between(1, kMaxSpans).holds(spans(splice))) continue;
            const int span = renumbered(static_cast<int>(double(spans(splice))));
            inUse(splice) = span > 0;
            if (span > 0) spans(splice) = span;
        }
    };
    each(project.ChkFatR5Sp, project.FatR5Span);
    each(project.ChkFat5Sp, project.Fat5Span);
}

}  // namespace

/// The cells: a box for a length, a list for a section. The list decides what a key does; nothing is stored behind it.
class SpanCells : public QStyledItemDelegate {
public:
    explicit SpanCells(SpanList& list) : QStyledItemDelegate(&list), list_(list) {}

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const override {
        if (index.column() == 0) return nullptr;
        if (index.column() == 2) {
            auto* sections = new SectionCombo(parent);
            sections->setObjectName(QStringLiteral("cellSection"));
            for (const SectionRecord& section : list_.project_.SectionList) sections->addItem(nameOf(section));
            sections->setCurrentIndex(sections->named(index.data().toString()));
            list_.editor_ = sections;
            return sections;
        }
        auto* length = new QLineEdit(index.data().toString(), parent);
        length->setObjectName(QStringLiteral("cellLength"));
        length->setAlignment(Qt::AlignRight);
        list_.editor_ = length;
        return length;
    }
    /// The whole cell, so that nothing of the old text stands beside the new one.
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex&) const override {
        editor->setGeometry(option.rect);
    }
    void setEditorData(QWidget*, const QModelIndex&) const override {}
    void setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const override {}

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != list_.editor_) return false;
        if (event->type() == QEvent::KeyPress) return list_.cellKey(static_cast<QKeyEvent*>(event));
        if (event->type() == QEvent::FocusOut) {
            const auto reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) list_.leaveCell();
        }
        return false;
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.row() != list_.marked() - 1) return;
        painter->save();
        painter->setPen(QPen(QColor(200, 0, 0), 2));
        painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
        painter->restore();
    }

private:
    SpanList& list_;
};

SpanList::SpanList(Project& project, Messages& messages) : project_(project), messages_(messages) {
    setObjectName(QStringLiteral("lstViewTill"));
    setHeaderLabels({tr("Beam"), tr("Length"), tr("Profile")});
    headerItem()->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    setStyleSheet(
        QStringLiteral("QTreeView { border: 2px solid palette(mid); } QTreeView:focus { border-color: #00c000; }"
                       "QTreeView::item { padding: 2px 8px; }"));
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setItemDelegate(new SpanCells(*this));
    setTabKeyNavigation(false);
    // over the heads only: it would cover the rows
    header()->setToolTip(
        tr("Type a length, or a section by its name, into the selected rows; Enter goes to the next.\n"
           "Enter alone gives length and section from above to the row; a double click takes the one above.\n"
           "Delete clears, Insert and Ctrl+Delete put a span in and take it out, Ctrl+V pastes lengths and sections."));
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(true);
    QFont bold = font();
    bold.setBold(true);
    for (int row = 1; row <= kMaxSpans; ++row) {
        auto* item = new QTreeWidgetItem(this, {QString::number(row)});
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        item->setFont(0, bold);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    setCurrentItem(topLevelItem(0));
    connect(header(), &QHeaderView::sectionClicked, this, &SpanList::selectColumn);
}

void SpanList::showAll() {
    for (int row = 1; row <= kMaxSpans; ++row) showRow(row);
}

void SpanList::showRow(int row) {
    QTreeWidgetItem* item = topLevelItem(row - 1);
    item->setText(1, QString::number(project_.Span(row)));
    item->setText(2, nameOf(project_.SpanSection(row)));
    item->setToolTip(2, item->text(2));
}

std::vector<int> SpanList::selectedRows() const {
    std::vector<int> rows;
    for (int row = 1; row <= kMaxSpans; ++row)
        if (topLevelItem(row - 1)->isSelected()) rows.push_back(row);
    return rows;
}

std::vector<int> SpanList::rowsInUse() const {
    int last = kMaxSpans;
    while (last > 0 && project_.Span(last) == 0) --last;
    const std::vector<int> selected = selectedRows();
    if (!selected.empty()) last = std::max(last, selected.back());
    std::vector<int> rows(static_cast<std::size_t>(last));
    std::iota(rows.begin(), rows.end(), 1);
    return rows;
}

void SpanList::rowsChanged(const std::vector<int>& rows) {
    for (const int row : rows) showRow(row);
    marked_ = 0;
    viewport()->update();
    Q_EMIT edited();
}

void SpanList::write(int row, const SpanEntry& entry) {
    if (entry.length) project_.Span(row) = *entry.length;
    if (!entry.section || !project_.SectionList.has(*entry.section)) return;
    project_.SpanSection(row) = project_.SectionList(*entry.section);
    project_.SectionList(*entry.section).InUse = true;
}

void SpanList::give(const std::vector<int>& rows, const SpanEntry& entry) {
    for (const int row : rows) write(row, entry);
    rowsChanged(rows);
}

void SpanList::clearSelected() {
    const std::vector<int> rows = selectedRows();
    for (const int row : rows) {
        project_.Span(row) = 0;
        project_.SpanSection(row) = SectionRecord();
    }
    rowsChanged(rows);
}

void SpanList::insertSpan() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const int at = rows.front();
    if (project_.Span(kMaxSpans) != 0 || project_.SpanSection(kMaxSpans) != SectionRecord()) {
        messages_.show(tr("All 30 rows are in use").toStdString());
        return;
    }
    for (int row = kMaxSpans; row > at; --row) {
        project_.Span(row) = project_.Span(row - 1);
        project_.SpanSection(row) = project_.SpanSection(row - 1);
    }
    project_.Span(at) = 0;
    project_.SpanSection(at) = SectionRecord();
    renumberSplices(project_, [at](int span) { return span < at ? span : span + 1; });
    showAll();
    goTo(at);
    rowsChanged({});
}

void SpanList::removeSpans() {
    const std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const auto goes = [&rows](int row) { return std::binary_search(rows.begin(), rows.end(), row); };
    int to = 0;
    for (int row = 1; row <= kMaxSpans; ++row) {
        if (goes(row)) continue;
        project_.Span(++to) = project_.Span(row);
        project_.SpanSection(to) = project_.SpanSection(row);
    }
    while (++to <= kMaxSpans) {
        project_.Span(to) = 0;
        project_.SpanSection(to) = SectionRecord();
    }
    renumberSplices(project_, [&](int span) {
        const auto before = std::lower_bound(rows.begin(), rows.end(), span) - rows.begin();
        return goes(span) ? 0 : span - static_cast<int>(before);
    });
    showAll();
    goTo(rows.front());
    rowsChanged({});
}

void SpanList::paste(const QString& text) {
    QString refusal;
    const std::vector<SpanEntry> spans = pastedSpans(project_, text, refusal);
    std::vector<int> rows = selectedRows();
    if (rows.empty()) return;
    const int first = rows.front();
    if (spans.size() != 1) {
        rows.resize(spans.size());
        std::iota(rows.begin(), rows.end(), first);
        if (!rows.empty() && rows.back() > kMaxSpans)
            refusal = tr("Row %1 of what is pasted lies below the last row of the list").arg(kMaxSpans - first + 2);
    }
    if (!refusal.isEmpty()) {
        messages_.show(refusal.toStdString());
        return;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) write(rows[i], spans[spans.size() == 1 ? 0 : i]);
    if (!rows.empty()) rowsChanged(rows);
}

QString SpanList::copied() const {
    QString text;
    for (const int row : selectedRows())
        text += QString::number(project_.Span(row)) + QLatin1Char('\t') + nameOf(project_.SpanSection(row)) +
                QLatin1Char('\n');
    return text;
}

void SpanList::selectColumn(int column) {
    for (int row = 1; row <= kMaxSpans; ++row) {
        QTreeWidgetItem* item = topLevelItem(row - 1);
        item->setSelected(column == 0 || (column == 1 ? project_.Span(row) != 0 : !item->text(2).isEmpty()));
    }
}

void SpanList::goTo(int row) {
    clearSelection();
    setCurrentItem(topLevelItem(std::clamp(row, 1, kMaxSpans) - 1));
    scrollToItem(currentItem());
}

void SpanList::moveDown() {
    goTo(indexOfTopLevelItem(currentItem()) + 2);
}

void SpanList::mark(int row) {
    goTo(row);
    marked_ = row;
    viewport()->update();
    setFocus(Qt::OtherFocusReason);
}

void SpanList::openCell(int column, const QString& typed) {
    if (!commitCell()) return;
    target_ = selectedRows();
    const int current = indexOfTopLevelItem(currentItem()) + 1;
    if (current < 1) return;
    if (std::find(target_.begin(), target_.end(), current) == target_.end()) target_ = {current};
    column_ = column;
    typed_ = !typed.isEmpty();
    scrollToItem(currentItem());
    edit(indexFromItem(currentItem(), column));
    if (auto* length = qobject_cast<QLineEdit*>(editor_)) {
        before_ = length->text();
        length->selectAll();
        if (!typed.isEmpty()) length->setText(typed);
    } else if (auto* sections = qobject_cast<SectionCombo*>(editor_)) {
        before_ = sections->currentText();
        sections->lineEdit()->selectAll();
        if (!typed.isEmpty()) sections->type(typed);
    }
}

/// @return the message of a refusal, or null when the text was taken or is the one that stood there
const char* SpanList::takeCell() {
    if (const auto* length = qobject_cast<QLineEdit*>(editor_)) {
        if (!typed_ && length->text() == before_) return nullptr;
        const char* refusal = nullptr;
        const auto number = typedLength(length->text(), refusal);
        if (number) give(target_, {.length = number, .section = {}});
        return refusal;
    }
    const auto* sections = qobject_cast<SectionCombo*>(editor_);
    if (!typed_ && sections->currentText() == before_) return nullptr;
    const int entry = sections->named(sections->currentText());
    if (entry < 0) return "The project's list has no section of this name";
    give(target_, {.length = {}, .section = entry});
    return nullptr;
}

void SpanList::closeCell() {
    QWidget* editor = editor_;
    editor_ = nullptr;
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

bool SpanList::commitCell() {
    if (editor_ == nullptr) return true;
    const char* refusal = takeCell();
    if (refusal == nullptr) {
        closeCell();
        return true;
    }
    messages_.show(refusal);
    editor_->setFocus(Qt::OtherFocusReason);
    return false;
}

/// The focus has gone elsewhere: a refused text comes back once it has settled there.
void SpanList::leaveCell() {
    if (editor_ == nullptr) return;
    const char* refusal = takeCell();
    const auto* combo = qobject_cast<SectionCombo*>(editor_);
    const QString text = combo != nullptr ? combo->currentText() : qobject_cast<QLineEdit*>(editor_)->text();
    closeCell();
    if (refusal == nullptr) return;
    QTimer::singleShot(0, this, [this, refusal, text, row = target_.front(), column = column_] {
        messages_.show(refusal);
        goTo(row);
        setFocus(Qt::OtherFocusReason);
        openCell(column, text);
    });
}

/// @return whether the key of an open cell was dealt with here
bool SpanList::cellKey(QKeyEvent* key) {
    const bool length = column_ == 1;
    switch (key->key()) {
        case Qt::Key_Escape:
            closeCell();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            break;
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (length) break;
            return false;
        default:
            return false;
    }
    const int last = target_.back(), first = target_.front();
    if (!commitCell()) return true;
    if (key->key() == Qt::Key_Tab && length) {
        openCell(2);
    } else if (key->key() == Qt::Key_Up) {
        goTo(first - 1);
    } else if (key->modifiers().testFlag(Qt::ControlModifier)) {
        QCoreApplication::postEvent(this, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::ControlModifier));
    } else if (key->key() != Qt::Key_Backtab) {
        goTo(last + 1);
    }
    return true;
}

void SpanList::keyPressEvent(QKeyEvent* event) {
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event->modifiers().testFlag(Qt::AltModifier);
    const QString text = event->text();
    const QChar typed = text.isEmpty() || control || alt ? QChar() : text.front();
    const int key = event->key();
    if (key == Qt::Key_Delete) {
        control ? removeSpans() : clearSelected();
    } else if (key == Qt::Key_Insert && !control && !event->modifiers().testFlag(Qt::ShiftModifier)) {
        insertSpan();
    } else if (event->matches(QKeySequence::Paste)) {
        paste(QGuiApplication::clipboard()->text());
    } else if (event->matches(QKeySequence::Copy)) {
        QGuiApplication::clipboard()->setText(copied());
    } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !control) {
        Q_EMIT enterPressed();
    } else if (key == Qt::Key_F2) {
        openCell(1);
    } else if (key == Qt::Key_F4 || (alt && key == Qt::Key_Down)) {
        openCell(2);
        if (auto* sections = qobject_cast<SectionCombo*>(editor_)) sections->showPopup();
    } else if (typed.isDigit() || QStringLiteral("+-.,").contains(typed)) {
        openCell(1, text);
    } else if (typed.isLetter()) {
        openCell(2, text);
    } else if (typed.isPrint()) {
        event->accept();  // neither begins a length nor a name
    } else {
        QTreeWidget::keyPressEvent(event);
    }
}

}  // namespace borvik
