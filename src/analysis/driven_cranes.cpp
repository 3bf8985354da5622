#include "analysis/driven_cranes.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"

namespace borvik {

namespace {

constexpr double kStep = 200;  // mm

/// @param last  below 0 where the walk has no position at all
int stepNearest(double steps, int last) {
    return static_cast<int>(std::clamp<double>(std::round(steps), 0, std::max(0, last)));
}

}  // namespace

DrivenCranes::DrivenCranes(const Project& project, const RunLoads& loads, bool horizontal)
    : loads_(loads), loaded_(project, loads_, horizontal), steps_(project, loads.NCranes), forces_(loaded_) {
    standAt({0, 0});
}

WalkPosition DrivenCranes::nearest(int j, int k) const {
    j = stepNearest(j, steps_.N1);
    return {static_cast<std::int16_t>(j), static_cast<std::int16_t>(stepNearest(k, steps_.lastK(j)))};
}

WalkPosition DrivenCranes::nearestTo(double x1, double x5) const {
    const double beamStart = loaded_.beam.Cum[0];
    Wheels wheels;
    loaded_.placer.PlaceWheels(0, 0, wheels);
    const int j = stepNearest((x1 + beamStart - wheels[1].x) / kStep, steps_.N1);
    loaded_.placer.PlaceWheels(j, 0, wheels);
    return nearest(j, stepNearest((x5 + beamStart - wheels[5].x) / kStep, steps_.lastK(j)));
}

void DrivenCranes::standAt(WalkPosition position) {
    watched("Position of the cranes", 0, [&] {
        solve(loaded_, position.j, position.k, position_);
        for (int i = 1; i <= loaded_.beam.n; ++i) forces_.compute(position_, i);
    });
}

double DrivenCranes::place(int wheel) const {
    return position_.wheels[static_cast<std::size_t>(wheel)].x - loaded_.beam.Cum[0];
}

void DrivenCranes::deflections(int span, bool horizontal, PointSteps& U) const {
    const auto i = static_cast<std::size_t>(span);
    if (horizontal && !loaded_.horizontal) {
        std::fill(std::begin(U), std::end(U), 0.0F);
        return;
    }
    const PerSpan& moment = horizontal ? position_.momentY : position_.momentZ;
    const auto& points = horizontal ? loaded_.pointsY : loaded_.pointsZ;
    points[i].deflections(moment[i - 1], moment[i],
                          wheelsInSpan(position_.wheels, span, horizontal ? &Wheel::Q : &Wheel::P), U);
}

double DrivenCranes::reaction(int support, bool horizontal) const {
    const Single kept = forces_.reaction(support, horizontal ? 4 : 2);
    return support > loaded_.beam.n ? -kept : double{kept};
}

}  // namespace borvik
