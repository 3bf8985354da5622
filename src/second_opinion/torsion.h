#pragma once

#include <array>
#include <vector>

#include "second_opinion/band_matrix.h"
#include "second_opinion/line_beam.h"

namespace borvik {

/// A torque about the shear centre, positive where it moves the top flange to +y.
struct PointTorque {
    double x = 0;  ///< mm from the first support
    double T = 0;  ///< Nmm
};

struct Torques {
    std::vector<PointTorque> points;
    std::vector<double> uniform;  ///< [spans] N = Nmm/mm; empty: none
};

/// Torsion at one end of an element. The bimoment is -E Iw phi'': positive in a span under positive torques.
struct TorsionState {
    double x = 0;                                       ///< mm from the first support
    double phi = 0, twist = 0;                          ///< rotation; its slope, 1/mm
    double B = 0;                                       ///< bimoment, Nmm2
    double T = 0;                                       ///< torque, Nmm: that on the part to the right of a cut
    double Tt = 0;                                      ///< St Venant's part, G It phi'
    [[nodiscard]] double Tw() const { return T - Tt; }  ///< the part of warping
};

/// Torsion with warping on forks, E Iw phi'''' - G It phi'' = t, by elements with cubic phi. Factored once for all
/// torques.
class TorsionBeam {
public:
    /// @param required  places that shall be nodes, such as those of wheels
    /// @throws RuntimeFault  where the beam has no length or no stiffness against torsion
    TorsionBeam(LineBeam beam, std::vector<double> required);

    [[nodiscard]] const LineMesh& mesh() const { return mesh_; }
    /// The states at both ends of each element, [2 e] left and [2 e + 1] right.
    [[nodiscard]] std::vector<TorsionState> solve(const Torques& torques) const;

    /// A place on the beam, made ready for many influence lines.
    struct Place {
        std::size_t element;
        std::array<double, 4> share;  ///< of a torque there, on the freedoms of the element
    };
    /// @param x  mm from the first support, on the beam
    [[nodiscard]] Place placeAt(double x) const;

    /// Influence line of the bimoment at a node: what a torque of 1 at a place makes of it.
    class Influence {
    public:
        [[nodiscard]] double at(const Place& place) const;

    private:
        friend class TorsionBeam;
        std::size_t element_ = 0;               ///< whose end forces give the bimoment
        std::array<double, 4> held_{};          ///< what loads in that element add as if it were held
        std::vector<std::array<double, 4>> u_;  ///< of each element
    };
    /// @param x  the node nearest to it counts
    [[nodiscard]] Influence bimomentAt(double x) const;

private:
    using Freedoms = std::array<int, 4>;  ///< of an element; -1 is held
    [[nodiscard]] std::array<std::array<double, 4>, 4> stiffness(std::size_t element) const;
    [[nodiscard]] std::array<double, 4> displacements(const std::vector<double>& u, std::size_t element) const;

    LineBeam beam_;
    LineMesh mesh_;
    std::vector<Freedoms> freedoms_;
    BandMatrix factors_{0, 0};
};

}  // namespace borvik
