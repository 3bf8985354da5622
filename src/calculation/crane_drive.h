#pragma once

#include <array>
#include <memory>

#include "analysis/crane_stand.h"
#include "analysis/driven_cranes.h"
#include "calculation/session.h"

namespace borvik {

/// The cranes of a calculation, put at single positions: at those that govern a result, or driven by the user. They
/// take the walk, and so the loads, of what is looked at.
class CraneDrive {
public:
    /// @param project, results  of one calculation; must outlive the drive
    CraneDrive(const Project& project, const Results& results);

    /// False where the calculation made no such walk.
    [[nodiscard]] bool has(WalkOf walk) const { return loadsOf(walk) != nullptr; }

    /// Goes where a result is reached, which becomes the one that is looked at. Going there again goes to the other
    /// position of a stress range.
    /// @return false where nothing is known of it
    bool goTo(const std::array<CraneStand, 2>& stands);
    /// Back to the position of the result that is looked at.
    void goBack();
    /// To another position of the present walk; the nearest one.
    void moveTo(int j, int k);
    /// To the position of the present walk at which the first wheel of crane 1 stands nearest to x1 and, where crane 2
    /// moves on its own, that of crane 2 nearest to x5. In the walk of crane 2 alone x5 counts.
    /// @param x1, x5  mm from the first support
    void moveNear(double x1, double x5);
    /// Takes another walk; the cranes stay as near to their places as its steps let them. Without effect where there is
    /// no such walk.
    void take(WalkOf walk);

    [[nodiscard]] WalkOf walk() const { return walk_; }
    [[nodiscard]] DrivenCranes& cranes() { return *cranes_; }
    [[nodiscard]] const DrivenCranes& cranes() const { return *cranes_; }
    [[nodiscard]] WalkPosition position() const { return cranes_->position(); }
    /// The result that is looked at; not known where the cranes were only driven.
    [[nodiscard]] const CraneStand& stand() const { return stands_[shown_]; }
    /// Both positions of it, where it is a stress range.
    [[nodiscard]] const std::array<CraneStand, 2>& stands() const { return stands_; }
    /// True where the cranes stand at the position of that result.
    [[nodiscard]] bool isThere() const {
        return stand().isKnown() && walk_ == stand().walk && position() == stand().at;
    }

    /// Value of an effect at a point of a span in the unit of its diagram: kNm, kN, mm, MPa.
    /// @param effect  no reaction; a stress only in a fatigue walk
    [[nodiscard]] std::array<double, kPoints + 1> values(Effect effect, int span) const;
    /// Reaction of a support, kN, upward positive.
    [[nodiscard]] double reaction(int support, bool horizontal) const;

private:
    [[nodiscard]] const RunLoads* loadsOf(WalkOf walk) const;

    const Project& project_;
    const Results& results_;
    WalkOf walk_ = WalkOf::Uls;
    std::unique_ptr<DrivenCranes> cranes_;
    std::array<CraneStand, 2> stands_ = {};
    std::size_t shown_ = 0;
};

}  // namespace borvik
