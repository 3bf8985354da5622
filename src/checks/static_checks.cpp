#include "checks/static_checks.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/fault.h"
#include "checks/deflection_checks.h"
#include "checks/governing_rows.h"
#include "checks/local_checks.h"
#include "checks/ltb_checks.h"
#include "checks/section_checks.h"

namespace borvik {

namespace {

bool overhead(const Project& project) {
    return project.CraneType == CraneKind::Overhead;
}

bool monorail(const Project& project) {
    return project.CraneType != CraneKind::Overhead;
}

bool loadedSideways(const Project& project) {
    return project.HasLoadsY;
}

constexpr auto kUls = LimitState::Ultimate;
constexpr auto kSls = LimitState::Serviceability;

const std::vector<CheckExtreme> kShearAt{{"Max", &UlsResults::VzMaxSpan}, {"Min", &UlsResults::VzMinSpan}};
const std::vector<CheckExtreme> kBendingAt{{"Max", &UlsResults::MyMaxSpan}, {"Min", &UlsResults::MyMinSpan}};
const std::vector<CheckExtreme> kBucklingAt{{"Pos"}, {"Neg"}};

// clang-format off
const StaticCheck kChecks[] = {
    {"Shear", "shear", "Section checks", kUls, nullptr, nullptr, kShearAt, 8, 8,
     nullptr, shearRow, worseShear, highestText},
    {"Bend", "bending", "Section checks", kUls, nullptr, nullptr, kBendingAt, 8, 8,
     nullptr, bendingRow, worseBending, highestText},
    {"Ltb", "lateral torsional buckling", "Lateral torsional buckling", kUls, nullptr, nullptr, kBucklingAt, 8, 8,
     nullptr, bucklingRow, worseBuckling, highestText},
    {"Local", "patch load", "Patch load", kUls, overhead, nullptr, {}, 4, 6,
     wearStatic, patchLoadRow, nullptr, governingLocal},
    {"Local", "flange bending", "Flange bending", kUls, monorail, nullptr, {}, 4, 6,
     nullptr, flangeBendingRow, nullptr, governingLocal},
    {"VonMises", "von Mises stress", "Von Mises stress", kUls, monorail, nullptr, {}, 4, 6,
     nullptr, vonMisesRow, nullptr, governingLocal},
    {"DefZ", "vertical deflection", "Deflection", kSls, nullptr, nullptr, {}, 5, 5,
     nullptr, verticalDeflectionRow, nullptr, governingDeflection},
    {"DefY", "horizontal deflection", "Deflection", kSls, nullptr, loadedSideways, {}, 5, 5,
     nullptr, horizontalDeflectionRow, nullptr, governingDeflection},
};
// clang-format on

using Group = std::span<CheckResult>;

CheckResult emptyResult(const StaticCheck& check, int spans) {
    return {&check, {check.extremes.size(), Array<RowSet>(1, spans)}, Array<RowSet>(1, spans), {}};
}

void runSpan(const CheckBasis& basis, int span, CheckResult& result) {
    const StaticCheck& check = *result.check;
    const auto rowAt = [&](int extreme) {
        RowSet row = check.row(basis, span, extreme);
        row.Origin = {&check, span, extreme};
        return row;
    };
    if (check.extremes.empty()) result.spans(span) = rowAt(0);
    for (std::size_t extreme = 0; extreme < result.extremes.size(); ++extreme)
        result.extremes[extreme](span) = rowAt(static_cast<int>(extreme));
}

void takeWorse(CheckResult& result) {
    if (!result.extremes.empty())
        for (int span = 1; span <= result.spans.last(); ++span)
            result.spans(span) = result.check->worse(result.extremes[0](span), result.extremes[1](span));
    result.governing = result.check->governing(result.spans);
}

void runGroup(CheckBasis& basis, Group group) {
    for (const CheckResult& result : group)
        if (result.check->prepare) result.check->prepare(basis);
    for (int span = 1; span <= basis.project.NofSpans; ++span)
        watched(group.front().check->faultAt, span, [&] {
            for (CheckResult& result : group) runSpan(basis, span, result);
        });
    for (CheckResult& result : group) takeWorse(result);
}

bool appliesTo(const StaticCheck& check, const Project& project) {
    return !check.applies || check.applies(project);
}

}  // namespace

std::span<const StaticCheck> staticChecks() {
    return kChecks;
}

bool isShown(const StaticCheck& check, const Project& project) {
    return !check.shown || check.shown(project);
}

const CheckResult* CheckResults::find(std::string_view key) const {
    const auto found = std::find_if(all.begin(), all.end(), [&](const CheckResult& r) { return r.check->key == key; });
    return found == all.end() ? nullptr : &*found;
}

const CheckResult& CheckResults::operator[](std::string_view key) const {
    const CheckResult* found = find(key);
    if (!found) throw std::out_of_range("no check " + std::string(key));
    return *found;
}

CheckResult& CheckResults::operator[](std::string_view key) {
    return const_cast<CheckResult&>(std::as_const(*this)[key]);
}

CheckResults emptyChecks(const Project& project) {
    CheckResults results;
    for (const StaticCheck& check : kChecks)
        if (appliesTo(check, project)) results.all.push_back(emptyResult(check, project.NofSpans));
    return results;
}

CheckResults RunCodeChecks(CheckBasis basis) {
    CheckResults results = emptyChecks(basis.project);
    const auto end = results.all.end();
    for (auto first = results.all.begin(); first != end;) {
        const auto next = std::find_if(first, end, [&](const CheckResult& result) {
            return std::string_view(result.check->faultAt) != first->check->faultAt;
        });
        runGroup(basis, Group(first, next));
        first = next;
    }
    return results;
}

CheckResult runCheck(std::string_view key, CheckBasis basis) {
    const auto check = std::find_if(std::begin(kChecks), std::end(kChecks), [&](const StaticCheck& one) {
        return one.key == key && appliesTo(one, basis.project);
    });
    if (check == std::end(kChecks)) throw std::out_of_range("no check " + std::string(key));
    CheckResult result = emptyResult(*check, basis.project.NofSpans);
    runGroup(basis, Group(&result, 1));
    return result;
}

}  // namespace borvik
