#pragma once

#include <vector>

namespace borvik {

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

}  // namespace borvik
