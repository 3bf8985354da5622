#include "calculation/load_check.h"

#include <algorithm>
#include <initializer_list>
#include <span>

#include "base/number_text.h"

namespace borvik {

namespace {

/// A wheel and the distance in front of it go together: either may be what is missing.
struct WheelRule {
    LoadItem missing;
    int wheel;
    int gap;
    const char* message;

    [[nodiscard]] bool fails(const Project& project) const {
        const bool load = double(project.V(wheel)) != 0, distance = double(project.Avst(gap)) != 0;
        return missing == LoadItem::Load ? distance && !load : load && !distance;
    }
};

// The wording changes from rule to rule, blanks included.
constexpr WheelRule kOverheadCrane1[] = {
    {LoadItem::Load, 2, 1, "Vertical force for wheel 2 is missing!"},
    {LoadItem::Load, 3, 2, "Vertical force for wheel 3 is missing!"},
    {LoadItem::Load, 4, 3, "Vertical force for wheel 4 is missing!"},
    {LoadItem::Distance, 2, 1, " Distance between point 1/2 missing "},
    {LoadItem::Distance, 3, 1, " Distance between point 1/2 missing"},
    {LoadItem::Distance, 3, 2, " Distance between point 2/3 missing"},
    {LoadItem::Distance, 4, 3, "Distance between point 3/4 missing"},
    {LoadItem::Distance, 4, 2, " Distance between point 2/3 missing"},
};

constexpr WheelRule kOverheadCrane2[] = {
    {LoadItem::Load, 6, 4, "Vertical force for Crane 2 for wheel 2 is missing!"},
    {LoadItem::Load, 7, 5, "Vertical force for Crane 2 for wheel 3 is missing!"},
    {LoadItem::Load, 8, 6, "Vertical force for Crane 2 for wheel 4 is missing!"},
    {LoadItem::Distance, 6, 4, " Distance for Crane 2 between point 1/2 missing! "},
    {LoadItem::Distance, 7, 4, "Distance for Crane 2 between point 1/2 missing!"},
    {LoadItem::Distance, 7, 5, "Distance for Crane 2 between point 2/3 missing!"},
    {LoadItem::Distance, 8, 4, " Distance for Crane 2 between point 1/2 missing! "},
    {LoadItem::Distance, 8, 5, " Distance for Crane 2 between point 2/3 missing! "},
    {LoadItem::Distance, 8, 6, " Distance for Crane 2 between point 3/4 missing! "},
};

constexpr WheelRule kMonorail[] = {
    {LoadItem::Load, 2, 1, "Vertical force for wheel 2 is missing!"},
    {LoadItem::Load, 3, 2, "Vertical force for wheel 3 is missing!"},
    {LoadItem::Load, 4, 3, "Vertical force for wheel 4 is missing!"},
    {LoadItem::Distance, 2, 1, " Distance between point 1/2 missing "},
    {LoadItem::Distance, 3, 1, " Distance between point 1/2  missing"},
    {LoadItem::Distance, 3, 2, " Distance between point 2/3 missing"},
    {LoadItem::Distance, 4, 1, "Distance between point 1/2 missing"},
    {LoadItem::Distance, 4, 2, "Distance between point 2/3 missing"},
    {LoadItem::Distance, 4, 3, "Distance between point 3/4 missing"},
};

/// From the left end of the beam to the last wheel of the second crane.
Single extentOf(const Project& project) {
    Single extent;
    for (const Single& gap : project.Avst) extent += gap;
    extent += project.Position;
    extent += project.MinAvst;
    return extent;
}

Single lengthOf(const Project& project) {
    Single length;
    for (const std::int32_t span : project.Span) length += span;
    return length;
}

bool fits(const Project& project) {
    return double(extentOf(project)) < double(lengthOf(project));
}

LoadFault firstFailing(std::span<const WheelRule> rules, const Project& project) {
    for (const WheelRule& rule : rules)
        if (rule.fails(project))
            return {rule.message, rule.missing, rule.missing == LoadItem::Load ? rule.wheel : rule.gap};
    return {};
}

/// Whether the beam would hold the crane if all of the form's own values were 0.
bool mendable(Project project, LoadForm form) {
    project.Position = 0;
    const bool overhead = form == LoadForm::Overhead;
    for (int gap = 1; gap <= (overhead ? 6 : 3); ++gap) project.Avst(gap) = 0;
    if (overhead) project.MinAvst = 0;
    return fits(project);
}

LoadFault fitRefusal(const Project& project, LoadForm form) {
    if (fits(project)) return {};
    return {generalText(extentOf(project)) + " > " + generalText(lengthOf(project)) +
                (form == LoadForm::Overhead ? " ; The crane is outside the beam !!"
                                            : " ; Traversen ryms ej på traversbalken!!"),
            project.Fixerad ? LoadItem::Position : LoadItem::Nothing, 0, mendable(project, form)};
}

LoadFault crane2Refusal(const Project& project) {
    if (double(project.V(5)) == 0) return {"First wheel for Crane 2 must have a vertical force!", LoadItem::Load, 5};
    if (LoadFault fault = firstFailing(kOverheadCrane2, project); !fault.message.empty()) return fault;
    if (double(project.MinAvst) > 100) return {};
    return {" Min distance 100 ", LoadItem::MinDistance};
}

bool anyOf(const Project& project, std::initializer_list<int> wheels) {
    for (const int wheel : wheels)
        if (double(project.H(wheel)) != 0) return true;
    return false;
}

}  // namespace

LoadFault loadRefusal(const Project& project, LoadForm form) {
    if (LoadFault fault = fitRefusal(project, form); !fault.message.empty()) return fault;
    if (project.Fixerad && double(project.Position) == 0) return {" Fixed position > 0 ", LoadItem::Position};
    if (form == LoadForm::Monorail) return firstFailing(kMonorail, project);
    if (LoadFault fault = firstFailing(kOverheadCrane1, project); !fault.message.empty()) return fault;
    return project.NofCranes == 2 ? crane2Refusal(project) : LoadFault();
}

void settleLoads(Project& project, LoadForm form) {
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

std::string loadRemark(const Project& project) {
    const LoadForm form = project.CraneType == CraneKind::Overhead ? LoadForm::Overhead : LoadForm::Monorail;
    std::string refusal = loadRefusal(project, form).message;
    if (!refusal.empty()) {
        refusal = refusal.substr(refusal.find_first_not_of(' '));
        refusal.resize(refusal.find_last_not_of(' ') + 1);
        return "The loads are calculated as they stand, but are not in order: " + refusal;
    }
    const auto wheels = project.V.begin() + (project.NofCranes == 2 ? 8 : 4);
    if (std::all_of(project.V.begin(), wheels, [](Single load) { return double(load) == 0; }))
        return "No wheel has a vertical load.";
    Project settled = project;
    settleLoads(settled, form);
    if (settled.HasLoadsY && !project.HasLoadsY)
        return "There are horizontal wheel loads, but the results leave deflections by them out: open and close the "
               "form "
               "of loads, and calculate again.";
    return {};
}

}  // namespace borvik
