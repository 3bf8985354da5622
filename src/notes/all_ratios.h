#pragma once

#include <string>
#include <vector>

#include "notes/note_rules.h"

namespace borvik {

/// The rows of one check: those of its spans or points, and the row that the program shows as the governing one.
struct CheckedRatio {
    std::string what;    ///< "bending"
    double shown = 0;    ///< of the governing row
    double largest = 0;  ///< of all rows and the points behind them
    int at = 0;          ///< the span of the largest, from 1; 0 where the rows are no spans
};

/// Every check of a calculated session. Two sessions with the same checks list them in the same order.
[[nodiscard]] std::vector<CheckedRatio> allRatios(const Session& session);

/// What grows where a project is calculated with something changed: one change for each check, the largest growth
/// first. nullopt where nothing does.
[[nodiscard]] std::optional<NoteFinding> grown(const std::vector<CheckedRatio>& shown,
                                               const std::vector<CheckedRatio>& other);

}  // namespace borvik
