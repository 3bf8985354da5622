#include "pictures.h"

#include <algorithm>
#include <cctype>

#include "output.h"
#include "results/diagrams.h"

#ifdef BORVIK_PICTURES
#include <QGuiApplication>

#include "platform/qt/picture.h"
#endif

namespace borvik {

bool isPictureName(const std::string& name) {
    const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
    const std::vector<std::string> names = pictureNames();
    return std::any_of(names.begin(), names.end(), [&](const std::string& known) {
        return std::equal(name.begin(), name.end(), known.begin(), known.end(),
                          [&](char a, char b) { return lower(a) == lower(b); });
    });
}

#ifdef BORVIK_PICTURES

namespace {

constexpr int kPixelsAcross = 1400;
constexpr double kPixelsPerUnit = 2.2;  // down

/// Fonts and painters want an application; it asks for no display unless the user chose a platform.
void needApplication() {
    if (QCoreApplication::instance() != nullptr) return;
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "borvik-calc";
    static char* argv[] = {name, nullptr};
    // Lives until the process ends: Qt's own statics go first, and an application must not outlive them half destroyed.
    const auto before = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    static auto* const application =
        new QGuiApplication(argc, argv);  // would warn about a desktop session that isn't there
    (void)application;
    qInstallMessageHandler(before);
}

}  // namespace

void savePictureOf(const Session& session, const std::string& name, const std::string& file) {
    const std::vector<Diagram> diagrams = pictureDiagrams(name, session.project);
    if (diagrams.empty()) throw OutputError("this project has no diagram " + name);
    const bool onlySketch = diagrams == std::vector<Diagram>{Diagram::Sketch};
    if (!onlySketch && !(session.Calculated && session.results)) throw OutputError("no results for diagram " + name);
    needApplication();
    const DiagramData data{session.project, session.results ? &*session.results : nullptr};
    const QString failed = savePicture(
        QString::fromStdString(file), [&](DrawingSurface& surface) { DrawPicture(surface, diagrams, data); },
        QSize(kPixelsAcross, qRound(pictureHeight(diagrams) * kPixelsPerUnit)), QString::fromStdString(name));
    if (!failed.isEmpty()) throw OutputError("can't write " + file + ": " + failed.toStdString());
}

#else

void savePictureOf(const Session&, const std::string&, const std::string&) {
    throw OutputError("this program was built without diagrams");
}

#endif

}  // namespace borvik
