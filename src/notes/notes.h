#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "calculation/session.h"

namespace borvik {

/// Which way the program's rule can be wrong.
enum class NoteEffect {
    Unsafe,       ///< the ratio shown can be too small
    Either,       ///< too small or too large
    Information,  ///< ratios are right, something beside them is not
};

/// The check that a note belongs to.
enum class NoteCheck { General, Section, LateralBuckling, WheelLoad, VonMises, Deflection, Fatigue };

/// A number that the program shows, and what it would be under the other assumption.
struct NoteChange {
    std::string what;  ///< of which number, with its place: "patch load, span 2", "largest reaction, support 1, kN"
    double shown = 0;
    double other = 0;
    bool ratio = true;           ///< a ratio that may not pass 1; else a number to look at
    const char* mask = "0.000";  ///< how both are written

    /// What orders the notes: how much a ratio grows, 0 for any other number.
    [[nodiscard]] double growth() const noexcept { return ratio ? other - shown : 0.0; }
};

/// What one rule has found in a project.
struct NoteFinding {
    std::vector<NoteChange> changes;  ///< the largest growth first; none where the note has no number to give
    std::string remark;  ///< of this project, a half sentence without a full stop: "tf 45 mm in span 2"; may be empty
};

/// One entry of the catalogue.
struct NoteRule {
    const char* key;  ///< stable: "D1"
    NoteCheck check;
    NoteEffect effect;
    const char* says;    ///< one sentence: what the program does and what follows, with a full stop
    const char* with;    ///< the other assumption, before its numbers: "with load and dynamic factor"; may be ""
    const char* clause;  ///< "EN 1993-6 6.5, EN 1991-3 2.4"; may be ""
    /// Whether it matters in this project, which has been calculated. Reads results, never changes them; may calculate
    /// copies with the other assumption. nullopt: it does not matter here.
    std::optional<NoteFinding> (*find)(const Session& session);
    /// Holds for every project of its kind: listed with the others of its sort in one closing row.
    bool assumption = false;
};

/// A note that matters in a project.
struct Note {
    const NoteRule* rule = nullptr;
    NoteFinding finding;
};

/// The notes of a calculated project.
struct Notes {
    std::vector<Note> notes;  ///< ordered by how much a ratio would grow, then unsafe before either before information
    std::vector<const NoteRule*> assumptions;  ///< those that hold here: the closing row
};

/// Every rule, in the order of their keys.
[[nodiscard]] std::span<const NoteRule> noteRules();
/// What the check is called on screen and in the report: "Wheel loads".
[[nodiscard]] const char* nameOf(NoteCheck check);
/// "unsafe", "either", "information".
[[nodiscard]] const char* nameOf(NoteEffect effect);

/// Less of a ratio is of no use to a reader.
inline constexpr double kLeastGrowth = 0.01;

/// All notes that matter for the last results of the session; none without results. The session is only read: its
/// results stay as they are, to the bit. A rule that ends in an arithmetic fault under its other assumption stands
/// without a number. Changes that don't show in the written digits, or
/// that move a ratio by less than `least` without crossing 1, are left out, and so is a note that had no other.
[[nodiscard]] Notes projectNotes(const Session& session, double least = kLeastGrowth);

/// Makes the notes of a session and keeps them with its results; nothing where they are already there.
/// @pre session.Calculated and its results
void makeNotes(Session& session);

/// A change in words: "patch load, span 2: 0.084 instead of 0.057".
[[nodiscard]] std::string changeText(const NoteChange& change);
/// The text with its first letter as a capital, for a text that begins a line.
[[nodiscard]] std::string capitalised(std::string text);
/// The largest change of a note with its other assumption: "With both, patch load, span 2: 0.084 instead of 0.057";
/// empty where it has none.
[[nodiscard]] std::string largestChangeText(const Note& note);
/// The whole note in one line: what the program does, the project's own remark, the largest change, the clause.
[[nodiscard]] std::string noteText(const Note& note);

}  // namespace borvik
