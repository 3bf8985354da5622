#include <algorithm>

#include "notes/notes.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};
constexpr double kIndent = 3.0;          // columns: what stands below a note's heading
constexpr double kGap = 0.6;             // lines between two notes
constexpr std::size_t kMostChanges = 4;  // more are counted

/// The lines of one note, each with its style.
struct NoteLines {
    std::string heading, effect;
    std::vector<std::pair<std::string, TextStyle>> lines;
};

/// Says, remark and numbers of a note as separate lines, wrapped to the width.
NoteLines linesOf(const ReportPage& page, const Note& note, std::size_t number) {
    const NoteRule& rule = *note.rule;
    const auto& changes = note.finding.changes;
    NoteLines block{std::to_string(number) + "  " + rule.key + "  " + nameOf(rule.check), nameOf(rule.effect), {}};
    const auto add = [&](const std::string& text, TextStyle style = {}) {
        for (std::string& line : page.wrapped(text, page.width() - kIndent, style))
            block.lines.emplace_back(std::move(line), style);
    };
    add(rule.says + (note.finding.remark.empty() ? "" : " Here: " + note.finding.remark + "."));
    if (!changes.empty()) add(largestChangeText(note), kBold);
    for (std::size_t i = 1; i < std::min(changes.size(), kMostChanges); ++i) add(capitalised(changeText(changes[i])));
    // "and 1 more" would take the line that the one more needs.
    const std::size_t shown = changes.size() == kMostChanges + 1 ? changes.size() : kMostChanges;
    for (std::size_t i = kMostChanges; i < std::min(changes.size(), shown); ++i)
        add(capitalised(changeText(changes[i])));
    if (changes.size() > shown) add("and " + std::to_string(changes.size() - kMostChanges) + " more");
    if (*rule.clause != '\0') add(rule.clause, kQuiet);
    return block;
}

/// One note, kept together on a page.
void printNote(ReportPage& page, const NoteLines& block) {
    page.need(1.1 + static_cast<double>(block.lines.size()) + kGap);
    page.putRight(page.ColRight, block.effect, kQuiet);
    page.put(page.ColLeft, block.heading, kBold);
    page.advance(1.1);
    for (const auto& [line, style] : block.lines) {
        page.put(page.ColLeft + kIndent, line, style);
        page.advance(1.0);
    }
    page.advance(kGap);
}

void printAssumptions(ReportPage& page, const std::vector<const NoteRule*>& assumptions) {
    page.need(4.0);
    page.put(page.ColLeft, "Assumptions that hold for every project of this kind", kBold);
    page.advance(1.3);
    for (const NoteRule* rule : assumptions) {
        const std::vector<std::string> lines =
            page.wrapped(std::string(rule->key) + ": " + noteText({rule, {}}), page.width() - kIndent);
        page.need(static_cast<double>(lines.size()) + 0.3);
        page.put(page.ColLeft, "-");
        for (const std::string& line : lines) {
            page.put(page.ColLeft + kIndent, line);
            page.advance(1.0);
        }
        page.advance(0.3);
    }
}

}  // namespace

void PrintNotes(ReportPage& page, const Notes& notes) {
    page.newPage();
    page.advance(0.5);
    page.chapter("Notes for the checking engineer");
    page.put(page.ColLeft, "Notes for the checking engineer:", kBold);
    page.advance(1.5);
    page.advance(
        page.putBlock(page.ColLeft, page.width(),
                      "What the checks of this report assume or leave out where it matters in this project, "
                      "the largest growth of a ratio first; the results of the other chapters are not changed.") +
        kGap);
    for (std::size_t i = 0; i < notes.notes.size(); ++i) printNote(page, linesOf(page, notes.notes[i], i + 1));
    if (!notes.assumptions.empty()) printAssumptions(page, notes.assumptions);
}

}  // namespace borvik
