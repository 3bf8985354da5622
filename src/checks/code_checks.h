#pragma once

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik {

/// Runs every static check once, in this order: section checks, lateral torsional buckling, local wheel loads (patch
/// load for an overhead crane, flange bending and von Mises for a monorail), deflection. All spans' sections must be up
/// to date. Fills the C factors of the project where DefaultCfactor is set. CurrentSection of the context is left
/// holding the last span's section.
/// @throws RuntimeFault  naming check and span, on an arithmetic fault
[[nodiscard]] CheckResults RunCodeChecks(Project& project, ProjectContext& context, const UlsResults& uls,
                                         const SlsResults& sls);

}  // namespace borvik
