#pragma once

#include "notes/notes.h"
#include "results/tables.h"

namespace borvik {

/// The notes of a calculation in their order, each with its first change and with its full text as detail, and a
/// closing row of the assumptions.
[[nodiscard]] ResultTable TableNotes(const Notes& notes);

/// Where a note leads: the row of the table ShowSummaryAll, from 0, with the check that it speaks of; -1 where it
/// speaks of none of them.
[[nodiscard]] int SummaryRowOf(const Note& note, const Project& project, const Results& results);

}  // namespace borvik
