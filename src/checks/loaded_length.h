#pragma once

#include "base/single.h"
#include "base/working.h"
#include "project/choices.h"
#include "tables/reference_tables.h"

namespace borvik {

/// Wear of the rail in the ultimate and serviceability limit states, EN 1993-6 5.6.2(2).
constexpr double kWearStatic = 0.25;
/// Wear of the rail in fatigue: half of that, EN 1993-6 5.6.2(3).
constexpr double kWearFatigue = 0.125;

/// A rail whose head is worn down.
struct WornRail {
    double Wear = 0.0;  ///< height taken off the head, mm
    Single Ared;        ///< remaining area, mm2
    double Zr = 0.0;    ///< its centroid above the underside of the rail, mm
    Single Ired;        ///< its second moment about its own centroid, mm4
};

/// The rail after wear. A crane rail (Id "A") loses a strip of its head, RailKr wide and a fraction of RailH3 high; any
/// other rail is a flat bar and loses that fraction of its height RailHr.
/// @param wearFraction  kWearStatic or kWearFatigue
[[nodiscard]] WornRail wearRail(const RailRecord& rail, double wearFraction);

/// Effective loaded length leff of a wheel on the underside of the top flange, mm, EN 1993-6 Table 5.1. The flange that
/// acts with the rail is as wide as beff = bfr + hr + tf (hr worn), at most the flange itself.
/// @param rail     the rail as new: foot width and height
/// @param worn     the same rail from wearRail
/// @param railFix  how the rail lies on the flange; any value without a name: on a resilient pad
/// @param section  b1, tf1, tw
[[nodiscard]] double effectiveLoadedLength(const RailRecord& rail, const WornRail& worn, RailFixing railFix,
                                           const SectionRecord& section, Working working = {});

}  // namespace borvik
