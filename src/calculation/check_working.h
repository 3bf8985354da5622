#pragma once

#include <string>
#include <vector>

#include "base/working.h"
#include "calculation/session.h"

namespace borvik {

/// How a governing ratio, or the section that it rests on, comes about: lines that can be followed with a pocket
/// calculator.
struct CheckWorking {
    std::string key;    ///< of the check, "Ltb"; "Fatigue3"; "Section", "DeadLoad"
    std::string title;  ///< "Lateral torsional buckling, span 2, negative moment"; "Section of span 2, HEB 500"
    int span = 1;       ///< of a fatigue detail its row: span, support or splice
    std::vector<WorkingStep> steps;
};

/// What a row is of: "Lateral torsional buckling, span 2, positive moment"; "Fatigue, 1 Rail to topflange, span 2".
/// @pre origin.isKnown()
[[nodiscard]] std::string rowTitle(const RowOrigin& origin);

/// The working of every check that tables and report show and of every fatigue detail, at its governing row, each
/// behind the sections that the ratios rest on. The checks themselves write it down: they run once more, for these rows
/// alone.
/// @param project, results  of one calculation
/// @throws RuntimeFault  on an arithmetic fault
[[nodiscard]] std::vector<CheckWorking> checkWorkings(const ReferenceTables& tables, const Project& project,
                                                      const Results& results);

/// The working of one row, behind that of the section where the ratio rests on its resistances.
/// @param origin  of a check or a fatigue detail
/// @throws RuntimeFault  on an arithmetic fault
[[nodiscard]] std::vector<CheckWorking> workingsOf(const ReferenceTables& tables, const Project& project,
                                                   const Results& results, const RowOrigin& origin);

}  // namespace borvik
