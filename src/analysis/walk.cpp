#include "analysis/walk.h"

#include <cmath>
#include <limits>

#include "analysis/fast_walk.h"
#include "analysis/position.h"
#include "analysis/post_process.h"
#include "analysis/steps.h"

namespace borvik {

namespace {

constexpr const char* kDoesNotFit = "De angivna måtten för traversen/traverserna ryms ej på balken!";

/// Visits every position in the order of the walk, by j, then by k. This is the reference for the fast walk.
void walkPlain(const WalkSteps& steps, const LoadedBeam& loaded, PostProcess& post, Walk walk, Progress& progress) {
    SolvedPosition position;
    for (int j = 0; j <= steps.N1; ++j) {
        report(progress, walk, steps.percent(j));
        for (int k = 0; k <= steps.lastK(j); ++k) {
            solve(loaded, j, k, position);
            post.record(position, kAllSpans);
        }
    }
}

PositionLog logPositions(const WalkSteps& steps, const WheelPlacer& placer) {
    PositionLog log;
    log.StepNo = Array<std::int16_t>(0, steps.N1);
    for (auto* column :
         {&log.StepSpan1, &log.StepV1, &log.StepA1, &log.StepB1, &log.StepSpan2, &log.StepV5, &log.StepA5, &log.StepB5})
        *column = Array<Single>(0, steps.N1);
    Wheels wheels;
    for (int j = 0; j <= steps.N1; ++j) {
        placer.PlaceWheels(j, steps.lastK(j), wheels);
        log.StepNo(j) = static_cast<std::int16_t>(j);
        log.StepSpan1(j) = wheels[1].span;
        log.StepV1(j) = wheels[1].V;
        log.StepA1(j) = wheels[1].a;
        log.StepB1(j) = wheels[1].b;
        log.StepSpan2(j) = wheels[2].span;
        log.StepV5(j) = wheels[5].V;
        log.StepA5(j) = wheels[5].a;
        log.StepB5(j) = wheels[5].b;
    }
    return log;
}

/// The frame that the three walks share: the fit of the cranes, the results at zero, all positions, the log.
/// @param log  filled, or null for a walk that keeps none
template <class Results, class Post>
Results runWalk(const char* name, Walk walk, const Project& project, const RunLoads& loads, WalkMethod method,
                bool horizontalWanted, PositionLog Results::*log, Messages& messages, Progress& progress) {
    Results results;
    watched(name, 0, [&] {
        const LoadedBeam loaded(project, loads, horizontalWanted);
        Post post(loaded, results);
        results.Loads = loads;
        if (project.CranesLength > project.BeamLength) {
            messages.show(kDoesNotFit);
            return;
        }
        const WalkSteps steps(project, loads.NCranes);
        progress.walkStarts(walk);
        if (log != nullptr) results.*log = logPositions(steps, loaded.placer);
        if (method == WalkMethod::Plain || !walkFast(steps, loaded, Post::quantity, post, walk, progress))
            walkPlain(steps, loaded, post, walk, progress);
        progress.walkEnds(walk);
    });
    return results;
}

}  // namespace

WalkSteps::WalkSteps(const Project& project, int cranes) {
    const double length = project.CranesLength;
    const double beam = project.BeamLength;
    T = (project.StartStopOutside != 0 ? beam + length : beam - length) / 200;
    if (std::floor(T) > std::numeric_limits<std::int16_t>::max())
        throw RuntimeFault("overflow: the beam is too long, the walk counts its positions to 32767");
    // Wheel distances far below zero, of a damaged file, leave no position at all.
    N1 = project.Fixerad ? 0 : static_cast<int>(std::fmax(std::floor(T), -1));
    secondCraneMoves = cranes != 1 && !project.Fixerad && project.MinDistConst != 1.0;
}

double WalkSteps::positions() const noexcept {
    double count = 0;
    for (int j = 0; j <= N1; ++j) count += lastK(j) + 1;
    return count;
}

int WalkSteps::lastK(int j) const noexcept {
    return secondCraneMoves ? static_cast<int>(std::floor(T - j)) : 0;
}

double WalkSteps::percent(int j) const noexcept {
    const double whole = std::floor(T);
    return whole > 0 ? j / whole * 100 : 100;
}

double countPositions(const Project& project, int cranes) {
    if (project.CranesLength > project.BeamLength) return 0;
    return WalkSteps(project, cranes).positions();
}

UlsResults RunUls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                  Progress& progress) {
    return runWalk<UlsResults, UlsPostProcess>("ULS walk", Walk::Uls, project, loads, method, true, &UlsResults::Steps,
                                               messages, progress);
}

SlsResults RunSls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                  Progress& progress) {
    return runWalk<SlsResults, SlsPostProcess>("SLS walk", Walk::Sls, project, loads, method, true, nullptr, messages,
                                               progress);
}

FlsResults RunFls(const Project& project, const RunLoads& loads, WalkMethod method, Messages& messages,
                  Progress& progress) {
    return runWalk<FlsResults, FlsPostProcess>("FLS walk", Walk::Fls, project, loads, method, false, &FlsResults::Steps,
                                               messages, progress);
}

}  // namespace borvik
