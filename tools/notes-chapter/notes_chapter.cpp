#include "notes_chapter.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

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

/// Formulas that notes write on a line, and how the manual sets them.
struct LineFormula {
    std::string_view line, set;
};
constexpr LineFormula kFormulas[] = {
    {"rho hw^2 tw/4", "$\\rho h_w^2 t_w/4$"},
    {"C1 = 1.77 - 1.04 psi + 0.27 psi^2", "$C_1 = 1.77 - 1.04 \\psi + 0.27 \\psi^2$"},
    {"C1 = 2.60", "$C_1 = 2.60$"},
    {"tw/(2a)", "$t_w/(2a)$"},
    {"(25/t)^0.2", "$(25/t)^{0.2}$"},
};

/// The text with its formulas set, and with what Markdown would read as its own signs escaped.
std::string typeset(std::string_view text) {
    std::string safe;
    while (!text.empty()) {
        const auto* formula = std::find_if(std::begin(kFormulas), std::end(kFormulas),
                                           [&](const LineFormula& each) { return text.starts_with(each.line); });
        if (formula != std::end(kFormulas)) {
            safe += formula->set;
            text.remove_prefix(formula->line.size());
            continue;
        }
        if (std::string_view("*_<^").find(text[0]) != std::string_view::npos) safe += '\\';
        safe += text[0];
        text.remove_prefix(1);
    }
    return safe;
}

/// "- **D1**, unsafe. The patch load check ... *With both.* EN 1993-6 6.5"
std::string entryOf(const NoteRule& rule) {
    std::string text = std::string("- **") + rule.key + "**, " + nameOf(rule.effect) +
                       (rule.assumption ? ", assumption" : "") + ". " + typeset(rule.says);
    if (*rule.with != '\0') text += " *" + typeset(capitalised(rule.with)) + ".*";
    if (*rule.clause != '\0') text += std::string(" ") + rule.clause;
    return text + "\n";
}

}  // namespace

std::string notesChapter() {
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
    return manual.substr(0, begin) + notesChapter() + manual.substr(end);
}

}  // namespace borvik
