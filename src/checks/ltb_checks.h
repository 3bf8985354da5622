#pragma once

#include <optional>

#include "checks/static_checks.h"

namespace borvik {

/// Factors of the critical moment, by diagram and load: C1 of the moment, C2 of the load's level Zg above the shear
/// centre, C3 of the monosymmetry Zj.
struct CFactors {
    double C1, C2, C3;
};

/// The project's factors of a span for its largest positive moment: End in the first and the last span, Mid in others.
[[nodiscard]] CFactors positiveFactors(const Project& project, int span);

/// The factors for the most negative support moment. Where the moment in the span is positive they are those of the
/// positive moment, which the project has for end and mid spans; else without a load (C2 = 0), with the project's C1 in
/// an end span and 1.77 - 1.04 psi + 0.27 psi^2 in others.
/// @param support  MySupportSpan: 1 the support moment, 2 the moment in the span, 3 that at the other end
/// @return         nullopt where no support moment is negative
[[nodiscard]] std::optional<CFactors> negativeFactors(const Project& project, int span, const Table<Single>& support,
                                                      Working working = {});

/// Critical moment by the three factors, Nmm, with the whole span as unbraced length.
/// @param positive  true: the top flange is in compression
[[nodiscard]] Single criticalMoment(const Project& project, int span, bool positive, const CFactors& factors,
                                    Working working = {});
/// chiLT of a critical moment by the curve of the project. @param C1  of the moment diagram, for kc
[[nodiscard]] Single ltbReduction(const Project& project, int span, bool positive, Single Mcr, double C1,
                                  Working working = {});
/// The same of the critical moment by the factors.
/// @param positive  true: the top flange is in compression
[[nodiscard]] Single ltbReduction(const Project& project, int span, bool positive, const CFactors& factors,
                                  Working working = {});
/// The same with the project's factors for the largest positive moment of the span, and with those of the most negative
/// support moment; 1 where there are none.
[[nodiscard]] Single positiveReduction(const Project& project, int span, Working working = {});
[[nodiscard]] Single negativeReduction(const Project& project, int span, const Table<Single>& support,
                                       Working working = {});

/// Design resistances without buckling, kNm: about the strong axis, and of the loaded flange.
struct LtbResistance {
    double My = 0, Mz = 0;

    LtbResistance(const Project& project, int span, bool positive);
};

/// My/(chiLT My,Rd) + Mz/Mz,Rd. @param My,Mz  design moments, kNm, positive
[[nodiscard]] double ltbRatio(const LtbResistance& resistance, Single My, Single Mz, Single ChiLT);

/// Fills the factors C1, C2, C3 of the critical moment with the program's own, by NofSpans and CraneType. With one span
/// only the three that a single span uses are set; C2EndNeg and C2MidNeg belong to no case and stay as they are.
void DefaultCFactors(Project& project);

/// Lateral torsional buckling of a span between its supports, EN 1993-1-1 6.3.2, with a horizontal moment EN 1993-6
/// 6.3.3, for the largest positive moment (extreme 0) and for the most negative support moment (1). Rows 5 to 8 as in
/// the section checks. The first and the last span use the End factors, the others the Mid factors.
/// @throws RuntimeFault  on an arithmetic fault such as a negative critical moment, where watched
[[nodiscard]] RowSet bucklingRow(const CheckBasis& basis, int span, int extreme);

}  // namespace borvik
