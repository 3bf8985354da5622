#include "reactions/support_reactions.h"

#include <algorithm>
#include <optional>

#include "analysis/driven_cranes.h"
#include "analysis/walk.h"
#include "base/units.h"
#include "calculation/calculation.h"
#include "project/loads.h"
#include "reactions/parts.h"

namespace borvik {

namespace {

/// Extremes of the reactions of one walk, upward positive at every support.
struct Extremes {
    struct Column {
        Effect effect;
        bool largest;
        Array<WalkPosition> at;  ///< [1..supports]
    };
    std::vector<Column> columns;
};

Extremes extremesOf(const UlsPositions& at) {
    return {{{Effect::Rz, true, at.RzMax},
             {Effect::Rz, false, at.RzMin},
             {Effect::Ry, true, at.RyMax},
             {Effect::Ry, false, at.RyMin}}};
}

/// A fatigue walk keeps the last reaction with the sign of the shear.
Extremes extremesOf(const FlsPositions& at) {
    Extremes extremes{{{Effect::Rz, true, at.RzMax}, {Effect::Rz, false, at.RzMin}}};
    const int last = at.RzMax.last();
    std::swap(extremes.columns[0].at(last), extremes.columns[1].at(last));
    return extremes;
}

/// The project with one of its cranes: crane 2 takes the places of the wheels of crane 1.
Project aloneOn(const Project& project, Acting crane) {
    Project alone = project;
    if (crane == Acting::Crane2) {
        for (int w = 1; w <= 4; ++w) {
            alone.V(w) = project.V(w + 4);
            alone.H(w) = project.H(w + 4);
        }
        for (int gap = 1; gap <= 3; ++gap) alone.Avst(gap) = project.Avst(gap + 3);
        alone.PsiV1 = project.PsiV2;
        alone.PsiH1 = project.PsiH2;
        alone.CraneLength1 = project.CraneLength2;
        if (project.Fixerad) alone.Position += project.CraneLength1 + project.MinAvst;
    }
    for (int w = 5; w <= 8; ++w) alone.V(w) = alone.H(w) = 0.0;
    for (int gap = 4; gap <= 6; ++gap) alone.Avst(gap) = 0.0;
    alone.NofCranes = 1;
    alone.MinAvst = alone.CraneLength2 = 0.0;
    alone.CranesLength = alone.CraneLength1;
    return alone;
}

/// The reactions of a beam under the parts of the loads of one walk, at any of its positions.
class Parts {
public:
    /// @param characteristic  dead load and wheels without factors; none: a fatigue walk, which has no parts
    Parts(const Project& project, const RunLoads& walked, const std::optional<RunLoads>& characteristic, Acting acting)
        : supports_(project.NofSpans + 1),
          firstWheel_(acting == Acting::Crane2 ? 5 : 1),
          total_(project, walked, characteristic.has_value()) {
        if (!characteristic) return;
        RunLoads cranes = withoutDeadLoad(*characteristic);
        setCharacteristicWheels(project, false, cranes);
        crane_.emplace(project, cranes, true);
        setCharacteristicWheels(project, true, cranes);
        craneDynamic_.emplace(project, cranes, true);
        dead_ = forcesOf(DrivenCranes(project, withoutWheels(*characteristic), false));
    }

    void solve(ReactionCase& of) {
        total_.standAt(of.at);
        of.total = forcesOf(total_);
        for (int w = 1; w <= 8; ++w) {
            const Wheel& wheel = total_.wheels()[static_cast<std::size_t>(w)];
            const double H = total_.hasHorizontal() ? double{wheel.H} : 0.0;
            if (wheel.V != 0 || H != 0) of.wheels.push_back({w + firstWheel_ - 1, total_.place(w), wheel.V, H});
        }
        if (!crane_) return;
        crane_->standAt(of.at);
        craneDynamic_->standAt(of.at);
        of.dead = dead_;
        of.crane = forcesOf(*crane_);
        of.craneDynamic = forcesOf(*craneDynamic_);
    }

private:
    [[nodiscard]] SupportForces forcesOf(const DrivenCranes& cranes) const {
        SupportForces forces;
        for (int support = 1; support <= supports_; ++support)
            forces.push_back({cranes.reaction(support, false) / kPerKilo,
                              cranes.hasHorizontal() ? cranes.reaction(support, true) / kPerKilo : 0.0});
        return forces;
    }

    int supports_;
    int firstWheel_;  ///< number of what stands as wheel 1
    DrivenCranes total_;
    std::optional<DrivenCranes> crane_, craneDynamic_;
    SupportForces dead_;
};

/// Solves each extreme; `spare` has those of the cranes alone, for what the walk with dead load never reaches.
void addCases(Parts& parts, const Extremes& extremes, const Extremes* spare, ReactionSet& set) {
    for (int support = 1; support <= extremes.columns.front().at.last(); ++support)
        for (std::size_t column = 0; column < extremes.columns.size(); ++column) {
            const Extremes::Column& own = extremes.columns[column];
            ReactionCase each;
            each.support = support;
            each.effect = own.effect;
            each.largest = own.largest;
            each.at = own.at(support);
            each.ofCranesAlone = !each.at.isKnown();
            if (each.ofCranesAlone && spare != nullptr) each.at = spare->columns[column].at(support);
            if (!each.at.isKnown()) continue;
            parts.solve(each);
            set.cases.push_back(std::move(each));
        }
}

Extremes walked(const Project& project, const RunLoads& loads) {
    MessageList messages;
    Progress progress;
    UlsResults uls = RunUls(project, loads, WalkMethod::Fast, messages, progress);
    turnReactionsUpward(uls);
    return extremesOf(uls.At);
}

bool leavesOut(const Extremes& extremes) {
    return std::any_of(extremes.columns.begin(), extremes.columns.begin() + 2, [](const Extremes::Column& column) {
        return std::any_of(column.at.begin(), column.at.end(), [](WalkPosition at) { return !at.isKnown(); });
    });
}

class Maker {
public:
    Maker(const Project& project, const Results& results, const JoinedBeam* neighbour)
        : project_(project), results_(results), neighbour_(neighbour) {}

    [[nodiscard]] SupportReactions all() const {
        SupportReactions made;
        if (project_.CraneType == CraneKind::Overhead) made.eccentricity = results_.Rail.RailKr / 4;
        for (const ReactionState state : {ReactionState::Uls, ReactionState::Sls}) {
            made.sets.push_back(ofWalk(state, Acting::AllCranes, project_));
            if (project_.NofCranes != 2) continue;
            for (const Acting crane : {Acting::Crane1, Acting::Crane2})
                made.sets.push_back(ofWalk(state, crane, aloneOn(project_, crane)));
        }
        addFatigue(WalkOf::FatigueBoth, Acting::AllCranes, results_.Fatigue.Cr12, made);
        const bool train = project_.NofCranes == 2 && !results_.Fatigue.Cr2;
        addFatigue(WalkOf::FatigueCrane1, train || project_.NofCranes != 2 ? Acting::AllCranes : Acting::Crane1,
                   results_.Fatigue.Cr1, made);
        addFatigue(WalkOf::FatigueCrane2, Acting::Crane2, results_.Fatigue.Cr2, made);
        if (!project_.Fixerad) addJoints(made);
        return made;
    }

private:
    void addJoints(SupportReactions& made) const {
        const Project mirror = mirrored(project_);
        const JoinedBeam own{project_, results_.Rail};
        const JoinedBeam beyond = neighbour_ != nullptr ? *neighbour_ : JoinedBeam{mirror, results_.Rail};
        made.joints.push_back({1, neighbour_ == nullptr, jointReactions(beyond, own, project_)});
        made.joints.push_back({project_.NofSpans + 1, neighbour_ == nullptr, jointReactions(own, beyond, project_)});
    }

    [[nodiscard]] ReactionSet ofWalk(ReactionState state, Acting acting, const Project& project) const {
        const bool isUls = state == ReactionState::Uls;
        ReactionSet set{state, acting, isUls ? WalkOf::Uls : WalkOf::Sls, acting != Acting::AllCranes, {}};
        RunLoads loads = isUls ? results_.Uls.Loads : results_.Sls.Loads;
        if (acting != Acting::AllCranes) {
            loads.NCranes = 1;
            isUls ? setUlsLoads(project, results_.Rail, loads) : setSlsLoads(project, results_.Rail, loads);
        }
        const bool asCalculated = isUls && acting == Acting::AllCranes;
        const Extremes extremes = asCalculated ? extremesOf(results_.Uls.At) : walked(project, loads);
        RunLoads characteristic = loads;
        setDeadLoad(project, results_.Rail, 1.0, characteristic);
        Parts parts(project, loads, characteristic, acting);
        std::optional<Extremes> ofCranesAlone;
        if (leavesOut(extremes)) ofCranesAlone = walked(project, withoutDeadLoad(loads));
        addCases(parts, extremes, ofCranesAlone ? &*ofCranesAlone : nullptr, set);
        return set;
    }

    void addFatigue(WalkOf walk, Acting acting, const std::optional<StressSet>& stresses,
                    SupportReactions& made) const {
        if (!stresses || stresses->At.RzMax.last() < 1) return;
        ReactionSet set{ReactionState::Fatigue, acting, walk, false, {}};
        Parts parts(project_, stresses->Loads, std::nullopt, acting);
        addCases(parts, extremesOf(stresses->At), nullptr, set);
        made.sets.push_back(std::move(set));
    }

    const Project& project_;
    const Results& results_;
    const JoinedBeam* neighbour_;
};

}  // namespace

SupportReactions supportReactions(const Project& project, const Results& results, const JoinedBeam* neighbour) {
    return Maker(project, results, neighbour).all();
}

}  // namespace borvik
