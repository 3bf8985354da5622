#pragma once

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik {

/// Fills the factors C1, C2, C3 of the critical moment with the program's own, by NofSpans and CraneType. With one span
/// only the three that a single span uses are set; C2EndNeg and C2MidNeg belong to no case and stay as they are.
void DefaultCFactors(Project& project);

/// Lateral torsional buckling of every span between its supports, EN 1993-1-1 6.3.2, with a horizontal moment EN
/// 1993-6 6.3.3, for the largest positive moment and for the most negative support moment: fills the Ltb rows. Rows 5
/// to 8 as in the section checks. The first and the last span use the End factors, the others the Mid factors. Fills
/// the factors of the project first where DefaultCfactor is set. CurrentSection is left holding the last span's
/// section.
/// @throws RuntimeFault  naming the span, on an arithmetic fault such as a negative critical moment
void LtbChecks(Project& project, ProjectContext& context, const UlsResults& uls, CheckResults& checks);

}  // namespace borvik
