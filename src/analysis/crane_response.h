#pragma once

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
    PerSpan deadTerms;                           ///< [1..n-1] stored load terms of the dead load
    PerSpan deadEliminated{};                    ///< [1..n-1] the same, eliminated
    PerSpan deadMoments{};                       ///< [0..n] support moments of the dead load
    PerSpan fromRight{};  ///< X(r) = -fromRight(r) X(r + 1) while all load stands right of support r + 1
    PerSpan fromLeft{};   ///< X(r) = -fromLeft(r) X(r - 1) while all load stands left of support r - 1

    [[nodiscard]] static Plane vertical(const LoadedBeam& loaded);
    [[nodiscard]] static Plane horizontal(const LoadedBeam& loaded);

    /// Support moments of given load terms. @param b [1..n-1], becomes the eliminated terms; @param X [0..n]
    void solve(PerSpan& b, PerSpan& X) const;

private:
    Plane(const Beam& itsBeam, const ThreeMomentMatrix& itsMatrix, const PerSpan& itsI,
          const std::vector<SpanPoints>& itsPoints, const FixedArray<Single, 1, 8>& itsLoads,
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

/// Where wheels that move as one stand at each of their positions p = 0..last, in one or a few variants, which differ
/// by a rounding of some hundredths of a millimetre. Made once for both planes.
class CranePositions {
public:
    /// One wheel: its span (0 left of the beam, n + 1 right of it) and its distances from the supports, mm.
    struct Stand {
        float a, b;
        int span;
    };

    /// @param firstWheel, lastWheel  of 1..8; in ascending order, moving to the right with p
    CranePositions(const Beam& beam, int firstWheel, int lastWheel);
    /// Adds a position, or a variant of the last one.
    void addPosition() { first_.push_back(static_cast<int>(stands_.size()) / wheels()); }
    void addVariant(const Wheels& placed);

    [[nodiscard]] int last() const { return static_cast<int>(first_.size()) - 1; }
    [[nodiscard]] int firstWheel() const { return firstWheel_; }
    [[nodiscard]] int wheels() const { return wheels_; }
    [[nodiscard]] int variants(int p) const {
        return (p < last() ? first_[static_cast<std::size_t>(p) + 1] : static_cast<int>(stands_.size()) / wheels()) -
               first_[static_cast<std::size_t>(p)];
    }
    /// The wheels in ascending order. @param variant  from 0
    [[nodiscard]] const Stand* at(int p, int variant) const {
        return stands_.data() + static_cast<std::ptrdiff_t>(first_[static_cast<std::size_t>(p)] + variant) * wheels();
    }

private:
    const Beam& beam_;
    int firstWheel_, wheels_;
    std::vector<int> first_;  ///< [position] its first variant
    std::vector<Stand> stands_;
};

/// What wheels that move as one do in one plane, at every one of their positions.
class CraneResponse {
public:
    /// A crane that isn't there: it does nothing, and stands right of everything.
    CraneResponse(const Plane& plane, int last);
    CraneResponse(const Plane& plane, const CranePositions& positions);

    /// Moment over support r at the positions 0..last, kept as singles: the largest and the smallest of the variants.
    [[nodiscard]] const float* largestMoments(int r) const { return row(largest_, r); }
    [[nodiscard]] const float* smallestMoments(int r) const { return row(smallest_.empty() ? largest_ : smallest_, r); }
    [[nodiscard]] bool present() const { return magnitudes_.wheels > 0; }
    /// Whether a position has more than one variant.
    [[nodiscard]] bool varies() const { return !smallest_.empty(); }
    [[nodiscard]] int variants(int p) const { return positions_ == nullptr ? 1 : positions_->variants(p); }
    /// Whether some wheel on the beam has a load in this plane at position p.
    [[nodiscard]] bool acts(int p) const { return acts_[static_cast<std::size_t>(p)] != 0; }
    /// First position from which on the crane never acts again; last + 1 where it acts at the last one.
    [[nodiscard]] int idleFrom() const { return idleFrom_; }
    /// First position at which a loaded wheel has reached span i.
    /// Before it, the crane loads only what is left of the span.
    [[nodiscard]] int arrives(int i) const { return arrives_[static_cast<std::size_t>(i)]; }
    /// First position at which all loaded wheels have left span i:
    /// from it on, the crane loads only what is right of the span.
    [[nodiscard]] int leaves(int i) const { return leaves_[static_cast<std::size_t>(i)]; }
    /// Moments over the supports first..last in one variant of position p. @param X  [first..last] are set
    void moments(int p, int variant, int first, int last, PerSpan& X) const;
    /// The wheels in span i in one variant of position p.
    [[nodiscard]] SpanWheels wheelsIn(int i, int p, int variant) const;
    [[nodiscard]] const Magnitudes& magnitudes() const { return magnitudes_; }

private:
    /// Load terms of the wheels of one variant and the spans of the first and the last of them.
    struct Load {
        PerSpan b{}, rotation{};
        int first, last;
        bool acts = false;
    };
    [[nodiscard]] Load loadOf(const CranePositions::Stand* stands) const;
    void respond(int p);
    [[nodiscard]] const float* row(const std::vector<float>& moments, int r) const {
        return moments.data() + static_cast<std::size_t>(r) * perSupport_;
    }

    const Plane& plane_;
    const CranePositions* positions_ = nullptr;
    double load_[8] = {};         ///< of the wheels from the first one on, N
    std::size_t perSupport_ = 0;  ///< 0 for a crane that isn't there: all supports share one row of zeros
    int idleFrom_ = 0;
    std::vector<float> largest_, smallest_;  ///< [support][position]; the second only where variants differ
    std::vector<char> acts_;
    std::vector<int> arrives_, leaves_;  ///< [1..n]
    Magnitudes magnitudes_;
};

}  // namespace borvik
