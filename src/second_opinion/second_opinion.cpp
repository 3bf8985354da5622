#include "second_opinion/second_opinion.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "checks/ltb_checks.h"
#include "second_opinion/solved_positions.h"

namespace borvik {

namespace {

/// The positions of a span that are looked at, each once.
std::vector<PositionOpinion> positionsOf(const UlsPositions& at, int span, const LargestBimoment& bimoment) {
    std::vector<PositionOpinion> positions;
    const auto add = [&](WalkPosition position, const char* extreme) {
        if (!position.isKnown()) return;
        const auto same = std::find_if(positions.begin(), positions.end(),
                                       [&](const PositionOpinion& each) { return each.at == position; });
        if (same != positions.end()) {
            same->extremes += std::string(", ") + extreme;
            return;
        }
        PositionOpinion fresh;
        fresh.extremes = extreme;
        fresh.at = position;
        positions.push_back(fresh);
    };
    add(at.MyMax(span, kWholeSpan), "largest My");
    if (at.MySupport.has(span)) add(at.MySupport(span), "support moment");
    add(at.MyMin(span, kWholeSpan), "smallest My");
    add(at.MzMax(span, kWholeSpan), "largest Mz");
    add(at.MzMin(span, kWholeSpan), "smallest Mz");
    add(bimoment.at, "largest bimoment");
    return positions;
}

/// Why the interaction formula does not hold for this beam.
std::string outsideAnnexA(const Project& project) {
    if (project.NofSpans > 1) return "the beam is continuous";
    if (!WarpingSection(project.SpanSection(1)).equalFlanges) return "the flanges are unequal";
    if (project.SpanSection(1).ClassPos == 4) return "the section is of class 4";
    return "";
}

/// Everything of one project that the positions have in common.
class Opinions {
public:
    Opinions(const Session& session, const SecondOpinionOptions& options)
        : session_(session), project_(session.project), solver_(session, options) {}

    [[nodiscard]] SecondOpinion all() {
        SecondOpinion opinion;
        opinion.noAnnex = outsideAnnexA(project_);
        const UlsPositions& at = session_.results->Uls.At;
        const std::vector<LargestBimoment> bimoments = solver_.largestBimoments();
        double largestShare = 0;
        for (int span = 1; span <= project_.NofSpans; ++span) {
            SpanOpinion of{WarpingSection(section(span)), {}, {}};
            of.positions = positionsOf(at, span, bimoments[static_cast<std::size_t>(span - 1)]);
            double largest = -1;
            for (PositionOpinion& position : of.positions) {
                const SolvedBeam& solved = solver_.at(position.at);
                fillBuckling(position, solved, span);
                const std::size_t side = fillTorsion(position, solved, span, of.section, opinion.noAnnex.empty());
                const auto index = static_cast<int>(&position - of.positions.data());
                if (position.ratio() > largest) {
                    largest = position.ratio();
                    of.governing = index;
                }
                if (position.at == at.MyMax(span, kWholeSpan)) of.atLargest = index;
                if (at.MySupport.has(span) && position.at == at.MySupport(span)) of.atSupport = index;
                if (position.factor && (opinion.lowestFactor == 0 || *position.factor < opinion.lowestFactor)) {
                    opinion.lowestFactor = *position.factor;
                    opinion.mode = solved.buckling->mode;
                }
                const double share = position.B / bimomentResistance(of.section, span);
                if (share > largestShare) {
                    largestShare = share;
                    opinion.torsion = solved.torsion[side];
                }
            }
            fillChecked(of, span);
            opinion.spans.push_back(std::move(of));
        }
        return opinion;
    }

private:
    [[nodiscard]] const SectionRecord& section(int span) const { return project_.SpanSection(span); }
    /// Of class 3 and 4 two thirds of the plastic resistance of a rectangle, as in Mz,Rd.
    [[nodiscard]] double elasticShare(int span) const { return section(span).ClassPos > 2 ? 1 / 1.5 : 1; }
    [[nodiscard]] double bimomentResistance(const WarpingSection& warping, int span) const {
        return project_.fyk * warping.WplFlange * warping.flangeDistance() * elasticShare(span) / project_.GammaM1;
    }
    [[nodiscard]] double C1Of(int span, bool positive) const {
        if (positive) return positiveFactors(project_, span).C1;
        const auto factors = negativeFactors(project_, span, session_.results->Uls.MySupportSpan);
        return factors ? factors->C1 : 1;
    }

    void fillBuckling(PositionOpinion& position, const SolvedBeam& solved, int span) const {
        const auto i = static_cast<std::size_t>(span - 1);
        const double L = project_.Span(span);
        position.wheel1 = solved.wheel1;
        if (solved.buckling) {
            position.factor = solved.buckling->factor;
            position.bucklingSpan = spanOfMode(solved.buckling->mode);
        }
        for (int k = 0; k < kPoints; ++k) {
            const double x = L * k / (kPoints - 1), My = solved.vertical[i].moment(x, L);
            BucklingOfSign& of = My > 0 ? position.sagging : position.hogging;
            if (std::abs(My) <= of.My) continue;
            of.My = std::abs(My);
            of.Mz = std::abs(solved.horizontal[i].moment(x, L));
        }
        for (const bool positive : {true, false}) {
            BucklingOfSign& of = positive ? position.sagging : position.hogging;
            if (of.My == 0) continue;
            if (position.factor) {
                of.Mcr = of.My * *position.factor;
                of.chi = ltbReduction(project_, span, positive, Single(of.Mcr), C1Of(span, positive));
            }
            of.ratio = ltbRatio(LtbResistance(project_, span, positive), Single(of.My / 1e6), Single(of.Mz / 1e6),
                                Single(of.chi));
        }
    }

    [[nodiscard]] int spanOfMode(const std::vector<ModePoint>& mode) const {
        const auto most = std::max_element(mode.begin(), mode.end(), [](const ModePoint& a, const ModePoint& b) {
            return std::abs(a.phi) < std::abs(b.phi);
        });
        int span = 1;
        while (span < project_.NofSpans && most->x > solver_.beam().supportAt(static_cast<std::size_t>(span))) ++span;
        return span;
    }

    /// @return  the side of the vertical loads that counts: 0 where they turn the top flange to +y
    std::size_t fillTorsion(PositionOpinion& position, const SolvedBeam& solved, int span,
                            const WarpingSection& warping, bool withAnnex) const {
        std::size_t worse = 0;
        for (const std::size_t side : {std::size_t{0}, std::size_t{1}}) {
            PositionOpinion other = position;
            other.eccentricity = (side == 0 ? 1 : -1) * solver_.torques().eccentricity();
            lookAlong(other, solved, solved.torsion[side], span, warping);
            if (withAnnex) other.annex = interaction(other, span, warping);
            if (side == 0 || other.ratio() > position.ratio()) {
                position = other;
                worse = side;
            }
        }
        return worse;
    }

    void lookAlong(PositionOpinion& position, const SolvedBeam& solved, const std::vector<TorsionState>& states,
                   int span, const WarpingSection& warping) const {
        const auto i = static_cast<std::size_t>(span - 1);
        const double L = project_.Span(span), start = solver_.beam().supportAt(i);
        const auto keep = [](double& largest, double value) { largest = std::max(largest, std::abs(value)); };
        for (std::size_t n = 0; n < states.size(); ++n) {
            if (solver_.spanOf(states, n) != i) continue;
            const double x = std::clamp(states[n].x - start, 0.0, L);
            const bool atLeftEnd = n % 2 == 0;  // of its element: right of a load at the node
            CutForces cut;
            cut.torsion = states[n];
            cut.My = solved.vertical[i].moment(x, L);
            cut.Vz = solved.vertical[i].shear(x, L, atLeftEnd);
            cut.Mz = solved.horizontal[i].moment(x, L) + cut.My * states[n].phi;
            cut.Vy = solved.horizontal[i].shear(x, L, atLeftEnd);
            keep(position.Mz, cut.Mz);
            keep(position.B, states[n].B);
            keep(position.phi, states[n].phi);
            keep(position.Tw, states[n].Tw());
            const CutStresses stresses = elasticStresses(project_, section(span), warping, cut);
            if (!(stresses.ratio > position.stresses.ratio)) continue;
            position.stresses = stresses;
            position.cut = cut;
        }
        position.flangeMoment = position.B / warping.flangeDistance();
    }

    [[nodiscard]] AnnexA interaction(const PositionOpinion& position, int span, const WarpingSection& warping) const {
        const BucklingOfSign& buckling = position.larger();
        AnnexAInput in;
        in.My = buckling.My;
        in.Mz = position.Mz;
        in.B = position.B;
        in.MbRd = buckling.chi * LtbResistance(project_, span, &buckling == &position.sagging).My * 1e6;
        in.MzRd = project_.fyk * warping.WplZ * elasticShare(span) / project_.GammaM1;
        in.BRd = bimomentResistance(warping, span);
        in.Mcr = position.factor ? buckling.Mcr : HUGE_VAL;
        return annexA(in);
    }

    void fillChecked(SpanOpinion& of, int span) const {
        const UlsResults& uls = session_.results->Uls;
        const CheckResult& rows = session_.results->Checks["Ltb"];
        const auto checked = [&](bool positive, double My, const std::optional<CFactors>& factors) {
            CheckedBuckling found;
            found.ratio = rows.extremes[positive ? 0 : 1](span).Ratio;
            found.My = My;
            if (factors) {
                found.Mcr = criticalMoment(project_, span, positive, *factors);
                found.chi = ltbReduction(project_, span, positive, *factors);
            }
            return found;
        };
        if (of.atLargest >= 0) of.checked[0] = checked(true, uls.MyMaxSpan(span, 1), positiveFactors(project_, span));
        if (of.atSupport >= 0)
            of.checked[1] =
                checked(false, uls.MySupportSpan(span, 1), negativeFactors(project_, span, uls.MySupportSpan));
    }

    const Session& session_;
    const Project& project_;
    SolvedPositions solver_;
};

}  // namespace

const BucklingOfSign& PositionOpinion::larger() const {
    return sagging.My >= hogging.My ? sagging : hogging;
}

double PositionOpinion::bucklingRatio() const {
    return std::max(sagging.ratio, hogging.ratio);
}

double PositionOpinion::ratio() const {
    return std::max({bucklingRatio(), stresses.ratio, annex ? annex->ratio : 0});
}

double SecondOpinion::largestRatio() const {
    double largest = 0;
    for (const SpanOpinion& span : spans)
        for (const PositionOpinion& position : span.positions) largest = std::max(largest, position.ratio());
    return largest;
}

SecondOpinion secondOpinion(const Session& session, const SecondOpinionOptions& options) {
    SecondOpinion opinion;
    try {
        const ArithmeticFlags flags;
        opinion = Opinions(session, options).all();
        flags.check();
    } catch (const RuntimeFault& fault) {
        opinion = {};
        opinion.fault = fault.what();
    }
    return opinion;
}

}  // namespace borvik
