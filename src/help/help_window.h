#pragma once

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QTextCursor>
#include <QToolBar>
#include <QTreeWidget>
#include <QWidget>

#include "help/help_library.h"

namespace borvik {

class HelpPageView;

/// The help: table of contents and search over all pages at the left, the page and the search in it at the right.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// @param over  the window it belongs to. A modal form must be the owner of the help that it opens, or the help
    /// could not be used while the form is open.
    HelpWindow(const QString& folder, QWidget* over);

    /// Shows a page. @param file  below the help folder
    void showPage(const QString& file);
    void goToSearch();

    /// File of the page that is shown.
    [[nodiscard]] QString currentPage() const { return trail_.value(here_); }
    [[nodiscard]] const HelpLibrary& library() const { return library_; }

private:
    void buildLayout();
    void fillContents(const QString& words);
    void follow(const QUrl& link);
    void goToHeading(const QString& name);
    void buildFinder(QToolBar* bar);
    void markHits();
    void goToHit(int step);
    void escape();
    void walk(int step);
    void display();
    void print();

    HelpLibrary library_;
    QStringList trail_;  ///< pages in the order in which they were seen
    qsizetype here_ = -1;
    QLineEdit* search_ = nullptr;
    QTreeWidget* contents_ = nullptr;
    HelpPageView* page_ = nullptr;
    QLineEdit* find_ = nullptr;
    QLabel* found_ = nullptr;
    QList<QTextCursor> hits_;  ///< of what is looked for in the page
    int hit_ = -1;             ///< the one shown
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
};

}  // namespace borvik
