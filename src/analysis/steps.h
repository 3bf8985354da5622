#pragma once

#include "base/fault.h"
#include "platform/progress.h"
#include "project/project.h"

namespace borvik {

/// The positions of a walk, in steps of 200 mm: j = 0..N1 of crane 1 and, at each j, k = 0..lastK(j) of the extra
/// distance of crane 2.
struct WalkSteps {
    double T = 0;  ///< length of the walk in steps
    int N1 = 0;
    bool secondCraneMoves = false;  ///< crane 2 moves on its own

    /// @param cranes  cranes that move in this run
    /// @throws RuntimeFault  when the positions outgrow the numbers of the position log (beams of more than 6.5 km)
    WalkSteps(const Project& project, int cranes);
    [[nodiscard]] int lastK(int j) const noexcept;
    [[nodiscard]] double positions() const noexcept;
    /// Progress at position j, 0 to 100.
    [[nodiscard]] double percent(int j) const noexcept;
};

/// Reports a position. What a window does meanwhile raises no fault of the calculation.
inline void report(Progress& progress, Walk walk, double percent) {
    const ArithmeticFlags own;
    progress.position(walk, percent);
}

}  // namespace borvik
