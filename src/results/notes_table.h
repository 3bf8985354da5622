#pragma once

#include "notes/notes.h"
#include "results/tables.h"

namespace borvik {

/// The notes of a calculation in their order, each with its first change and with its full text as detail, and a
/// closing row of the assumptions.
[[nodiscard]] ResultTable TableNotes(const Notes& notes);

/// A row of a table, from 0; -1 where no row of it is meant.
struct NoteTarget {
    const char* table;  ///< by its name, for findTable
    int row;
};

/// Where a note leads: to the row of the span, support or splice that its first number names, among all rows of the
/// checks; without a place to the governing row of its check in the table ShowSummaryAll.
[[nodiscard]] NoteTarget targetOf(const Note& note, const Project& project, const Results& results);

}  // namespace borvik
