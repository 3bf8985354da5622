#include "forms/help_window.h"

#include <QDesktopServices>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QSplitter>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QToolBar>
#include <QVBoxLayout>

#include "forms/formula_object.h"

namespace borvik {

namespace {

constexpr int kFileRole = Qt::UserRole;
constexpr QSize kStartSize(980, 700);

QTreeWidgetItem* itemOf(const QTreeWidget* tree, const QString& file) {
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(tree)); *at != nullptr; ++at)
        if ((*at)->data(0, kFileRole).toString() == file) return *at;
    return nullptr;
}

/// The page. What is copied from it has its formulas as text.
class PageView : public QTextBrowser {
protected:
    QMimeData* createMimeDataFromSelection() const override {
        QTextDocument copied;
        QTextCursor(&copied).insertFragment(textCursor().selection());
        putFormulasOnOneLine(copied);
        auto* copy = new QMimeData;
        copy->setText(copied.toPlainText());
        copy->setHtml(copied.toHtml());
        return copy;
    }
};

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
    connect(close, &QAction::triggered, this, &QWidget::close);
    auto* find = new QAction(this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, this, &HelpWindow::goToSearch);
    addActions({close, find});

    search_ = new QLineEdit;
    search_->setObjectName("helpSearch");
    search_->setPlaceholderText(tr("Search"));
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
    page_ = new PageView;
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
    page_->moveCursor(QTextCursor::Start);
    const QSignalBlocker still(contents_);
    contents_->setCurrentItem(itemOf(contents_, file));
    setWindowTitle(tr("Borvik Help") +
                   (contents_->currentItem() == nullptr ? QString() : " - " + contents_->currentItem()->text(0)));
    back_->setEnabled(here_ > 0);
    forward_->setEnabled(here_ + 1 < trail_.size());
}

void HelpWindow::print() {
    QPrinter printer(QPrinter::HighResolution);
    if (QPrintDialog(&printer, this).exec() == QDialog::Accepted) page_->document()->print(&printer);
}

}  // namespace borvik
