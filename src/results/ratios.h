#pragma once

#include <string>
#include <vector>

#include "calculation/session.h"

namespace borvik {

/// What the interaction ratios of a run say together: of every span, part, detail and point, not of the shown rows
/// only, since those are ranked by their texts ("10.000" below "9.000").
struct RatioVerdict {
    double largest = 0.0;     ///< of those that are numbers
    RowOrigin origin = {};    ///< of the row with the largest
    bool negative = false;    ///< some check has no resistance left
    bool notANumber = false;  ///< some check has no result

    /// True when a ratio is above the limit, or cannot be held against any.
    [[nodiscard]] bool exceeds(double limit) const { return largest > limit || negative || notANumber; }
    /// What has to be said beside the largest ratio: ", some are negative: no resistance is left"; else empty.
    [[nodiscard]] std::string remark() const;
};
[[nodiscard]] RatioVerdict verdictOf(const Results& results);

/// The same of each limit state that has checks: ultimate, serviceability, fatigue.
struct StateVerdict {
    const char* name;  ///< "Ultimate limit state"
    RatioVerdict verdict;
};
[[nodiscard]] std::vector<StateVerdict> verdictsByState(const Results& results);

}  // namespace borvik
