#include "forms/help.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace borvik {

namespace {

/// File of the page below the help folder.
QString fileOf(HelpPage page) {
    switch (page) {
        case HelpPage::Contents: return "index.html";
        case HelpPage::Search: return "search.html";
        case HelpPage::Theory: return "theory.html";
    }
    return {};
}

}  // namespace

void showHelp(HelpPage page, Messages& messages) {
    const QDir program(QCoreApplication::applicationDirPath());
    for (const char* folder : {"help", "../share/doc/borvik/help"}) {
        const QString path = program.absoluteFilePath(QLatin1String(folder) + QLatin1Char('/') + fileOf(page));
        if (QFileInfo::exists(path)) {
            QDesktopServices::openUrl(QUrl::fromLocalFile(QDir::cleanPath(path)));
            return;
        }
    }
    messages.show("The help file " + program.absoluteFilePath("help/" + fileOf(page)).toStdString() + " is missing.");
}

}  // namespace borvik
