#include "analysis/fast_walk.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace borvik {

namespace {

/// Share of all positions beyond which the plain walk is as quick.
constexpr double kMostShare = 0.1;

/// A number on a grid of 2^-28 mm: sums of such numbers below 16 km are exact in doubles.
bool onGrid(double x) {
    return std::abs(x) < 0x1p24 && std::fmod(x, 0x1p-28) == 0;
}

/// The method rests on wheels in ascending order, on supports at exact positions, and on a second crane whose position
/// depends on j + k alone (distances on a grid of 1/16 mm or so).
bool applies(const WalkSteps& steps, const LoadedBeam& loaded) {
    const Beam& beam = loaded.beam;
    const RunLoads& loads = loaded.placer.loads();
    if (!std::all_of(loads.WheelGap.begin(), loads.WheelGap.end(), [](Single gap) { return gap >= 0; })) return false;
    for (int i = 1; i <= beam.n; ++i)
        if (beam.Cum[i] - beam.Cum[i - 1] != beam.L[i] || beam.L[i] <= 0) return false;
    const double minAvst = loaded.placer.minAvst();
    if (!(minAvst >= 0)) return false;
    if (!steps.secondCraneMoves) return true;
    Wheels wheels;
    loaded.placer.placeCrane1(0, wheels);
    const double start = wheels[4].x;
    if (!onGrid(minAvst) || !onGrid(start)) return false;
    for (int j = 1; j <= steps.N1; ++j) {
        loaded.placer.placeCrane1(j, wheels);
        if (wheels[4].x - start != 200.0 * j) return false;
    }
    return true;
}

void search(const Plane& plane, const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity,
            Candidates& candidates) {
    const WheelPlacer& placer = loaded.placer;
    if (!steps.secondCraneMoves) {
        const CraneResponse train(plane, steps.N1, 1, 8,
                                  [&](int j, Wheels& wheels) { placer.PlaceWheels(j, 0, wheels); });
        const CraneResponse nothing(plane, steps.N1);
        searchPlane(plane, train, nothing, steps.N1, quantity, candidates);
        return;
    }
    Wheels start;
    placer.placeCrane1(0, start);
    const double x4 = start[4].x;
    const CraneResponse crane1(plane, steps.N1, 1, 4, [&](int j, Wheels& wheels) { placer.placeCrane1(j, wheels); });
    const CraneResponse crane2(plane, steps.N1, 5, 8,
                               [&](int s, Wheels& wheels) { placer.placeCrane2(x4, s, wheels); });
    searchPlane(plane, crane1, crane2, steps.N1, quantity, candidates);
}

/// @return false when there are too many, or when the search left the range of the doubles
bool findCandidates(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, Candidates& candidates) {
    try {
        const ArithmeticFlags flags;
        search(Plane::vertical(loaded), steps, loaded, quantity, candidates);
        if (loaded.horizontal && !candidates.tooMany())
            search(Plane::horizontal(loaded), steps, loaded, quantity, candidates);
        flags.check();
        return !candidates.tooMany();
    } catch (const RuntimeFault&) {
        return false;
    }
}

}  // namespace

bool walkFast(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, PostProcess& post, Walk walk,
              Progress& progress) {
    if (!applies(steps, loaded)) return false;
    report(progress, walk, 0);
    Candidates candidates(static_cast<std::size_t>(kMostShare * steps.positions()) + 1000);
    if (!findCandidates(steps, loaded, quantity, candidates)) return false;
    SolvedPosition position;
    for (const Candidates::Item& item : candidates.inOrder()) {
        solve(loaded, item.j, item.k, position);
        post.record(position, item.spans);
    }
    report(progress, walk, 100);
    return true;
}

}  // namespace borvik
