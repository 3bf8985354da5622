#pragma once

#include "actions/code_tables.h"

namespace borvik::actions {

/// Dynamic factors of a crane, EN 1991-3 Table 2.4 to 2.6, 2.10(4), 2.11.1 and 2.12.1(7).
struct DynamicFactors {
    double phi1 = 1;  ///< self-weight when the load is lifted
    double phi2 = 1;  ///< hoist load when it is lifted: phi2Min + beta2 vh, or the maker's
    double phi3 = 1;  ///< hoist load when a share is let go: 1 - dm/m (1 + beta3); may be negative
    double phi4 = 1, phi5 = 1;
    double phi6 = 1;                  ///< dynamic test load: (1 + phi2)/2
    double phi7 = 1;                  ///< buffer force; 1 where the crane has no buffer data
    double phiFat1 = 1, phiFat2 = 1;  ///< self-weight and hoist load in fatigue: (1 + phi)/2
    double eta = 0;                   ///< share of the hoist load that stays without payload

    [[nodiscard]] double of(Factor factor) const;
};

[[nodiscard]] DynamicFactors dynamicFactors(const CraneData& crane);

/// phi7 of the buffer characteristic: 1.25 up to 0.5, then 1.25 + 0.7 (xib - 0.5). @param xib  0 to 1
[[nodiscard]] double bufferFactor(double xib);

}  // namespace borvik::actions
