#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculation/session.h"
#include "second_opinion/buckling.h"
#include "second_opinion/interaction.h"

namespace borvik {

/// A point between two supports of a project's beam that is held sideways. It counts in buckling alone.
struct SpanSupport {
    int span = 1;             ///< from 1
    double a = 0;             ///< mm from the left support of the span
    std::optional<double> z;  ///< mm above the shear centre; the middle of the top flange where none is given
};

struct SecondOpinionOptions {
    std::vector<SpanSupport> lateralSupports;
    bool freeWarping = false;  ///< girders jointed at the supports: their ends warp alone
};

/// Lateral torsional buckling under the largest moment of one sign, positive numbers. Nmm.
struct BucklingOfSign {
    double My = 0;     ///< 0: there is no moment of this sign
    double Mz = 0;     ///< at the place of My, without twist
    double Mcr = 0;    ///< factor My; 0 where these loads can't make the beam buckle
    double chi = 1;    ///< reduction factor of Mcr
    double ratio = 0;  ///< by the formula of the check, with this chi
};

/// A span at one position of the cranes. Moments Nmm, bimoments Nmm2, mm, with the vertical loads to the side that
/// gives the larger ratio.
struct PositionOpinion {
    std::string extremes;  ///< what is extreme in the span there, such as "largest My, largest Mz"
    WalkPosition at;
    double wheel1 = 0;             ///< place of wheel 1, mm from the first support; beyond the beam too
    double eccentricity = 0;       ///< of the vertical loads, with its side
    std::optional<double> factor;  ///< on all loads at buckling; none where these loads can't make the beam buckle
    int bucklingSpan = 0;          ///< the span, from 1, that twists most in that mode
    BucklingOfSign sagging, hogging;
    // Torsion
    double Mz = 0;                  ///< the largest magnitude in the span, twist included
    double B = 0, phi = 0, Tw = 0;  ///< the same: bimoment, rotation, torque of warping
    double flangeMoment = 0;        ///< B over the distance of the flanges, Nmm
    CutForces cut;                  ///< where the elastic stresses are largest
    CutStresses stresses;
    std::optional<AnnexA> annex;                         ///< where it applies
    [[nodiscard]] const BucklingOfSign& larger() const;  ///< of the moment of larger magnitude
    [[nodiscard]] double bucklingRatio() const;
    [[nodiscard]] double ratio() const;  ///< the largest of buckling, elastic stresses and interaction
};

/// The buckling check of the program beside this: 0 the largest positive moment, 1 the most negative support moment.
struct CheckedBuckling {
    double ratio = 0;
    double My = 0, Mcr = 0, chi = 1;  ///< Nmm
};

struct SpanOpinion {
    WarpingSection section;
    std::vector<PositionOpinion> positions;
    std::optional<CheckedBuckling> checked[2];  ///< none where no moment of that sign was reached
    int atLargest = -1, atSupport = -1;         ///< the positions of these two
    int governing = -1;                         ///< the position of the largest ratio; -1 without positions
};

struct SecondOpinion {
    std::vector<SpanOpinion> spans;     ///< from span 1
    std::string noAnnex;                ///< why EN 1993-6 Annex A does not apply; empty where it does
    std::string fault;                  ///< why there is no second opinion; empty where there is one
    std::vector<ModePoint> mode;        ///< buckling at the position of the lowest factor
    std::vector<TorsionState> torsion;  ///< torsion at the position of the largest bimoment over its resistance
    double lowestFactor = 0;            ///< 0 where nothing buckles
    [[nodiscard]] double largestRatio() const;
};

/// What a beam with warping torsion says of a calculated project: torsion, stresses, interaction and lateral torsional
/// buckling by eigenvalue, at the positions of the cranes that give the extremes of My and Mz, the most negative
/// support moment and the largest bimoment of each span. It changes nothing of the results. Input that it can make
/// nothing of is a word in `fault`.
/// @param session  calculated, with results
[[nodiscard]] SecondOpinion secondOpinion(const Session& session, const SecondOpinionOptions& options = {});

}  // namespace borvik
