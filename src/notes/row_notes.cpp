
#include "notes/all_ratios.h"

namespace borvik {

namespace {

/// Every check whose governing row hides a larger ratio, in another row or at another point of its own.
template <class Wanted>
std::optional<NoteFinding> hiddenRatios(const Session& session, Wanted wanted) {
    std::vector<NoteChange> hidden;
    for (const CheckedRatio& ratio : allRatios(session))
        if (std::isgreater(ratio.largest, ratio.shown) && wanted(ratio))
            hidden.push_back(
                {ratio.at > 0 ? inSpan(ratio.what.c_str(), ratio.at) : ratio.what, ratio.shown, ratio.largest});
    if (hidden.empty()) return std::nullopt;
    return NoteFinding{std::move(hidden), ""};
}

bool isWheelCheck(const CheckedRatio& ratio) {
    return ratio.what == "patch load" || ratio.what == "flange bending" || ratio.what == "von Mises stress";
}

std::optional<NoteFinding> rankedAsText(const Session& session) {
    return hiddenRatios(session, [](const CheckedRatio& r) { return r.largest >= 10 && !isWheelCheck(r); });
}

std::optional<NoteFinding> lastTwoSpans(const Session& session) {
    return hiddenRatios(session, isWheelCheck);
}

/// Checks whose ratio says nothing, because of what the load is divided by.
std::optional<NoteFinding> noSoundRatio(const Session& session) {
    const auto unsound = [](const auto& rows) { return !std::isgreaterequal(rows.Ratio, 0.0); };
    std::string all;
    const auto add = [&all](const std::string& what) { all += (all.empty() ? "" : "; ") + what; };
    const auto spans = [&](const char* what, const auto& rows) {
        for (int span = rows.first(); span <= rows.last(); ++span)
            if (unsound(rows(span))) add(inSpan(what, span));
    };
    for (const CheckResult& result : session.results->Checks.all) spans(result.check->name, result.spans);
    for (int detail = 1; detail <= 6; ++detail)
        if (const auto& row = session.results->Fatigue.FatResult(detail); row && unsound(*row))
            add("fatigue detail " + std::to_string(detail));
    return matters(!all.empty(), all);
}

/// Above the limit by less than what three decimals show.
std::optional<NoteFinding> justAboveOne(const Session& session) {
    for (const CheckedRatio& ratio : allRatios(session))
        if (ratio.largest > 1 && ratio.largest < 1.0005) return matters(true, ratio.what);
    return std::nullopt;
}

std::optional<NoteFinding> sharedRows(const Session& session) {
    const Project& project = session.project;
    return matters(project.CraneType == CraneKind::Overhead && project.Fat4 && project.Fat6);
}

constexpr NoteRule kRules[]{
    {"H1", NoteCheck::General, NoteEffect::Unsafe,
     "The governing point and row of a check are those whose ratio ranks highest as text, so that 10.000 ranks below "
     "2.000.",
     "by number", "", rankedAsText},
    {"H2", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The governing row of the wheel load checks is the larger of the last two spans; an earlier span has more.",
     "of all spans", "", lastTwoSpans},
    {"H3", NoteCheck::General, NoteEffect::Information,
     "Ratios are written with three decimals, and one that is just above 1 shows as 1.000.", "", "", justAboveOne},
    {"H6", NoteCheck::Fatigue, NoteEffect::Information,
     "The rows of detail 4 are not listed point by point when detail 6 is checked too; its governing row stands.", "",
     "", sharedRows},
    {"H8", NoteCheck::General, NoteEffect::Unsafe,
     "A ratio that is negative or no number shows that no resistance is left, or that a factor is senseless; the check "
     "is not satisfied.",
     "", "", noSoundRatio},
};

}  // namespace

std::span<const NoteRule> rowNotes() {
    return kRules;
}

}  // namespace borvik
