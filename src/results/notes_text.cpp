#include "results/notes_text.h"

#include <algorithm>
#include <sstream>

#include "notes/notes.h"

namespace borvik {

namespace {

constexpr std::size_t kWidth = 100;  // letters in a line
const std::string kIndent = "    ";

/// The text in indented lines of at most kWidth letters; `first` stands before the first one in place of blanks.
std::string wrapped(const std::string& text, std::string first = kIndent) {
    std::istringstream words(text);
    std::string lines, line = std::move(first), word;
    bool fresh = true;
    while (words >> word) {
        if (!fresh && line.size() + 1 + word.size() > kWidth) {
            lines += line + "\n";
            line = kIndent;
            fresh = true;
        }
        line += (fresh ? "" : " ") + word;
        fresh = false;
    }
    return lines + line + "\n";
}

/// The other numbers of a note, the largest growths first.
std::string furtherChanges(const Note& note) {
    constexpr std::size_t kMost = 6;
    const auto& changes = note.finding.changes;
    std::string lines;
    for (std::size_t i = 1; i < std::min(changes.size(), kMost); ++i)
        lines += wrapped(capitalised(changeText(changes[i])));
    return lines;
}

std::string paragraph(const Note& note) {
    return std::string(nameOf(note.rule->check)) + ", " + nameOf(note.rule->effect) + " [" + note.rule->key + "]\n" +
           wrapped(noteText(note)) + furtherChanges(note);
}

}  // namespace

std::string notesText(const Session& session) {
    if (!session.Calculated || !session.notes) return "No notes without results\n";
    const Notes& notes = *session.notes;
    std::string text = "Notes for the checking engineer: " + std::to_string(notes.notes.size()) + "\n";
    for (const Note& note : notes.notes) text += "\n" + paragraph(note);
    if (!notes.assumptions.empty()) text += "\nAssumptions\n";
    for (const NoteRule* rule : notes.assumptions)
        text += wrapped(std::string(rule->key) + ": " + noteText({rule, {}}), "  - ");
    return text;
}

}  // namespace borvik
