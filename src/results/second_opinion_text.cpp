#include "results/second_opinion_text.h"

#include <cmath>

#include "base/number_text.h"
#include "project/project.h"
#include "results/text_columns.h"

namespace borvik {

namespace {

std::string number(double value, const char* picture = "0.000") {
    return std::isfinite(value) ? formatNumber(value, picture) : "infinite";
}

std::string kNm(double Nmm) {
    return number(Nmm / 1e6, "0.0");
}

std::string heading(const Session& session, const SpanOpinion& of, int span) {
    const LineSection& s = of.section.line;
    return "Beam: " + std::to_string(span) + ", " + session.project.SpanSection(span).DisplayName +
           ", L = " + number(session.project.Span(span), "0") + " mm, Iz = " + number(s.Iz / 1e4, "0.0") +
           " cm4, It = " + number(s.It / 1e4, "0.0") + " cm4, Iw = " + number(s.Iw / 1e6, "0") +
           " cm6, zj = " + number(s.zj, "0.0") + " mm\n";
}

std::string bucklingTable(const SpanOpinion& of) {
    std::vector<std::vector<std::string>> rows{{"Lateral torsional buckling", "My kNm", "Mcr kNm", "by eigenvalue",
                                                "chiLT", "by eigenvalue", "ratio", "by eigenvalue"}};
    for (const bool support : {false, true}) {
        const int index = support ? of.atSupport : of.atLargest;
        if (index < 0) continue;
        const CheckedBuckling& check = *of.checked[support ? 1 : 0];
        const PositionOpinion& position = of.positions[static_cast<std::size_t>(index)];
        const BucklingOfSign& eigen = support ? position.hogging : position.sagging;
        rows.push_back({support ? "support moment" : "largest My", kNm(check.My), kNm(check.Mcr),
                        position.factor ? kNm(eigen.Mcr) : "-", number(check.chi), number(eigen.chi),
                        number(check.ratio), number(eigen.ratio)});
    }
    return rows.size() > 1 ? textColumns(rows) : "";
}

std::string positionTable(const SpanOpinion& of) {
    std::vector<std::vector<std::string>> rows{{"Position of", "wheel 1 mm", "My kNm", "Mz kNm", "B kNm2", "flange kNm",
                                                "phi mrad", "factor", "in span", "buckling", "Annex A", "elastic"}};
    for (const PositionOpinion& p : of.positions)
        rows.push_back({p.extremes, number(p.wheel1, "0"),
                        kNm(&p.larger() == &p.sagging ? p.sagging.My : -p.hogging.My), number(p.Mz / 1e6, "0.00"),
                        number(p.B / 1e9, "0.000"), number(p.flangeMoment / 1e6, "0.00"), number(p.phi * 1000, "0.00"),
                        p.factor ? number(*p.factor, "0.00") : "-", p.factor ? std::to_string(p.bucklingSpan) : "-",
                        number(p.bucklingRatio()), p.annex ? number(p.annex->ratio) : "-", number(p.stresses.ratio)});
    return textColumns(rows);
}

std::string annexLines(const AnnexA& annex) {
    const AnnexAInput& in = annex.of;
    return "  EN 1993-6 Annex A: " + kNm(in.My) + "/" + kNm(in.MbRd) + " + " + number(in.CMz, "0.00") + "*" +
           number(in.Mz / 1e6, "0.00") + "/" + kNm(in.MzRd) + " + " + number(annex.kw) + "*" + number(annex.kzw) + "*" +
           number(annex.kalpha) + "*" + number(in.B / 1e9) + "/" + number(in.BRd / 1e9) + " = " + number(annex.ratio) +
           "\n    kw = 0.7 - 0.2 B/BRd, kzw = 1 - Mz/Mz,Rd, kalpha = 1/(1 - My/Mcr), Mcr = " + kNm(in.Mcr) + " kNm\n";
}

std::string elasticLines(const PositionOpinion& position, double start, double strength) {
    const CutStresses& s = position.stresses;
    const TorsionState& t = position.cut.torsion;
    return "  EN 1993-1-1 6.2.1(5) at x = " + number(t.x - start, "0") + " mm: My = " + kNm(position.cut.My) +
           " kNm, Mz = " + number(position.cut.Mz / 1e6, "0.00") + " kNm, B = " + number(t.B / 1e9) +
           " kNm2, St Venant " + number(t.Tt / 1e6, "0.00") + " kNm, warping " + number(t.Tw() / 1e6, "0.00") +
           " kNm\n    tips of the top flange " + number(s.tips[0], "0.0") + " and " + number(s.tips[1], "0.0") +
           ", of the bottom flange " + number(s.tips[2], "0.0") + " and " + number(s.tips[3], "0.0") + " MPa; shear " +
           number(s.tauFlange, "0.0") + " at the tips, " + number(s.tauMiddle, "0.0") + " in a flange's middle, " +
           number(s.tauWeb, "0.0") + " MPa in the web\n    " + number(s.equivalent, "0.0") + "/" +
           number(strength, "0.0") + " = " + number(s.ratio) + "\n";
}

}  // namespace

std::string secondOpinionText(const Session& session, const SecondOpinion& opinion) {
    if (!session.Calculated || !session.results) return "No second opinion without results\n";
    if (!opinion.fault.empty()) return "No second opinion: " + opinion.fault + "\n";
    const Project& project = session.project;
    std::string text = "Second opinion: torsion with warping, lateral torsional buckling by eigenvalue\n";
    if (opinion.lowestFactor > 0)
        text += "Lowest factor on the loads at buckling: " + number(opinion.lowestFactor, "0.00") + "\n";
    text += "Largest ratio: " + number(opinion.largestRatio()) + "\n";
    if (!opinion.noAnnex.empty())
        text += "EN 1993-6 Annex A does not apply: " + opinion.noAnnex + ". The elastic check stands alone.\n";
    double start = 0;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SpanOpinion& of = opinion.spans[static_cast<std::size_t>(span - 1)];
        text += "\n" + heading(session, of, span);
        if (of.governing >= 0) {
            const PositionOpinion& worst = of.positions[static_cast<std::size_t>(of.governing)];
            text += bucklingTable(of) + positionTable(of) + "  Governing: " + worst.extremes + ", loads " +
                    number(worst.eccentricity, "0.0") + " mm beside the web\n";
            if (worst.annex) text += annexLines(*worst.annex);
            text += elasticLines(worst, start, project.fyk / project.GammaM0);
        } else {
            text += "  no load reaches this span\n";
        }
        start += project.Span(span);
    }
    return text;
}

}  // namespace borvik
