#include "second_opinion/interaction.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace borvik {

CutStresses elasticStresses(const Project& project, const SectionRecord& s, const WarpingSection& w,
                            const CutForces& f) {
    constexpr double kPeak = 1.5;  // of the shear stress in a rectangle
    const TorsionState& t = f.torsion;
    const double zTop = s.h - s.EzEl, zBottom = -s.EzEl;
    const double bendTop = -f.My * zTop / s.Iy, bendBottom = -f.My * zBottom / s.Iy;
    const double sideTop = w.yTop * (f.Mz / s.Iz + w.top * t.B / s.Iw);
    const double sideBottom = w.yBottom * (f.Mz / s.Iz + w.bottom * t.B / s.Iw);
    CutStresses stresses;
    stresses.tips = {bendTop + sideTop, bendTop - sideTop, bendBottom + sideBottom, bendBottom - sideBottom};

    const double perThickness = std::abs(t.Tt) / w.line.It;
    const double flangeShear = std::abs(t.Tw()) / w.flangeDistance();
    const auto middle = [&](double b, double tf, double IzFlange) {
        const double share = IzFlange / (s.IzTop + s.IzBottom);
        return perThickness * tf + kPeak * (flangeShear + std::abs(f.Vy) * share) / (b * tf);
    };
    const double middleTop = middle(s.b1, s.tf1, s.IzTop), middleBottom = middle(s.b2, s.tf2, s.IzBottom);
    stresses.tauFlange = perThickness * s.TfMax;
    stresses.tauMiddle = std::max(middleTop, middleBottom);
    stresses.tauWeb = perThickness * s.tw + std::abs(f.Vz) / (s.Hw * s.tw);
    const double bendWeb = std::abs(f.My) / s.Iy * std::max(zTop - s.tf1, -zBottom - s.tf2);

    const auto consider = [&](double sigma, double tau) {
        stresses.equivalent = std::max(stresses.equivalent, std::sqrt(sigma * sigma + 3 * tau * tau));
    };
    consider(std::max(std::abs(stresses.tips[0]), std::abs(stresses.tips[1])), perThickness * s.tf1);
    consider(std::max(std::abs(stresses.tips[2]), std::abs(stresses.tips[3])), perThickness * s.tf2);
    consider(bendTop, middleTop);
    consider(bendBottom, middleBottom);
    consider(bendWeb, stresses.tauWeb);
    stresses.ratio = stresses.equivalent / (project.fyk / project.GammaM0);
    return stresses;
}

AnnexA annexA(const AnnexAInput& in) {
    AnnexA result{in};
    result.kw = 0.7 - 0.2 * in.B / in.BRd;
    result.kzw = 1 - in.Mz / in.MzRd;
    if (!(in.My < in.Mcr)) {
        result.kalpha = result.ratio = std::numeric_limits<double>::infinity();
        return result;
    }
    result.kalpha = 1 / (1 - in.My / in.Mcr);
    const double warping = std::max(0.0, result.kw) * std::max(0.0, result.kzw) * result.kalpha * in.B / in.BRd;
    const double sum = in.My / in.MbRd + in.CMz * in.Mz / in.MzRd + warping;
    result.ratio = std::max({sum, in.B / in.BRd, in.Mz / in.MzRd});
    return result;
}

}  // namespace borvik
