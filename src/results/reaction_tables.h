#pragma once

#include <string>

#include "reactions/support_reactions.h"
#include "results/spreadsheet.h"
#include "results/tables.h"

namespace borvik {

/// "SLS, crane 2 alone": the loads of a set.
[[nodiscard]] std::string nameOf(const ReactionSet& set);
/// "Rz max".
[[nodiscard]] std::string nameOf(const ReactionCase& each);
/// "W1 1/3200, W5 2/800": where the first wheel of each crane stands, span and mm from its left support.
[[nodiscard]] std::string placeOf(const Project& project, const ReactionCase& each);

/// Reactions for whoever designs brackets and columns, kN: each extreme of each support by its parts, set by set. The
/// details of a row have the wheels and what acts at all supports then. At the end the lateral forces at the ends of
/// the spans, for surge connectors and end stops.
[[nodiscard]] ResultTable tableOf(const Project& project, const Results& results, const SupportReactions& reactions);
/// The same as an entry of the list of tables. Where the reactions can't be had, a row says why.
[[nodiscard]] ResultTable TableSupportReactions(const Project& project, const Results& results);

/// For frame programs and spreadsheets: every extreme of one support with the forces at all supports, a row each.
/// @param support  1..n + 1; 0: of all supports
[[nodiscard]] ResultTable actingTogether(const SupportReactions& reactions, int support);
/// A sheet for each support.
[[nodiscard]] std::vector<NamedTable> sheetsOf(const SupportReactions& reactions, int supports);

/// Both for a fixed-width font.
[[nodiscard]] std::string reactionsText(const Project& project, const Results& results,
                                        const SupportReactions& reactions);

}  // namespace borvik
