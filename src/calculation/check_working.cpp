#include "calculation/check_working.h"

#include <iterator>
#include <set>

#include "base/fault.h"
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

CheckWorking sectionWorking(const Session& session, int span) {
    CheckWorking working{
        "Section", "Section of span " + std::to_string(span) + ", " + session.project.SpanSection(span).DisplayName,
        span, {}};
    explainSection(session.tables, session.project, span, Working(working.steps));
    return working;
}

}  // namespace

CheckWorking workingOf(const Session& session, const RowOrigin& origin) {
    const StaticCheck& check = *origin.check;
    const int span = origin.span;
    CheckWorking working{
        check.key, capital(check.name) + ", span " + std::to_string(span) + extremeText(check, origin.extreme), span, {}};
    const Results& results = *session.results;
    CheckBasis basis{session.project, results.Rail, results.Uls, results.Sls};
    if (check.prepare) check.prepare(basis);
    basis.working = Working(working.steps);
    watched(check.faultAt, span, [&] { (void)check.row(basis, span, origin.extreme); });
    return working;
}

std::vector<CheckWorking> checkWorkings(const Session& session) {
    std::vector<CheckWorking> sections, checks;
    std::set<std::string> known;
    for (const CheckResult& result : session.results->Checks.all) {
        if (!isShown(*result.check, session.project)) continue;
        const RowOrigin& origin = result.governing.Origin;
        if (origin.check == nullptr) continue;
        const int span = origin.span;
        checks.push_back(workingOf(session, origin));
        const bool restsOnResistances = !result.check->extremes.empty();
        if (restsOnResistances && known.insert(session.project.SpanSection(span).DisplayName).second)
            sections.push_back(sectionWorking(session, span));
    }
    sections.insert(sections.end(), std::make_move_iterator(checks.begin()), std::make_move_iterator(checks.end()));
    return sections;
}

}  // namespace borvik
