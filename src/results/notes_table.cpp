#include "results/notes_table.h"

#include <algorithm>
#include <cstdlib>

#include "results/table_cells.h"

namespace borvik {

namespace {

TableCell changedCell(const NoteChange& change, double number) {
    TableCell cell = numberCell(number, change.mask);
    if (change.ratio && !isSatisfied(number)) cell.emphasis = Emphasis::OverLimit;
    return cell;
}

std::vector<TableCell> rowOf(const Note& note) {
    const TableCell effect = textCell(nameOf(note.rule->effect));
    const TableCell text = textCell(std::string(note.rule->key) + ": " + noteText(note));
    if (note.finding.changes.empty())
        return {textCell(nameOf(note.rule->check)), textCell(""), textCell(""), effect, text};
    const NoteChange& first = note.finding.changes.front();
    return {textCell(capitalised(first.what)), changedCell(first, first.shown), changedCell(first, first.other), effect,
            text};
}

/// The note, then every further number, a line each.
std::string detailOf(const Note& note) {
    std::string text = std::string(note.rule->key) + ": " + noteText(note);
    for (std::size_t i = 1; i < note.finding.changes.size(); ++i)
        text += "\n" + capitalised(changeText(note.finding.changes[i]));
    return text;
}

/// The whole number that a text begins with: 2 of "2/3000"; 0 where it begins with none.
int leadingNumber(const std::string& text) {
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}

/// The number behind `words` in "bending, span 2, x = 3000 mm"; 0 where they don't stand in it.
int numberBehind(const std::string& what, const std::string& words) {
    const std::size_t at = what.find(words);
    return at == std::string::npos ? 0 : leadingNumber(what.substr(at + words.size()));
}

/// The check that a number belongs to; without a number that of the note; null where it is no static one.
const CheckResult* checkOf(const std::string& what, NoteCheck check, const CheckResults& checks) {
    const auto key = [check]() -> const char* {
        switch (check) {
            case NoteCheck::Section:
                return "Bend";
            case NoteCheck::LateralBuckling:
                return "Ltb";
            case NoteCheck::WheelLoad:
                return "Local";
            case NoteCheck::VonMises:
                return "VonMises";
            case NoteCheck::Deflection:
                return "DefZ";
            case NoteCheck::General:
            case NoteCheck::Fatigue:
                break;
        }
        return "";
    };
    if (what.empty()) return checks.find(key());
    const auto named = std::find_if(checks.all.begin(), checks.all.end(),
                                    [&](const CheckResult& result) { return what.starts_with(result.check->name); });
    return named == checks.all.end() ? nullptr : &*named;
}

/// The first row of a table that is one of those wanted; -1 where there is none.
template <class Wanted>
int firstRow(const ResultTable& table, Wanted wanted) {
    const auto row = std::find_if(table.rows.begin(), table.rows.end(), wanted);
    return row == table.rows.end() ? -1 : static_cast<int>(row - table.rows.begin());
}

/// The row of a governing ratio in the table ShowSummaryAll.
template <class Governing>
NoteTarget inSummary(const Governing& governing, const Project& project, const Results& results) {
    return {"SummaryAll", firstRow(ShowSummaryAll(project, results),
                                   [&](const auto& cells) { return cells[0].text == governing(1) + governing(2); })};
}

/// The row of a span in the table of the static checks: "2" or "2/3000" with the formula and its numbers.
template <class Rows>
NoteTarget inStatic(const Rows& rows, int span, const Project& project, const Results& results) {
    return {"CodeStatic", firstRow(TableCodeStatic(project, results), [&](const auto& cells) {
                return leadingNumber(cells[0].text) == span && cells[1].text == rows(1) && cells[2].text == rows(2);
            })};
}

/// The row of a place among those of a fatigue detail.
NoteTarget inFatigue(int detail, int place, const Project& project, const Results& results) {
    const NoteTarget none{"CodeFatigue", -1};
    const auto rows = findTable(none.table)->fill(project, results).rows;
    bool ofDetail = false;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row][0].emphasis == Emphasis::Heading)
            ofDetail = rows[row][1].text.starts_with(std::to_string(detail) + " ");
        else if (ofDetail && rows[row][0].text == std::to_string(place))
            return {none.table, static_cast<int>(row)};
    }
    return none;
}

}  // namespace

ResultTable TableNotes(const Notes& notes) {
    ResultTable table;
    table.columns = {{"Check", "", "The number that a note speaks of, or the check it belongs to"},
                     {"Shown", "", "As the program shows it"},
                     {"Would be", "", "Under the other assumption"},
                     {"Effect", "", "unsafe: the number shown can be too small; either: too small or too large"},
                     {"Note", "", "What the program does", true}};
    for (const Note& note : notes.notes) {
        table.rows.push_back(rowOf(note));
        table.details.push_back(detailOf(note));
    }
    table.note = "The largest growth of a ratio first. A double click or Enter on a note goes to its check.";
    if (notes.assumptions.empty()) return table;
    std::string all, listed = "Assumptions that hold here:";
    for (const NoteRule* rule : notes.assumptions) {
        all += (all.empty() ? "" : " ") + std::string(rule->says);
        listed += "\n\u2022 " + std::string(rule->key) + ": " + noteText({rule, {}});
    }
    table.rows.push_back({textCell("Assumptions"), textCell(""), textCell(""), textCell(""), textCell(all)});
    table.details.push_back(listed);
    return table;
}

NoteTarget targetOf(const Note& note, const Project& project, const Results& results) {
    const std::string what = note.finding.changes.empty() ? "" : note.finding.changes.front().what;
    if (const int support = numberBehind(what, "reaction, support ")) return {"Reactions", support - 1};
    const int span = numberBehind(what, ", span ");
    if (const int detail = numberBehind(what, "fatigue detail ")) {
        const int place = std::max({span, numberBehind(what, ", support "), numberBehind(what, ", splice ")});
        const NoteTarget target = inFatigue(detail, place, project, results);
        const auto& governing = results.Fatigue.FatResult(detail);
        return target.row >= 0 || !governing ? target : inSummary(*governing, project, results);
    }
    NoteTarget target{"SummaryAll", -1};
    if (const CheckResult* check = checkOf(what, note.rule->check, results.Checks))
        target = span > 0 && check->spans.has(span) ? inStatic(check->spans(span), span, project, results)
                                                    : inSummary(check->governing, project, results);
    return target;
}

}  // namespace borvik
