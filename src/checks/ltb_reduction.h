#pragma once

#include "base/working.h"
#include "project/project.h"

namespace borvik {

/// Reduction factor chiLT of the general case, EN 1993-1-1 6.3.2.2; 1 at most.
/// @param positive  true: the top flange is in compression; false: the bottom flange
/// @param Mcr       critical moment, Nmm, > 0; a negative one raises the fault of its square root
[[nodiscard]] Single ReductionGeneral(const Project& project, const SectionRecord& section, bool positive, double Mcr,
                                      Working working = {});

/// Reduction factor chiLT,mod of rolled sections or equivalent welded ones, EN 1993-1-1 6.3.2.3; 1 at most. LamdaLT0w
/// and Betaw of the project hold for rolled sections too; LamdaLT0 and Beta are not read.
/// @param Kc  correction factor for the moment diagram, 6.3.2.3(2)
[[nodiscard]] Single ReductionRolledWelded(const Project& project, const SectionRecord& section, bool positive,
                                           double Mcr, double Kc, Working working = {});

}  // namespace borvik
