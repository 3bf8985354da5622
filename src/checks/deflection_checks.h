#pragma once

#include "checks/static_checks.h"

namespace borvik {

/// Largest vertical deflection of a span against L/DefZ. Row 5: span and distance a of wheel 1, such as "2/1400".
/// Faults: a limit of zero.
[[nodiscard]] RowSet verticalDeflectionRow(const CheckBasis& basis, int span, int extreme);

/// The horizontal one against L/DefY.
[[nodiscard]] RowSet horizontalDeflectionRow(const CheckBasis& basis, int span, int extreme);

}  // namespace borvik
