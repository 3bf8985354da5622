#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calculation/session.h"

namespace borvik {

/// How a cell or a row wants to be read.
enum class Emphasis {
    None,
    Heading,    ///< a line that opens a group
    OverLimit,  ///< a ratio strictly greater than 1, negative or no number: the check does not hold; to be shown in red
                ///< and with a mark that doesn't rest on colour alone
    Note,       ///< a remark below the table
};

/// A cell: the text that is shown and, where it shows a number, that number with its mask, so that a spreadsheet can go
/// on computing and a ratio of 1.0001 can be told from 1.
struct TableCell {
    std::string text;
    Emphasis emphasis = Emphasis::None;
    std::optional<double> number;
    std::string mask;
    /// Where the cranes stand for that number; not known where no position decides it. See RowSet::Stands.
    std::array<CraneStand, 2> stands = {};
    RowOrigin origin = {};  ///< of a ratio: the check that gives it
};

struct TableColumn {
    std::string header;   ///< shown character for character
    std::string unit;     ///< of the numbers below, empty where none applies
    std::string help;     ///< what stands in the column, with its sign
    bool yields = false;  ///< long texts, that are cut to the room there is; `details` has them in full
};

/// A table as it is shown: the same for the window, the spreadsheet, the clipboard and the command line.
struct ResultTable {
    std::vector<TableColumn> columns;
    std::vector<std::vector<TableCell>> rows;  ///< a row may be shorter than the columns: the rest is empty
    std::string note;                          ///< signs and units of the table, one line
    std::vector<std::string> details;          ///< of each row, where its cells are too narrow for it; or none at all
};

/// ULS envelopes of My, Vz at the points of the spans: kNm, kN; sagging positive.
[[nodiscard]] ResultTable TableMyVz(const Project& project, const Results& results);
/// ULS envelopes of Mz, Vy: kNm, kN.
[[nodiscard]] ResultTable TableMzVy(const Project& project, const Results& results);
/// SLS deflections of largest magnitude, mm, downward negative.
[[nodiscard]] ResultTable TableDeflection(const Project& project, const Results& results);
/// ULS reactions of every support, kN, upward positive.
[[nodiscard]] ResultTable TableReactions(const Project& project, const Results& results);
/// Every row of the static checks, span by span, with the crane positions behind it.
[[nodiscard]] ResultTable TableCodeStatic(const Project& project, const Results& results);
/// Rows of the fatigue details of an overhead crane.
[[nodiscard]] ResultTable TableCodeFatigue(const Project& project, const Results& results);
/// Rows of the fatigue details of a monorail.
[[nodiscard]] ResultTable TableCodeFatigueR(const Project& project, const Results& results);
/// FLS stresses of crane 1, MPa, tension positive, equivalence factor included.
[[nodiscard]] ResultTable TableStress1(const Project& project, const Results& results);
/// FLS stresses of crane 2. All zero where crane 2 wasn't walked on its own.
[[nodiscard]] ResultTable TableStress2(const Project& project, const Results& results);
/// The position log of the last walk that wrote one.
[[nodiscard]] ResultTable TableSteps(const Project& project, const Results& results);

/// Governing ratios of the ultimate limit state.
[[nodiscard]] ResultTable ShowSummaryULS(const Project& project, const Results& results);
/// The same with the deflections.
[[nodiscard]] ResultTable ShowSummaryULSSLS(const Project& project, const Results& results);
/// The same with deflections and fatigue.
[[nodiscard]] ResultTable ShowSummaryAll(const Project& project, const Results& results);
/// As ShowSummaryAll, the ratios of the ultimate limit state from the largest to the smallest. They are ranked by their
/// texts, character by character.
[[nodiscard]] ResultTable ShowSummary(const Project& project, const Results& results);

/// A table that can be asked for by name.
struct TableEntry {
    const char* name;   ///< such as "MyVz"
    const char* title;  ///< for a window title, a sheet or a list of names
    ResultTable (*fill)(const Project&, const Results&);
    bool ofTwoCranes = false;  ///< has nothing to tell of a project with one crane

    [[nodiscard]] bool isAvailable(const Project& project) const { return !ofTwoCranes || project.NofCranes == 2; }
};
/// All tables in the order of the trees.
[[nodiscard]] std::span<const TableEntry> tableEntries();
/// The table of that name, capitals not regarded; null where there is none.
[[nodiscard]] const TableEntry* findTable(std::string_view name);
/// The row of a summary that governs: a ratio that is negative or no number before the largest one.
/// @return its index; -1 where the table has no ratio in its second column
[[nodiscard]] int governingRow(const ResultTable& summary);

/// The positions of the cranes behind a cell or, where it has none, behind the first cell of its row that has one.
[[nodiscard]] std::array<CraneStand, 2> standsOf(const ResultTable& table, int row, int column);

/// The check behind the ratio of a row; without a check where there is none.
[[nodiscard]] RowOrigin originOf(const ResultTable& table, int row);

/// Tab-separated text, one line a row, every line ended by "\n".
[[nodiscard]] std::string tabSeparated(const ResultTable& table, bool withHeaders = true);

}  // namespace borvik
