#include "window/help.h"

#include <QApplication>
#include <QDialog>
#include <QFileInfo>
#include <QKeyEvent>

#include "diagrams/diagram_kind.h"
#include "dialogs/dialogs.h"
#include "help/help_window.h"

namespace borvik {

namespace {

struct PageOfWindow {
    const char* window;
    const char* page;
};

/// Windows that are no input forms.
constexpr PageOfWindow kPages[] = {
    {"frmBorvik", "main-window.md"},
    {"frmInfoSetup", "setup.md"},
    {"frmProgress", "calculating.md"},
    {"frmTemp", "crane-positions.md"},
    {"frmWorking", "how-calculated.md"},
    {"frmDetailedResult", "detailed-results.md"},
    {"frmabout", "index.md"},
};

struct PageOfNode {
    const char* node;  ///< its text
    const char* page;
};

/// Nodes that open neither a form nor a picture.
constexpr PageOfNode kNodes[] = {
    {"ULS", "summaries.md"},
    {"ULS + SLS", "summaries.md"},
    {"ULS + SLS + FLS", "summaries.md"},
    {"Summary", "summaries.md"},
    {"Detailed Results", "detailed-results.md"},
    {"Reactions for supports", "handing-over.md"},
    {"Compare groups", "crane-data.md"},
    {"Second opinion", "second-opinion.md"},
    {"Notes", "notes.md"},
};

/// @param over  owner of the help window; an owner's open help window is used again
HelpWindow* openHelp(QWidget* over, Messages& messages) {
    const QFileInfo contents(QString(kHelpPath) + ":index.md");
    if (!contents.exists()) {
        messages.show("The help pages are missing: they belong in the folder docs/help beside the section tables.");
        return nullptr;
    }
    auto* window = over == nullptr ? nullptr : over->findChild<HelpWindow*>(QString(), Qt::FindDirectChildrenOnly);
    if (window == nullptr) window = new HelpWindow(contents.absolutePath(), over);
    window->show();
    window->raise();
    window->activateWindow();
    return window;
}

}  // namespace

void showHelp(HelpPage page, Messages& messages) {
    HelpWindow* window = openHelp(QApplication::activeWindow(), messages);
    if (window == nullptr) return;
    window->showPage(page == HelpPage::Theory ? "../theory.md" : "index.md");
    if (page == HelpPage::Search) window->goToSearch();
}

QString helpPageOf(const QWidget* window) {
    for (; window != nullptr; window = window->parentWidget()) {
        for (const FormKind& form : formKinds())
            if (window->objectName() == form.window) return form.helpPage;
        for (const PageOfWindow& known : kPages)
            if (window->objectName() == known.window) return known.page;
    }
    return "index.md";
}

QString helpPageOf(const TreeNode& node, bool monorail) {
    if (const FormKind* form = findForm(node.text, monorail)) return form->helpPage;
    for (const PictureKind& picture : pictureKinds())
        if (node.text == picture.node) return picture.helpPage;
    for (const PageOfNode& known : kNodes)
        if (node.text == known.node) return known.page;
    return "main-window.md";
}

void showHelpPage(const QString& page, Messages& messages) {
    if (HelpWindow* window = openHelp(QApplication::activeWindow(), messages)) window->showPage(page);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_F1) return false;
    QWidget* window = static_cast<QWidget*>(watched)->window();
    if (qobject_cast<QDialog*>(window) == nullptr) return false;
    if (HelpWindow* help = openHelp(window, messages_)) help->showPage(helpPageOf(window));
    return true;
}

}  // namespace borvik
