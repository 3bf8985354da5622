#include "analysis/fast_walk.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "analysis/key_search.h"

namespace borvik {

namespace {

/// Share of all positions beyond which the plain walk is as quick.
constexpr double kMostShare = 0.1;

/// A number on a grid of 2^-28 mm: sums of such numbers below 16 km are exact in doubles.
bool onGrid(double x) {
    return std::abs(x) < 0x1p24 && std::fmod(x, 0x1p-28) == 0;
}

/// The method rests on wheels in ascending order, on supports at exact positions and, for its error bound, on a beam of
/// positive stiffness. Anything else, such as the nonsense of a damaged file, is walked plainly.
bool applies(const LoadedBeam& loaded) {
    const Beam& beam = loaded.beam;
    const RunLoads& loads = loaded.placer.loads();
    if (!std::all_of(loads.WheelGap.begin(), loads.WheelGap.end(), [](Single gap) { return gap >= 0; })) return false;
    for (int i = 1; i <= beam.n; ++i) {
        if (beam.Cum[i] - beam.Cum[i - 1] != beam.L[i] || beam.L[i] <= 0) return false;
        if (!(beam.Iy[i] > 0 && beam.Iz[i] > 0)) return false;
    }
    return loaded.placer.minAvst() >= 0;
}

/// Crane 1 at j = 0..N1, or the train of both.
CranePositions firstCrane(const LoadedBeam& loaded, const WalkSteps& steps) {
    const bool train = !steps.secondCraneMoves;
    CranePositions positions(loaded.beam, 1, train ? 8 : 4);
    Wheels wheels;
    for (int j = 0; j <= steps.N1; ++j) {
        train ? loaded.placer.PlaceWheels(j, 0, wheels) : loaded.placer.placeCrane1(j, wheels);
        positions.addPosition();
        positions.addVariant(wheels);
    }
    return positions;
}

/// Position of wheel 4 less 200 j, and the first j that has it. Where the distances are whole millimetres there is one
/// such offset; finer ones are rounded on the way to wheel 4, differently for small and for large j.
struct Offset {
    double x4;
    int firstJ;
};

/// The offsets of all j; none where some sum on the way to wheel
/// 5 isn't exact, so that its position would not follow from s.
std::vector<Offset> offsetsOfWheel4(const LoadedBeam& loaded, const WalkSteps& steps) {
    constexpr std::size_t kMostOffsets = 64;
    std::vector<Offset> offsets;
    if (!onGrid(loaded.placer.minAvst())) return {};
    Wheels wheels;
    for (int j = 0; j <= steps.N1; ++j) {
        loaded.placer.placeCrane1(j, wheels);
        const double x4 = wheels[4].x - 200.0 * j;
        if (!onGrid(wheels[4].x) || offsets.size() > kMostOffsets) return {};
        if (std::none_of(offsets.begin(), offsets.end(), [&](const Offset& offset) { return offset.x4 == x4; }))
            offsets.push_back({x4, j});
    }
    return offsets;
}

/// Crane 2 at s = j + k = 0..N1, in a variant for each place that the rounding of some j gives it.
CranePositions secondCrane(const LoadedBeam& loaded, const WalkSteps& steps, const std::vector<Offset>& offsets) {
    CranePositions positions(loaded.beam, 5, 8);
    Wheels wheels;
    std::vector<double> placed;
    for (int s = 0; s <= steps.N1; ++s) {
        positions.addPosition();
        placed.clear();
        for (const Offset& offset : offsets) {
            const double x5 = Single(loaded.placer.minAvst() + offset.x4 + 200.0 * s);
            if (offset.firstJ > s || std::find(placed.begin(), placed.end(), x5) != placed.end()) continue;
            placed.push_back(x5);
            loaded.placer.placeCrane2(x5, wheels);
            positions.addVariant(wheels);
        }
    }
    return positions;
}

/// The cranes of a walk: where they stand, for both planes.
struct Cranes {
    CranePositions one;
    std::optional<CranePositions> two;  ///< where it moves on its own
};

void search(const Plane& plane, const Cranes& cranes, Quantity quantity, Candidates& candidates) {
    const int last = cranes.one.last();
    const CraneResponse crane1(plane, cranes.one);
    const CraneResponse crane2 = cranes.two ? CraneResponse(plane, *cranes.two) : CraneResponse(plane, last);
    searchPlane(plane, crane1, crane2, last, quantity, candidates);
}

/// @return false when there are too many, or when the search left the range of the doubles
bool findCandidates(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, Candidates& candidates) {
    try {
        const ArithmeticFlags flags;
        Cranes cranes{firstCrane(loaded, steps), {}};
        if (steps.secondCraneMoves) {
            const std::vector<Offset> offsets = offsetsOfWheel4(loaded, steps);
            if (offsets.empty()) return false;
            cranes.two.emplace(secondCrane(loaded, steps, offsets));
        }
        search(Plane::vertical(loaded), cranes, quantity, candidates);
        if (loaded.horizontal && !candidates.tooMany()) search(Plane::horizontal(loaded), cranes, quantity, candidates);
        flags.check();
        return !candidates.tooMany();
    } catch (const RuntimeFault&) {
        return false;
    }
}

}  // namespace

bool walkFast(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, PostProcess& post, Walk walk,
              Progress& progress) {
    if (!applies(loaded)) return false;
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
