#include "section/properties.h"

#include "base/number_text.h"
#include "section/geometry.h"

namespace borvik {

namespace {

void setWidths(SectionRecord& s) {
    s.TfMax = s.tf2 > s.tf1 ? s.tf2 : s.tf1;
    s.Hw = s.h - s.tf1 - s.tf2;
    s.CWeb = s.Hw - 2.0 * s.R;
    s.CTop = s.b1 / 2.0 - s.R - s.tw / 2.0;
    s.CBottom = s.b2 / 2.0 - s.R - s.tw / 2.0;
}

void setElasticModuli(SectionRecord& s) {
    s.Wely1 = s.Iy / (s.h - s.EzEl);
    s.Wely2 = s.Iy / s.EzEl;
    s.WelMin = s.Wely1 >= s.Wely2 ? s.Wely2 : s.Wely1;
}

void setFlangeProperties(SectionRecord& s) {
    s.IzTop = s.tf1 * cube(s.b1) / 12.0;
    s.IzBottom = s.tf2 * cube(s.b2) / 12.0;
    s.WplZTop = square(s.b1) * s.tf1 / 4.0;
    s.WplZBottom = square(s.b2) * s.tf2 / 4.0;
}

void setLoadedFlange(const SectionSetting& setting, SectionRecord& s) {
    s.IzLoadedFlange = setting.CraneType == CraneKind::Overhead ? s.IzTop : s.IzBottom;
}

/// zj of one sign of the moment, beta being the compressed flange's part of the second moment about z.
double monosymmetryTerm(double beta, double hs) {
    const double c = beta > 0.5 ? 0.4 : 0.5;
    return c * (2.0 * beta - 1.0) * hs;
}

/// The two flanges as they take part in warping.
struct WarpingFlanges {
    double hs;            ///< distance between their middle planes, mm
    double beta1, beta2;  ///< part of the top and of the bottom flange in IzTop + IzBottom
};

WarpingFlanges warpingFlanges(const SectionRecord& s) {
    return {s.h - s.tf1 / 2.0 - s.tf2 / 2.0, s.IzTop / (s.IzTop + s.IzBottom), s.IzBottom / (s.IzTop + s.IzBottom)};
}

/// Warping constant, shear centre, level of the load and monosymmetry terms of a section whose flanges may differ.
void setShearCentre(const SectionSetting& setting, SectionRecord& s) {
    const auto [hs, beta1, beta2] = warpingFlanges(s);
    s.Iw = square(hs) * s.IzTop * s.IzBottom / (s.IzTop + s.IzBottom);
    s.Zs = hs * beta1 + s.tf2 / 2.0 - s.EzEl;
    switch (setting.LoadLevel) {
        case LoadPoint::TopOfRail:
            s.Zg = s.h - s.EzEl + setting.RailHr - s.Zs;
            break;
        case LoadPoint::TopFlange:
            s.Zg = s.h - s.EzEl - s.Zs;
            break;
        case LoadPoint::ShearCentre:
            s.Zg = 0.0;
            break;
        default:
            s.Zg = -(s.EzEl - s.tf2 + s.Zs);
    }
    s.ZjPos = monosymmetryTerm(beta1, hs);
    s.ZjNeg = monosymmetryTerm(beta2, hs);
}

std::string weldedName(const SectionRecord& s) {
    const auto text = [](Single number) { return generalText(number); };
    std::string name = s.Id + " " + text(s.h) + "x" + text(s.b1);
    if (s.Id == "Iu") name += "x" + text(s.b2);
    name += "x" + text(s.tw) + "x" + text(s.tf1);
    if (s.Id == "Iu") name += "x" + text(s.tf2);
    return name;
}

}  // namespace

void RolledProperties(const SectionSetting& setting, SectionRecord& s) {
    if (s.Reinforced) s.DisplayName += s.ReinfSuffix;
    setWidths(s);
    s.EzPl = s.h / 2.0;
    switch (setting.LoadLevel) {
        case LoadPoint::TopOfRail:
            s.Zg = s.h / 2.0 + setting.RailHr;
            break;
        case LoadPoint::TopFlange:
            s.Zg = s.h / 2.0;
            break;
        case LoadPoint::ShearCentre:
            s.Zg = 0.0;
            break;
        default:
            s.Zg = -(s.h / 2.0 - s.tf2);
    }
    s.ZjPos = 0.0;
    s.ZjNeg = 0.0;
    // 6.2.6(3)a without its lower bound eta Hw tw, which is left out on the safe side.
    s.Av = s.A - 2.0 * s.b1 * s.tf1 + (2.0 * s.R + s.tw) * s.tf1;
    s.EzEl = s.h / 2.0;
    setElasticModuli(s);
    setFlangeProperties(s);
    setLoadedFlange(setting, s);
}

void WeldedProperties(const SectionSetting& setting, SectionRecord& s) {
    if (s.Id != "Iu") {
        s.b2 = s.b1;
        s.tf2 = s.tf1;
    }
    s.DisplayName = weldedName(s);
    if (s.Reinforced) s.DisplayName += s.ReinfSuffix;

    s.R = 0.4 * s.tw;  // the weld; it narrows every flat width
    setWidths(s);
    s.Av = setting.Eta * s.Hw * s.tw;  // 6.2.6(3)d
    // Both flanges are given the width of the top one: an unequal
    // bottom flange changes It by its thickness only. Note B2.
    s.It = (cube(s.tf2) * s.b1 + cube(s.tf1) * s.b1 + cube(s.tw) * s.Hw) / 3.0;
    const PlasticProperties plastic = PlasticAxis(s);
    s.EzPl = plastic.EzPl;
    s.Wply = plastic.Wply;
    s.A = s.b2 * s.tf2 + s.tf1 * s.b1 + (s.h - s.tf1 - s.tf2) * s.tw;
    s.EzEl = Centroid(s);
    s.Iy = SecondMomentY(plateStrips(s), s.EzEl);
    s.Iz = SecondMomentZ(s);
    s.GIt = TorsionStiffness(s);
    s.EIw = WarpingStiffness(s);
    s.Weight = WeightPerMetre(s);
    setFlangeProperties(s);
    setElasticModuli(s);
    setShearCentre(setting, s);
    setLoadedFlange(setting, s);
}

void ReinforcedProperties(const SectionSetting& setting, SectionRecord& s) {
    const double d = s.ReinfD;
    const double t = s.ReinfT;
    const double Ar = 2.0 * d * t;
    const double zr = s.h - s.tf1 / 2.0 - d / 2.0;

    const double ez = (s.EzEl * s.A + Ar * zr) / (s.A + Ar);
    s.Iy = s.Iy + 2.0 * t * cube(d) / 12.0 + square(s.EzEl - ez) * s.A + Ar * square(zr - ez);
    s.A += Ar;
    s.EzEl = ez;
    setElasticModuli(s);

    s.It += (2.0 / 3.0) * cube(t) * d;
    const double Izr = 2.0 * (cube(t) * d / 12.0 + square(s.b1 / 2.0 + t / 2.0) * t * d);
    s.Iz += Izr;
    s.IzTop += Izr;

    setShearCentre(setting, s);
    const auto [hs, beta1, beta2] = warpingFlanges(s);
    // The warping constant here, without the factor E that a section without plates has; no check reads it.
    s.EIw = square((1.0 - beta1) * hs) * s.IzTop + square(beta1 * hs) * s.IzBottom;
    setLoadedFlange(setting, s);
    s.WplZTop += (s.b1 + t) * Ar / 2.0;

    const double upperHalf = s.tf1 / 2.0;  // of the top flange, above the plates
    const double hanging = d - upperHalf;  // of the plates, below the top flange
    const std::array<Strip, 5> strips{{
        {s.b1, upperHalf, s.h - upperHalf},
        {s.b1 + 2.0 * t, upperHalf, s.h - s.tf1},
        {s.tw + 2.0 * t, hanging, s.h - upperHalf - d},
        {s.tw, s.Hw - hanging, s.tf2},
        {s.b2, s.tf2, 0.0},
    }};
    const PlasticProperties plastic = plasticAxisBySearch(strips);
    s.EzPl = plastic.EzPl;
    s.Wply = plastic.Wply;
}

}  // namespace borvik
