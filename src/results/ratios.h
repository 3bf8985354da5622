#pragma once

#include "calculation/session.h"

namespace borvik {

/// The largest interaction ratio of a run: of every span, part and detail, not of the governing rows only, since those
/// are ranked by their texts ("10.000" below "9.000").
[[nodiscard]] double LargestRatio(const Results& results);

}  // namespace borvik
