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
RowSet shearRows(const SectionRecord& section, const Table<Single>& steps, int span, const char* positionMask,
                 Working working) {
    const double VzEd = std::abs(steps(span, 2)) / 1000;
    const Single ratio = VzEd / section.VzRd;
    working.given("VzEd", VzEd, "kN", "of the walk");
    working.given("VzRd", section.VzRd, "kN", "of the section");
    working.step("IR", "VzEd/VzRd", ratio, "", "EN 1993-1-1 (6.17)");

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
                   const BendingTexts& texts, Working working) {
    const SectionForces forces(steps(span, 1), steps(span, 2), steps(span, 3));
    const BendingResistance resistance(project, section, forces, working);

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
    const Single ratio = bendingRatio(forces, resistance, section.ClassPos);
    setRatio(rows, ratio);
    if (forces.Mz == 0) {
        working.step("IR", "abs(MyEd)/MVRd", ratio, "", "EN 1993-1-1 (6.12)");
    } else {
        working.given("MzEd", forces.Mz, "kNm", "of the walk, same position");
        working.given("MzRk", section.MzRd, "kNm", "loaded flange, of the section");
        working.step("MzRd", "MzRk/gamma_M0", resistance.Mz, "kNm");
        if (section.ClassPos > 2)
            working.step("IR", "abs(MyEd)/MVRd + MzEd/MzRd", ratio, "", "EN 1993-1-1 6.2.1(7)");
        else
            working.step("IR", "(abs(MyEd)/MVRd)^2 + MzEd/MzRd", ratio, "", "EN 1993-1-1 (6.41)");
    }
    rows(4) = limitAt(span, steps(span, 9), "0") + reference;
    setWheelRows(rows, steps, span);
    return rows;
}

}  // namespace

SectionForces::SectionForces(double MyNmm, double VzN, double MzNmm)
    : My(MyNmm / 1000000), Vz(std::abs(VzN) / 1000), Mz(std::abs(MzNmm) / 1000000) {}

BendingResistance::BendingResistance(const Project& project, const SectionRecord& section, const SectionForces& forces,
                                     Working working)
    : My(reducedMoment(project, section, forces.My, forces.Vz, working)), Mz(section.MzRd / project.GammaM0) {}

Single bendingRatio(const SectionForces& forces, const BendingResistance& resistance, int sectionClass) {
    const double My = std::abs(forces.My) / resistance.My;
    if (forces.Mz == 0) return My;
    return (sectionClass > 2 ? My : std::pow(My, kAlpha)) + forces.Mz / resistance.Mz;
}

double shearReduction(const SectionRecord& section, double VzEd) {
    return shearCounts(section, VzEd) ? std::fmin(std::pow(2 * VzEd / section.VzRd - 1, 2), 1.0) : 0.0;
}

Single reducedMoment(const Project& project, const SectionRecord& section, double MyEd, double VzEd, Working working) {
    const double rho = shearReduction(section, VzEd);
    const bool positive = MyEd >= 0;
    const double base = (positive ? section.MyRdPos : section.MyRdNeg) / project.GammaM0;
    const int sectionClass = positive ? section.ClassPos : section.ClassNeg;

    const double K = sectionClass > 2 ? 6 : 4;  // web modulus: elastic Hw^2 tw / 6, plastic Hw^2 tw / 4
    const double web = std::pow(section.Hw, 2) * section.tw * rho / K / 1000000 * project.fyk / project.GammaM0;
    const Single reduced = base - web;
    working.given("MyEd", MyEd, "kNm", "of the walk");
    working.given("VzEd", VzEd, "kN", "of the walk, same position");
    working.given("VzRd", section.VzRd, "kN", "of the section");
    working.given("MyRk", positive ? section.MyRdPos : section.MyRdNeg, "kNm", "Wy*fyk, of the section");
    working.given("gamma_M0", project.GammaM0, "");
    if (!shearCounts(section, VzEd)) {
        working.step("MVRd", "MyRk/gamma_M0", reduced, "kNm", "EN 1993-1-1 6.2.8(2): VzEd up to VzRd/2");
        return reduced;
    }
    working.given("hw", section.Hw, "mm");
    working.given("tw", section.tw, "mm");
    working.given("fyk", project.fyk, "MPa");
    working.given("K", K, "", "web's modulus: 4 plastic, 6 elastic");
    working.step("rho", "min((2*VzEd/VzRd - 1)^2, 1)", rho, "", "EN 1993-1-1 6.2.8(3)");
    working.step("MVRd", "MyRk/gamma_M0 - hw^2*tw*rho/K*fyk/gamma_M0/10^6", reduced, "kNm", "EN 1993-1-1 6.2.8(5)");
    return reduced;
}

RowSet shearRow(const CheckBasis& basis, int span, int extreme) {
    const SectionRecord& section = basis.project.SpanSection(span);
    const UlsResults& uls = basis.uls;
    // Row 4 has a blank before "mm" only for the smallest Vz, which tells the two apart.
    RowSet rows = extreme == 0 ? shearRows(section, uls.VzMaxSpan, span, "0", basis.working)
                               : shearRows(section, uls.VzMinSpan, span, "0 ", basis.working);
    rows.Stands[0] = extreme == 0 ? standOf(basis, Effect::Vz, uls.VzMaxSpan, uls.At.VzMax, span)
                                  : standOf(basis, Effect::Vz, uls.VzMinSpan, uls.At.VzMin, span);
    return rows;
}

RowSet bendingRow(const CheckBasis& basis, int span, int extreme) {
    const SectionRecord& section = basis.project.SpanSection(span);
    const Table<Single>& steps = extreme == 0 ? basis.uls.MyMaxSpan : basis.uls.MyMinSpan;
    RowSet rows =
        bendingRows(basis.project, section, steps, span, extreme == 0 ? kBendMaxTexts : kBendMinTexts, basis.working);
    rows.Stands[0] = standOf(basis, Effect::My, steps, extreme == 0 ? basis.uls.At.MyMax : basis.uls.At.MyMin, span);
    return rows;
}

}  // namespace borvik
