#pragma once

#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "analysis/walk.h"
#include "calculation/calculation.h"
#include "notes/notes.h"

namespace borvik {

// The catalogue by chapters, each in the order of its keys.
[[nodiscard]] std::span<const NoteRule> loadNotes();        // A: loads and walk
[[nodiscard]] std::span<const NoteRule> sectionNotes();     // B: sections and their resistance
[[nodiscard]] std::span<const NoteRule> bendingNotes();     // C: checks of the cross-section
[[nodiscard]] std::span<const NoteRule> wheelNotes();       // D: wheel loads
[[nodiscard]] std::span<const NoteRule> deflectionNotes();  // E: deflection
[[nodiscard]] std::span<const NoteRule> bucklingNotes();    // F: lateral torsional buckling
[[nodiscard]] std::span<const NoteRule> fatigueNotes();     // G: fatigue
[[nodiscard]] std::span<const NoteRule> rowNotes();         // H: what the rows show
[[nodiscard]] std::span<const NoteRule> missingNotes();     // I: checks of the standards that the program doesn't make
[[nodiscard]] std::span<const NoteRule> inputNotes();       // J: values of the input

/// A finding with no number: the rule matters here, and that is all.
[[nodiscard]] inline std::optional<NoteFinding> matters(bool here, std::string remark = "") {
    if (!here) return std::nullopt;
    return NoteFinding{{}, std::move(remark)};
}

// Rules that hold for every project, or for every one of a kind.
[[nodiscard]] inline std::optional<NoteFinding> always(const Session&) {
    return matters(true);
}
[[nodiscard]] inline std::optional<NoteFinding> ofOverheadCranes(const Session& session) {
    return matters(session.project.CraneType == CraneKind::Overhead);
}
[[nodiscard]] inline std::optional<NoteFinding> ofMonorails(const Session& session) {
    return matters(session.project.CraneType != CraneKind::Overhead);
}

/// Smaller growth of a ratio doesn't show in three decimals.
constexpr double kShownGrowth = 0.0005;

/// A finding of one ratio.
[[nodiscard]] inline NoteFinding changed(std::string what, double shown, double other) {
    return NoteFinding{{{std::move(what), shown, other}}, ""};
}

/// Of the same check in several places: the change that leads to
/// the largest ratio, of those that grow. nullopt where none does.
[[nodiscard]] inline std::optional<NoteFinding> worstOf(const std::vector<NoteChange>& changes,
                                                        std::string remark = "") {
    const NoteChange* worst = nullptr;
    for (const NoteChange& change : changes)
        if (std::isgreaterequal(change.growth(), kShownGrowth) && (worst == nullptr || change.other > worst->other))
            worst = &change;
    if (worst == nullptr) return std::nullopt;
    return NoteFinding{{*worst}, std::move(remark)};
}

/// "bending, span 2"
[[nodiscard]] inline std::string inSpan(const char* what, int span) {
    return std::string(what) + ", span " + std::to_string(span);
}

/// For calculations that the user has not asked for.
struct SilentMessages : Messages {
    void show(const std::string&) override {}
};

/// Whether the cranes have so few positions that a reader of notes doesn't wait for another walk.
[[nodiscard]] inline bool quicklyWalked(const Session& session) {
    constexpr double kMostPositions = 2e7;  // two cranes on 30 spans of 30 m have half of it and take 0.1 s
    return countPositions(session.project, session.project.NofCranes) <= kMostPositions;
}

/// The same project calculated with something changed: a copy of the session after `change(Session&)` has run on it.
/// nullopt where the changed project is refused or ends in a fault, and where it would take long.
template <class Change>
[[nodiscard]] std::optional<Session> recalculated(const Session& session, Change change) {
    if (!quicklyWalked(session)) return std::nullopt;
    SilentMessages silent;
    Progress progress;
    Session copy = session;
    change(copy);
    if (!Calculate(copy, silent, progress)) return std::nullopt;
    return copy;
}

}  // namespace borvik
