#pragma once

#include "checks/static_checks.h"

namespace borvik {

/// What acts together at one point of the beam.
struct SectionForces {
    double My = 0;  ///< kNm, sagging positive
    double Vz = 0;  ///< kN, magnitude
    double Mz = 0;  ///< kNm, magnitude

    /// Of slots 1 to 3 of a record of the walk: Nmm, N, Nmm.
    SectionForces(double MyNmm, double VzN, double MzNmm);
};

/// Reduction factor rho of the web's yield strength beside a shear, EN 1993-1-1 6.2.8(3): 0 up to half of VzRd, 1 at
/// most. @param VzEd kN, positive
[[nodiscard]] double shearReduction(const SectionRecord& section, double VzEd);

/// Design moment resistance about the strong axis, reduced for
/// shear, kNm: EN 1993-1-1 6.2.8, the reduction taken on the web.
/// @param MyEd  kNm, signed: from 0 up the positive resistance and class count, below 0 the negative ones
/// @param VzEd  kN, positive; no reduction up to half of VzRd
/// @return      not limited below: it may be negative for a section that is nearly all web
[[nodiscard]] Single reducedMoment(const Project& project, const SectionRecord& section, double MyEd, double VzEd,
                                   Working working = {});

/// Design moment resistances beside the forces of a point, kNm: reducedMoment, and that of the loaded flange.
struct BendingResistance {
    double My = 0, Mz = 0;

    BendingResistance(const Project& project, const SectionRecord& section, const SectionForces& forces,
                      Working working = {});
};

/// Bending about both axes: My alone without Mz; else the sum of both, EN 1993-1-1 (6.2), from class 3, and with My
/// squared, 6.2.9.1(6), up to class 2.
/// @param sectionClass  1 to 4; the check takes ClassPos whatever the sign of My
[[nodiscard]] Single bendingRatio(const SectionForces& forces, const BendingResistance& resistance, int sectionClass);

/// Shear of a span, EN 1993-1-1 6.2.6, where its Vz is largest (extreme 0) or smallest (1). Rows 5 to 8: span and
/// distance a of wheel 1, then of wheel 5.
[[nodiscard]] RowSet shearRow(const CheckBasis& basis, int span, int extreme);

/// Bending of a span, EN 1993-1-1 6.2.1, 6.2.5, 6.2.8, 6.2.9, where its My is largest (extreme 0) or smallest (1). Rows
/// 5 to 8 as above.
[[nodiscard]] RowSet bendingRow(const CheckBasis& basis, int span, int extreme);

}  // namespace borvik
