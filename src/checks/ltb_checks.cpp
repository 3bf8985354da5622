#include "checks/ltb_checks.h"

#include <cmath>

#include "base/fault.h"
#include "checks/check_texts.h"
#include "checks/ltb_reduction.h"

namespace borvik {

namespace {

constexpr double kE = 210000;              // N/mm2
constexpr double kEtoG = 2.6;              // E/G
constexpr double kPi = Single(3.1415927);  // a stored number: its width is part of Mcr

/// Factors of the critical moment.
struct CFactors {
    double C1, C2, C3;
};

/// One span of the check.
struct LtbSpanInput {
    const Project& project;
    const SectionRecord& section;
    int span;

    [[nodiscard]] double length() const { return project.Span(span); }
    [[nodiscard]] bool isEnd() const { return span == 1 || span == project.NofSpans; }
    [[nodiscard]] CFactors positiveFactors() const {
        if (isEnd()) return {project.C1EndPos, project.C2EndPos, project.C3EndPos};
        return {project.C1MidPos, project.C2MidPos, project.C3MidPos};
    }
};

/// chiLT from the critical moment of the whole span as unbraced length.
/// @param t  C2 Zg - C3 Zj, mm
Single reduction(const LtbSpanInput& in, bool positive, double C1, double t) {
    const SectionRecord& s = in.section;
    const double L = in.length();
    const double Lt = (std::pow(L, 2) * kE / kEtoG * s.It) / kE;
    const double root = std::sqrt(Lt / std::pow(kPi, 2) / s.Iz + s.Iw / s.Iz + std::pow(t, 2));
    const Single Mcr = (std::pow(kPi, 2) * C1 * kE * s.Iz / std::pow(L, 2)) * (root - t);
    const Single Kc = 1 / std::sqrt(C1);
    if (in.project.LtbCurve == 2) return ReductionGeneral(in.project, s, positive, Mcr);
    return ReductionRolledWelded(in.project, s, positive, Mcr, Kc);
}

Single positiveReduction(const LtbSpanInput& in) {
    const auto [C1, C2, C3] = in.positiveFactors();
    return reduction(in, true, C1, C2 * in.section.Zg - C3 * in.section.ZjPos);
}

/// @param support  MySupportSpan of the span: 1 the support moment, 2 the moment in the span, 3 that at the other end
Single negativeReduction(const LtbSpanInput& in, const Table<Single>& support) {
    const Project& project = in.project;
    const double MySupport = support(in.span, 1), MyField = support(in.span, 2), MyOther = support(in.span, 3);
    if (MyField > 0) {  // the moment changes sign within the span: diagram and load as for the positive case
        const auto [C1, C2, C3] = in.positiveFactors();
        return reduction(in, false, C1, C2 * in.section.Zg - C3 * in.section.ZjNeg);
    }
    // A support moment that never was negative has no diagram to take C1 from; there is nothing that could buckle.
    const bool neverNegative = MySupport == 0;
    double C1 = 0, C3 = 0;
    if (in.isEnd()) {
        if (neverNegative && !(project.C1EndNeg > 0)) return 1.0;
        C1 = project.C1EndNeg;
        C3 = project.C3EndNeg;
    } else {
        if (neverNegative) return 1.0;
        const double psi = MyOther / MySupport;
        C1 = 1.77 - 1.04 * psi + 0.27 * std::pow(psi, 2);
        C3 = project.C3MidNeg;
    }
    return reduction(in, false, C1, -C3 * in.section.ZjNeg);
}

/// @param MR         design resistance about the strong axis without buckling, kNm
/// @param LtbMy,LtbMz  design moments, kNm
/// @param records    where the wheels of rows 5 to 8 stand
RowSet<8> ltbRows(const LtbSpanInput& in, Single LtbMy, Single LtbMz, Single ChiLT, double MR,
                  const Table<Single>& records) {
    const double MzR = in.section.MzRd / in.project.GammaM1;
    const std::string My = oneDecimal(LtbMy) + "/(" + twoDecimals(ChiLT) + "*" + oneDecimal(MR) + ")";
    const std::string limit = " <  1.00 Beam: " + generalText(in.span);

    RowSet<8> rows;
    if (LtbMz == 0) {
        rows(1) = "IR = My,Ed/(xLT*My,Rd) = ";
        rows(2) = My + " = ";
        setRatio(rows, LtbMy / (ChiLT * MR));
        rows(4) = limit + " (Ch 6.3.2)";
    } else {
        // Mid spans carry "My,Ed" below the line, which tells them from end spans in a report.
        rows(1) = in.isEnd() ? "IR = My,Ed/(xLT*My,Rd) + Mz,Ed/Mz,Rd = " : "IR = My,Ed/(xLT*My,Ed) + Mz,Ed/Mz,Rd = ";
        rows(2) = My + " + " + oneDecimal(LtbMz) + "/" + oneDecimal(MzR) + " = ";
        setRatio(rows, LtbMy / (ChiLT * MR) + LtbMz / MzR);
        rows(4) = limit + " (Ch 6.3.3)";
    }
    setWheelRows(rows, records, in.span);
    return rows;
}

RowSet<8> positiveRows(const LtbSpanInput& in, const UlsResults& uls) {
    const Single LtbMy = uls.MyMaxSpan(in.span, 1) / 1000000;
    const Single LtbMz = std::abs(uls.MyMaxSpan(in.span, 3)) / 1000000;
    return ltbRows(in, LtbMy, LtbMz, positiveReduction(in), in.section.MyRdPos / in.project.GammaM1, uls.MyMaxSpan);
}

RowSet<8> negativeRows(const LtbSpanInput& in, const UlsResults& uls) {
    const Table<Single>& support = uls.MySupportSpan;
    const Single LtbMy = std::abs(support(in.span, 1)) / 1000000;
    const Single LtbMz = std::abs(support(in.span, 4)) / 1000000;
    return ltbRows(in, LtbMy, LtbMz, negativeReduction(in, support), in.section.MyRdNeg / in.project.GammaM1, support);
}

}  // namespace

void DefaultCFactors(Project& project) {
    const bool oneSpan = project.NofSpans == 1;
    const bool overhead = project.CraneType == 1;
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

void LtbChecks(Project& project, ProjectContext& context, const UlsResults& uls, CheckResults& checks) {
    if (project.DefaultCfactor) DefaultCFactors(project);
    const int spans = project.NofSpans;
    checks.LtbPos = checks.LtbNeg = checks.LtbSpan = Array<RowSet<8>>(1, spans);
    checks.LtbGov = {};

    for (int span = 1; span <= spans; ++span) {
        watched("Lateral torsional buckling", span, [&] {
            context.CurrentSection = project.SpanSection(span);
            const LtbSpanInput in{project, context.CurrentSection, span};
            checks.LtbPos(span) = positiveRows(in, uls);
            checks.LtbNeg(span) = negativeRows(in, uls);
        });
        const bool positiveGoverns = checks.LtbPos(span).Ratio > checks.LtbNeg(span).Ratio;
        checks.LtbSpan(span) = positiveGoverns ? checks.LtbPos(span) : checks.LtbNeg(span);
        if (ranksAbove(checks.LtbSpan(span)(3), checks.LtbGov(3))) checks.LtbGov = checks.LtbSpan(span);
    }
}

}  // namespace borvik
