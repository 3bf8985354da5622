#include "pictures.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "base/text.h"
#include "diagrams/diagrams.h"
#include "diagrams/momentary.h"
#include "diagrams/sketch_geometry.h"
#include "output.h"

#ifdef BORVIK_PICTURES
#include "platform/qt/picture.h"
#include "qt_application.h"
#endif

namespace borvik {

std::vector<BeamPlace> beamPlaces(const std::string& text) {
    std::vector<BeamPlace> places;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (places.size() < 2) {
        BeamPlace place;
        const auto span = std::from_chars(at, end, place.span);
        if (span.ec != std::errc() || place.span < 1 || span.ptr == end || *span.ptr != ':') return {};
        const auto position = std::from_chars(span.ptr + 1, end, place.position);
        if (position.ec != std::errc() || !std::isfinite(place.position)) return {};
        places.push_back(place);
        if (position.ptr == end) return places;
        if (*position.ptr != ',') return {};
        at = position.ptr + 1;
    }
    return {};
}

bool isPictureName(const std::string& name) {
    const std::vector<std::string> names = pictureNames();
    return std::any_of(names.begin(), names.end(), [&](const std::string& known) { return sameName(name, known); });
}

#ifdef BORVIK_PICTURES

namespace {

constexpr int kPixelsAcross = 1400;
constexpr double kPixelsPerUnit = 2.2;  // down

/// mm from the first support.
double onBeam(const Project& project, const BeamPlace& place) {
    if (place.span > project.NofSpans) throw OutputError("this beam has no span " + std::to_string(place.span));
    double x = place.position;
    for (int span = 1; span < place.span; ++span) x += project.Span(span);
    return x;
}

/// @return a remark where the nearest step of the walk is another place
std::string driveTo(CraneDrive& drive, const Project& project, const std::vector<BeamPlace>& places) {
    constexpr double kSame = 0.5;  // mm
    const double x1 = onBeam(project, places.front());
    const double x5 = places.size() > 1 ? onBeam(project, places[1]) : x1;
    drive.moveNear(x1, x5);
    bool same = true;
    for (const DrivenWheel& wheel : drivenWheels(drive)) {
        const bool asked = wheel.first && (wheel.wheel == 1 || places.size() > 1);
        same = same && (!asked || std::abs(wheel.place - (wheel.wheel == 1 ? x1 : x5)) < kSame);
    }
    return same ? "" : "the cranes stand at the nearest step of their walk: " + craneText(project, drive);
}

}  // namespace

std::string savePictureOf(const Session& session, const std::string& name, const std::vector<BeamPlace>& cranesAt,
                          const std::string& file) {
    const Project& project = session.project;
    std::vector<Diagram> diagrams = pictureDiagrams(name, project);
    if (diagrams.empty()) throw OutputError("this project has no diagram " + name);
    const bool onlySketch = diagrams == std::vector<Diagram>{Diagram::Sketch};
    const bool calculated = session.Calculated && session.results;
    if ((!onlySketch || !cranesAt.empty()) && !calculated) throw OutputError("no results for diagram " + name);
    DiagramData data{project, session.results ? &*session.results : nullptr};
    std::optional<CraneDrive> drive;
    std::string remark;
    if (!cranesAt.empty()) {
        drive.emplace(project, *session.results);
        drive->take(walkOf(diagrams.front()));
        remark = driveTo(*drive, project, cranesAt);
        data.drive = &*drive;
        if (!onlySketch) diagrams.insert(diagrams.begin(), Diagram::Sketch);
    }
    needApplication();
    naming(file, [&] {
        savePicture(
            file, [&](DrawingSurface& surface) { drawPicture(surface, diagrams, data); },
            QSize(kPixelsAcross, qRound(pictureHeight(diagrams) * kPixelsPerUnit)), QString::fromStdString(name));
    });
    return remark;
}

#else

std::string savePictureOf(const Session&, const std::string&, const std::vector<BeamPlace>&, const std::string&) {
    throw OutputError("this program was built without diagrams");
}

#endif

}  // namespace borvik
