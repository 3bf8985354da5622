#include "results/notes_text.h"

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

std::string paragraph(const Note& note) {
    return std::string(nameOf(note.rule->check)) + ", " + nameOf(note.rule->effect) + " [" + note.rule->key + "]\n" +
           wrapped(noteText(note));
}

}  // namespace

std::string NotesText(const Session& session) {
    if (!session.Calculated || !session.results) return "No notes without results\n";
    const Notes notes = ProjectNotes(session);
    std::string text = "Notes for the checking engineer: " + std::to_string(notes.notes.size()) + "\n";
    for (const Note& note : notes.notes) text += "\n" + paragraph(note);
    if (!notes.assumptions.empty()) text += "\nAssumptions\n";
    for (const NoteRule* rule : notes.assumptions) text += wrapped(noteText({rule, {}}), "  - ");
    return text;
}

}  // namespace borvik
