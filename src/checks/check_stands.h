#pragma once

#include "checks/static_checks.h"

namespace borvik {

/// Where the cranes stand for a record of a span of the ultimate limit state.
/// @param records    My...Span or Vz...Span
/// @param positions  the same of UlsResults::At
[[nodiscard]] inline CraneStand standOf(const CheckBasis& basis, Effect effect, const Table<Single>& records,
                                        const Table<WalkPosition>& positions, int span) {
    if (positions.rows() < span) return {};
    const double x = records(span, UlsResults::kPlaceSlot);
    return {WalkOf::Uls, effect, positions(span, kWholeSpan), span, pointAt(x, basis.project.Span(span))};
}

}  // namespace borvik
