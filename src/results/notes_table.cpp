#include "results/notes_table.h"

#include <algorithm>

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

/// The formula that stands in the summary for what a note speaks of.
std::string formulaOf(const Note& note, const Results& results) {
    const CheckResults& checks = results.Checks;
    const std::string what = note.finding.changes.empty() ? "" : note.finding.changes.front().what;
    if (what.starts_with("shear")) return checks.ShearGov(1);
    if (what.starts_with("horizontal")) return checks.DefYGov(1);
    switch (note.rule->check) {
        case NoteCheck::General:
            return what.starts_with("bending") ? checks.BendGov(1) : "";
        case NoteCheck::Section:
            return checks.BendGov(1);
        case NoteCheck::LateralBuckling:
            return checks.LtbGov(1);
        case NoteCheck::WheelLoad:
            return checks.LocalGov(1);
        case NoteCheck::VonMises:
            return checks.VonMisesGov(1);
        case NoteCheck::Deflection:
            return checks.DefZGov(1);
        case NoteCheck::Fatigue:
            break;
    }
    const std::string detail = "fatigue detail ";
    return what.starts_with(detail) ? what.substr(detail.size(), 1) + ":" : "";
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

int SummaryRowOf(const Note& note, const Project& project, const Results& results) {
    const std::string formula = formulaOf(note, results);
    if (formula.empty()) return -1;
    const auto rows = ShowSummaryAll(project, results).rows;
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [&](const auto& cells) { return cells.at(0).text.starts_with(formula); });
    return row == rows.end() ? -1 : static_cast<int>(row - rows.begin());
}

}  // namespace borvik
