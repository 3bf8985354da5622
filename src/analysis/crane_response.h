#pragma once

#include <functional>
#include <vector>

#include "analysis/position.h"

namespace borvik {

/// Relative error of storing a number in 32 bits, with a thousandth more for products of two such errors and for the
/// rounding of the doubles in between.
constexpr double kUnit = 1.001 / (1 << 24);

/// One bending plane of a loaded beam, as the fast walk sees it: the eliminated matrix with its stored numbers, but
/// solved in doubles, so that the response is linear in dead load, crane 1 and crane 2.
struct Plane {
    const Beam& beam;
    const ThreeMomentMatrix& matrix;
    const PerSpan& I;
    const std::vector<SpanPoints>& points;
    const FixedArray<Single, 1, 8>& wheelLoads;  ///< kN; a wheel without load plays no part in this plane
    double Wheel::*load;
    PerSpan deadTerms;         ///< [1..n-1] stored load terms of the dead load
    PerSpan deadEliminated{};  ///< [1..n-1] the same, eliminated
    PerSpan deadMoments{};     ///< [0..n] support moments of the dead load
    PerSpan fromRight{};       ///< X(r) = -fromRight(r) X(r + 1) while all load stands right of support r + 1
    PerSpan fromLeft{};        ///< X(r) = -fromLeft(r) X(r - 1) while all load stands left of support r - 1

    [[nodiscard]] static Plane vertical(const LoadedBeam& loaded);
    [[nodiscard]] static Plane horizontal(const LoadedBeam& loaded);

    /// Support moments of given load terms. @param b [1..n-1], becomes the eliminated terms; @param X [0..n]
    void solve(PerSpan& b, PerSpan& X) const;

private:
    Plane(const Beam& itsBeam, const ThreeMomentMatrix& itsMatrix, const PerSpan& itsI,
          const std::vector<SpanPoints>& itsPoints, const FixedArray<Single, 1, 8>& itsLoads, double Wheel::*itsLoad,
          const PerSpan& itsDeadTerms);
};

/// Largest magnitudes over all positions of a crane.
struct Magnitudes {
    PerSpan rotation{};    ///< [1..n-1] sum of the end rotation terms
    PerSpan eliminated{};  ///< [1..n-1] eliminated load terms
    PerSpan moment{};      ///< [0..n] support moments, Nmm
    double load = 0;       ///< sum of the wheel loads, N
    int wheels = 0;        ///< wheels with load
};

/// What wheels that move as one do in one plane, at every one of their positions 0..last.
class CraneResponse {
public:
    /// Places the wheels of position p.
    using Place = std::function<void(int p, Wheels& wheels)>;

    /// A crane that isn't there: it does nothing, and stands right of everything.
    CraneResponse(const Plane& plane, int last);
    /// @param firstWheel, lastWheel  of 1..8; they stand in ascending order and move to the right with p
    CraneResponse(const Plane& plane, int last, int firstWheel, int lastWheel, Place place);

    /// Moment over support r at the positions 0..last, kept as singles.
    [[nodiscard]] const float* moments(int r) const {
        return moments_.data() + static_cast<std::size_t>(r) * perSupport_;
    }
    [[nodiscard]] bool present() const { return magnitudes_.wheels > 0; }
    /// Whether some wheel on the beam has a load in this plane at position p.
    [[nodiscard]] bool acts(int p) const { return acts_[static_cast<std::size_t>(p)] != 0; }
    /// First position from which on the crane never acts again; last + 1 where it acts at the last one.
    [[nodiscard]] int idleFrom() const { return idleFrom_; }
    /// First position at which a loaded wheel has reached span i. Before it, the crane loads only what is left of the
    /// span.
    [[nodiscard]] int arrives(int i) const { return arrives_[static_cast<std::size_t>(i)]; }
    /// First position at which all loaded wheels have left span i: from it on, the crane loads only what is right of
    /// the span.
    [[nodiscard]] int leaves(int i) const { return leaves_[static_cast<std::size_t>(i)]; }
    /// The wheels that load span i at position p.
    [[nodiscard]] SpanWheels wheelsIn(int i, int p) const;
    [[nodiscard]] const Magnitudes& magnitudes() const { return magnitudes_; }

private:
    void respond(int p, const Wheels& wheels);

    const Plane& plane_;
    std::size_t perSupport_ = 0;  ///< 0 for a crane that isn't there: all supports share one row of zeros
    int idleFrom_ = 0;
    int firstWheel_ = 1, lastWheel_ = 0;
    Place place_;
    std::vector<float> moments_;  ///< [support][position]
    std::vector<char> acts_;
    std::vector<int> arrives_, leaves_;  ///< [1..n]
    Magnitudes magnitudes_;
};

}  // namespace borvik
