#pragma once

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik {

/// Design moment resistance about the strong axis, reduced for shear, kNm: EN 1993-1-1 6.2.8, the reduction taken on
/// the web.
/// @param MyEd  kNm, signed: from 0 up the positive resistance and class count, below 0 the negative ones
/// @param VzEd  kN, positive; no reduction up to half of VzRd
/// @return      not limited below: it may be negative for a section that is nearly all web
[[nodiscard]] Single ReducedMoment(const Project& project, const SectionRecord& section, double MyEd, double VzEd);

/// Shear (EN 1993-1-1 6.2.6) and bending (6.2.1, 6.2.5, 6.2.8, 6.2.9) of every span, for the positions of largest and
/// of smallest Vz and My: fills the Shear and Bend rows. Rows 5 to 8: span and distance a of wheel 1, then of wheel 5.
/// CurrentSection is left holding the last span's section.
/// @throws RuntimeFault  naming the span: a resistance of zero
void SectionChecks(const Project& project, ProjectContext& context, const UlsResults& uls, CheckResults& checks);

}  // namespace borvik
