#pragma once

#include <span>
#include <vector>

#include "base/working.h"
#include "fatigue/crane_factors.h"
#include "fatigue/details.h"
#include "fatigue/fatigue_results.h"
#include "project/project.h"

namespace borvik {

/// What the details are checked on. A set that the run did not make is a set of zeros here.
struct DetailInput {
    const Project& project;
    const RailRecord& rail;
    const FatigueFactors& factors;
    const StressSet& Cr1;
    const StressSet& Cr2;
    const StressSet& Cr12;
};

/// Checks each detail whose flag is set, in the order of the table, and fills its FatRows and FatResult:
/// 1 label, 2 formula with its numbers, 3 the damage sum by the mask "0.000", 4 the place.
///   Alone        sum of the terms for crane 1
///   Independent  the same of crane 1 and of crane 2, added
///   Together     sum of D^m of crane 1, of crane 2 and of both (overhead cranes only)
/// The governing point of a row and the governing row are chosen by comparing the texts, see ranksAbove; the first of
/// equals stays. Nothing is compared with 1.00: " <  1.00 ( " is printed whatever the sum is.
/// @throws RuntimeFault  naming detail and span, on an arithmetic fault
void checkDetails(std::span<const Detail> details, const DetailInput& input, Cranes cranes, FatigueResults& results);

/// Takes down how the damage sum of a row comes about: factors, local stress of the wheel, the stress range of each
/// crane and term at the point that governs the row, D values, their sum.
/// @param row  as in FatRows, of a detail that was checked there
void explainDetail(const Detail& detail, const DetailInput& input, Cranes cranes, int row, Working working);

/// The damage sum of a detail at one of the points where it is checked.
struct DamagePoint {
    int row = 0;  ///< as in FatRows: span, support or splice
    int span = 0, point = 0;
    double ratio = 0.0;
};

/// The damage sums of a detail at all its points, row after row, whether its flag is set or not; a splice that is not
/// in use has none. The numbers that checkDetails ranks.
[[nodiscard]] std::vector<DamagePoint> damageSums(const Detail& detail, const DetailInput& input, Cranes cranes);

}  // namespace borvik
