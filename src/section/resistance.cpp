#include "section/resistance.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace borvik {

namespace {

/// Greatest c/t of classes 1, 2 and 3 over epsilon, EN 1993-1-1 Table 5.2.
struct ClassLimits {
    double class1, class2, class3;
};
constexpr ClassLimits kOutstand{9.0, 10.0, 14.0};
constexpr ClassLimits kInternal{33.0, 38.0, 42.0};

/// Limit and ratio are compared as stored numbers, so that a plate exactly at its limit is found to be there.
bool reaches(Single limit, Single ratio) {
    return limit >= ratio;
}

/// Class of a plate that is wholly in compression. Exactly at the last limit it is class 4, the safe side.
std::int16_t compressedPlate(const ClassLimits& limits, double e, Single ratio) {
    if (reaches(limits.class1 * e, ratio)) return 1;
    if (reaches(limits.class2 * e, ratio)) return 2;
    return Single(limits.class3 * e) > ratio ? 3 : 4;
}

/// Class of a web with the plastic axis within it.
/// @param alpha  compressed part of its width, plastic
/// @param psi    stress at the edge in tension over that at the compressed edge, elastic
std::int16_t bentWeb(double alpha, double psi, double e, Single ratio) {
    const bool class3InTension = psi <= -1.0 && reaches(62.0 * e * (1.0 - psi) * std::sqrt(-psi), ratio);
    if (alpha > 0.5) {
        if (reaches(396.0 * e / (13.0 * alpha - 1.0), ratio)) return 1;
        if (reaches(456.0 * e / (13.0 * alpha - 1.0), ratio)) return 2;
        if (psi > -1.0) return reaches(42.0 * e / (0.67 + 0.33 * psi), ratio) ? 3 : 4;
    } else {
        if (alpha < 0.0) return 1;
        if (reaches(36.0 * e / alpha, ratio)) return 1;
        if (reaches(41.5 * e / alpha, ratio)) return 2;
        // A web that is compressed over less than half of its width is never class 4 while psi > -1: the limit
        // 42 e/(0.67 + 0.33 psi) isn't asked here (theory manual, B4).
        if (psi > -1.0) return 3;
    }
    return class3InTension ? 3 : 4;
}

void classifyWeb(double e, SectionRecord& s) {
    const Single ratio = s.CWeb / s.tw;
    s.WebFatigueClass = ratio >= 120.0 ? 4 : 1;

    const double zt = s.h - s.tf1 - s.R;
    const double zb = s.R + s.tf2;
    if (s.EzPl >= zt) {
        s.ClassWebPos = 1;
        s.ClassWebNeg = compressedPlate(kInternal, e, ratio);
    } else if (s.EzPl <= zb) {
        s.ClassWebPos = compressedPlate(kInternal, e, ratio);
        s.ClassWebNeg = 1;
    } else {
        const double above = zt - s.EzEl;
        const double below = s.EzEl - zb;
        s.ClassWebPos = bentWeb((zt - s.EzPl) / s.CWeb, -below / above, e, ratio);
        s.ClassWebNeg = bentWeb((s.EzPl - zb) / s.CWeb, -above / below, e, ratio);
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

void setMomentResistances(const SectionSetting& setting, SectionRecord& s) {
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
}

void setShearResistances(const SectionSetting& setting, SectionRecord& s) {
    const double tau = setting.fyk / std::numbers::sqrt3;
    s.VplRd = tau * s.Av / setting.GammaM0 / 1000.0;  // EN 1993-1-1 (6.18)
    if (72.0 * setting.Epsilon / setting.Eta > s.Hw / s.tw) {
        s.VzRd = s.VplRd;
    } else {
        const double lambdaW =
            s.Hw / 86.4 / setting.Epsilon / s.tw;  // EN 1993-1-5 (5.5), stiffeners at the supports only
        const double chi = shearBucklingFactor(lambdaW, setting.Eta, setting.StiffenerMode);
        s.VzRd = s.tw * s.Hw * chi * setting.fyk / std::numbers::sqrt3 / setting.GammaM1 / 1000.0;  // (5.2)
    }
}

}  // namespace

void SectionResistance(const SectionSetting& setting, SectionRecord& s) {
    if (s.Reinforced) ReinforcedProperties(setting, s);
    Classify(setting.Epsilon, s);
    if (s.ClassPos == 4 || s.ClassNeg == 4) EffectiveSection(setting.Epsilon, s);
    setMomentResistances(setting, s);
    setShearResistances(setting, s);
}

void Classify(double e, SectionRecord& s) {
    // The plates of a reinforced section hold the tips of the top flange, which so becomes an internal part.
    s.ClassTopFlange = compressedPlate(s.Reinforced ? kInternal : kOutstand, e, s.CTop / s.tf1);
    s.ClassBottomFlange = compressedPlate(kOutstand, e, s.CBottom / s.tf2);
    classifyWeb(e, s);
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
