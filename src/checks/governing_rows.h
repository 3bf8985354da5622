#pragma once

#include "checks/check_rows.h"

namespace borvik {

// Which row of a check is shown as the governing one. The rules differ: notes H1 and H2 say where that matters.

/// The span whose ratio text ranks highest. No text at all ranks lowest, so that the first span always enters; of equal
/// texts the earlier span stays.
[[nodiscard]] RowSet highestText(const Array<RowSet>& spans);

/// The larger of the last two spans, the last one at a tie, rows 1 to 4. A larger ratio of an earlier span stands in
/// its own rows only: note H2.
[[nodiscard]] RowSet governingLocal(const Array<RowSet>& spans);

/// The span whose ratio text ranks highest, the earlier one at a tie. Row 5, which no table shows of it, stays that of
/// the first span.
[[nodiscard]] RowSet governingDeflection(const Array<RowSet>& spans);

/// Shear ratios of a span are compared as numbers. At a tie the
/// smallest Vz counts; wheel 5 is always that of the largest.
[[nodiscard]] RowSet worseShear(const RowSet& max, const RowSet& min);

/// Bending ratios of a span are compared as texts. The wheels are always those of the largest moment.
[[nodiscard]] RowSet worseBending(const RowSet& max, const RowSet& min);

/// Buckling ratios of a span are compared as numbers; at a tie the support moment counts.
[[nodiscard]] RowSet worseBuckling(const RowSet& positive, const RowSet& negative);

}  // namespace borvik
