#pragma once

#include <cstdint>

#include "base/array.h"
#include "base/single.h"
#include "project/loads.h"

namespace borvik {

/// Calculation points of a span: k = 1..21 at x = (k - 1) L / 20.
constexpr int kPoints = 21;

/// Position log of a walk: one entry per position j of crane 1,
/// from 0; with two cranes the last distance between them stays.
struct PositionLog {
    Array<std::int16_t> StepNo;  ///< j
    Array<Single> StepSpan1;     ///< span of wheel 1
    Array<Single> StepV1;        ///< kN
    Array<Single> StepA1;        ///< mm from the left support of its span
    Array<Single> StepB1;        ///< mm from the right one
    Array<Single> StepSpan2;     ///< span of wheel 2, the second wheel of crane 1: this is what the column means
    Array<Single> StepV5;        ///< wheel 5: kN, mm, mm
    Array<Single> StepA5;
    Array<Single> StepB5;
};

/// A position of the cranes in a walk: crane 1 at its step j, crane 2 k steps beyond its smallest distance.
struct WalkPosition {
    std::int16_t j = -1, k = 0;
    /// False where no position of the walk reached an extreme.
    [[nodiscard]] bool isKnown() const { return j >= 0; }
    bool operator==(const WalkPosition&) const = default;
};

/// Column of the whole span in a table of positions, behind those of its points.
constexpr int kWholeSpan = kPoints + 1;

/// The positions at which the extremes of the ultimate limit state were first reached; solving one of them again gives
/// the extreme to the bit.
struct UlsPositions {
    Table<WalkPosition> MyMax, MyMin, VzMax, VzMin, MzMax, MzMin, VyMax, VyMin;  ///< [span][1..21 and kWholeSpan]
    Array<WalkPosition> MySupport;                                               ///< [span]
    Array<std::int16_t> MySupportPoint;                                          ///< [span] the end it is of: 1 or 21
    Array<WalkPosition> RzMax, RzMin, RyMax, RyMin;                              ///< [1..supports]
};
/// The same of the serviceability limit state: of the deflections of largest magnitude.
struct SlsPositions {
    Table<WalkPosition> Uz, Uy;  ///< [span][1..21 and kWholeSpan]
};
/// The same of a fatigue walk.
struct FlsPositions {
    Table<WalkPosition> MyMax, MyMin, VzMax, VzMin;  ///< [span][1..21 and kWholeSpan]
    Array<WalkPosition> RzMax, RzMin;                ///< [1..supports]
};

/// Envelopes of the ultimate limit state. My, Mz in Nmm, sagging positive; Vz, Vy and reactions in N.
/// Slots of a point record: 1 My, 2 Vz, 3 Mz, 4 Vy, all at the same position of the cranes;
/// 5 span and 6 distance a of wheel 1, and in records of eight 7 span and 8 distance a of
/// wheel 5. The key (My in My...Point and so on) is the largest or smallest of the walk;
/// the first position that reaches it stays. A record that no position filled is all zero.
struct UlsResults {
    static constexpr int kPlaceSlot = 9;       ///< x of the governing point, in the span records of My and Vz
    static constexpr int kPlaceSlotY = 7;      ///< and in those of Mz and Vy
    Array<Single> RzMax, RzMin, RyMax, RyMin;  ///< [1..supports], upward positive
    Cube<Single> MyMaxPoint, MyMinPoint, VzMaxPoint, VzMinPoint;  ///< [span][1..21][1..8]
    Cube<Single> MzMaxPoint, MzMinPoint, VyMaxPoint, VyMinPoint;  ///< [span][1..21][1..6]
    Table<Single> MyMaxSpan, MyMinSpan, VzMaxSpan, VzMinSpan;     ///< [span][1..9], 9: x of the point in its span, mm
    Table<Single> MzMaxSpan, MzMinSpan, VyMaxSpan, VyMinSpan;     ///< [span][1..7], 7: x of the point
    /// [span][1..8]: the position of the most negative moment at an end of the span. 1 that moment, 2 My at point 10,
    /// 3 My at the other end, 4 Mz at that same end, 5..8 as in the point records.
    Table<Single> MySupportSpan;
    PositionLog Steps;
    using Positions = UlsPositions;
    UlsPositions At;
    RunLoads Loads;  ///< under which the cranes walked
};

/// Deflections of the serviceability limit state, mm, downward negative.
struct SlsResults {
    Cube<Single> UzMaxPoint,
        UyMaxPoint;  ///< [span][1..21][1..3]: deflection of largest magnitude with its sign, span and a of wheel 1
    Table<Single> UzMaxSpan, UyMaxSpan;  ///< [span][1..3]: the largest magnitude, span and a of wheel 1
    SlsPositions At;
    RunLoads Loads;  ///< under which the cranes walked
};

/// Extremes of one fatigue walk. Slots of a point record: 1 My,
/// 2 Vz, 3 and 4 unused, 5 span and 6 distance a of wheel 1.
struct FlsResults {
    Array<Single> FlsRzMax, FlsRzMin;  ///< [1..supports], N; the last with the sign of the shear
    Cube<Single> FlsMyMaxPoint, FlsMyMinPoint, FlsVzMaxPoint, FlsVzMinPoint;  ///< [span][1..21][1..6]
    Table<Single> FlsMyMaxSpan, FlsMyMinSpan, FlsVzMaxSpan, FlsVzMinSpan;     ///< [span][1..7], 7: x of the point
    PositionLog Steps;
    using Positions = FlsPositions;
    FlsPositions At;
    RunLoads Loads;  ///< under which the cranes walked
};

}  // namespace borvik
