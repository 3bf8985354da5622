#include "diagrams/sketch_geometry.h"

#include <algorithm>

#include "base/number_text.h"
#include "diagrams/diagram.h"

namespace borvik {
namespace {

/// Wheels of a crane that are worth drawing: the first, and all
/// up to the last that has a load or a distance to its neighbour.
int wheelsOf(const Project& project, int firstWheel, int firstGap) {
    int count = 1;
    for (int i = 1; i <= 3; ++i)
        if (project.V(firstWheel + i) != 0.0 || project.Avst(firstGap + i - 1) != 0.0) count = i + 1;
    return count;
}

}  // namespace

int enteredSpans(const Project& project) {
    int spans = 0;
    while (spans < kMaxSpans && project.Span(spans + 1) > 0) ++spans;
    return spans;
}

DistinctSections::DistinctSections(const Project& project) {
    for (int span = 1; span <= enteredSpans(project); ++span) {
        const std::string name = project.SpanSection.has(span) ? project.SpanSection(span).DisplayName : "";
        if (name.empty()) {
            numbers_.push_back(0);
            continue;
        }
        const auto place = std::find(names_.begin(), names_.end(), name);
        numbers_.push_back(static_cast<int>(place - names_.begin()) + 1);
        if (place == names_.end()) names_.push_back(name);
    }
}

CraneGeometry craneGeometry(const Project& project) {
    CraneGeometry cranes;
    double total = 0.0;
    for (int span = 1; span <= enteredSpans(project); ++span) total += project.Span(span);
    if (total <= 0.0) return cranes;
    const double unitsPerMm = kBeamLength / total;
    const bool two = project.NofCranes == 2;

    const double crane1 = project.Avst(1) + project.Avst(2) + project.Avst(3);
    const double crane2 = project.Avst(4) + project.Avst(5) + project.Avst(6);
    const double train = two ? crane1 + project.MinAvst + crane2 : crane1;
    const double first = kBeamStart + (project.Fixerad ? project.Position * unitsPerMm : 0.0);
    const double last = first + train * unitsPerMm;
    // A short train would be a heap of wheels: its distances are changed by a factor, and the title says so. The factor
    // is taken from where the last wheel stands, not from the length of the train.
    const double limit = two ? 350.0 : 100.0;
    if ((two || project.Avst(1) != 0.0) && last - first < limit) cranes.factor = limit / last;

    const double scale = unitsPerMm * cranes.factor;
    double x = first;
    for (int i = 1, count = wheelsOf(project, 1, 1); i <= count; ++i) {
        cranes.wheels.push_back({i, x, i < count ? double{project.Avst(i)} : 0.0});
        if (i < count) x += project.Avst(i) * scale;
    }
    if (!two) return cranes;
    x = first + (crane1 + project.MinAvst) * scale;
    for (int i = 1, count = wheelsOf(project, 5, 4); i <= count; ++i) {
        cranes.wheels.push_back({4 + i, x, i < count ? double{project.Avst(3 + i)} : 0.0});
        if (i < count) x += project.Avst(3 + i) * scale;
    }
    return cranes;
}

std::vector<DrivenWheel> drivenWheels(const CraneDrive& drive) {
    std::vector<DrivenWheel> wheels;
    const RunLoads& loads = drive.cranes().loads();
    const int shift = drive.walk() == WalkOf::FatigueCrane2 ? 4 : 0;
    const bool sideways = drive.walk() == WalkOf::Uls || drive.walk() == WalkOf::Sls;
    for (const int first : {1, 5}) {
        int count = 0;
        for (int w = first; w < first + 4; ++w)
            if (loads.WheelV(w) != 0.0 || (sideways && loads.WheelH(w) != 0.0)) count = w - first + 1;
        for (int w = first; w < first + count; ++w) wheels.push_back({w + shift, drive.cranes().place(w), w == first});
    }
    return wheels;
}

CraneGeometry drivenGeometry(const Project& project, const CraneDrive& drive) {
    CraneGeometry cranes;
    double total = 0.0;
    for (int span = 1; span <= enteredSpans(project); ++span) total += project.Span(span);
    const std::vector<DrivenWheel> wheels = drivenWheels(drive);
    for (std::size_t i = 0; i < wheels.size(); ++i) {
        const bool last = i + 1 == wheels.size() || wheels[i + 1].first;
        cranes.wheels.push_back({wheels[i].wheel, kBeamStart + wheels[i].place / total * kBeamLength,
                                 last ? 0.0 : wheels[i + 1].place - wheels[i].place});
    }
    return cranes;
}

std::vector<SplicePlace> splicePlaces(const Project& project) {
    const bool monorail = project.CraneType == CraneKind::Monorail;
    const auto& used = monorail ? project.ChkFatR5Sp : project.ChkFat5Sp;
    const auto& spans = monorail ? project.FatR5Span : project.Fat5Span;
    const auto& distances = monorail ? project.FatR5d1 : project.Fat5d1;
    std::vector<SplicePlace> places;
    if (!(monorail ? project.FatR5 : project.Fat5)) return places;
    for (int splice = 1; splice <= 10; ++splice) {
        const double number = spans(splice);
        if (!used(splice) || !(number >= 1.0 && number <= enteredSpans(project))) continue;
        const int span = roundHalfEven(number);
        if (distances(splice) >= 0.0 && distances(splice) <= project.Span(span))
            places.push_back({span, distances(splice)});
    }
    return places;
}

}  // namespace borvik
