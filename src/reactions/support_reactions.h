#pragma once

#include <vector>

#include "analysis/crane_stand.h"
#include "calculation/session.h"

namespace borvik {

/// Which loads the cranes walked under: with the factors of the ultimate or of the serviceability limit state, or the
/// fatigue load, which has neither dead load nor horizontal loads.
enum class ReactionState { Uls, Sls, Fatigue };

/// Which cranes stand on the beam.
enum class Acting { AllCranes, Crane1, Crane2 };

/// Reactions of one support, kN, upward positive; Ry in the direction of the horizontal wheel loads.
struct SupportForce {
    double Rz = 0, Ry = 0;
};
using SupportForces = std::vector<SupportForce>;  ///< [supports] from 0

/// A wheel on the beam, with the load of its state.
struct PlacedWheel {
    int number = 0;  ///< 1..4 of crane 1, 5..8 of crane 2
    double x = 0;    ///< mm from the first support
    double V = 0, H = 0;
};

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

struct SupportReactions {
    std::vector<ReactionSet> sets;  ///< ULS, SLS, fatigue; of each all cranes, then each alone
    double eccentricity = 0;        ///< of the wheel load on the rail, br/4, mm (EN 1991-3 2.5.2.1(2)); 0 of a monorail
};

/// Reactions for whoever designs brackets and columns: every extreme with the forces that act at the same position at
/// all supports, dead load and cranes apart. The design extremes are those of the calculation; the serviceability limit
/// state and each crane alone are walked here.
/// @param project, results  of one calculation
/// @throws RuntimeFault  on an arithmetic fault
[[nodiscard]] SupportReactions supportReactions(const Project& project, const Results& results);

}  // namespace borvik
