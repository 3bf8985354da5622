#include "analysis/crane_response.h"

#include <algorithm>
#include <cmath>

namespace borvik {

// --- Plane
// ------------------------------------------------------------------------------------------------------------

Plane Plane::vertical(const LoadedBeam& loaded) {
    return {loaded.beam, loaded.beam.z,   loaded.beam.Iy, loaded.pointsZ, loaded.placer.loads().WheelV,
            &Wheel::P,   loaded.deadTerms};
}

Plane Plane::horizontal(const LoadedBeam& loaded) {
    return {loaded.beam, loaded.beam.y, loaded.beam.Iz, loaded.pointsY, loaded.placer.loads().WheelH, &Wheel::Q, {}};
}

Plane::Plane(const Beam& itsBeam, const ThreeMomentMatrix& itsMatrix, const PerSpan& itsI,
             const std::vector<SpanPoints>& itsPoints, const FixedArray<Single, 1, 8>& itsLoads, double Wheel::*itsLoad,
             const PerSpan& itsDeadTerms)
    : beam(itsBeam),
      matrix(itsMatrix),
      I(itsI),
      points(itsPoints),
      wheelLoads(itsLoads),
      load(itsLoad),
      deadTerms(itsDeadTerms) {
    const int last = beam.n - 1;
    deadEliminated = deadTerms;
    solve(deadEliminated, deadMoments);
    // X(r) = G(r) y(r) while no load stands right of support r, y being the eliminated load terms.
    PerSpan G{};
    for (int r = last; r >= 1; --r) {
        fromRight[r] = matrix.upper[r] / matrix.diagonal[r];
        const double next = r < last ? fromRight[r] * G[r + 1] * matrix.factor[r + 1] : 0.0;
        G[r] = 1 / matrix.diagonal[r] + next;
    }
    for (int r = 2; r <= last; ++r) fromLeft[r] = matrix.factor[r] * G[r] / G[r - 1];
}

void Plane::solve(PerSpan& b, PerSpan& X) const {
    const int last = beam.n - 1;
    for (int r = 2; r <= last; ++r) b[r] -= matrix.factor[r] * b[r - 1];
    X[last + 1] = 0;
    for (int r = last; r >= 1; --r) X[r] = (b[r] - X[r + 1] * matrix.upper[r]) / matrix.diagonal[r];
    X[0] = 0;
}

// --- Response of a crane
// ------------------------------------------------------------------------------------------------

CraneResponse::CraneResponse(const Plane& plane, int last)
    : plane_(plane),
      moments_(static_cast<std::size_t>(last) + 1),
      acts_(moments_.size()),
      arrives_(static_cast<std::size_t>(plane.beam.n + 1)),
      leaves_(arrives_.size()) {}

CraneResponse::CraneResponse(const Plane& plane, int last, int firstWheel, int lastWheel, Place place)
    : CraneResponse(plane, last) {
    firstWheel_ = firstWheel;
    lastWheel_ = lastWheel;
    place_ = std::move(place);
    for (int w = firstWheel; w <= lastWheel; ++w) {
        const double load = plane.wheelLoads(w);
        magnitudes_.load += std::abs(load) * 1000;
        magnitudes_.wheels += load != 0;
    }
    if (!present()) return;
    perSupport_ = moments_.size();
    moments_.resize(perSupport_ * arrives_.size());
    std::fill(arrives_.begin(), arrives_.end(), last + 1);
    std::fill(leaves_.begin(), leaves_.end(), last + 1);
    Wheels wheels;
    for (int p = 0; p <= last; ++p) {
        place_(p, wheels);
        respond(p, wheels);
        if (acts(p)) idleFrom_ = p + 1;
    }
}

void CraneResponse::respond(int p, const Wheels& wheels) {
    const Beam& beam = plane_.beam;
    const int n = beam.n;
    PerSpan b{};
    PerSpan rotation{};
    int first = n + 1;  // spans of the first and the last loaded wheel; 0 left of the beam, n + 1 right of it
    int last = 0;
    for (int w = firstWheel_; w <= lastWheel_; ++w) {
        if (plane_.wheelLoads(w) == 0) continue;
        const Wheel& wheel = wheels[w];
        const double load = wheel.*plane_.load;
        const int i = wheel.x < beam.Cum[0] ? 0 : wheel.x > beam.Cum[n] ? n + 1 : wheel.span;
        first = std::min(first, i);
        last = std::max(last, i);
        if (i < 1 || i > n) continue;
        acts_[static_cast<std::size_t>(p)] = 1;
        const auto add = [&](int r, double distance) {
            const double F = rotationTerm(load, distance, beam.L[i], plane_.I[i]);
            b[r] -= F;
            rotation[r] += std::abs(F);
        };
        if (i > 1) add(i - 1, wheel.b);
        if (i < n) add(i, wheel.a);
    }
    for (int i = 1; i <= n; ++i) {
        if (last >= i) arrives_[static_cast<std::size_t>(i)] = std::min(arrives_[static_cast<std::size_t>(i)], p);
        if (first > i) leaves_[static_cast<std::size_t>(i)] = std::min(leaves_[static_cast<std::size_t>(i)], p);
    }
    if (n < 2 || !acts(p)) return;
    PerSpan X{};
    plane_.solve(b, X);
    for (int r = 1; r < n; ++r) {
        moments_[static_cast<std::size_t>(r) * perSupport_ + static_cast<std::size_t>(p)] = static_cast<float>(X[r]);
        magnitudes_.rotation[r] = std::max(magnitudes_.rotation[r], rotation[r]);
        magnitudes_.eliminated[r] = std::max(magnitudes_.eliminated[r], std::abs(b[r]));
        magnitudes_.moment[r] = std::max(magnitudes_.moment[r], std::abs(X[r]));
    }
}

SpanWheels CraneResponse::wheelsIn(int i, int p) const {
    SpanWheels found;
    if (p < arrives(i) || p >= leaves(i)) return found;
    Wheels wheels;
    place_(p, wheels);
    for (int w = firstWheel_; w <= lastWheel_; ++w)
        if (wheels[w].span == i && wheels[w].*plane_.load != 0)
            found.item[found.count++] = {wheels[w].a, wheels[w].*plane_.load};
    return found;
}

}  // namespace borvik
