#pragma once

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik {

/// Largest deflection of every span against L/DefZ (vertical) and L/DefY (horizontal): fills the Def rows. Row 5: span
/// and distance a of wheel 1, such as "2/1400".
/// @throws RuntimeFault  naming the span, on an arithmetic fault such as a limit of zero
void DeflectionChecks(const Project& project, const SlsResults& sls, CheckResults& checks);

}  // namespace borvik
