#include "dialogs/section_rows.h"

#include "base/number_text.h"

namespace borvik {

namespace {

std::string slashed(int first, int second) {
    return std::to_string(first) + "/" + std::to_string(second);
}

}  // namespace

std::vector<PropertyRow> sectionRows(const SectionRecord& s, const Project& project) {
    std::vector<PropertyRow> rows;
    const auto add = [&rows](const char* label, double value, const char* mask, const char* unit) {
        rows.push_back({label, formatNumber(value, mask), unit});
    };
    const char* power = "0.000E+0";
    const char* plain = "0.0";
    rows.push_back({"Properties", "", ""});
    add("  A =", s.A, power, "mm2");
    add("  CoG ez(el) =", s.EzEl, plain, "mm");
    add("  CoG ez(pl) =", s.EzPl, plain, "mm");
    if (s.Id == "Iu") add("  zs (shear center) =", s.Zs, plain, "mm");
    if (s.ClassPos == 4) add("  CoG  ez,eff pos mom =", s.EzEffPos, plain, "mm");
    if (s.ClassNeg == 4) add("  CoG  ez,eff neg mom =", s.EzEffNeg, plain, "mm");
    add("  Iy =", s.Iy, power, "mm4");
    add("  Iz =", s.Iz, power, "mm4");
    add("  Wel,y1 =", s.Wely1, power, "mm3");
    add("  Wel,y2 =", s.Wely2, power, "mm3");
    add("  Wpl,y =", s.Wply, power, "mm3");
    add("  It =", s.It, power, "mm4");
    add("  Iw =", s.Iw, power, "mm6");
    add("  Weight =", s.Weight, "0.0 ", "kg");
    rows.push_back({"Capacity", "", ""});
    rows.push_back({"  SectionClass Flange b1/b2", slashed(s.ClassTopFlange, s.ClassBottomFlange), ""});
    rows.push_back({"  SectionClass Web - fatigue ", s.WebFatigueClass < 4 ? "OK" : "NOK", ""});
    rows.push_back({"  Section Class Pos/Neg Mom   ", slashed(s.ClassPos, s.ClassNeg), ""});
    add("  MyRd = (pos mom)", s.MyRdPos / project.GammaM0, plain, "kNm");
    add("  MyRd = (neg  Mom)", s.MyRdNeg / project.GammaM0, plain, "kNm");
    add(project.CraneType == CraneKind::Overhead ? "  MzRd = (Top flange)" : "  MzRd = (Bottom flange)",
        s.MzRd / project.GammaM0, plain, "kNm");
    add("  Vz,Rd =  ", s.VzRd, plain, "kN");
    return rows;
}

}  // namespace borvik
