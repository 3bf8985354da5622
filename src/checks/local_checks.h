#pragma once

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik {

/// Wheel of an overhead crane on the web below the top flange, EN 1993-6 5.7.1 with EN 1993-1-5 chapter 6. Takes the
/// wheel loads as entered, without load factor or dynamic factor; the whole span counts as distance of the stiffeners.
/// Fills LocalSpan and LocalGov, and the worn area and second moment of the current rail.
/// @throws RuntimeFault  naming the span, on an arithmetic fault such as a web or rail of no thickness
void PatchLoadCheck(const Project& project, ProjectContext& context, CheckResults& checks);

/// Wheels of a monorail on the bottom flange, EN 1993-6 6.7: bending of the flange under half of the largest factored
/// wheel. Fills LocalSpan and LocalGov.
/// @throws RuntimeFault  naming the span, on an arithmetic fault; a wheel that runs on the root of the web (m = 0) is
/// one
void FlangeBendingCheck(const Project& project, const UlsResults& uls, CheckResults& checks);

/// Von Mises stress in the bottom flange of a monorail, EN 1993-6 5.8 and 7.5: local stresses of a wheel pair at the
/// web (point 1), under the load (2) and at the flange tip (3), together with the bending of the beam. No load factors.
/// Fills VonMisesSpan and VonMisesGov.
/// @throws RuntimeFault  naming the span, on an arithmetic fault
void VonMisesCheck(const Project& project, const UlsResults& uls, CheckResults& checks);

/// Governing rows of a local check: the larger of the last two spans, the last one at a tie. A larger ratio of an
/// earlier span stands in its own rows only. That is meant.
[[nodiscard]] RowSet<6> governingLocal(const Array<RowSet<4>>& perSpan);

}  // namespace borvik
