#pragma once

#include <array>
#include <vector>

#include "analysis/position.h"

namespace borvik {

/// One kind of record: the largest or smallest of a quantity at each point of each span, and in each span.
template <class Results>
struct Envelope {
    Cube<Single> Results::*point;
    Table<Single> Results::*span;
    Table<WalkPosition> Results::Positions::*at;
    int key;       ///< slot of the quantity: 1 My, 2 Vz, 3 Mz, 4 Vy
    bool largest;  ///< largest or smallest
};

/// Forces at the points of one span at one position: step[1] My, [2] Vz, [3] Mz, [4] Vy.
struct SpanStep {
    PointSteps quantity[5]{};
};

/// Keeps the point records and span records of a walk. Every comparison is strict and starts from 0, so the first
/// position that reaches an extreme stays, a largest value is never below 0 and a smallest never above.
template <class Results, std::size_t N>
class Recorder {
public:
    Recorder(const std::array<Envelope<Results>, N>& envelopes, int spans, int slotsZ, int slotsY, Results& results)
        : envelopes_(envelopes), results_(results), keys_(static_cast<std::size_t>(spans + 1)) {
        for (const auto& envelope : envelopes_) {
            const int slots = envelope.key <= 2 ? slotsZ : slotsY;
            results.*envelope.point = Cube<Single>(spans, kPoints, slots);
            results.*envelope.span = Table<Single>(spans, slots + 1);
            results.At.*envelope.at = Table<WalkPosition>(spans, kWholeSpan);
        }
    }

    /// Compares span i at the present position with its records.
    void record(int i, double L, const SpanStep& step, const SolvedPosition& position) {
        for (std::size_t e = 0; e < N; ++e) {
            const PointSteps& now = step.quantity[envelopes_[e].key];
            PointSteps& best = keys_[static_cast<std::size_t>(i)].of[e];
            const bool largest = envelopes_[e].largest;
            if (!anyBeyond(now, best, largest)) continue;
            for (int k = 1; k <= kPoints; ++k)
                if (largest ? now[k] > best[k] : now[k] < best[k]) {
                    best[k] = now[k];
                    writePoint(envelopes_[e], i, k, step, position);
                }
            updateSpan(envelopes_[e], i, L);
        }
    }

private:
    struct Keys {
        PointSteps of[N]{};
    };

    static bool anyBeyond(const PointSteps& now, const PointSteps& best, bool largest) {
        int beyond = 0;
        if (largest)
            for (int k = 1; k <= kPoints; ++k) beyond |= now[k] > best[k];
        else
            for (int k = 1; k <= kPoints; ++k) beyond |= now[k] < best[k];
        return beyond != 0;
    }

    void writePoint(const Envelope<Results>& envelope, int i, int k, const SpanStep& step,
                    const SolvedPosition& position) {
        const Wheels& wheels = position.wheels;
        (results_.At.*envelope.at)(i, k) = position.at;
        Cube<Single>& records = results_.*envelope.point;
        for (int q = 1; q <= 4; ++q) records(i, k, q) = step.quantity[q][k];
        records(i, k, 5) = wheels[1].span;
        records(i, k, 6) = wheels[1].a;
        if (records.slots() < 8) return;
        records(i, k, 7) = wheels[5].span;
        records(i, k, 8) = wheels[5].a;
    }

    /// Of several points with equal extremes the first from the left stays.
    void updateSpan(const Envelope<Results>& envelope, int i, double L) {
        const Cube<Single>& points = results_.*envelope.point;
        Table<Single>& span = results_.*envelope.span;
        Table<WalkPosition>& at = results_.At.*envelope.at;
        const int key = envelope.key;
        for (int k = 1; k <= kPoints; ++k)
            if (envelope.largest ? points(i, k, key) > span(i, key) : points(i, k, key) < span(i, key)) {
                for (int slot = 1; slot <= points.slots(); ++slot) span(i, slot) = points(i, k, slot);
                span(i, points.slots() + 1) = ((k - 1) / 20.0) * L;
                at(i, kWholeSpan) = at(i, k);
            }
    }

    const std::array<Envelope<Results>, N>& envelopes_;
    Results& results_;
    std::vector<Keys> keys_;
};

}  // namespace borvik
