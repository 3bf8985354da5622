#pragma once

#include "results/tables.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

/// What a project keeps for its second opinion: lateral supports and how its ends warp.
[[nodiscard]] SecondOpinionOptions opinionOptionsOf(const Project& project);

/// The second opinion beside the ratios of the checks: of each span lateral torsional buckling of the largest and of
/// the support moment by the check and by eigenvalue, then torsion with warping at the governing position: the
/// interaction of EN 1993-6 Annex A where it applies, and the elastic stresses.
[[nodiscard]] ResultTable tableOf(const Project& project, const SecondOpinion& opinion);

}  // namespace borvik
