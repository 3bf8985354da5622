#include "views/result_table_view.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <algorithm>
#include <numeric>
#include <vector>

#include "views/calculation_record.h"
#include "views/icons.h"
#include "views/printing.h"

namespace borvik {

namespace {

QString asHtml(const QString& tabSeparatedText) {
    QString html = "<table>";
    for (const QString& line : tabSeparatedText.split('\n', Qt::SkipEmptyParts))
        html += "<tr><td>" + line.toHtmlEscaped().replace('\t', "</td><td>") + "</td></tr>";
    return html + "</table>";
}

constexpr int kRowPadding = 3;
constexpr int kTextMargins = 8;  // left and right of a text in its cell
constexpr int kMargins = 16;     // with some air

}  // namespace

ResultTableView::ResultTableView(QWidget* parent) : QTableView(parent), model_(this) {
    setModel(&model_);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowPadding);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionsMovable(false);
    buildFirstColumn();
    for (const QTableView* part : {static_cast<const QTableView*>(this), static_cast<const QTableView*>(firstColumn_)})
        connect(part, &QTableView::clicked, this,
                [this](const QModelIndex& cell) { Q_EMIT cellChosen(cell.row(), cell.column()); });
    connect(this, &QTableView::doubleClicked, this, [this](const QModelIndex& cell) { Q_EMIT rowChosen(cell.row()); });
}

void ResultTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) Q_EMIT currentRowChanged(current.row());
}

void ResultTableView::selectRow(int row) {
    const QModelIndex cell = model_.index(row, 0);
    selectionModel()->setCurrentIndex(cell, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(cell);
}

void ResultTableView::buildFirstColumn() {
    firstColumn_ = new QTableView(this);
    firstColumn_->setModel(&model_);
    firstColumn_->setSelectionModel(selectionModel());
    firstColumn_->setFocusPolicy(Qt::NoFocus);
    firstColumn_->setFrameShape(QFrame::NoFrame);
    firstColumn_->setAlternatingRowColors(true);
    firstColumn_->setWordWrap(false);
    firstColumn_->verticalHeader()->hide();
    firstColumn_->verticalHeader()->setMinimumSectionSize(1);
    firstColumn_->verticalHeader()->setDefaultSectionSize(verticalHeader()->defaultSectionSize());
    connect(verticalHeader(), &QHeaderView::sectionResized, firstColumn_,
            [this](int row, int, int height) { firstColumn_->setRowHeight(row, height); });
    firstColumn_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    firstColumn_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    firstColumn_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    firstColumn_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    firstColumn_->setVerticalScrollMode(verticalScrollMode());
    firstColumn_->hide();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, firstColumn_->verticalScrollBar(), &QScrollBar::setValue);
    connect(firstColumn_->verticalScrollBar(), &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { placeFirstColumn(); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] {
        if (!fitting_) {
            columnsSetByUser_ = true;
            breakLines();
        }
        placeFirstColumn();
    });
}

void ResultTableView::placeFirstColumn() {
    // Needed only while the column itself is scrolled out of sight: headings may then run over all columns.
    const bool needed = horizontalScrollBar()->value() > 0 && model_.columnCount() > 1;
    firstColumn_->setVisible(needed);
    if (!needed) return;
    for (int column = 1; column < model_.columnCount(); ++column) firstColumn_->setColumnHidden(column, true);
    const int width = std::min(columnWidth(0), viewport()->width() / 2);
    firstColumn_->setColumnWidth(0, width);
    firstColumn_->horizontalHeader()->setFixedHeight(horizontalHeader()->height());
    firstColumn_->setGeometry(frameWidth(), frameWidth(), width, viewport()->height() + horizontalHeader()->height());
    firstColumn_->verticalScrollBar()->setValue(verticalScrollBar()->value());
    firstColumn_->raise();
}

void ResultTableView::showTable(ResultTable table) {
    fitting_ = true;  // new columns come with widths of their own
    clearSpans();
    model_.setTable(std::move(table));
    const int columns = model_.columnCount();
    for (int row = 0; row < model_.rowCount(); ++row) {
        if (!model_.isLine(row)) continue;
        // The last text of a line runs over the columns behind it; "Note:" before it keeps its own.
        int last = columns - 1;
        while (last > 0 && model_.index(row, last).data().toString().isEmpty()) --last;
        if (last < columns - 1) setSpan(row, last, 1, columns - last);
    }
    columnsSetByUser_ = false;
    fitColumns();
    scrollToTop();
    horizontalScrollBar()->setValue(0);
    placeFirstColumn();
}

/// Width that the texts of a column need; lines that run over all columns don't count.
int ResultTableView::contentWidth(int column) const {
    constexpr int kRowsMeasured = 300;
    constexpr int kSign = 20;
    int width = horizontalHeader()->sectionSizeHint(column) + kMargins / 2;
    for (int row = 0; row < std::min(model_.rowCount(), kRowsMeasured); ++row) {
        if (model_.isLine(row)) continue;
        const QModelIndex cell = model_.index(row, column);
        const int sign = cell.data(Qt::DecorationRole).isNull() ? 0 : kSign;
        const QVariant own = cell.data(Qt::FontRole);  // a ratio over 1 is bold
        const QFontMetrics metrics = own.isNull() ? fontMetrics() : QFontMetrics(own.value<QFont>());
        width = std::max(width, metrics.horizontalAdvance(cell.data().toString()) + kMargins + sign);
    }
    return width;
}

int ResultTableView::wantedWidth() const {
    int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
    for (int column = 0; column < model_.columnCount(); ++column) width += contentWidth(column);
    return width;
}

/// Gives each column what its texts need. Where that is too much for the window and the widest one can give way without
/// becoming unreadable, it does, and its long texts go on in a second line; else the list scrolls. Where there is room
/// to spare all get some of it.
void ResultTableView::fitColumns() {
    constexpr int kMostSpare = 60, kLeastOfLongTexts = 100;
    const int columns = model_.columnCount();
    if (columns == 0) return;
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(columns));
    for (int column = 0; column < columns; ++column) widths.push_back(contentWidth(column));
    const int room = viewport()->width();
    int spare = room - std::accumulate(widths.begin(), widths.end(), 0);
    for (int column = 0; column < columns; ++column)
        if (model_.table().columns[static_cast<std::size_t>(column)].yields) {
            int& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width + spare, kLeastOfLongTexts);
            spare = 0;
        }
    auto widest = std::max_element(widths.begin(), widths.end());
    if (spare < 0 && *widest + spare >= room / 3) *widest += spare;
    fitting_ = true;
    for (int column = 0; column < columns; ++column)
        setColumnWidth(column, widths[static_cast<std::size_t>(column)] + std::clamp(spare / columns, 0, kMostSpare));
    fitting_ = false;
    breakLines();
}

/// Makes each row as high as its texts need in the widths that their
/// columns have; those of a column that yields are cut instead.
void ResultTableView::breakLines() {
    const int line = verticalHeader()->defaultSectionSize();
    for (int row = 0; row < model_.rowCount(); ++row) {
        int height = line;
        for (int column = 0; column < model_.columnCount() && !model_.isLine(row); ++column) {
            if (model_.table().columns[static_cast<std::size_t>(column)].yields) continue;
            const QString text = model_.index(row, column).data().toString();
            const int width = columnWidth(column) - kTextMargins;
            if (fontMetrics().horizontalAdvance(text) <= width) continue;
            const QRect broken = fontMetrics().boundingRect(QRect(0, 0, width, 1), Qt::TextWordWrap, text);
            height = std::max(height, broken.height() + kRowPadding);
        }
        if (rowHeight(row) != height) setRowHeight(row, height);
    }
}

void ResultTableView::setOutOfDate(bool outOfDate) {
    outOfDate_ = outOfDate;
    model_.setOutOfDate(outOfDate);
}

void ResultTableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    if (!columnsSetByUser_) fitColumns();
    placeFirstColumn();
}

QModelIndex ResultTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
    const QModelIndex current = QTableView::moveCursor(action, modifiers);
    const int covered = firstColumn_->isVisible() ? firstColumn_->width() : 0;
    const int left = visualRect(current).left();
    if (action == MoveLeft && current.column() > 0 && left < covered)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() + left - covered);
    return current;
}

QString ResultTableView::selectionText(bool withHeaders) const {
    QModelIndexList cells = selectionModel()->selectedIndexes();
    if (cells.isEmpty()) return {};
    std::sort(cells.begin(), cells.end());
    QList<int> columns;
    for (const QModelIndex& cell : cells)
        if (!columns.contains(cell.column())) columns.append(cell.column());
    std::sort(columns.begin(), columns.end());
    QString text;
    if (withHeaders) {
        QStringList heads;
        for (const int column : columns)
            heads << model_.headerData(column, Qt::Horizontal).toString().replace('\n', ' ').trimmed();
        text = heads.join('\t') + '\n';
    }
    for (auto cell = cells.cbegin(); cell != cells.cend();) {
        const int row = cell->row();
        QStringList line(columns.size());
        for (; cell != cells.cend() && cell->row() == row; ++cell)
            line[columns.indexOf(cell->column())] = cell->data().toString();
        text += line.join('\t') + '\n';
    }
    return text;
}

QString ResultTableView::wholeText() const {
    return QString::fromStdString(tabSeparated(model_.table()));
}

void ResultTableView::copy(const QString& text) {
    if (text.isEmpty()) return;
    const QString marked = outOfDate_ ? QString::fromLatin1(kOutOfDate) + '\n' + text : text;
    auto* copied = new QMimeData;
    copied->setText(marked);
    copied->setHtml(asHtml(marked));
    QApplication::clipboard()->setMimeData(copied);
}

void ResultTableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy(selectionText(false));
        return;
    }
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && currentIndex().isValid()) {
        Q_EMIT rowChosen(currentIndex().row());
        return;
    }
    const QModelIndex before = currentIndex();
    QTableView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex() != before)
        Q_EMIT cellChosen(currentIndex().row(), currentIndex().column());
}

void ResultTableView::contextMenuEvent(QContextMenuEvent* event) {
    QMenu menu;
    const bool some = selectionModel()->hasSelection();
    QAction* copySelection = menu.addAction(themeIcon("edit-copy", QStyle::SP_FileIcon), tr("Copy"));
    copySelection->setShortcut(QKeySequence::Copy);
    QAction* copyWithHeaders = menu.addAction(tr("Copy with headers"));
    QAction* copyAll = menu.addAction(tr("Copy whole table"));
    copySelection->setEnabled(some);
    copyWithHeaders->setEnabled(some);
    copyAll->setEnabled(model_.rowCount() > 0);
    menu.addSeparator();
    QAction* working = menu.addAction(tr("How was this calculated?"));
    const RowOrigin origin = originOf(model_.table(), currentIndex().row());
    working->setEnabled(origin.isKnown() && !outOfDate_);
    QAction* exportAll = menu.addAction(tr("Export to Excel"));
    exportAll->setEnabled(model_.columnCount() > 0 && !outOfDate_);
    QAction* saveAsCsv = menu.addAction(tr("Save as CSV..."));
    saveAsCsv->setEnabled(exportAll->isEnabled());
    const QAction* chosen = menu.exec(event->globalPos());
    if (chosen == working && chosen != nullptr) Q_EMIT workingAsked(origin);
    if (chosen == saveAsCsv && chosen != nullptr) saveTableAsCsv(model_.table(), this);
    if (chosen == copySelection) copy(selectionText(false));
    if (chosen == copyWithHeaders) copy(selectionText(true));
    if (chosen == copyAll) copy(wholeText());
    if (chosen == exportAll && chosen != nullptr) exportTable(model_.table(), this);
}

ResultTablePane::ResultTablePane(const QString& listName, QWidget* parent) : QWidget(parent) {
    title_ = new QLabel;
    title_->setObjectName(listName + "Title");
    outOfDate_ = new QLabel(QString::fromUtf8("\u26a0 ") + QString::fromLatin1(kOutOfDate));
    outOfDate_->setObjectName(listName + "OutOfDate");
    QFont bold = font();
    bold.setBold(true);
    title_->setFont(bold);
    outOfDate_->setFont(bold);
    outOfDate_->setAlignment(Qt::AlignRight);
    outOfDate_->hide();
    note_ = new QLabel;
    note_->setObjectName(listName + "Note");
    note_->setWordWrap(true);
    note_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    note_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    note_->hide();
    list_ = new ResultTableView;
    list_->setObjectName(listName);
    list_->setAccessibleName(tr("Result table"));
    details_ = new QTextBrowser;
    details_->setObjectName(listName + "Details");
    details_->setAccessibleName(tr("Details of the row"));
    details_->hide();
    connect(list_, &ResultTableView::currentRowChanged, this, [this](int row) {
        const auto& details = list_->table().details;
        if (row >= 0 && static_cast<std::size_t>(row) < details.size())
            details_->setPlainText(QString::fromStdString(details[static_cast<std::size_t>(row)]));
    });
    details_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    auto* split = new QSplitter(Qt::Vertical);
    split->setObjectName("splitterDetails");
    split->addWidget(list_);
    split->addWidget(details_);
    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 1);
    split->setChildrenCollapsible(false);
    auto* head = new QHBoxLayout;
    head->addWidget(title_);
    head->addWidget(outOfDate_, 1);
    head->addWidget(note_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(head);
    layout->addWidget(split, 1);
}

void ResultTablePane::showTable(const QString& title, ResultTable table) {
    title_->setText(title);
    note_->setText(QString::fromStdString(table.note));
    note_->setVisible(!table.note.empty());
    setOutOfDate(false);
    details_->setVisible(!table.details.empty());
    details_->clear();
    list_->showTable(std::move(table));
    if (details_->isVisibleTo(this)) list_->selectRow(0);
}

void ResultTablePane::clear() {
    showTable({}, {});
}

void ResultTablePane::setOutOfDate(bool outOfDate) {
    const bool marked = outOfDate && list_->model()->rowCount() > 0;
    outOfDate_->setVisible(marked);
    // The warning takes the hint's room: side by side in a narrow pane they would be broken into many lines.
    note_->setVisible(!marked && !note_->text().isEmpty());
    list_->setOutOfDate(marked);
}

}  // namespace borvik
