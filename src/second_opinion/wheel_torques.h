#pragma once

#include <optional>
#include <vector>

#include "analysis/results.h"
#include "analysis/wheels.h"
#include "project/loads.h"
#include "project/project.h"
#include "second_opinion/torsion.h"

namespace borvik {

/// The torques of wheels about the shear centre.
class WheelTorques {
public:
    WheelTorques(const Project& project, const RailRecord& rail);
    /// Of the horizontal load: at the top of the rail, or in a monorail at the bottom flange.
    [[nodiscard]] double ofH(const Wheel& wheel) const { return wheel.Q * leverH_[index(wheel)]; }
    /// Of the vertical load, a quarter of the rail head beside the web (EN 1991-3 2.5.2.1(2)); a monorail has none. It
    /// acts to either side.
    [[nodiscard]] double ofV(const Wheel& wheel) const { return wheel.P * eccentricity_; }
    [[nodiscard]] double eccentricity() const { return eccentricity_; }
    /// mm above the shear centre. @param span  from 1
    [[nodiscard]] double leverH(int span) const { return leverH_[static_cast<std::size_t>(span)]; }

private:
    [[nodiscard]] static std::size_t index(const Wheel& wheel) { return static_cast<std::size_t>(wheel.span); }
    std::vector<double> leverH_;  ///< [1..spans]
    double eccentricity_;
};

/// The position of the cranes that gives a span its largest bimoment, with the vertical loads to the worse side.
struct LargestBimoment {
    WalkPosition at;
    double B = 0;  ///< Nmm2, at one of the points of the span
    int point = 1;
};

/// Walks the cranes over the influence lines of the bimoment at the 21 points of each span.
/// @param loads  of the ultimate limit state, as walked
/// @return       [spans] from 0; without a position where no wheel twists the beam
[[nodiscard]] std::vector<LargestBimoment> largestBimoments(const Project& project, const RunLoads& loads,
                                                            const WheelTorques& torques, const TorsionBeam& beam);

}  // namespace borvik
