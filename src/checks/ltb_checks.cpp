#include "checks/ltb_checks.h"

#include <cmath>

#include "checks/check_stands.h"
#include "checks/check_texts.h"
#include "checks/ltb_reduction.h"
#include "project/steel.h"

namespace borvik {

namespace {

constexpr double kPi = Single(3.1415927);  // a stored number: its width is part of Mcr

bool isEndSpan(const Project& project, int span) {
    return span == 1 || span == project.NofSpans;
}

/// For the largest positive moment: End in the first and the last span, Mid in others.
/// @param My,Mz    design moments, kNm
/// @param records  where the wheels of rows 5 to 8 stand
RowSet ltbRows(const Project& project, int span, bool positive, Single My, Single Mz, Single ChiLT,
               const Table<Single>& records) {
    const LtbResistance resistance(project, span, positive);
    const std::string first = oneDecimal(My) + "/(" + twoDecimals(ChiLT) + "*" + oneDecimal(resistance.My) + ")";
    const std::string limit = " <  1.00 Beam: " + generalText(span);

    RowSet rows;
    if (Mz == 0) {
        rows(1) = "IR = My,Ed/(xLT*My,Rd) = ";
        rows(2) = first + " = ";
        rows(4) = limit + " (Ch 6.3.2)";
    } else {
        // Mid spans carry "My,Ed" below the line, which tells them from end spans in a report.
        rows(1) = isEndSpan(project, span) ? "IR = My,Ed/(xLT*My,Rd) + Mz,Ed/Mz,Rd = "
                                           : "IR = My,Ed/(xLT*My,Ed) + Mz,Ed/Mz,Rd = ";
        rows(2) = first + " + " + oneDecimal(Mz) + "/" + oneDecimal(resistance.Mz) + " = ";
        rows(4) = limit + " (Ch 6.3.3)";
    }
    setRatio(rows, ltbRatio(resistance, My, Mz, ChiLT));
    setWheelRows(rows, records, span);
    return rows;
}

RowSet positiveRows(const Project& project, int span, const UlsResults& uls) {
    const Single My = uls.MyMaxSpan(span, 1) / 1000000;
    const Single Mz = std::abs(uls.MyMaxSpan(span, 3)) / 1000000;
    return ltbRows(project, span, true, My, Mz, positiveReduction(project, span), uls.MyMaxSpan);
}

RowSet negativeRows(const Project& project, int span, const UlsResults& uls) {
    const Table<Single>& support = uls.MySupportSpan;
    const Single My = std::abs(support(span, 1)) / 1000000;
    const Single Mz = std::abs(support(span, 4)) / 1000000;
    return ltbRows(project, span, false, My, Mz, negativeReduction(project, span, support), support);
}

}  // namespace

CFactors positiveFactors(const Project& project, int span) {
    if (isEndSpan(project, span)) return {project.C1EndPos, project.C2EndPos, project.C3EndPos};
    return {project.C1MidPos, project.C2MidPos, project.C3MidPos};
}

std::optional<CFactors> negativeFactors(const Project& project, int span, const Table<Single>& support) {
    const double MySupport = support(span, 1), MyField = support(span, 2), MyOther = support(span, 3);
    // The moment changes sign within the span: diagram and load as for the positive case.
    if (MyField > 0) return positiveFactors(project, span);
    // A support moment that never was negative has no diagram to take C1 from; there is nothing that could buckle.
    const bool neverNegative = MySupport == 0;
    if (isEndSpan(project, span)) {
        if (neverNegative && !(project.C1EndNeg > 0)) return std::nullopt;
        return CFactors{project.C1EndNeg, 0, project.C3EndNeg};
    }
    if (neverNegative) return std::nullopt;
    const double psi = MyOther / MySupport;
    return CFactors{1.77 - 1.04 * psi + 0.27 * std::pow(psi, 2), 0, project.C3MidNeg};
}

Single criticalMoment(const Project& project, int span, bool positive, const CFactors& factors) {
    const SectionRecord& s = project.SpanSection(span);
    const double L = project.Span(span);
    const double t = factors.C2 * s.Zg - factors.C3 * (positive ? s.ZjPos : s.ZjNeg);
    const double Lt = (std::pow(L, 2) * steel::kE / steel::kEtoG * s.It) / steel::kE;
    const double root = std::sqrt(Lt / std::pow(kPi, 2) / s.Iz + s.Iw / s.Iz + std::pow(t, 2));
    return (std::pow(kPi, 2) * factors.C1 * steel::kE * s.Iz / std::pow(L, 2)) * (root - t);
}

Single ltbReduction(const Project& project, int span, bool positive, Single Mcr, double C1) {
    const SectionRecord& s = project.SpanSection(span);
    const Single Kc = 1 / std::sqrt(C1);
    if (project.LtbCurve == LtbCase::General) return ReductionGeneral(project, s, positive, Mcr);
    return ReductionRolledWelded(project, s, positive, Mcr, Kc);
}

Single ltbReduction(const Project& project, int span, bool positive, const CFactors& factors) {
    return ltbReduction(project, span, positive, criticalMoment(project, span, positive, factors), factors.C1);
}

Single positiveReduction(const Project& project, int span) {
    return ltbReduction(project, span, true, positiveFactors(project, span));
}

Single negativeReduction(const Project& project, int span, const Table<Single>& support) {
    const std::optional<CFactors> factors = negativeFactors(project, span, support);
    return factors ? ltbReduction(project, span, false, *factors) : Single(1.0);
}

LtbResistance::LtbResistance(const Project& project, int span, bool positive) {
    const SectionRecord& section = project.SpanSection(span);
    My = (positive ? section.MyRdPos : section.MyRdNeg) / project.GammaM1;
    Mz = section.MzRd / project.GammaM1;
}

double ltbRatio(const LtbResistance& resistance, Single My, Single Mz, Single ChiLT) {
    const double ratio = My / (ChiLT * resistance.My);
    return Mz == 0 ? ratio : ratio + Mz / resistance.Mz;
}

void DefaultCFactors(Project& project) {
    const bool oneSpan = project.NofSpans == 1;
    const bool overhead = project.CraneType == CraneKind::Overhead;
    const CFactors factors = oneSpan ? (overhead ? CFactors{1.12, 0.45, 0.525} : CFactors{1.35, 0.59, 0.411})
                                     : (overhead ? CFactors{1.85, 1.01, 0.64} : CFactors{1.46, 0.93, 1.53});
    project.C1EndPos = factors.C1;
    project.C2EndPos = factors.C2;
    project.C3EndPos = factors.C3;
    if (oneSpan) return;
    project.C1MidPos = factors.C1;
    project.C2MidPos = factors.C2;
    project.C3MidPos = factors.C3;
    project.C1EndNeg = 1.77;
    project.C3EndNeg = 1;
    project.C1MidNeg = 1.31;
    project.C3MidNeg = 1;
}

RowSet bucklingRow(const CheckBasis& basis, int span, int extreme) {
    const UlsResults& uls = basis.uls;
    RowSet rows = extreme == 0 ? positiveRows(basis.project, span, uls) : negativeRows(basis.project, span, uls);
    if (extreme == 0)
        rows.Stands[0] = standOf(basis, Effect::My, uls.MyMaxSpan, uls.At.MyMax, span);
    else if (uls.At.MySupport.has(span))
        rows.Stands[0] = {WalkOf::Uls, Effect::My, uls.At.MySupport(span), span, uls.At.MySupportPoint(span)};
    return rows;
}

}  // namespace borvik
