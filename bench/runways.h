#pragma once

#include "calculation/session.h"

namespace borvik {

/// What runs on a benchmark's beam.
enum class RunwayCranes {
    Train,        ///< two four-wheel cranes at a constant distance
    Independent,  ///< two four-wheel cranes that move on their own
};

/// A beam of equal spans under four-wheel cranes with vertical and horizontal loads.
/// @param length  of each span, mm
[[nodiscard]] Session runway(int spans, int length, RunwayCranes cranes);

/// The project that the program starts with.
[[nodiscard]] Session defaultSession();

}  // namespace borvik
