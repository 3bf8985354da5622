#include <QDir>
#include <QIcon>
#include <QScreen>
#include <QStandardPaths>
#include <QStyle>
#include <iostream>
#include <optional>
#include <string_view>

#include "boxes/wheel_guard.h"
#include "platform/data_folder.h"
#include "platform/qt/qt_messages.h"
#include "platform/qt/qt_settings.h"
#include "platform/version.h"
#include "window/guarded_application.h"
#include "window/help.h"
#include "window/main_window.h"

namespace {

constexpr const char* kUsage = "usage: borvik [PROJECT.brvk]\n";

/// The project named on the command line; what the toolkit takes for itself has gone from the arguments before.
/// @return its path, empty where none is named; nothing where the arguments are wrong, which has then been said
std::optional<QString> projectArgument(const QStringList& arguments) {
    const bool isPath = arguments.value(1) == "--";
    const QStringList files = arguments.mid(isPath ? 2 : 1);
    if (!isPath && !files.isEmpty() && files.first().startsWith('-')) {
        std::cerr << "borvik: unknown option " << files.first().toStdString() << '\n' << kUsage;
        return std::nullopt;
    }
    if (files.size() > 1) {
        std::cerr << "borvik: one project a window, not " << files.size() << '\n' << kUsage;
        return std::nullopt;
    }
    return files.value(0);
}

/// Cuts a window to what its screen has room for, its frame included.
void fitOnScreen(QWidget& window) {
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    window.resize(window.size().boundedTo(window.screen()->availableSize() - QSize(0, title)));
}

}  // namespace

/// The desktop program. Takes one project file as its argument.
int main(int argc, char** argv) {
    using namespace borvik;
    for (const std::string_view answered : {"--version", "--help", "-h"})
        if (argc == 2 && answered == argv[1]) {
            std::cout << kProgramAndVersion << ", design of steel crane runway beams\n" << kUsage;
            return 0;
        }
    QtMessages messages;
    GuardedApplication application(argc, argv, messages);
    const auto project = projectArgument(QApplication::arguments());
    if (!project) return 2;
    QApplication::setApplicationName(kApplicationTitle);
    QApplication::setApplicationVersion(kVersion);
    QApplication::setDesktopFileName("borvik");
    QApplication::setWindowIcon(QIcon::fromTheme("borvik"));
    WheelGuard wheelGuard;
    application.installEventFilter(&wheelGuard);

    QtQuestions questions;
    QtSettings settings;
    HelpKey helpKey(messages);
    application.installEventFilter(&helpKey);
    const std::string data = findDataFolder(programFolder(argv[0]));
    QDir::setSearchPaths(kHelpPath, {QString::fromStdString(data + "/docs/help")});
    QDir::setSearchPaths(kExamplesPath, {QString::fromStdString(data + "/examples")});
    try {
        Session session(LoadTables(data));
        const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
        MainWindow window(session, {messages, questions, settings, (own + "/recovery").toStdString()});
        fitOnScreen(window);
        window.show();
        if (!project->isEmpty()) window.openProject(project->toStdString());
        window.offerRecovery();
        return QApplication::exec();
    } catch (const TableError& error) {
        messages.show(error.what());
        return 5;
    }
}
