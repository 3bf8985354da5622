#include "checks/loaded_length.h"

#include <cmath>

namespace borvik {

WornRail wearRail(const RailRecord& rail, double wearFraction) {
    WornRail worn;
    if (rail.Id == "A") {
        const double w = wearFraction * rail.RailH3;
        const double strip = w * rail.RailKr;
        const double zStrip = rail.RailHr - w / 2;  // centroid of the strip above the underside of the rail
        worn.Wear = w;
        worn.Ared = rail.RailAx - strip;
        worn.Zr = (rail.RailAx * (rail.RailHr - rail.RailE1) - zStrip * strip) / worn.Ared;
        worn.Ired = rail.RailIy - std::pow(w, 3) * rail.RailKr / 12 - std::pow(zStrip - worn.Zr, 2) * strip;
    } else {
        const double w = wearFraction * rail.RailHr;
        worn.Wear = w;
        worn.Ared = rail.RailAx - w * rail.RailKr;
        worn.Zr = (rail.RailHr - w) / 2;
        worn.Ired = std::pow((1 - wearFraction) * rail.RailHr, 3) * rail.RailBr / 12;
    }
    return worn;
}

double effectiveLoadedLength(const RailRecord& rail, const WornRail& worn, RailFixing railFix,
                             const SectionRecord& section, Working working) {
    const double tf1 = section.tf1;
    const double beff = std::fmin(rail.RailBr + rail.RailHr + tf1 - worn.Wear, section.b1);

    const double Af = tf1 * beff;
    const double At = Af + worn.Ared;
    const double zc =
        (Af * tf1 / 2 + (tf1 + worn.Zr) * worn.Ared) / At;  // of flange and rail, above the flange's underside
    const double Iff = beff * std::pow(tf1, 3) / 12;
    const double Irf = worn.Ired + Iff + worn.Ared * std::pow(tf1 + worn.Zr - zc, 2) + Af * std::pow(zc - tf1 / 2, 2);

    working.given("bfr", rail.RailBr, "mm", "foot of the rail");
    working.given("hr", rail.RailHr, "mm", "height of the rail");
    working.given("w", worn.Wear, "mm", "wear, EN 1993-6 5.6.2");
    working.given("tf", tf1, "mm");
    working.given("b", section.b1, "mm");
    working.given("tw", section.tw, "mm");
    working.given("Ir", worn.Ired, "mm4", "worn rail");
    working.step("beff", "min(bfr + hr + tf - w, b)", beff, "mm", "EN 1993-6 Table 5.1");
    working.step("Ifeff", "beff*tf^3/12", Iff, "mm4");

    const auto length = [&](double factor, double secondMoment) {
        const double leff = factor * std::pow(secondMoment / section.tw, 1.0 / 3.0);
        working.given("k", factor, "", "EN 1993-6 Table 5.1, fastening of the rail");
        working.given("I", secondMoment, "mm4", railFix == RailFixing::Rigid ? "rail and flange as one" : "Ir + Ifeff");
        working.step("leff", "k*(I/tw)^(1/3)", leff, "mm", "EN 1993-6 Table 5.1");
        return leff;
    };
    switch (railFix) {
        case RailFixing::Rigid:
            working.given("Ar", worn.Ared, "mm2", "worn rail");
            working.given("zr", worn.Zr, "mm", "its centroid above its foot");
            working.given("zc", zc, "mm", "centroid of rail and flange");
            working.step("Irf", "Ir + Ifeff + Ar*(tf + zr - zc)^2 + beff*tf*(zc - tf/2)^2", Irf, "mm4");
            return length(3.25, Irf);
        case RailFixing::NotRigid:
            return length(3.25, worn.Ired + Iff);
        default:
            return length(4.25, worn.Ired + Iff);
    }
}

}  // namespace borvik
