#include "calculation/check_working.h"

#include <iterator>
#include <set>

#include "base/fault.h"
#include "fatigue/detail_checks.h"
#include "project/loads.h"
#include "section/section.h"

namespace borvik {

namespace {

std::string capital(std::string text) {
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

/// " at the largest value": which of the two rows of a span.
std::string extremeText(const StaticCheck& check, int extreme) {
    if (check.extremes.empty()) return "";
    const std::string name = check.extremes[static_cast<std::size_t>(extreme)].name;
    if (name == "Pos") return ", positive moment";
    if (name == "Neg") return ", support moment";
    return name == "Max" ? ", largest value" : ", smallest value";
}

CheckWorking sectionWorking(const ReferenceTables& tables, const Project& project, int span) {
    const std::string title = "Section of span " + std::to_string(span) + ", ";
    CheckWorking working{"Section", title + project.SpanSection(span).DisplayName, span, {}};
    explainSection(tables, project, span, Working(working.steps));
    return working;
}

CheckWorking deadLoadWorking(const Project& project, const Results& results, int span) {
    CheckWorking working{"DeadLoad", "Dead load of span " + std::to_string(span) + ", ULS", span, {}};
    (void)deadLoad(project, results.Rail, project.LfULS, span, Working(working.steps));
    return working;
}

CheckWorking rowWorking(const Project& project, const Results& results, const RowOrigin& origin) {
    const StaticCheck& check = *origin.check;
    const int span = origin.span;
    CheckWorking working{check.key, rowTitle(origin), span, {}};
    CheckBasis basis{project, results.Rail, results.Uls, results.Sls};
    if (check.prepare) check.prepare(basis);
    basis.working = Working(working.steps);
    watched(check.faultAt, span, [&] { (void)check.row(basis, span, origin.extreme); });
    return working;
}

CheckWorking detailWorking(const Project& project, const Results& results, const RowOrigin& origin) {
    const Detail& detail = *origin.detail;
    const FatigueResults& fatigue = results.Fatigue;
    CheckWorking working{"Fatigue" + std::to_string(detail.result), rowTitle(origin), origin.row, {}};
    const StressSet none(project.NofSpans);
    const auto orNone = [&none](const std::optional<StressSet>& set) -> const StressSet& { return set ? *set : none; };
    const DetailInput input{
        project, results.Rail, fatigue.Factors, orNone(fatigue.Cr1), orNone(fatigue.Cr2), orNone(fatigue.Cr12)};
    watched(detail.name, 0, [&] { explainDetail(detail, input, fatigue.Summed, origin.row, Working(working.steps)); });
    return working;
}

/// Shear, bending and buckling take resistances of the section; local checks and deflections have all in their lines.
bool restsOnResistances(const StaticCheck& check) {
    return !check.extremes.empty();
}

}  // namespace

std::string rowTitle(const RowOrigin& origin) {
    if (origin.detail != nullptr) {
        std::string kind = nameOf(kindOf(origin.detail->places));
        kind[0] = static_cast<char>(kind[0] - 'A' + 'a');
        return "Fatigue, " + std::string(origin.detail->title) + ", " + kind + " " + std::to_string(origin.row);
    }
    return capital(origin.check->name) + ", span " + std::to_string(origin.span) +
           extremeText(*origin.check, origin.extreme);
}

std::vector<CheckWorking> workingsOf(const ReferenceTables& tables, const Project& project, const Results& results,
                                     const RowOrigin& origin) {
    if (origin.detail != nullptr) return {detailWorking(project, results, origin)};
    std::vector<CheckWorking> workings;
    if (restsOnResistances(*origin.check)) workings.push_back(sectionWorking(tables, project, origin.span));
    workings.push_back(rowWorking(project, results, origin));
    return workings;
}

std::vector<CheckWorking> checkWorkings(const ReferenceTables& tables, const Project& project, const Results& results) {
    std::vector<CheckWorking> sections, checks;
    std::set<std::string> known;
    for (const CheckResult& result : results.Checks.all) {
        const RowOrigin& origin = result.governing.Origin;
        if (!isShown(*result.check, project) || origin.check == nullptr) continue;
        checks.push_back(rowWorking(project, results, origin));
        if (restsOnResistances(*origin.check) && known.insert(project.SpanSection(origin.span).DisplayName).second)
            for (auto&& part :
                 {deadLoadWorking(project, results, origin.span), sectionWorking(tables, project, origin.span)})
                sections.push_back(part);
    }
    for (const Detail& detail : detailsOf(project)) {
        const auto& governing = results.Fatigue.FatResult(detail.result);
        if (project.*detail.checked && governing && governing->Origin.detail != nullptr)
            checks.push_back(detailWorking(project, results, governing->Origin));
    }
    sections.insert(sections.end(), std::make_move_iterator(checks.begin()), std::make_move_iterator(checks.end()));
    return sections;
}

}  // namespace borvik
