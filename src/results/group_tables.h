#pragma once

#include <string>

#include "groups/group_runs.h"
#include "results/tables.h"

namespace borvik {

/// The matrix of groups by checks: the largest ratio of each, the governing one of a check marked by "*", one over 1 by
/// the emphasis. The note says what counts.
[[nodiscard]] ResultTable tableOf(const GroupMatrix& matrix);

/// "0.667, vertical deflection, group 1": the governing one of all.
[[nodiscard]] std::string governingText(const GroupMatrix& matrix);

/// The loads of each group that a crane puts on the rails, kN.
[[nodiscard]] ResultTable tableOfLoads(const actions::CraneLoads& loads);

/// For the design of supports: the extreme reactions of every support in each group, kN, and what acts along the beam.
[[nodiscard]] ResultTable tableOfReactions(const GroupMatrix& matrix);
/// "Buffers: HB = 58.5 kN of crane 1 with its load, on the rail beside the crab 45.9 kN"; empty without buffer data.
[[nodiscard]] std::string buffersText(const std::vector<actions::CraneData>& cranes);

/// The matrix for a terminal.
[[nodiscard]] std::string groupsText(const GroupMatrix& matrix);

}  // namespace borvik
