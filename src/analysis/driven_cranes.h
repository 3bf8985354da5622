#pragma once

#include "analysis/post_process.h"
#include "analysis/steps.h"

namespace borvik {

/// The cranes of a walk at a single position, with the forces of the beam there: the same numbers, to the bit, that the
/// walk compares at that position.
class DrivenCranes {
public:
    /// @param project  as settled by a calculation
    /// @param loads    under which the cranes walked; WalkPosition of that walk's records can be asked for
    /// @param horizontal  the walk had horizontal loads too: a fatigue walk has none
    /// @throws RuntimeFault  on an arithmetic fault
    DrivenCranes(const Project& project, const RunLoads& loads, bool horizontal);

    /// The steps that the walk takes.
    [[nodiscard]] const WalkSteps& steps() const { return steps_; }
    /// The nearest position of the walk.
    [[nodiscard]] WalkPosition nearest(int j, int k) const;
    /// The position at which wheel 1 stands nearest to x1 and, where crane 2 moves on its own, wheel 5 nearest to x5.
    /// @param x1, x5  mm from the first support
    [[nodiscard]] WalkPosition nearestTo(double x1, double x5) const;

    /// Puts the cranes there and solves the beam.
    /// @param position  of the walk
    /// @throws RuntimeFault  on an arithmetic fault
    void standAt(WalkPosition position);
    [[nodiscard]] WalkPosition position() const { return position_.at; }
    [[nodiscard]] const Wheels& wheels() const { return position_.wheels; }
    /// Where a wheel stands, 1..8, mm from the first support; beyond the beam too.
    [[nodiscard]] double place(int wheel) const;

    /// My, Vz, Mz, Vy at the points of a span: Nmm, N.
    [[nodiscard]] const SpanStep& forces(int span) const { return forces_.step(span); }
    /// Deflections at the points of a span, mm, downward negative.
    void deflections(int span, bool horizontal, PointSteps& U) const;
    /// Reaction of a support 1..n + 1, N, upward positive.
    [[nodiscard]] double reaction(int support, bool horizontal) const;
    [[nodiscard]] const RunLoads& loads() const { return loads_; }
    [[nodiscard]] bool hasHorizontal() const { return loaded_.horizontal; }

private:
    RunLoads loads_;
    LoadedBeam loaded_;
    WalkSteps steps_;
    SpanForces forces_;
    SolvedPosition position_;
};

}  // namespace borvik
