#pragma once

#include <array>

#include "analysis/beam.h"
#include "project/loads.h"
#include "project/project.h"

namespace borvik {

/// One wheel at one position of the cranes.
struct Wheel {
    int span = 1;         ///< span in which it stands; 1 when it is off the beam
    double x = 0;         ///< position on the global axis, a single, mm
    double a = 0, b = 0;  ///< distances from the left and the right support of its span, singles, mm
    double V = 0, H = 0;  ///< load, a single, kN; 0 when it is off the beam
    double P = 0, Q = 0;  ///< the same in N
};

/// The eight wheels at one position: [1..4] of crane 1, [5..8] of crane 2; [0] is not used.
using Wheels = std::array<Wheel, 9>;

/// Places the wheels of a run on the beam.
class WheelPlacer {
public:
    WheelPlacer(const Project& project, const Beam& beam, const RunLoads& loads);

    /// @param j  position of crane 1, in steps of 200 mm from `Position`
    /// @param k  extra distance of crane 2 beyond MinAvst, in steps of 200 mm; without effect at a constant distance
    void PlaceWheels(int j, int k, Wheels& wheels) const;

    /// Crane 1 alone, wheels 1 to 4.
    void placeCrane1(int j, Wheels& wheels) const;
    /// Crane 2 alone, wheels 5 to 8, with wheel 5 at x5.
    void placeCrane2(double x5, Wheels& wheels) const;

    [[nodiscard]] const RunLoads& loads() const noexcept { return loads_; }
    /// Smallest distance between the cranes, mm.
    [[nodiscard]] double minAvst() const noexcept { return minAvst_; }

private:
    void stand(int w, double x, Wheels& wheels) const;

    const Beam& beam_;
    const RunLoads& loads_;
    double start_, minAvst_;
    bool constantDistance_;
};

/// Subtracts the end rotation terms of the wheels from the load terms of both planes, span by span, each step stored.
/// @param rhsZ, rhsY  [1..n-1]
void subtractWheelTerms(const Beam& beam, const Wheels& wheels, PerSpan& rhsZ, PerSpan& rhsY);

}  // namespace borvik
