#pragma once

#include <QAction>
#include <QLineEdit>
#include <QStringList>
#include <QTextBrowser>
#include <QTreeWidget>
#include <QWidget>

#include "forms/help_library.h"

namespace borvik {

/// The help: table of contents and search at the left, the page at the right.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    /// @param over  the window it belongs to. A modal form must be the owner of the help that it opens, or the help
    /// could
    ///              not be used while the form is open.
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
    void walk(int step);
    void display();
    void print();

    HelpLibrary library_;
    QStringList trail_;  ///< pages in the order in which they were seen
    qsizetype here_ = -1;
    QLineEdit* search_ = nullptr;
    QTreeWidget* contents_ = nullptr;
    QTextBrowser* page_ = nullptr;
    QAction* back_ = nullptr;
    QAction* forward_ = nullptr;
};

}  // namespace borvik
