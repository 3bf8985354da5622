#pragma once

#include <array>
#include <string>
#include <vector>

#include "analysis/results.h"
#include "project/loads.h"
#include "project/project.h"
#include "support/stiffness_beam.h"

namespace borvik::testing_support {

/// Largest and smallest of a quantity over all positions, from 0 as the program keeps them.
struct Range {
    double largest = 0, smallest = 0;
    void add(double value) {
        if (value > largest) largest = value;
        if (value < smallest) smallest = value;
    }
    [[nodiscard]] double magnitude() const { return largest > -smallest ? largest : -smallest; }
};

/// Envelopes of one bending plane: [span][k], [support], from 1.
struct PlaneEnvelopes {
    std::vector<std::array<Range, 22>> M, V, U;  ///< U upward positive
    std::vector<Range> R;
};

/// A beam under the wheels of a run, position by position, by the stiffness solution.
class WalkedBeam {
public:
    WalkedBeam(const Project& project, const RunLoads& loads);

    /// Every position of the cranes in turn.
    void walk();
    [[nodiscard]] const PlaneEnvelopes& vertical() const { return envelopesZ_; }
    [[nodiscard]] const PlaneEnvelopes& horizontal() const { return envelopesY_; }

    /// My, Vz, Mz, Vy at point k of span i (from 1) where wheel 1 stands at x1 and wheel 5 at x5 on the beam's own
    /// axis.
    [[nodiscard]] std::array<double, 5> forces(double x1, double x5, int i, int k);
    /// Position of wheel 5 on the beam's own axis, from that of wheel 1, where both cranes move as one.
    [[nodiscard]] double wheel5(double x1) const;
    /// Position on the beam's own axis of a place in a span.
    [[nodiscard]] double onAxis(int span, double a) const;

private:
    void place(double x1, double x5);
    static void keep(const StiffnessBeam& beam, const Project& project, PlaneEnvelopes& envelopes);

    const Project& project_;
    const RunLoads& loads_;
    StiffnessBeam beamZ_, beamY_;
    PlaneEnvelopes envelopesZ_, envelopesY_;
};

/// What disagrees between a walk of the program and the stiffness solution, as text; empty where all agree to
/// `tolerance` of the largest magnitude of the quantity on the beam. The reaction at the last support has the
/// sign of the shear, as the walk leaves it.
[[nodiscard]] std::string disagreement(const UlsResults& uls, WalkedBeam& walked, const Project& project,
                                       double tolerance);
[[nodiscard]] std::string disagreement(const FlsResults& fls, WalkedBeam& walked, const Project& project,
                                       double tolerance);
[[nodiscard]] std::string disagreement(const SlsResults& sls, WalkedBeam& walked, const Project& project,
                                       double tolerance);

}  // namespace borvik::testing_support
