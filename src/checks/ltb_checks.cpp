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

/// The last lines of the working, behind those of chiLT.
void explainRatio(const Project& project, int span, bool positive, Single My, Single Mz,
                  const LtbResistance& resistance, double ratio, Working working) {
    const SectionRecord& s = project.SpanSection(span);
    working.given("MyEd", My, "kNm", "of the walk");
    working.given("MyRk", positive ? s.MyRdPos : s.MyRdNeg, "kNm", "Wy*fyk, of the section");
    working.given("gamma_M1", project.GammaM1, "");
    working.step("MyRd", "MyRk/gamma_M1", resistance.My, "kNm");
    if (Mz == 0) {
        working.step("IR", "MyEd/(chi_LT*MyRd)", ratio, "", "EN 1993-1-1 (6.54)");
        return;
    }
    working.given("MzEd", Mz, "kNm", "of the walk, same position");
    working.given("MzRk", s.MzRd, "kNm", "loaded flange, of the section");
    working.step("MzRd", "MzRk/gamma_M1", resistance.Mz, "kNm");
    working.step("IR", "MyEd/(chi_LT*MyRd) + MzEd/MzRd", ratio, "", "EN 1993-6 6.3.3");
}

/// For the largest positive moment: End in the first and the last span, Mid in others.
/// @param My,Mz    design moments, kNm
/// @param records  where the wheels of rows 5 to 8 stand
RowSet ltbRows(const Project& project, int span, bool positive, Single My, Single Mz, Single ChiLT,
               const Table<Single>& records, Working working) {
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
    explainRatio(project, span, positive, My, Mz, resistance, rows.Ratio, working);
    setWheelRows(rows, records, span);
    return rows;
}

RowSet positiveRows(const Project& project, int span, const UlsResults& uls, Working working) {
    const Single My = uls.MyMaxSpan(span, 1) / 1000000;
    const Single Mz = std::abs(uls.MyMaxSpan(span, 3)) / 1000000;
    return ltbRows(project, span, true, My, Mz, positiveReduction(project, span, working), uls.MyMaxSpan, working);
}

RowSet negativeRows(const Project& project, int span, const UlsResults& uls, Working working) {
    const Table<Single>& support = uls.MySupportSpan;
    const Single My = std::abs(support(span, 1)) / 1000000;
    const Single Mz = std::abs(support(span, 4)) / 1000000;
    return ltbRows(project, span, false, My, Mz, negativeReduction(project, span, support, working), support, working);
}

}  // namespace

CFactors positiveFactors(const Project& project, int span) {
    if (isEndSpan(project, span)) return {project.C1EndPos, project.C2EndPos, project.C3EndPos};
    return {project.C1MidPos, project.C2MidPos, project.C3MidPos};
}

std::optional<CFactors> negativeFactors(const Project& project, int span, const Table<Single>& support,
                                        Working working) {
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
    const double C1 = 1.77 - 1.04 * psi + 0.27 * std::pow(psi, 2);
    working.given("M1", MySupport / 1e6, "kNm", "of the walk, at the support");
    working.given("M2", MyOther / 1e6, "kNm", "at the other support, same position");
    working.step("psi", "M2/M1", psi);
    working.step("C1", "1.77 - 1.04*psi + 0.27*psi^2", C1, "", "manual, chapter 10");
    return CFactors{C1, 0, project.C3MidNeg};
}

Single criticalMoment(const Project& project, int span, bool positive, const CFactors& factors, Working working) {
    const SectionRecord& s = project.SpanSection(span);
    const double L = project.Span(span);
    const double t = factors.C2 * s.Zg - factors.C3 * (positive ? s.ZjPos : s.ZjNeg);
    const double Lt = (std::pow(L, 2) * steel::kE / steel::kEtoG * s.It) / steel::kE;
    const double root = std::sqrt(Lt / std::pow(kPi, 2) / s.Iz + s.Iw / s.Iz + std::pow(t, 2));
    const Single Mcr = (std::pow(kPi, 2) * factors.C1 * steel::kE * s.Iz / std::pow(L, 2)) * (root - t);
    working.given("L", L, "mm");
    working.given("Iz", s.Iz, "mm4");
    working.given("It", s.It, "mm4");
    working.given("Iw", s.Iw, "mm6");
    working.given("E", steel::kE, "MPa");
    working.given("EtoG", steel::kEtoG, "", "E/G = 2*(1 + 0.3)");
    working.given("C1", factors.C1, "");
    working.given("C2", factors.C2, "");
    working.given("C3", factors.C3, "");
    working.given("zg", s.Zg, "mm", "load above the shear centre");
    working.given("zj", positive ? s.ZjPos : s.ZjNeg, "mm", "monosymmetry");
    working.step("t", "C2*zg - C3*zj", t, "mm");
    working.step("root", "sqrt(L^2*It/(EtoG*pi^2*Iz) + Iw/Iz + t^2)", root, "mm");
    working.step("Mcr", "pi^2*C1*E*Iz/L^2*(root - t)/10^6", Mcr / 1e6, "kNm", "manual, chapter 10");
    return Mcr;
}

Single ltbReduction(const Project& project, int span, bool positive, Single Mcr, double C1, Working working) {
    const SectionRecord& s = project.SpanSection(span);
    const Single Kc = 1 / std::sqrt(C1);
    if (project.LtbCurve == LtbCase::General) return ReductionGeneral(project, s, positive, Mcr, working);
    working.step("kc", "1/sqrt(C1)", Kc, "", "EN 1993-1-1 6.3.2.3(2)");
    return ReductionRolledWelded(project, s, positive, Mcr, Kc, working);
}

Single ltbReduction(const Project& project, int span, bool positive, const CFactors& factors, Working working) {
    return ltbReduction(project, span, positive, criticalMoment(project, span, positive, factors, working), factors.C1,
                        working);
}

Single positiveReduction(const Project& project, int span, Working working) {
    return ltbReduction(project, span, true, positiveFactors(project, span), working);
}

Single negativeReduction(const Project& project, int span, const Table<Single>& support, Working working) {
    const std::optional<CFactors> factors = negativeFactors(project, span, support, working);
    if (factors) return ltbReduction(project, span, false, *factors, working);
    working.given("chi_LT", 1.0, "", "no support moment is negative");
    return 1.0;
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
    RowSet rows = extreme == 0 ? positiveRows(basis.project, span, uls, basis.working)
                               : negativeRows(basis.project, span, uls, basis.working);
    if (extreme == 0)
        rows.Stands[0] = standOf(basis, Effect::My, uls.MyMaxSpan, uls.At.MyMax, span);
    else if (uls.At.MySupport.has(span))
        rows.Stands[0] = {WalkOf::Uls, Effect::My, uls.At.MySupport(span), span, uls.At.MySupportPoint(span)};
    return rows;
}

}  // namespace borvik
