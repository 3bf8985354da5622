#pragma once

#include <vector>

namespace borvik::testing_support {

/// Continuous beam on rigid supports solved by the displacement method: the unknowns are the rotations at the supports,
/// each span is one cubic beam element with the fixed-end moments and the clamped deflection line of its loads (for
/// instance Timoshenko, Strength of Materials II, ch. II; Roark's Formulas, table 8.1, clamped ends). All in doubles.
/// It shares no formula with the three-moment solution of the program.
class StiffnessBeam {
public:
    struct Span {
        double L;  ///< mm
        double I;  ///< mm4
        double q;  ///< uniform load, N/mm
    };
    struct PointLoad {
        int span;     ///< from 0
        double a, P;  ///< mm from the left support of the span, N downward
    };
    /// Moment (sagging positive, Nmm), shear (N) and deflection (downward positive, mm) at one section.
    struct Section {
        double M = 0, V = 0, w = 0;
    };

    explicit StiffnessBeam(std::vector<Span> spans);

    /// Solves the beam under its uniform loads and these point loads.
    void solve(const std::vector<PointLoad>& loads);
    /// Section at distance x from the left support of a span. Under a point load the shear is that on its left; a load
    /// over the right support counts at that end, one over the left support stands in the support's reaction.
    [[nodiscard]] Section at(int span, double x) const;
    /// Reaction of a support, from 0, upward positive.
    [[nodiscard]] double reaction(int support) const;
    [[nodiscard]] int spans() const { return static_cast<int>(spans_.size()); }

private:
    struct EndForces {
        double Ma, Mb, Va;
    };
    [[nodiscard]] EndForces fixedEnds(int span) const;

    std::vector<Span> spans_;
    std::vector<std::vector<double>> flexibility_;  ///< inverse of the stiffness matrix of the rotations
    std::vector<double> rotation_;                  ///< dw/dx at the supports
    std::vector<EndForces> ends_;
    std::vector<std::vector<PointLoad>> loads_;  ///< by span
};

}  // namespace borvik::testing_support
