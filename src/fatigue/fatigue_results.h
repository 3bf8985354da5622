#pragma once

#include <optional>

#include "analysis/results.h"
#include "base/array.h"
#include "base/single.h"
#include "checks/check_rows.h"
#include "fatigue/crane_factors.h"
#include "fatigue/details.h"

namespace borvik {

/// Stress tables of one set of cranes (crane 1, crane 2, or both), MPa, damage equivalence factor included. Sig1:
/// extreme fibre of the top flange; Sig2: of the bottom flange; Tau: mean shear stress in the web. Tables are
/// [span][1..21]; peaks [span][1..2]: 1 the extreme of the table in the span, 2 its x, mm.
struct StressSet {
    Table<Single> Sig1Max, Sig1Min, Sig1Range;
    Table<Single> Sig2Max, Sig2Min, Sig2Range;
    Table<Single> TauMax, TauMin, TauRange;
    Array<Single> SigSupMax, SigSupMin, SigSupRange;  ///< [1..supports]
    Array<Single> RzMax, RzMin;                       ///< [1..supports], N, without the equivalence factor
    Table<Single> Sig1MaxPeak, Sig1MinPeak, Sig1RangePeak;
    Table<Single> Sig2MaxPeak, Sig2MinPeak, Sig2RangePeak;
    Table<Single> TauMaxPeak, TauMinPeak, TauRangePeak;
    FlsPositions At;  ///< of the extremes behind the stresses; empty in a set of no walk
    RunLoads Loads;   ///< under which the cranes walked

    StressSet() = default;
    /// All tables at zero. @param spans 1..30
    explicit StressSet(int spans);
};

/// Everything that a fatigue calculation produces. A set that the
/// run did not make is absent; so is a detail that was not checked.
struct FatigueResults {
    std::optional<StressSet> Cr1, Cr2, Cr12;
    FatigueFactors Factors;                   ///< with which the sets were made; all zero for a set that is absent
    Cranes Summed = Cranes::Alone;            ///< which cranes the details sum up
    std::optional<std::int16_t> ClassOfBoth;  ///< crane class of both together, where they act so
    /// FatRows1..FatRows6. The rows of detail 4 of an overhead crane live in entry 6 (and are gone when detail 6 is
    /// checked too); entry 4 is filled by a monorail only: note H6.
    FixedArray<std::optional<Array<RowSet>>, 1, 6> FatRows;
    /// FatResult1..FatResult6: the governing row of each checked detail.
    FixedArray<std::optional<RowSet>, 1, 6> FatResult;
};

}  // namespace borvik
