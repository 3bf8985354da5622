#include "results/second_opinion_tables.h"

#include <cmath>

#include "exchange/attached.h"
#include "results/table_cells.h"

namespace borvik {
namespace {

std::string kNm(double Nmm) {
    return std::isfinite(Nmm) ? formatNumber(Nmm / 1e6, "0.0") : "infinite";
}

TableCell ratioOf(double ratio) {
    if (!std::isfinite(ratio)) return textCell("-");
    TableCell cell = numberCell(ratio, "0.000");
    if (!isSatisfied(ratio)) cell.emphasis = Emphasis::OverLimit;
    return cell;
}

std::vector<TableCell> bucklingRow(const SpanOpinion& of, bool support) {
    const int index = support ? of.atSupport : of.atLargest;
    const CheckedBuckling& check = *of.checked[support ? 1 : 0];
    const PositionOpinion& position = of.positions[static_cast<std::size_t>(index)];
    const BucklingOfSign& eigen = support ? position.hogging : position.sagging;
    return {textCell(support ? "Lateral torsional buckling, support moment" : "Lateral torsional buckling, largest My"),
            ratioOf(check.ratio), ratioOf(eigen.ratio),
            textCell("Mcr " + kNm(check.Mcr) + " and " + (position.factor ? kNm(eigen.Mcr) : std::string("-")) +
                     " kNm, chiLT " + formatNumber(check.chi, "0.000") + " and " + formatNumber(eigen.chi, "0.000"))};
}

std::vector<std::vector<TableCell>> torsionRows(const PositionOpinion& worst) {
    std::vector<std::vector<TableCell>> rows;
    const std::string where = worst.extremes + ": B = " + formatNumber(worst.B / 1e9, "0.000") +
                              " kNm2, flange moment " + kNm(worst.flangeMoment) + " kNm, rotation " +
                              formatNumber(worst.phi * 1000, "0.00") + " mrad";
    if (worst.annex)
        rows.push_back({textCell("Bending and torsion, EN 1993-6 Annex A"), textCell("-"), ratioOf(worst.annex->ratio),
                        textCell(where)});
    rows.push_back({textCell("Elastic stresses, EN 1993-1-1 6.2.1(5)"), textCell("-"), ratioOf(worst.stresses.ratio),
                    textCell(worst.annex ? formatNumber(worst.stresses.equivalent, "0.0") + " MPa" : where)});
    return rows;
}

}  // namespace

SecondOpinionOptions opinionOptionsOf(const Project& project) {
    const Attached attached = attachedOf(project);
    SecondOpinionOptions options;
    options.freeWarping = attached.freeWarping;
    for (const Attached::LateralSupport& each : attached.lateralSupports)
        options.lateralSupports.push_back({each.span, each.x, each.z});
    return options;
}

ResultTable tableOf(const Project& project, const SecondOpinion& opinion) {
    ResultTable table;
    table.columns = {{"Control", "", ""},
                     {"Ratio of the check", "", "as the summaries have it"},
                     {"Second opinion", "", "the same by finite elements"},
                     {"Numbers", "", "of the check and of the second opinion", true}};
    if (!opinion.fault.empty()) {
        table.rows.push_back({textCell("No second opinion: " + opinion.fault, Emphasis::Note)});
        return table;
    }
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SpanOpinion& of = opinion.spans[static_cast<std::size_t>(span - 1)];
        table.rows.push_back({textCell("Span " + std::to_string(span) + ", " + project.SpanSection(span).DisplayName,
                                       Emphasis::Heading)});
        for (const bool support : {false, true})
            if ((support ? of.atSupport : of.atLargest) >= 0) table.rows.push_back(bucklingRow(of, support));
        if (of.governing < 0) continue;
        for (auto& row : torsionRows(of.positions[static_cast<std::size_t>(of.governing)]))
            table.rows.push_back(std::move(row));
    }
    table.note = "Torsion with warping and buckling by eigenvalue of the whole beam; the ratios of the checks stay.";
    if (opinion.lowestFactor > 0)
        table.note += " Lowest factor on the loads at buckling: " + formatNumber(opinion.lowestFactor, "0.00") + ".";
    if (!opinion.noAnnex.empty()) table.note += " EN 1993-6 Annex A does not apply: " + opinion.noAnnex + ".";
    return table;
}

}  // namespace borvik
