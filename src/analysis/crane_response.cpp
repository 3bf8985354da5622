#include "analysis/crane_response.h"

#include <algorithm>
#include <cmath>

namespace borvik {

Plane Plane::vertical(const LoadedBeam& loaded) {
    return {loaded.beam, loaded.beam.z, loaded.beam.Iy, loaded.pointsZ, loaded.placer.loads().WheelV, loaded.deadTerms};
}

Plane Plane::horizontal(const LoadedBeam& loaded) {
    return {loaded.beam, loaded.beam.y, loaded.beam.Iz, loaded.pointsY, loaded.placer.loads().WheelH, {}};
}

Plane::Plane(const Beam& itsBeam, const ThreeMomentMatrix& itsMatrix, const PerSpan& itsI,
             const std::vector<SpanPoints>& itsPoints, const FixedArray<Single, 1, 8>& itsLoads,
             const PerSpan& itsDeadTerms)
    : beam(itsBeam), matrix(itsMatrix), I(itsI), points(itsPoints), wheelLoads(itsLoads), deadTerms(itsDeadTerms) {
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

CranePositions::CranePositions(const Beam& beam, int firstWheel, int lastWheel)
    : beam_(beam), firstWheel_(firstWheel), wheels_(lastWheel - firstWheel + 1) {}

void CranePositions::addVariant(const Wheels& placed) {
    for (int w = firstWheel_; w < firstWheel_ + wheels_; ++w) {
        const Wheel& wheel = placed[static_cast<std::size_t>(w)];
        const int n = beam_.n;
        const int span = wheel.x < beam_.Cum[0]                             ? 0
                         : wheel.x > beam_.Cum[static_cast<std::size_t>(n)] ? n + 1
                                                                            : wheel.span;
        stands_.push_back({static_cast<float>(wheel.a), static_cast<float>(wheel.b), span});
    }
}

CraneResponse::CraneResponse(const Plane& plane, int last)
    : plane_(plane),
      largest_(static_cast<std::size_t>(last) + 1),
      acts_(largest_.size()),
      arrives_(static_cast<std::size_t>(plane.beam.n + 1)),
      leaves_(arrives_.size()) {}

CraneResponse::CraneResponse(const Plane& plane, const CranePositions& positions)
    : CraneResponse(plane, positions.last()) {
    for (int w = 0; w < positions.wheels(); ++w) {
        load_[w] = plane.wheelLoads(positions.firstWheel() + w) * 1000.0;
        magnitudes_.load += std::abs(load_[w]);
        magnitudes_.wheels += load_[w] != 0;
    }
    if (!present()) return;
    positions_ = &positions;
    perSupport_ = largest_.size();
    largest_.resize(perSupport_ * arrives_.size());
    const int last = positions.last();
    for (int p = 0; p <= last && smallest_.empty(); ++p)
        if (positions.variants(p) > 1) smallest_.resize(largest_.size());
    std::fill(arrives_.begin(), arrives_.end(), last + 1);
    std::fill(leaves_.begin(), leaves_.end(), last + 1);
    for (int p = 0; p <= last; ++p) {
        respond(p);
        if (acts(p)) idleFrom_ = p + 1;
    }
}

CraneResponse::Load CraneResponse::loadOf(const CranePositions::Stand* stands) const {
    const Beam& beam = plane_.beam;
    const int n = beam.n;
    Load load;
    load.first = n + 1;
    load.last = 0;
    for (int w = 0; w < positions_->wheels(); ++w) {
        if (load_[w] == 0) continue;
        const int i = stands[w].span;
        load.first = std::min(load.first, i);
        load.last = std::max(load.last, i);
        if (i < 1 || i > n) continue;
        load.acts = true;
        const auto add = [&](int r, double distance) {
            const double F = rotationTerm(load_[w], distance, beam.L[i], plane_.I[i]);
            load.b[r] -= F;
            load.rotation[r] += std::abs(F);
        };
        if (i > 1) add(i - 1, double{stands[w].b});
        if (i < n) add(i, double{stands[w].a});
    }
    return load;
}

void CraneResponse::respond(int p) {
    const int n = plane_.beam.n;
    const auto at = static_cast<std::size_t>(p);
    PerSpan X{};
    int first = n + 1;
    int last = 0;
    for (int variant = 0; variant < positions_->variants(p); ++variant) {
        Load load = loadOf(positions_->at(p, variant));
        first = std::min(first, load.first);
        last = std::max(last, load.last);
        if (load.acts) acts_[at] = 1;
        plane_.solve(load.b, X);
        for (int r = 1; r < n; ++r) {
            const std::size_t place = static_cast<std::size_t>(r) * perSupport_ + at;
            const auto moment = static_cast<float>(X[r]);
            largest_[place] = variant == 0 ? moment : std::max(largest_[place], moment);
            if (varies()) smallest_[place] = variant == 0 ? moment : std::min(smallest_[place], moment);
            magnitudes_.rotation[r] = std::max(magnitudes_.rotation[r], load.rotation[r]);
            magnitudes_.eliminated[r] = std::max(magnitudes_.eliminated[r], std::abs(load.b[r]));
            magnitudes_.moment[r] = std::max(magnitudes_.moment[r], std::abs(X[r]));
        }
    }
    for (int i = 1; i <= n; ++i) {
        const auto span = static_cast<std::size_t>(i);
        if (last >= i) arrives_[span] = std::min(arrives_[span], p);
        if (first > i) leaves_[span] = std::min(leaves_[span], p);
    }
}

void CraneResponse::moments(int p, int variant, int first, int last, PerSpan& X) const {
    if (variants(p) > 1) {
        Load load = loadOf(positions_->at(p, variant));
        plane_.solve(load.b, X);
        return;
    }
    for (int r = first; r <= last; ++r) X[static_cast<std::size_t>(r)] = double{largestMoments(r)[p]};
}

SpanWheels CraneResponse::wheelsIn(int i, int p, int variant) const {
    SpanWheels found;
    if (!present()) return found;
    const CranePositions::Stand* stands = positions_->at(p, variant);
    for (int w = 0; w < positions_->wheels(); ++w)
        if (stands[w].span == i && load_[w] != 0) found.item[found.count++] = {double{stands[w].a}, load_[w]};
    return found;
}

}  // namespace borvik
