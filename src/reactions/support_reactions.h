#pragma once

#include <vector>

#include "analysis/crane_stand.h"
#include "calculation/session.h"
#include "reactions/joint.h"

namespace borvik {

/// Which loads the cranes walked under: with the factors of the ultimate or of the serviceability limit state, or the
/// fatigue load, which has neither dead load nor horizontal loads.
enum class ReactionState { Uls, Sls, Fatigue };

/// Which cranes stand on the beam.
enum class Acting { AllCranes, Crane1, Crane2 };

/// The position of the cranes at which a reaction is largest or smallest, and what acts together there.
struct ReactionCase {
    int support = 1;  ///< whose reaction it is, 1 the leftmost
    Effect effect = Effect::Rz;
    bool largest = true;
    bool ofCranesAlone = false;  ///< the dead load keeps the whole from changing its sign: extreme of the cranes' part
    WalkPosition at;             ///< in the walk of its set
    std::vector<PlacedWheel> wheels;
    SupportForces total;         ///< of its state, factors included: the walk's own numbers, to the bit
    SupportForces dead;          ///< characteristic dead load G; empty in fatigue, as are the next two
    SupportForces crane;         ///< characteristic crane loads Q without dynamic factors
    SupportForces craneDynamic;  ///< characteristic crane loads with dynamic factors

    /// The extreme itself, kN.
    [[nodiscard]] double value() const {
        const SupportForce& own = total[static_cast<std::size_t>(support - 1)];
        return effect == Effect::Rz ? own.Rz : own.Ry;
    }
};

/// All extremes of one walk: of each support Rz largest and smallest, then Ry; what no position reaches is left out.
struct ReactionSet {
    ReactionState state = ReactionState::Uls;
    Acting acting = Acting::AllCranes;
    WalkOf walk = WalkOf::Uls;  ///< in which a position of the set is found again
    bool walkedAnew = false;    ///< by a walk of its own, whose positions only this set knows
    std::vector<ReactionCase> cases;
};

/// An end support on which a neighbouring beam ends too.
struct JointReactions {
    int support = 1;
    bool mirrored = true;  ///< the neighbour is the same beam, seen from its other side
    std::vector<JointCase> cases;
};

struct SupportReactions {
    std::vector<ReactionSet> sets;       ///< ULS, SLS, fatigue; of each all cranes, then each alone
    std::vector<JointReactions> joints;  ///< at both ends; none where the cranes stand still
    double eccentricity = 0;  ///< of the wheel load on the rail, br/4, mm (EN 1991-3 2.5.2.1(2)); 0 of a monorail
};

/// Reactions for whoever designs brackets and columns: every extreme with the forces that act at the same position at
/// all supports, dead load and cranes apart. The design extremes are those of the calculation; the serviceability limit
/// state and each crane alone are walked here.
/// @param project, results  of one calculation
/// @param neighbour  the beam beyond either end; null: the same beam mirrored
/// @throws RuntimeFault  on an arithmetic fault
[[nodiscard]] SupportReactions supportReactions(const Project& project, const Results& results,
                                                const JoinedBeam* neighbour = nullptr);

}  // namespace borvik
