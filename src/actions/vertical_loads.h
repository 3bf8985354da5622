#pragma once

#include "actions/crane_data.h"

namespace borvik::actions {

/// Factors of self-weight and hoist load, f_s and f_h: 1, 1 is the loaded crane, 1, 0 the unloaded one.
struct VerticalFactors {
    double self = 1, hoist = 1;
};

/// Vertical loads of a crane whose crab stands at emin, kN.
struct WheelLoads {
    double sumCrab = 0, sumFar = 0;  ///< of all wheels on the rail beside the crab, on the far rail
    double crab = 0, far = 0;        ///< of one wheel; all wheels of a rail carry the same (bogies equalise)
    [[nodiscard]] double sum() const { return sumCrab + sumFar; }
};

/// 2.5.2.1 and Figure 2.1: the bridge in halves, crab and hoist load by the lever rule. The loaded crane has Qr,max and
/// Qr,(max), the unloaded one Qr,(min) and Qr,min. A wheel stands 0.25 times the width of the rail head off its centre,
/// 2.5.2.1(2). @param crane  one that checkCrane finds good
[[nodiscard]] WheelLoads wheelLoads(const CraneData& crane, VerticalFactors factors);

/// 2.10: vertical loads of the test. Dynamic: phi6 on at least 1.10 Qh. Static: 1 on at least 1.25 Qh. The self-weight
/// with phi1 (Table 2.2, group 8) in both.
struct TestLoads {
    double dynamicFactor = 0, staticFactor = 0;  ///< on the hoist load: 1.10 phi6, 1.25
    WheelLoads dynamic, statical;
    [[nodiscard]] bool dynamicGoverns() const { return dynamicFactor > staticFactor; }
    [[nodiscard]] const WheelLoads& governing() const { return dynamicGoverns() ? dynamic : statical; }
};
[[nodiscard]] TestLoads testLoads(const CraneData& crane);

}  // namespace borvik::actions
