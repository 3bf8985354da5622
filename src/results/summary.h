#pragma once

#include <string>

#include "calculation/session.h"
#include "results/tables.h"

namespace borvik {

/// A result table as plain text in aligned columns, for a terminal. Ratios over the limit are marked with "!!".
[[nodiscard]] std::string tableText(const ResultTable& table);

/// The summary of the last run as plain text: the project, all governing ratios of ULS, SLS and FLS with their
/// references, and a closing line with the largest. A project without results says so.
[[nodiscard]] std::string summaryText(const Session& session);

}  // namespace borvik
