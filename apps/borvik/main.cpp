#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QStandardPaths>
#include <iostream>
#include <string_view>

#include "forms/help.h"
#include "forms/main_window.h"
#include "forms/wheel_guard.h"
#include "platform/data_folder.h"
#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_settings.h"

/// The desktop program. Takes one project file as its argument.
int main(int argc, char** argv) {
    using namespace borvik;
    if (argc == 2 && (std::string_view(argv[1]) == "--version" || std::string_view(argv[1]) == "--help")) {
        std::cout << "Borvik " BORVIK_VERSION ", design of steel crane runway beams\nusage: borvik [PROJECT.brvk]\n";
        return 0;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(kApplicationTitle);
    QApplication::setApplicationVersion(BORVIK_VERSION);
    QApplication::setDesktopFileName("borvik");
    QApplication::setWindowIcon(QIcon::fromTheme("borvik"));
    WheelGuard wheelGuard;
    application.installEventFilter(&wheelGuard);

    QtMessages messages;
    QtQuestions questions;
    QtSettings settings;
    HelpKey helpKey(messages);
    application.installEventFilter(&helpKey);
    const std::string data = FindDataFolder(ProgramFolder(argv[0]));
    QDir::setSearchPaths(kHelpPath, {QString::fromStdString(data + "/docs/help")});
    QDir::setSearchPaths(kExamplesPath, {QString::fromStdString(data + "/examples")});
    try {
        Session session(LoadTables(data));
        const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        MainWindow window(session, {messages, questions, settings, (own + "/recovery").toStdString()});
        window.show();
        const QStringList arguments = QApplication::arguments();
        if (arguments.size() > 1) window.openProject(arguments.at(1).toStdString());
        window.offerRecovery();
        return QApplication::exec();
    } catch (const TableError& error) {
        messages.show(error.what());
        return 5;
    }
}
