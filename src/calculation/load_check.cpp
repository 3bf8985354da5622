#include "calculation/load_check.h"

#include <initializer_list>
#include <span>

#include "base/number_text.h"

namespace borvik {

namespace {

/// A wheel and the distance in front of it go together: either may be what is missing.
struct WheelRule {
    enum Missing { Load, Distance } missing;
    int wheel;
    int gap;
    const char* message;

    [[nodiscard]] bool fails(const Project& project) const {
        const bool load = double(project.V(wheel)) != 0, distance = double(project.Avst(gap)) != 0;
        return missing == Load ? distance && !load : load && !distance;
    }
};

// The wording changes from rule to rule, blanks included.
constexpr WheelRule kOverheadCrane1[] = {
    {WheelRule::Load, 2, 1, "Vertical force for wheel 2 is missing!"},
    {WheelRule::Load, 3, 2, "Vertical force for wheel 3 is missing!"},
    {WheelRule::Load, 4, 3, "Vertical force for wheel 4 is missing!"},
    {WheelRule::Distance, 2, 1, " Distance between point 1/2 missing "},
    {WheelRule::Distance, 3, 1, " Distance between point 1/2 missing"},
    {WheelRule::Distance, 3, 2, " Distance between point 2/3 missing"},
    {WheelRule::Distance, 4, 3, "Distance between point 3/4 missing"},
    {WheelRule::Distance, 4, 2, " Distance between point 2/3 missing"},
};

constexpr WheelRule kOverheadCrane2[] = {
    {WheelRule::Load, 6, 4, "Vertical force for Crane 2 for wheel 2 is missing!"},
    {WheelRule::Load, 7, 5, "Vertical force for Crane 2 for wheel 3 is missing!"},
    {WheelRule::Load, 8, 6, "Vertical force for Crane 2 for wheel 4 is missing!"},
    {WheelRule::Distance, 6, 4, " Distance for Crane 2 between point 1/2 missing! "},
    {WheelRule::Distance, 7, 4, "Distance for Crane 2 between point 1/2 missing!"},
    {WheelRule::Distance, 7, 5, "Distance for Crane 2 between point 2/3 missing!"},
    {WheelRule::Distance, 8, 4, " Distance for Crane 2 between point 1/2 missing! "},
    {WheelRule::Distance, 8, 5, " Distance for Crane 2 between point 2/3 missing! "},
    {WheelRule::Distance, 8, 6, " Distance for Crane 2 between point 3/4 missing! "},
};

constexpr WheelRule kMonorail[] = {
    {WheelRule::Load, 2, 1, "Vertical force for wheel 2 is missing!"},
    {WheelRule::Load, 3, 2, "Vertical force for wheel 3 is missing!"},
    {WheelRule::Load, 4, 3, "Vertical force for wheel 4 is missing!"},
    {WheelRule::Distance, 2, 1, " Distance between point 1/2 missing "},
    {WheelRule::Distance, 3, 1, " Distance between point 1/2  missing"},
    {WheelRule::Distance, 3, 2, " Distance between point 2/3 missing"},
    {WheelRule::Distance, 4, 1, "Distance between point 1/2 missing"},
    {WheelRule::Distance, 4, 2, "Distance between point 2/3 missing"},
    {WheelRule::Distance, 4, 3, "Distance between point 3/4 missing"},
};

const char* firstFailing(std::span<const WheelRule> rules, const Project& project) {
    for (const WheelRule& rule : rules)
        if (rule.fails(project)) return rule.message;
    return nullptr;
}

std::string fitRefusal(const Project& project, LoadForm form) {
    Single extent, beam;
    for (const Single& gap : project.Avst) extent += gap;
    extent += project.Position;
    extent += project.MinAvst;
    for (const std::int32_t length : project.Span) beam += length;
    if (double(extent) < double(beam)) return {};
    return generalText(extent) + " > " + generalText(beam) +
           (form == LoadForm::Overhead ? " ; The crane is outside the beam !!"
                                       : " ; Traversen ryms ej på traversbalken!!");
}

const char* crane2Refusal(const Project& project) {
    if (double(project.V(5)) == 0) return "First wheel for Crane 2 must have a vertical force!";
    if (const char* message = firstFailing(kOverheadCrane2, project)) return message;
    return double(project.MinAvst) > 100 ? nullptr : " Min distance 100 ";
}

bool anyOf(const Project& project, std::initializer_list<int> wheels) {
    for (const int wheel : wheels)
        if (double(project.H(wheel)) != 0) return true;
    return false;
}

}  // namespace

std::string LoadRefusal(const Project& project, LoadForm form) {
    std::string fit = fitRefusal(project, form);
    if (!fit.empty()) return fit;
    if (project.Fixerad && double(project.Position) == 0) return " Fixed position > 0 ";
    const bool overhead = form == LoadForm::Overhead;
    const char* message = overhead ? firstFailing(kOverheadCrane1, project) : firstFailing(kMonorail, project);
    if (message == nullptr && overhead && project.NofCranes == 2) message = crane2Refusal(project);
    return message == nullptr ? std::string() : message;
}

void SettleLoads(Project& project, LoadForm form) {
    const bool overhead = form == LoadForm::Overhead;
    for (int gap = 1; gap <= (overhead ? 6 : 3); ++gap) {
        const int wheelBehind = gap <= 3 ? gap + 1 : gap + 2;
        if (double(project.Avst(gap)) == 0) project.H(wheelBehind) = 0;
    }
    if (project.NofCranes == 1) {
        project.MinAvst = 0;
        for (int wheel = 5; wheel <= 8; ++wheel) project.V(wheel) = project.H(wheel) = 0;
        for (int gap = 4; gap <= 6; ++gap) project.Avst(gap) = 0;
    }
    // Wheel 6 isn't asked: an overhead crane whose only horizontal load stands there counts as having none.
    project.HasLoadsY = overhead ? anyOf(project, {1, 2, 3, 4, 5, 7, 8}) : anyOf(project, {1, 2, 3, 4});
}

}  // namespace borvik
