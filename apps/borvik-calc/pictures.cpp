#include "pictures.h"

#include <algorithm>

#include "base/text.h"
#include "diagrams/diagrams.h"
#include "output.h"

#ifdef BORVIK_PICTURES
#include "platform/qt/picture.h"
#include "qt_application.h"
#endif

namespace borvik {

bool isPictureName(const std::string& name) {
    const std::vector<std::string> names = pictureNames();
    return std::any_of(names.begin(), names.end(), [&](const std::string& known) { return sameName(name, known); });
}

#ifdef BORVIK_PICTURES

namespace {

constexpr int kPixelsAcross = 1400;
constexpr double kPixelsPerUnit = 2.2;  // down

}  // namespace

void savePictureOf(const Session& session, const std::string& name, const std::string& file) {
    const std::vector<Diagram> diagrams = pictureDiagrams(name, session.project);
    if (diagrams.empty()) throw OutputError("this project has no diagram " + name);
    const bool onlySketch = diagrams == std::vector<Diagram>{Diagram::Sketch};
    if (!onlySketch && !(session.Calculated && session.results)) throw OutputError("no results for diagram " + name);
    needApplication();
    const DiagramData data{session.project, session.results ? &*session.results : nullptr};
    const QString failed = savePicture(
        file, [&](DrawingSurface& surface) { drawPicture(surface, diagrams, data); },
        QSize(kPixelsAcross, qRound(pictureHeight(diagrams) * kPixelsPerUnit)), QString::fromStdString(name));
    if (!failed.isEmpty()) throw OutputError("can't write " + file + ": " + failed.toStdString());
}

#else

void savePictureOf(const Session&, const std::string&, const std::string&) {
    throw OutputError("this program was built without diagrams");
}

#endif

}  // namespace borvik
