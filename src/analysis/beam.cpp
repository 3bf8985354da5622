#include "analysis/beam.h"

#include <cmath>

namespace borvik {

namespace {

/// Builds the three-moment matrix of one plane, row r being the support
/// between spans r and r + 1, and eliminates it without pivoting.
ThreeMomentMatrix eliminated(const Beam& beam, const PerSpan& I) {
    ThreeMomentMatrix m;
    const int last = beam.n - 1;
    const auto flexibility = [&](int i) { return beam.L[i] / I[i]; };
    PerSpan lower{};
    for (int r = 1; r <= last; ++r) {
        m.diagonal[r] = Single((flexibility(r + 1) + flexibility(r)) * (1 / k6E + 1 / k6E));
        if (r < last) m.upper[r] = Single(flexibility(r + 1) / k6E);
        if (r > 1) lower[r] = Single(flexibility(r) / k6E);
    }
    for (int r = 2; r <= last; ++r) {
        m.factor[r] = Single(lower[r] / m.diagonal[r - 1]);
        m.diagonal[r] = Single(m.diagonal[r] - m.factor[r] * m.upper[r - 1]);
    }
    return m;
}

}  // namespace

Beam::Beam(const Project& project) : n(project.NofSpans) {
    Cum[0] = project.StartStopOutside == 0 ? 0.0 : double(project.CranesLength);
    for (int i = 1; i <= n; ++i) {
        L[i] = project.Span(i);
        Iy[i] = project.SpanSection(i).Iy;
        Iz[i] = project.SpanSection(i).Iz;
        Cum[i] = Single(Cum[i - 1] + L[i]);
    }
    z = eliminated(*this, Iy);
    y = eliminated(*this, Iz);
}

PerSpan deadLoadTerms(const Beam& beam, const RunLoads& loads) {
    PerSpan rhs{};
    const auto term = [&](int i) { return std::pow(beam.L[i], 3) * loads.SpanLoad(i) / beam.Iy[i]; };
    for (int r = 1; r < beam.n; ++r) rhs[r] = Single((-1 / k24E) * (term(r) + term(r + 1)));
    return rhs;
}

double rotationTerm(double P, double d, double L, double I) {
    return (P * d * L) / (I * k6E) * (1 - (d * d) / (L * L));
}

void SolveSupportMoments(const ThreeMomentMatrix& m, int n, PerSpan& rhs, PerSpan& X) {
    for (int r = 2; r < n; ++r) rhs[r] = Single(rhs[r] - m.factor[r] * rhs[r - 1]);
    X[n] = 0;
    for (int r = n - 1; r >= 1; --r) {
        X[r] = 0;
        if (m.diagonal[r] == 0) continue;
        X[r] = Single(rhs[r] / m.diagonal[r] + 0.0);
        X[r] = Single(X[r] - X[r + 1] * m.upper[r] / m.diagonal[r]);
    }
    X[0] = 0;
}

}  // namespace borvik
