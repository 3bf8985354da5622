#include "notes_chapter.h"

#include <stdexcept>

#include "notes/notes.h"

namespace borvik {

namespace {

constexpr const char* kHeading = "## Notes for the checking engineer\n";

constexpr const char* kIntroduction = R"(
The program tells these where they matter in a project, under *Notes* in the window, with `borvik-calc --notes` and as a last chapter of the
report: what it does, the number it shows, and what that number would be under the other assumption. Results are never changed. What always
holds for a kind of project is an assumption, told without a number. What stands in italics is the other assumption that the note's number rests on.

"unsafe": the number shown can be too small. "either": it can be too small or too large. "information": ratios are right, something beside them
is not.
)";

struct Chapter {
    char letter;  ///< with which the keys begin
    const char* title;
};
constexpr Chapter kChapters[] = {{'A', "Loads and walk"},
                                 {'B', "Sections and their resistance"},
                                 {'C', "Shear and bending"},
                                 {'D', "Wheel loads"},
                                 {'E', "Deflection"},
                                 {'F', "Lateral torsional buckling"},
                                 {'G', "Fatigue"},
                                 {'H', "What the rows show"},
                                 {'I', "What is not checked"},
                                 {'J', "Values of the input"}};

/// The text with what Markdown would read as its own signs escaped.
std::string escaped(const std::string& text) {
    std::string safe;
    for (const char letter : text) {
        if (std::string("*_<^").find(letter) != std::string::npos) safe += '\\';
        safe += letter;
    }
    return safe;
}

/// "- **D1**, unsafe. The patch load check ... *With both.* EN 1993-6 6.5"
std::string entryOf(const NoteRule& rule) {
    std::string text = std::string("- **") + rule.key + "**, " + nameOf(rule.effect) +
                       (rule.assumption ? ", assumption" : "") + ". " + escaped(rule.says);
    if (*rule.with != '\0') text += " *" + escaped(capitalised(rule.with)) + ".*";
    if (*rule.clause != '\0') text += std::string(" ") + rule.clause;
    return text + "\n";
}

}  // namespace

std::string NotesChapter() {
    std::string text = std::string(kHeading) + kIntroduction;
    for (const Chapter& chapter : kChapters) {
        text += std::string("\n### Notes: ") + chapter.title + "\n\n";
        for (const NoteRule& rule : noteRules())
            if (rule.key[0] == chapter.letter) text += entryOf(rule);
    }
    return text + "\n";
}

std::string withNotesChapter(const std::string& manual) {
    const std::size_t begin = manual.find(kHeading);
    if (begin == std::string::npos) throw std::runtime_error("the manual has no chapter of notes");
    const std::size_t end = std::min(manual.find("\n## ", begin), manual.size() - 1) + 1;
    return manual.substr(0, begin) + NotesChapter() + manual.substr(end);
}

}  // namespace borvik
