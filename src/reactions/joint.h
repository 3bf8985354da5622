#pragma once

#include <vector>

#include "analysis/crane_stand.h"
#include "project/project.h"
#include "reactions/support_force.h"

namespace borvik {

/// A beam that ends at a joint: its settled input and the rail on it.
struct JoinedBeam {
    const Project& project;
    const RailRecord& rail;
};

/// What one end of a beam gives to the support of a joint, kN.
struct EndForces {
    SupportForce total, dead, crane, craneDynamic;  ///< as in ReactionCase, of the ultimate limit state
};

/// The position of the cranes at which the sum of two ends is largest or smallest.
struct JointCase {
    Effect effect = Effect::Rz;
    bool largest = true;
    EndForces left, right;            ///< of the beams on both sides
    std::vector<PlacedWheel> wheels;  ///< x from the joint, mm: negative on the left beam

    [[nodiscard]] SupportForce sum(SupportForce EndForces::*part) const {
        return {(left.*part).Rz + (right.*part).Rz, (left.*part).Ry + (right.*part).Ry};
    }
};

/// Two beams that end at one support, the rail going on: the cranes of `cranes` pass the joint in steps of 200 mm, the
/// second one at every distance where it moves on its own, and the reactions of both ends are added at each position.
/// Of several positions with the same sum the first one stays.
/// @param cranes  left or right: whose wheel loads, distances and factors count
/// @return Rz largest and smallest, and Ry where there are horizontal loads
/// @throws RuntimeFault  on an arithmetic fault
[[nodiscard]] std::vector<JointCase> jointReactions(const JoinedBeam& left, const JoinedBeam& right,
                                                    const Project& cranes);

/// The same beam seen from its other side: spans and sections in reverse order.
[[nodiscard]] Project mirrored(const Project& project);

}  // namespace borvik
