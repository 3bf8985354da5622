#include "checks/section_checks.h"

#include <cmath>

#include "checks/check_stands.h"
#include "checks/check_texts.h"

namespace borvik {

namespace {

// EN 1993-1-1 6.2.9.1(6): alpha = 2 for I-sections; beta = 5n is at least 1, and 1 without axial force.
constexpr double kAlpha = 2;

/// Row 1 of one formula: shear leaves the moment resistance as it is, or reduces it.
struct FormulaTexts {
    const char* shearFree;
    const char* reduced;
};

/// Row 1 of the bending check: My alone, and both axes added linearly (class 3 and 4) or with a power (class 1 and 2).
struct BendingTexts {
    FormulaTexts alone, linear, power;
};

// A blank and a bracket tell the two apart, so that readers of a report see at once which moment a row belongs to.
constexpr BendingTexts kBendMaxTexts{
    {"IR = My,Ed/My,Rd = ", "IR = My,Ed/MV,y,Rd = "},
    {"IR = My,Ed/My,Rd + Mz,Ed/Mz,Rd = ", "IR = My,Ed/MV,y,Rd + Mz,Ed/Mz,Rd = "},
    {"IR = [My,Ed/My,Rd]^a + Mz,Ed/Mz,Rd  = ", "IR = [My,Ed/MV,y,Rd]^a + Mz,Ed/Mz,Rd = "}};
constexpr BendingTexts kBendMinTexts{
    {"IR = My,Ed/My,Rd = ", "IR = My,Ed/MV,y,Rd = "},
    {"IR = My,Ed/My,Rd] + Mz,Ed/Mz,Rd = ", "IR = My,Ed/MV,y,Rd + Mz,Ed/Mz,Rd = "},
    {"IR = [My,Ed/My,Rd]^a + Mz,Ed/Mz,Rd = ", "IR = [My,Ed/MV,y,Rd]^a + Mz,Ed/Mz,Rd = "}};

/// Whether the shear force, kN, is large enough to reduce the moment resistance: EN 1993-1-1 6.2.8(2).
bool shearCounts(const SectionRecord& section, double VzEd) {
    return !(0.5 >= VzEd / section.VzRd);
}

/// " <  1.00 ( span/position": how row 4 begins.
std::string limitAt(int span, double position, const char* mask) {
    return " <  1.00 ( " + generalText(span) + "/" + formatNumber(position, mask);
}

/// @param steps         VzMaxSpan or VzMinSpan
/// @param positionMask  of the position in row 4
RowSet shearRows(const SectionRecord& section, const Table<Single>& steps, int span, const char* positionMask) {
    const double VzEd = std::abs(steps(span, 2)) / 1000;
    const Single ratio = VzEd / section.VzRd;

    RowSet rows;
    rows(1) = "IR = Vz,Ed/Vz,Rd = ";
    rows(2) = oneDecimal(VzEd) + "/" + oneDecimal(section.VzRd);
    setRatio(rows, ratio);
    rows(4) = limitAt(span, steps(span, 9), positionMask) + "mm; Ch 6.2.6)";
    setWheelRows(rows, steps, span);
    return rows;
}

/// @param steps  MyMaxSpan or MyMinSpan
RowSet bendingRows(const Project& project, const SectionRecord& section, const Table<Single>& steps, int span,
                   const BendingTexts& texts) {
    const SectionForces forces(steps(span, 1), steps(span, 2), steps(span, 3));
    const BendingResistance resistance(project, section, forces);

    const bool shearFree = !shearCounts(section, forces.Vz);
    const auto formula = [&](const FormulaTexts& text) { return shearFree ? text.shearFree : text.reduced; };
    const std::string My = oneDecimal(std::abs(forces.My)) + "/" + oneDecimal(resistance.My);
    const std::string Mz = oneDecimal(forces.Mz) + "/" + oneDecimal(resistance.Mz);

    RowSet rows;
    const char* reference = nullptr;
    // The class under positive moment decides the formula for a negative moment too, as it does for MzRd: the
    // horizontal load acts on the top flange, whatever the sign of My.
    if (forces.Mz == 0) {
        rows(1) = formula(texts.alone);
        rows(2) = My;
        reference = shearFree ? " mm; Ch 6.2.5)" : " mm; Ch 6.2.8)";
    } else if (section.ClassPos > 2) {
        rows(1) = formula(texts.linear);
        rows(2) = My + " + " + Mz + " = ";
        reference = " mm; Ch 6.2.1)";
    } else {
        rows(1) = formula(texts.power);
        rows(2) = "[" + My + "]^" + noDecimals(kAlpha) + " + " + Mz + " = ";
        reference = " mm; Ch 6.2.5/6.2.9)";
    }
    setRatio(rows, bendingRatio(forces, resistance, section.ClassPos));
    rows(4) = limitAt(span, steps(span, 9), "0") + reference;
    setWheelRows(rows, steps, span);
    return rows;
}

}  // namespace

SectionForces::SectionForces(double MyNmm, double VzN, double MzNmm)
    : My(MyNmm / 1000000), Vz(std::abs(VzN) / 1000), Mz(std::abs(MzNmm) / 1000000) {}

BendingResistance::BendingResistance(const Project& project, const SectionRecord& section, const SectionForces& forces)
    : My(reducedMoment(project, section, forces.My, forces.Vz)), Mz(section.MzRd / project.GammaM0) {}

Single bendingRatio(const SectionForces& forces, const BendingResistance& resistance, int sectionClass) {
    const double My = std::abs(forces.My) / resistance.My;
    if (forces.Mz == 0) return My;
    return (sectionClass > 2 ? My : std::pow(My, kAlpha)) + forces.Mz / resistance.Mz;
}

double shearReduction(const SectionRecord& section, double VzEd) {
    return shearCounts(section, VzEd) ? std::fmin(std::pow(2 * VzEd / section.VzRd - 1, 2), 1.0) : 0.0;
}

Single reducedMoment(const Project& project, const SectionRecord& section, double MyEd, double VzEd) {
    const double rho = shearReduction(section, VzEd);
    const bool positive = MyEd >= 0;
    const double base = (positive ? section.MyRdPos : section.MyRdNeg) / project.GammaM0;
    const int sectionClass = positive ? section.ClassPos : section.ClassNeg;

    const double K = sectionClass > 2 ? 6 : 4;  // web modulus: elastic Hw^2 tw / 6, plastic Hw^2 tw / 4
    const double web = std::pow(section.Hw, 2) * section.tw * rho / K / 1000000 * project.fyk / project.GammaM0;
    return base - web;
}

RowSet shearRow(const CheckBasis& basis, int span, int extreme) {
    const SectionRecord& section = basis.project.SpanSection(span);
    const UlsResults& uls = basis.uls;
    // Row 4 has a blank before "mm" only for the smallest Vz, which tells the two apart.
    RowSet rows =
        extreme == 0 ? shearRows(section, uls.VzMaxSpan, span, "0") : shearRows(section, uls.VzMinSpan, span, "0 ");
    rows.Stands[0] = extreme == 0 ? standOf(basis, Effect::Vz, uls.VzMaxSpan, uls.At.VzMax, span)
                                  : standOf(basis, Effect::Vz, uls.VzMinSpan, uls.At.VzMin, span);
    return rows;
}

RowSet bendingRow(const CheckBasis& basis, int span, int extreme) {
    const SectionRecord& section = basis.project.SpanSection(span);
    const Table<Single>& steps = extreme == 0 ? basis.uls.MyMaxSpan : basis.uls.MyMinSpan;
    RowSet rows = bendingRows(basis.project, section, steps, span, extreme == 0 ? kBendMaxTexts : kBendMinTexts);
    rows.Stands[0] = standOf(basis, Effect::My, steps, extreme == 0 ? basis.uls.At.MyMax : basis.uls.At.MyMin, span);
    return rows;
}

}  // namespace borvik
