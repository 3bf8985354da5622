#include "help/help_window.h"

#include <QApplication>
#include <QDesktopServices>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QVBoxLayout>
#include <algorithm>

#include "help/help_page_view.h"

namespace borvik {

namespace {

constexpr int kFileRole = Qt::UserRole;
constexpr QSize kStartSize(980, 700);

QTreeWidgetItem* itemOf(const QTreeWidget* tree, const QString& file) {
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(tree)); *at != nullptr; ++at)
        if ((*at)->data(0, kFileRole).toString() == file) return *at;
    return nullptr;
}

}  // namespace

HelpWindow::HelpWindow(const QString& folder, QWidget* over) : QWidget(over, Qt::Window), library_(folder) {
    setObjectName("frmHelp");
    setAttribute(Qt::WA_DeleteOnClose);
    resize(kStartSize);
    buildLayout();
    fillContents({});
}

void HelpWindow::buildLayout() {
    auto* bar = new QToolBar;
    back_ = bar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("Back"), this, [this] { walk(-1); });
    back_->setShortcut(QKeySequence::Back);
    forward_ = bar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), tr("Forward"), this, [this] { walk(1); });
    forward_->setShortcut(QKeySequence::Forward);
    bar->addAction(tr("Contents"), this, [this] { showPage("index.md"); });
    bar->addAction(tr("Print"), this, &HelpWindow::print)->setShortcut(QKeySequence::Print);
    auto* close = new QAction(this);
    close->setShortcut(Qt::Key_Escape);
    connect(close, &QAction::triggered, this, &HelpWindow::escape);
    auto* search = new QAction(this);
    search->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F));
    connect(search, &QAction::triggered, this, &HelpWindow::goToSearch);
    addActions({close, search});
    buildFinder(bar);

    search_ = new QLineEdit;
    search_->setObjectName("helpSearch");
    search_->setPlaceholderText(tr("Search all pages (Ctrl+Shift+F)"));
    search_->setClearButtonEnabled(true);
    connect(search_, &QLineEdit::textChanged, this, &HelpWindow::fillContents);
    connect(search_, &QLineEdit::returnPressed, this, [this] {
        if (const QTreeWidgetItem* first = contents_->topLevelItem(0))
            if (const QString file = first->data(0, kFileRole).toString(); !file.isEmpty()) showPage(file);
    });
    contents_ = new QTreeWidget;
    contents_->setObjectName("helpContents");
    contents_->setHeaderHidden(true);
    connect(contents_, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
        if (item == nullptr) return;
        const QString file = item->data(0, kFileRole).toString();
        if (!file.isEmpty()) showPage(file);
    });
    page_ = new HelpPageView;
    page_->setObjectName("helpPage");
    page_->setOpenLinks(false);
    page_->document()->setDocumentMargin(16);
    connect(page_, &QTextBrowser::anchorClicked, this, &HelpWindow::follow);

    auto* left = new QWidget;
    auto* column = new QVBoxLayout(left);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(search_);
    column->addWidget(contents_);
    auto* halves = new QSplitter;
    halves->addWidget(left);
    halves->addWidget(page_);
    halves->setStretchFactor(1, 1);
    halves->setSizes({260, kStartSize.width() - 260});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 0, 6, 6);
    layout->addWidget(bar);
    layout->addWidget(halves, 1);
}

/// The search in the page: a box, its neighbours and how many there are.
void HelpWindow::buildFinder(QToolBar* bar) {
    auto* room = new QWidget;
    room->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    found_ = new QLabel;
    found_->setObjectName("helpFound");
    found_->setMargin(6);
    find_ = new QLineEdit;
    find_->setObjectName("helpFind");
    find_->setPlaceholderText(tr("Find in page (Ctrl+F)"));
    find_->setClearButtonEnabled(true);
    find_->setMaximumWidth(220);
    bar->addWidget(room);
    bar->addWidget(found_);
    bar->addWidget(find_);
    QAction* previous = bar->addAction(style()->standardIcon(QStyle::SP_ArrowUp), tr("Previous (Shift+F3)"), this,
                                       [this] { goToHit(-1); });
    previous->setShortcut(QKeySequence::FindPrevious);
    QAction* next =
        bar->addAction(style()->standardIcon(QStyle::SP_ArrowDown), tr("Next (F3)"), this, [this] { goToHit(1); });
    next->setShortcut(QKeySequence::FindNext);
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, [this] {
        find_->setFocus(Qt::ShortcutFocusReason);
        find_->selectAll();
    });
    addAction(find);
    connect(find_, &QLineEdit::textChanged, this, &HelpWindow::markHits);
    connect(find_, &QLineEdit::returnPressed, this,
            [this] { goToHit(QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier) ? -1 : 1); });
}

/// Looks for the words in the page anew.
void HelpWindow::markHits() {
    const QString words = find_->text();
    hits_.clear();
    hit_ = -1;
    if (!words.isEmpty())
        for (QTextCursor at = page_->document()->find(words); !at.isNull(); at = page_->document()->find(words, at))
            hits_.append(at);
    goToHit(0);
}

/// Shows another hit, the last beside the first. @param step  0 only marks them, and shows the first after new words
void HelpWindow::goToHit(int step) {
    const int count = static_cast<int>(hits_.size());
    if (count > 0 && (step != 0 || (hit_ < 0 && find_->hasFocus()))) {
        hit_ = (std::max(hit_, step < 0 ? 0 : -1) + (step == 0 ? 1 : step) + count) % count;
        QTextCursor shown = hits_[hit_];
        shown.setPosition(shown.selectionStart());
        page_->setTextCursor(shown);
        page_->ensureCursorVisible();
    }
    QList<QTextEdit::ExtraSelection> marks;
    for (int i = 0; i < count; ++i) {
        QTextEdit::ExtraSelection mark{hits_[i], {}};
        mark.format.setBackground(i == hit_ ? QColor(0xff, 0xa6, 0x33) : QColor(0xff, 0xee, 0x88));
        mark.format.setForeground(Qt::black);
        marks.append(mark);
    }
    page_->setExtraSelections(marks);
    found_->setText(find_->text().isEmpty() ? QString()
                    : count == 0            ? tr("Not in this page")
                    : hit_ < 0              ? tr("%1 places").arg(count)
                                            : tr("%1 of %2").arg(hit_ + 1).arg(count));
}

/// Escape ends the search in the page, and then the help.
void HelpWindow::escape() {
    if (find_->text().isEmpty()) {
        close();
        return;
    }
    find_->clear();
    page_->setFocus();
}

/// The table of contents, or with words to search for the pages found, best first.
void HelpWindow::fillContents(const QString& words) {
    const QSignalBlocker still(contents_);
    contents_->clear();
    if (!words.trimmed().isEmpty()) {
        const auto found = library_.search(words);
        for (const HelpText& page : found)
            (new QTreeWidgetItem(contents_, {page.title}))->setData(0, kFileRole, page.file);
        if (found.isEmpty()) (new QTreeWidgetItem(contents_, {tr("Nothing found")}))->setDisabled(true);
        return;
    }
    QTreeWidgetItem* group = nullptr;
    for (const HelpText& page : library_.pages()) {
        if (group == nullptr || group->text(0) != page.group) {
            group = new QTreeWidgetItem(contents_, {page.group});
            group->setFlags(Qt::ItemIsEnabled);
        }
        (new QTreeWidgetItem(group, {page.title}))->setData(0, kFileRole, page.file);
    }
    contents_->expandAll();
    contents_->setCurrentItem(itemOf(contents_, currentPage()));
}

void HelpWindow::showPage(const QString& file) {
    if (file != currentPage()) {
        trail_ = trail_.mid(0, here_ + 1);
        trail_.append(file);
        here_ = trail_.size() - 1;
    }
    display();
}

void HelpWindow::goToSearch() {
    search_->setFocus(Qt::ShortcutFocusReason);
    search_->selectAll();
}

void HelpWindow::follow(const QUrl& link) {
    if (!link.isRelative()) {
        QDesktopServices::openUrl(link);
        return;
    }
    if (link.path().isEmpty()) {
        goToHeading(link.fragment());
        return;
    }
    const QDir from = QFileInfo(library_.folder().filePath(currentPage())).dir();
    showPage(library_.folder().relativeFilePath(from.absoluteFilePath(link.path())));
}

/// @param name  of a heading, as links have it: small letters, signs left out, blanks as hyphens
void HelpWindow::goToHeading(const QString& name) {
    static const QRegularExpression signs("[^\\w -]");
    for (QTextBlock block = page_->document()->begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 0) continue;
        if (block.text().toLower().remove(signs).replace(' ', '-') != name) continue;
        page_->moveCursor(QTextCursor::End);  // so that the heading comes to stand at the top
        page_->setTextCursor(QTextCursor(block));
        return;
    }
}

void HelpWindow::walk(int step) {
    if (here_ + step < 0 || here_ + step >= trail_.size()) return;
    here_ += step;
    display();
}

void HelpWindow::display() {
    const QString file = currentPage();
    page_->setSearchPaths({QFileInfo(library_.folder().filePath(file)).absolutePath()});
    if (!library_.show(file, *page_->document()))
        page_->setPlainText(tr("The page %1 is missing.").arg(library_.folder().filePath(file)));
    page_->fitPicturesToPage(true);
    page_->moveCursor(QTextCursor::Start);
    markHits();
    const QSignalBlocker still(contents_);
    contents_->setCurrentItem(itemOf(contents_, file));
    setWindowTitle(tr("Borvik Help") +
                   (contents_->currentItem() == nullptr ? QString() : " - " + contents_->currentItem()->text(0)));
    back_->setEnabled(here_ > 0);
    forward_->setEnabled(here_ + 1 < trail_.size());
}

void HelpWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(windowTitle());  // and so the name proposed for a file
    if (QPrintDialog(&printer, this).exec() == QDialog::Accepted) page_->document()->print(&printer);
}

}  // namespace borvik
