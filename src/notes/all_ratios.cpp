#include "notes/all_ratios.h"

#include <algorithm>

namespace borvik {

namespace {

void add(std::vector<CheckedRatio>& ratios, std::string what, const Array<RowSet>& rows, const RowSet& governing,
         bool spans = true) {
    CheckedRatio found{std::move(what), governing.Ratio, governing.largest(), 0};
    for (int i = rows.first(); i <= rows.last(); ++i)
        if (rows(i).largest() > found.largest || (rows(i).largest() == found.largest && found.at == 0)) {
            found.largest = rows(i).largest();
            found.at = spans ? i : 0;
        }
    ratios.push_back(std::move(found));
}

}  // namespace

std::vector<CheckedRatio> allRatios(const Session& session) {
    const FatigueResults& f = session.results->Fatigue;
    std::vector<CheckedRatio> ratios;
    for (const CheckResult& result : session.results->Checks.all)
        add(ratios, result.check->name, result.spans, result.governing);
    for (int detail = 1; detail <= 6; ++detail) {
        if (!f.FatResult(detail)) continue;
        const std::string what = "fatigue detail " + std::to_string(detail);
        const RowSet& governing = *f.FatResult(detail);
        if (f.FatRows(detail))
            add(ratios, what, *f.FatRows(detail), governing, false);
        else  // of an overhead crane's detail 4, whose rows stand elsewhere
            ratios.push_back({what, governing.Ratio, governing.largest(), 0});
    }
    return ratios;
}

std::optional<NoteFinding> grown(const std::vector<CheckedRatio>& shown, const std::vector<CheckedRatio>& other) {
    NoteFinding finding;
    for (std::size_t i = 0; i < std::min(shown.size(), other.size()); ++i) {
        if (shown[i].what != other[i].what) continue;
        NoteChange change{shown[i].what, shown[i].largest, other[i].largest};
        if (change.growth() >= kShownGrowth) finding.changes.push_back(std::move(change));
    }
    if (finding.changes.empty()) return std::nullopt;
    std::stable_sort(finding.changes.begin(), finding.changes.end(),
                     [](const NoteChange& a, const NoteChange& b) { return a.growth() > b.growth(); });
    return finding;
}

}  // namespace borvik
