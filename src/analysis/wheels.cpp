#include "analysis/wheels.h"

#include <algorithm>

namespace borvik {

WheelPlacer::WheelPlacer(const Project& project, const Beam& beam, const RunLoads& loads)
    : beam_(beam),
      loads_(loads),
      start_(project.Position),
      minAvst_(project.MinAvst),
      constantDistance_(project.MinDistConst == 1.0) {}

void WheelPlacer::PlaceWheels(int j, int k, Wheels& wheels) const {
    placeCrane1(j, wheels);
    const double nearest = minAvst_ + wheels[4].x;
    placeCrane2(Single(constantDistance_ ? nearest : nearest + k * 200.0), wheels);
}

void WheelPlacer::placeCrane1(int j, Wheels& wheels) const {
    stand(1, Single(start_ + j * 200.0), wheels);
    for (int w = 2; w <= 4; ++w) stand(w, Single(wheels[w - 1].x + loads_.WheelGap(w - 1)), wheels);
}

void WheelPlacer::placeCrane2(double x5, Wheels& wheels) const {
    stand(5, x5, wheels);
    for (int w = 6; w <= 8; ++w) stand(w, Single(wheels[w - 1].x + loads_.WheelGap(w - 2)), wheels);
}

/// Both bounds of a span are inclusive and the first match wins: a wheel exactly over an interior support belongs to
/// the span on its left, with a = L. A wheel off the beam carries nothing at this position.
void WheelPlacer::stand(int w, double x, Wheels& wheels) const {
    Wheel& wheel = wheels[w];
    wheel = {};
    wheel.x = x;
    if (!(x >= beam_.Cum[0] && x <= beam_.Cum[beam_.n])) return;
    const auto* supports = beam_.Cum.data();
    const auto s = static_cast<int>(std::lower_bound(supports + 1, supports + beam_.n, x) - supports);
    wheel.span = s;
    wheel.a = Single(x - beam_.Cum[s - 1]);
    wheel.b = Single(beam_.Cum[s] - x);
    wheel.V = loads_.WheelV(w);
    wheel.H = loads_.WheelH(w);
    wheel.P = wheel.V * 1000.0;
    wheel.Q = wheel.H * 1000.0;
}

void subtractWheelTerms(const Beam& beam, const Wheels& wheels, PerSpan& rhsZ, PerSpan& rhsY) {
    int first = kMaxSpans;
    int last = 1;
    for (int w = 1; w <= 8; ++w) {
        if (wheels[w].P == 0 && wheels[w].Q == 0) continue;
        first = std::min(first, wheels[w].span);
        last = std::max(last, wheels[w].span);
    }
    for (int i = first; i <= last; ++i)
        for (int w = 1; w <= 8; ++w) {
            const Wheel& wheel = wheels[w];
            if (wheel.span != i) continue;
            const auto subtract = [&](PerSpan& rhs, double load, double I) {
                if (load == 0) return;
                if (i > 1) rhs[i - 1] = Single(rhs[i - 1] - rotationTerm(load, wheel.b, beam.L[i], I));
                if (i < beam.n) rhs[i] = Single(rhs[i] - rotationTerm(load, wheel.a, beam.L[i], I));
            };
            subtract(rhsZ, wheel.P, beam.Iy[i]);
            subtract(rhsY, wheel.Q, beam.Iz[i]);
        }
}

}  // namespace borvik
