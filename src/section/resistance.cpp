#include "section/resistance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace borvik {

namespace {

/// Greatest c/t of classes 1, 2 and 3 over epsilon, EN 1993-1-1 Table 5.2.
struct ClassLimits {
    double class1, class2, class3;
    const char* formulas[3];
};
constexpr ClassLimits kOutstand{9.0, 10.0, 14.0, {"9*epsilon", "10*epsilon", "14*epsilon"}};
constexpr ClassLimits kInternal{33.0, 38.0, 42.0, {"33*epsilon", "38*epsilon", "42*epsilon"}};

/// Limit and ratio are compared as stored numbers, so that a plate exactly at its limit is found to be there.
bool reaches(Single limit, Single ratio) {
    return limit >= ratio;
}

/// The same, the limit taken down.
bool within(const char* formula, double limit, Single ratio, Working working) {
    working.step("limit", formula, limit, "", "EN 1993-1-1 Table 5.2");
    return reaches(limit, ratio);
}

/// Class of a plate that is wholly in compression. Exactly at the last limit it is class 4, the safe side.
std::int16_t compressedPlate(const ClassLimits& limits, double e, Single ratio, Working working) {
    if (within(limits.formulas[0], limits.class1 * e, ratio, working)) return 1;
    if (within(limits.formulas[1], limits.class2 * e, ratio, working)) return 2;
    working.step("limit", limits.formulas[2], limits.class3 * e, "", "EN 1993-1-1 Table 5.2");
    return Single(limits.class3 * e) > ratio ? 3 : 4;
}

/// Class of a web with the plastic axis within it.
/// @param alpha  compressed part of its width, plastic
/// @param psi    stress at the edge in tension over that at the compressed edge, elastic
std::int16_t bentWeb(double alpha, double psi, double e, Single ratio, Working working) {
    working.given("alpha", alpha, "", "compressed part of the web, plastic");
    working.given("psi", psi, "", "stress ratio of its edges, elastic");
    const bool class3InTension = psi <= -1.0 && reaches(62.0 * e * (1.0 - psi) * std::sqrt(-psi), ratio);
    if (alpha > 0.5) {
        if (within("396*epsilon/(13*alpha - 1)", 396.0 * e / (13.0 * alpha - 1.0), ratio, working)) return 1;
        if (within("456*epsilon/(13*alpha - 1)", 456.0 * e / (13.0 * alpha - 1.0), ratio, working)) return 2;
        if (psi > -1.0)
            return within("42*epsilon/(0.67 + 0.33*psi)", 42.0 * e / (0.67 + 0.33 * psi), ratio, working) ? 3 : 4;
    } else {
        if (alpha < 0.0) return 1;
        if (within("36*epsilon/alpha", 36.0 * e / alpha, ratio, working)) return 1;
        if (within("41.5*epsilon/alpha", 41.5 * e / alpha, ratio, working)) return 2;
        // A web that is compressed over less than half of its width is never class 4 while psi > -1: the limit
        // 42 e/(0.67 + 0.33 psi) isn't asked here (theory manual, B4).
        if (psi > -1.0) return 3;
    }
    if (psi <= -1.0)
        working.step("limit", "62*epsilon*(1 - psi)*sqrt(-psi)", 62.0 * e * (1.0 - psi) * std::sqrt(-psi), "",
                     "EN 1993-1-1 Table 5.2");
    return class3InTension ? 3 : 4;
}

/// The heading of a plate and its c/t.
void explainPlate(const char* plate, double c, double t, Working working) {
    working.heading(plate);
    working.given("c", c, "mm");
    working.given("t", t, "mm");
    working.step("ratio", "c/t", c / t);
}

void classifyWeb(double e, SectionRecord& s, Working working) {
    const Single ratio = s.CWeb / s.tw;
    const auto explained = [&](const char* sign, auto classOf) {
        explainPlate(sign, s.CWeb, s.tw, working);
        const std::int16_t found = classOf();
        working.given("class", found, "", "by the limits above");
        return found;
    };
    constexpr const char* kPos = "Web, positive moment";
    constexpr const char* kNeg = "Web, negative moment";
    s.WebFatigueClass = ratio >= 120.0 ? 4 : 1;

    const double zt = s.h - s.tf1 - s.R;
    const double zb = s.R + s.tf2;
    if (s.EzPl >= zt) {
        s.ClassWebPos = 1;
        s.ClassWebNeg = explained(kNeg, [&] { return compressedPlate(kInternal, e, ratio, working); });
    } else if (s.EzPl <= zb) {
        s.ClassWebPos = explained(kPos, [&] { return compressedPlate(kInternal, e, ratio, working); });
        s.ClassWebNeg = 1;
    } else {
        const double above = zt - s.EzEl;
        const double below = s.EzEl - zb;
        s.ClassWebPos =
            explained(kPos, [&] { return bentWeb((zt - s.EzPl) / s.CWeb, -below / above, e, ratio, working); });
        s.ClassWebNeg =
            explained(kNeg, [&] { return bentWeb((s.EzPl - zb) / s.CWeb, -above / below, e, ratio, working); });
    }
}

/// Modulus that governs one sign of the moment and its resistances.
struct MomentResistance {
    Single Wy, MyRd, Top, Bottom;
};

double momentOf(double fyk, double W) {
    return fyk * W / 1000000.0;
}

MomentResistance momentResistance(int sectionClass, const SectionRecord& s, double fyk, double WeffTop,
                                  double WeffBottom) {
    MomentResistance r;
    if (sectionClass <= 2) {
        r.Wy = s.Wply;
        r.Top = r.Bottom = momentOf(fyk, s.Wply);
    } else if (sectionClass == 3) {
        r.Wy = s.WelMin;
        r.Top = momentOf(fyk, s.Wely1);
        r.Bottom = momentOf(fyk, s.Wely2);
    } else {
        r.Wy = (WeffTop + WeffBottom - std::abs(WeffTop - WeffBottom)) * 0.5;  // the smaller of the two
        r.Top = momentOf(fyk, WeffTop);
        r.Bottom = momentOf(fyk, WeffBottom);
    }
    r.MyRd = momentOf(fyk, r.Wy);
    return r;
}

/// Modulus and resistance of one sign of the moment.
void explainMoment(const char* sign, int sectionClass, double Wy, double MyRk, Working working) {
    working.heading(sign);
    working.given("class", sectionClass, "", "the highest of flange and web");
    working.given("Wy", Wy, "mm3",
                  sectionClass <= 2   ? "plastic"
                  : sectionClass == 3 ? "elastic, the smaller one"
                                      : "effective, the smaller one, EN 1993-1-5 4.4");
    working.step("MyRk", "fyk*Wy/10^6", MyRk, "kNm", "EN 1993-1-1 6.2.5(2)");
}

void setMomentResistances(const SectionSetting& setting, SectionRecord& s, Working working) {
    const MomentResistance pos = momentResistance(s.ClassPos, s, setting.fyk, s.WeffTopPos, s.WeffBottomPos);
    s.WyPos = pos.Wy;
    s.MyRdPos = pos.MyRd;
    s.MyRdPosTop = pos.Top;
    s.MyRdPosBottom = pos.Bottom;

    const MomentResistance neg = momentResistance(s.ClassNeg, s, setting.fyk, s.WeffTopNeg, s.WeffBottomNeg);
    s.WyNeg = neg.Wy;
    s.MyRdNeg = neg.MyRd;
    s.MyRdNegTop = neg.Top;
    s.MyRdNegBottom = neg.Bottom;

    // The loaded flange alone takes the horizontal load. From class 3 its elastic modulus counts, a rectangle's plastic
    // one over 1.5. The class for positive moment decides for the bottom flange too: note B9.
    const double W = setting.CraneType == CraneKind::Overhead ? s.WplZTop : s.WplZBottom;
    const double plastic = W * setting.fyk / 1000000.0;
    s.MzRd = s.ClassPos > 2 ? plastic / 1.5 : plastic;
    explainMoment("Positive moment", s.ClassPos, s.WyPos, s.MyRdPos, working);
    explainMoment("Negative moment", s.ClassNeg, s.WyNeg, s.MyRdNeg, working);
    working.heading("Horizontal moment, loaded flange");
    working.given("Wz", W, "mm3", "plastic");
    working.step("MzRk", s.ClassPos > 2 ? "Wz*fyk/1.5/10^6" : "Wz*fyk/10^6", s.MzRd, "kNm");
}

void setShearResistances(const SectionSetting& setting, SectionRecord& s, Working working) {
    const double tau = setting.fyk / std::numbers::sqrt3;
    s.VplRd = tau * s.Av / setting.GammaM0 / 1000.0;  // EN 1993-1-1 (6.18)
    working.heading("Shear");
    working.given("Av", s.Av, "mm2", "EN 1993-1-1 6.2.6(3)");
    working.given("gamma_M0", setting.GammaM0, "");
    working.given("hw", s.Hw, "mm");
    working.given("tw", s.tw, "mm");
    working.given("eta", setting.Eta, "", "EN 1993-1-5 5.1(2)");
    working.step("VplRd", "fyk/sqrt(3)*Av/gamma_M0/10^3", s.VplRd, "kN", "EN 1993-1-1 (6.18)");
    working.step("ratio", "hw/tw", s.Hw / s.tw);
    working.step("limit", "72*epsilon/eta", 72.0 * setting.Epsilon / setting.Eta, "", "EN 1993-1-5 5.1(2)");
    if (72.0 * setting.Epsilon / setting.Eta > s.Hw / s.tw) {
        s.VzRd = s.VplRd;
        working.step("VzRd", "VplRd", s.VzRd, "kN", "no shear buckling");
    } else {
        const double lambdaW =
            s.Hw / 86.4 / setting.Epsilon / s.tw;  // EN 1993-1-5 (5.5), stiffeners at the supports only
        const double chi = shearBucklingFactor(lambdaW, setting.Eta, setting.StiffenerMode);
        s.VzRd = s.tw * s.Hw * chi * setting.fyk / std::numbers::sqrt3 / setting.GammaM1 / 1000.0;  // (5.2)
        working.step("lambda_w", "hw/(86.4*epsilon*tw)", lambdaW, "", "EN 1993-1-5 (5.5)");
        working.step("chi_w",
                     chi == setting.Eta      ? "eta"
                     : chi == 0.83 / lambdaW ? "0.83/lambda_w"
                                             : "1.37/(0.7 + lambda_w)",
                     chi, "", "EN 1993-1-5 Table 5.1");
        working.given("gamma_M1", setting.GammaM1, "");
        working.step("VzRd", "chi_w*fyk*hw*tw/(sqrt(3)*gamma_M1)/10^3", s.VzRd, "kN", "EN 1993-1-5 (5.2)");
    }
}

}  // namespace

void SectionResistance(const SectionSetting& setting, SectionRecord& s, Working working) {
    working.given("fyk", setting.fyk, "MPa");
    working.step("epsilon", "sqrt(235/fyk)", setting.Epsilon, "", "EN 1993-1-1 Table 5.2");
    if (s.Reinforced) ReinforcedProperties(setting, s);
    Classify(setting.Epsilon, s, working);
    if (s.ClassPos == 4 || s.ClassNeg == 4) EffectiveSection(setting.Epsilon, s, working);
    setMomentResistances(setting, s, working);
    setShearResistances(setting, s, working);
}

void Classify(double e, SectionRecord& s, Working working) {
    // The plates of a reinforced section hold the tips of the top flange, which so becomes an internal part.
    explainPlate(s.Reinforced ? "Top flange, held at its tips" : "Top flange", s.CTop, s.tf1, working);
    s.ClassTopFlange = compressedPlate(s.Reinforced ? kInternal : kOutstand, e, s.CTop / s.tf1, working);
    working.given("class", s.ClassTopFlange, "", "by the limits above");
    explainPlate("Bottom flange", s.CBottom, s.tf2, working);
    s.ClassBottomFlange = compressedPlate(kOutstand, e, s.CBottom / s.tf2, working);
    working.given("class", s.ClassBottomFlange, "", "by the limits above");
    classifyWeb(e, s, working);
    s.ClassPos = std::max(s.ClassWebPos, s.ClassTopFlange);
    s.ClassNeg = std::max(s.ClassWebNeg, s.ClassBottomFlange);
}

double shearBucklingFactor(double lambdaW, double Eta, EndPost endPost) {
    if (lambdaW < 0.83 / Eta) return Eta;
    const bool rigidEndPost = endPost != EndPost::NonRigid;
    if (rigidEndPost && lambdaW >= 1.08) return 1.37 / (0.7 + lambdaW);
    return 0.83 / lambdaW;
}

}  // namespace borvik
