#include "analysis/position.h"

#include <algorithm>

namespace borvik {

namespace {
bool anyNonZero(const FixedArray<Single, 1, 8>& loads) {
    return std::any_of(loads.begin(), loads.end(), [](Single load) { return load != 0.0; });
}
}  // namespace

LoadedBeam::LoadedBeam(const Project& project, const RunLoads& loads, bool horizontalWanted)
    : beam(project),
      placer(project, beam, loads),
      deadTerms(deadLoadTerms(beam, loads)),
      horizontal(horizontalWanted && anyNonZero(loads.WheelH)) {
    pointsZ.resize(static_cast<std::size_t>(beam.n) + 1);
    pointsY.resize(static_cast<std::size_t>(beam.n) + 1);
    for (int i = 1; i <= beam.n; ++i) {
        pointsZ[static_cast<std::size_t>(i)] = SpanPoints(beam.L[i], beam.Iy[i], loads.SpanLoad(i));
        if (horizontal) pointsY[static_cast<std::size_t>(i)] = SpanPoints(beam.L[i], beam.Iz[i], 0);
    }
}

void solve(const LoadedBeam& loaded, int j, int k, SolvedPosition& position) {
    position.at = {static_cast<std::int16_t>(j), static_cast<std::int16_t>(k)};
    loaded.placer.PlaceWheels(j, k, position.wheels);
    const Beam& beam = loaded.beam;
    if (beam.n < 2) return;
    PerSpan rhsZ = loaded.deadTerms;
    PerSpan rhsY{};
    subtractWheelTerms(beam, position.wheels, rhsZ, rhsY);
    SolveSupportMoments(beam.z, beam.n, rhsZ, position.momentZ);
    if (loaded.horizontal) SolveSupportMoments(beam.y, beam.n, rhsY, position.momentY);
}

}  // namespace borvik
