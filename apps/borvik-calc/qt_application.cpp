#ifdef BORVIK_PICTURES
#include "qt_application.h"

#include <QGuiApplication>

namespace borvik {

void needApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "borvik-calc";
    static char* argv[] = {name, nullptr};
    // Lives until the process ends: Qt's own statics go first, and an application must not outlive them half destroyed.
    // It would warn about a desktop session that isn't there.
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static auto* const application = new QGuiApplication(argc, argv);
    (void)application;
    qInstallMessageHandler(before);
}

}  // namespace borvik
#endif
