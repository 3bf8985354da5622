#include "analysis/post_process.h"

#include <cmath>

namespace borvik {

SpanForces::SpanForces(const LoadedBeam& loaded)
    : loaded_(loaded), steps_(static_cast<std::size_t>(loaded.beam.n + 1)) {}

void SpanForces::compute(const SolvedPosition& position, int i) {
    const auto at = static_cast<std::size_t>(i);
    SpanStep& step = steps_[at];
    loaded_.pointsZ[at].forces(position.momentZ[i - 1], position.momentZ[i],
                               wheelsInSpan(position.wheels, i, &Wheel::P), step.quantity[1], step.quantity[2]);
    if (loaded_.horizontal)
        loaded_.pointsY[at].forces(position.momentY[i - 1], position.momentY[i],
                                   wheelsInSpan(position.wheels, i, &Wheel::Q), step.quantity[3], step.quantity[4]);
}

Single SpanForces::reaction(int support, int shear) const {
    if (support == 1) return step(1).quantity[shear][1];
    if (support > loaded_.beam.n) return step(loaded_.beam.n).quantity[shear][kPoints];
    return double{step(support).quantity[shear][1]} - double{step(support - 1).quantity[shear][kPoints]};
}

void SpanForces::updateReactions(int shear, SpanMask mask, WalkPosition at, const ReactionRecords& records) const {
    const int n = loaded_.beam.n;
    const auto update = [&](int support) {
        const Single now = reaction(support, shear);
        if (now > records.largest(support)) {
            records.largest(support) = now;
            records.largestAt(support) = at;
        }
        if (now < records.smallest(support)) {
            records.smallest(support) = now;
            records.smallestAt(support) = at;
        }
    };
    if (contains(mask, 1)) update(1);
    if (contains(mask, n)) update(n + 1);
    for (int i = 2; i <= n; ++i)
        if (contains(mask, i - 1) && contains(mask, i)) update(i);
}

UlsPostProcess::UlsPostProcess(const LoadedBeam& loaded, UlsResults& results)
    : loaded_(loaded), results_(results), forces_(loaded), recorder_(kUlsEnvelopes, loaded.beam.n, 8, 6, results) {
    const int n = loaded.beam.n;
    results.RzMax = results.RzMin = results.RyMax = results.RyMin = Array<Single>(1, n + 1);
    results.MySupportSpan = Table<Single>(n, 8);
    UlsPositions& at = results.At;
    at.RzMax = at.RzMin = at.RyMax = at.RyMin = Array<WalkPosition>(1, n + 1);
    at.MySupport = Array<WalkPosition>(1, n);
    at.MySupportPoint = Array<std::int16_t>(1, n);
}

void UlsPostProcess::record(const SolvedPosition& position, SpanMask mask) {
    for (int i = 1; i <= loaded_.beam.n; ++i) {
        if (!contains(mask, i)) continue;
        forces_.compute(position, i);
        recorder_.record(i, loaded_.beam.L[i], forces_.step(i), position);
        recordSupportMoment(i, position);
    }
    UlsPositions& at = results_.At;
    forces_.updateReactions(2, mask, position.at, {results_.RzMax, results_.RzMin, at.RzMax, at.RzMin});
    if (!loaded_.horizontal) return;
    forces_.updateReactions(4, mask, position.at, {results_.RyMax, results_.RyMin, at.RyMax, at.RyMin});
}

/// The most negative moment at an end of the span. End spans have one continuous end; in an inner span the end with the
/// smaller moment counts, the right one where both are equal. Point 10 stands at 9/20 of the span, not in its middle:
/// that is the point that the check of lateral torsional buckling takes for the moment in the span.
void UlsPostProcess::recordSupportMoment(int i, const SolvedPosition& position) {
    const Wheels& wheels = position.wheels;
    const int n = loaded_.beam.n;
    const SpanStep& step = forces_.step(i);
    const float left = step.quantity[1][1];
    const float right = step.quantity[1][kPoints];
    const bool rightGoverns = i == 1 || (i < n && left >= right);
    const float governing = rightGoverns ? right : left;
    Table<Single>& record = results_.MySupportSpan;
    if (!(governing < 0) || !(governing < record(i, 1))) return;
    record(i, 1) = governing;
    record(i, 2) = step.quantity[1][10];
    record(i, 3) = rightGoverns ? left : right;
    record(i, 4) = step.quantity[3][rightGoverns ? kPoints : 1];
    record(i, 5) = wheels[1].span;
    record(i, 6) = wheels[1].a;
    record(i, 7) = wheels[5].span;
    record(i, 8) = wheels[5].a;
    results_.At.MySupport(i) = position.at;
    results_.At.MySupportPoint(i) = rightGoverns ? kPoints : 1;
}

FlsPostProcess::FlsPostProcess(const LoadedBeam& loaded, FlsResults& results)
    : loaded_(loaded), results_(results), forces_(loaded), recorder_(kFlsEnvelopes, loaded.beam.n, 6, 6, results) {
    results.FlsRzMax = results.FlsRzMin = Array<Single>(1, loaded.beam.n + 1);
    results.At.RzMax = results.At.RzMin = Array<WalkPosition>(1, loaded.beam.n + 1);
}

void FlsPostProcess::record(const SolvedPosition& position, SpanMask mask) {
    for (int i = 1; i <= loaded_.beam.n; ++i) {
        if (!contains(mask, i)) continue;
        forces_.compute(position, i);
        recorder_.record(i, loaded_.beam.L[i], forces_.step(i), position);
    }
    forces_.updateReactions(2, mask, position.at,
                            {results_.FlsRzMax, results_.FlsRzMin, results_.At.RzMax, results_.At.RzMin});
}

SlsPostProcess::SlsPostProcess(const LoadedBeam& loaded, SlsResults& results) : loaded_(loaded), results_(results) {
    const int n = loaded.beam.n;
    results.UzMaxPoint = results.UyMaxPoint = Cube<Single>(n, kPoints, 3);
    results.UzMaxSpan = results.UyMaxSpan = Table<Single>(n, 3);
    results.At.Uz = results.At.Uy = Table<WalkPosition>(n, kWholeSpan);
}

void SlsPostProcess::record(const SolvedPosition& position, SpanMask mask) {
    for (int i = 1; i <= loaded_.beam.n; ++i) {
        if (!contains(mask, i)) continue;
        const auto at = static_cast<std::size_t>(i);
        PointSteps U;
        loaded_.pointsZ[at].deflections(position.momentZ[i - 1], position.momentZ[i],
                                        wheelsInSpan(position.wheels, i, &Wheel::P), U);
        keep(i, U, position, results_.UzMaxPoint, results_.UzMaxSpan, results_.At.Uz);
        if (!loaded_.horizontal) continue;
        loaded_.pointsY[at].deflections(position.momentY[i - 1], position.momentY[i],
                                        wheelsInSpan(position.wheels, i, &Wheel::Q), U);
        keep(i, U, position, results_.UyMaxPoint, results_.UyMaxSpan, results_.At.Uy);
    }
}

void SlsPostProcess::keep(int i, const PointSteps& U, const SolvedPosition& position, Cube<Single>& point,
                          Table<Single>& span, Table<WalkPosition>& at) {
    const Wheels& wheels = position.wheels;
    bool changed = false;
    for (int k = 1; k <= kPoints; ++k) {
        if (!(std::abs(U[k]) > std::abs(point(i, k, 1)))) continue;
        point(i, k, 1) = U[k];
        point(i, k, 2) = wheels[1].span;
        point(i, k, 3) = wheels[1].a;
        at(i, k) = position.at;
        changed = true;
    }
    if (!changed) return;
    for (int k = 1; k <= kPoints; ++k) {
        const double magnitude = std::abs(point(i, k, 1));
        if (!(magnitude > span(i, 1))) continue;
        span(i, 1) = magnitude;
        span(i, 2) = point(i, k, 2);
        span(i, 3) = point(i, k, 3);
        at(i, kWholeSpan) = at(i, k);
    }
}

}  // namespace borvik
