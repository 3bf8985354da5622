#pragma once

#include "analysis/results.h"
#include "fatigue/crane_factors.h"
#include "fatigue/fatigue_results.h"
#include "project/project.h"

namespace borvik {

/// Area that carries a reaction into the web.
enum class SupportArea {
    StiffenedWeb,             ///< web over the bearing length and stiffener, or their fillet welds (W3, Fat6d1, WS1t)
    StiffenedWebRolledWhole,  ///< the same, but a rolled section has no fillet between web and flange: its web counts
    HangerPlate,  ///< plate of a monorail's hanger, or its fillet welds (RW1, RWS1d, RWS1t); one for all supports
};

/// How the stress histories of the runs differ, beside their set and factors.
struct History {
    const char* name;
    SupportArea area;
};

/// Crane 1 alone knows that a rolled section has no weld at the web's foot; the histories of crane 2 and of both cranes
/// take its fillet weld for every section. With a throat below half the web that is on the safe
/// side: note G18.
inline constexpr History StressHistoryCr1{"Stress history of crane 1", SupportArea::StiffenedWebRolledWhole};
inline constexpr History StressHistoryCr2{"Stress history of crane 2", SupportArea::StiffenedWeb};
inline constexpr History StressHistoryCr12{"Stress history of both cranes", SupportArea::StiffenedWeb};
inline constexpr History StressHistoryMonorail{"Stress history of the monorail", SupportArea::HangerPlate};

/// The stresses at a point of a span, MPa, from its forces at one position of the cranes; tension positive, damage
/// equivalence factors LamSig and LamTau included.
class PointStress {
public:
    PointStress(const SectionRecord& section, const CraneFactors& factors);
    /// At the extreme fibres of the flanges. @param My Nmm, sagging positive
    [[nodiscard]] Single topFlange(double My) const;
    [[nodiscard]] Single bottomFlange(double My) const;
    /// Mean shear stress of the web. @param Vz N
    [[nodiscard]] Single web(double Vz) const;

private:
    double zt_, zb_, Iy_, webArea_, LamSig_, LamTau_;
};

/// Turns the extremes of one fatigue walk into stresses, MPa, times the damage equivalence factors LamSig (Sig, SigSup)
/// and LamTau (Tau) of `factors`: at the points of the spans, at the supports, and the peak of each table in each span.
/// Range = |max - min|. A peak starts at 0, so that the smallest of a table of positive values only is 0 at x = 0.
/// @throws RuntimeFault  naming history and span, on an arithmetic fault (a support area of zero)
[[nodiscard]] StressSet stressHistory(const History& history, const Project& project, const FlsResults& fls,
                                      const CraneFactors& factors);

/// The area that carries a reaction, mm2, at a support 1..NofSpans + 1.
[[nodiscard]] double supportArea(SupportArea area, const Project& project, int support);

/// The span whose section counts at a support of an overhead crane's girder: of its two neighbours the one with the
/// larger Iy, the left one at a tie. @param support  1..NofSpans + 1
[[nodiscard]] int strongerSpanAtSupport(const Project& project, int support);

}  // namespace borvik
