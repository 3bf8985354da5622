#include "analysis/key_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "analysis/lanes.h"
#include "analysis/profile.h"

namespace borvik {

namespace {

constexpr double kNothing = -std::numeric_limits<double>::infinity();

/// Pairs that give the same bits as an earlier one are left out: the earlier one came first.
struct PairRules {
    const CraneResponse &crane1, &crane2;
    Candidates& candidates;

    /// Crane 1 without a loaded wheel on the beam, now and a step before: crane 2 stood there at the step before, too.
    [[nodiscard]] bool repeats(int j) const {
        return j > 0 && !crane1.acts(j) && !crane1.acts(j - 1) && !crane2.varies();
    }
    /// Crane 2 that acts no more: the nearest such distance stands for all further ones.
    [[nodiscard]] int lastS(int j, int limit) const { return std::min(limit, std::max(j, crane2.idleFrom())); }
    void add(int j, int s, SpanMask spans) const {
        if (s > j && !crane2.acts(s) && !crane2.acts(s - 1)) return;
        candidates.add(j, s - j, spans);
    }
};

/// Search of the lanes of one place after the other. The positions of each crane fall into three ranges: left of the
/// lanes' spans (until it arrives), on them, and right of them (when it has left). Crane 2 is never left of crane 1.
class LaneSearch {
public:
    LaneSearch(const CraneResponse& crane1, const CraneResponse& crane2, int last, Quantity quantity,
               Candidates& candidates)
        : crane1_(crane1), crane2_(crane2), N_(last), quantity_(quantity), rules_{crane1, crane2, candidates} {}

    /// Finds the pairs that may be the first to reach an extreme at the points of a span. Spans come in rising order.
    void findInSpan(const SpanLanes& lanes) {
        std::swap(left_, leftBefore_);
        setRanges(lanes);
        left_.open(crane1_, crane2_, lanes.firstSpan - 1, 0, 0, a2_);
        right_.open(crane1_, crane2_, lanes.lastSpan, b1_, b2_, N_ + 1);
        leftOfLanes_ = &left_;
        find(SpanMask{1} << lanes.firstSpan);
    }

    /// The same for the reaction between the last two spans: what is
    /// left of them is left of the first, and right of the second.
    void findReaction(const ReactionLane& lane) {
        setRanges(lane);
        leftOfLanes_ = &leftBefore_;
        find(SpanMask{3} << lane.firstSpan);
    }

private:
    /// The search for the largest (sign 1) or the smallest (sign -1) values: both look for the largest of sign x value.
    struct Side {
        double sign;
        std::vector<double> suffix;  ///< [s - a2][lane] best of crane 2 from s on, s = a2..b2 - 1
        LaneValues best{};           ///< best of both cranes together
        LaneValues threshold{};      ///< what a pair must reach to be a candidate
    };

    void setRanges(const Lanes& lanes) {
        lanes_ = &lanes;
        count_ = lanes.count;
        a2_ = crane2_.present() ? crane2_.arrives(lanes.firstSpan) : crane1_.arrives(lanes.firstSpan);
        b2_ = crane2_.present() ? crane2_.leaves(lanes.lastSpan) : crane1_.arrives(lanes.lastSpan);
        b1_ = crane1_.present() ? crane1_.leaves(lanes.lastSpan) : b2_;
    }

    void find(SpanMask spans) {
        spans_ = spans;
        fillRows(crane1_, b1_, rows1_, nullptr);
        fillRows(crane2_, b2_, high2_, crane2_.varies() ? &low2_ : nullptr);
        for (Side& side : sides_) findBest(side);
        setThresholds();
        for (const Side& side : sides_) collect(side);
    }

    /// Rows of the positions a2..end - 1: the largest of the variants, and where wanted the smallest.
    void fillRows(const CraneResponse& crane, int end, std::vector<double>& high, std::vector<double>* low) const {
        high.resize(static_cast<std::size_t>(std::max(0, end - a2_)) * count_);
        if (low != nullptr) low->resize(high.size());
        LaneValues values;
        for (int p = a2_; p < end; ++p) {
            const std::size_t at = static_cast<std::size_t>(p - a2_) * count_;
            lanes_->row(crane, p, 0, high.data() + at);
            if (low == nullptr) continue;
            std::copy_n(high.data() + at, count_, low->data() + at);
            for (int variant = 1; variant < crane.variants(p); ++variant) {
                lanes_->row(crane, p, variant, values.data());
                for (std::size_t l = 0; l < count_; ++l) {
                    high[at + l] = std::max(high[at + l], values[l]);
                    (*low)[at + l] = std::min((*low)[at + l], values[l]);
                }
            }
        }
    }
    [[nodiscard]] const double* row1(int j) const { return rows1_.data() + static_cast<std::size_t>(j - a2_) * count_; }
    /// Rows of crane 2 as they count for a side: at their best, or at their worst.
    [[nodiscard]] const double* row2(const Side& side, int s, bool atBest) const {
        const bool high = low2_.empty() || (side.sign > 0) == atBest;
        return (high ? high2_ : low2_).data() + static_cast<std::size_t>(s - a2_) * count_;
    }

    /// Best of crane 2 over s..N, for s from a2 on. @param room  for the values where they have to be made
    const double* suffixAt(const Side& side, int s, LaneValues& room) const {
        if (s < b2_) return side.suffix.data() + static_cast<std::size_t>(s - a2_) * count_;
        for (std::size_t l = 0; l < count_; ++l)
            room[l] = s <= N_ ? right_.best2(side.sign * lanes_->fromRight[l], s) : kNothing;
        return room.data();
    }

    /// Suffixes of crane 2's rows, at their best or at their worst.
    void makeSuffix(Side& side, bool atBest) {
        side.suffix.resize(high2_.size());
        LaneValues from;
        suffixAt(side, b2_, from);
        for (int s = b2_ - 1; s >= a2_; --s) {
            const double* row = row2(side, s, atBest);
            for (std::size_t l = 0; l < count_; ++l) from[l] = std::max(from[l], side.sign * row[l]);
            std::copy_n(from.data(), count_, side.suffix.data() + static_cast<std::size_t>(s - a2_) * count_);
        }
    }

    /// The best that some pair reaches for certain: crane 2 counts with its worst variant.
    void findBest(Side& side) {
        makeSuffix(side, false);
        LaneValues room;
        side.best.fill(kNothing);
        const auto improve = [&](std::size_t l, double value) { side.best[l] = std::max(side.best[l], value); };
        if (a2_ > 0) {
            const double* from = suffixAt(side, a2_, room);
            for (std::size_t l = 0; l < count_; ++l) {
                const double factor = side.sign * lanes_->fromLeft[l];
                improve(l, leftOfLanes_->best(factor));
                improve(l, leftOfLanes_->moment1.best(factor) + from[l]);
            }
        }
        for (int j = a2_; j < b1_; ++j) {
            const double* from = suffixAt(side, j, room);
            const double* row = row1(j);
            for (std::size_t l = 0; l < count_; ++l) improve(l, side.sign * row[l] + from[l]);
        }
        for (std::size_t l = 0; l < count_ && b1_ <= N_; ++l) improve(l, right_.best(side.sign * lanes_->fromRight[l]));
        for (std::size_t l = 0; l < count_; ++l)
            side.best[l] -=
                std::abs(lanes_->fromLeft[l]) * leftOfLanes_->spread + std::abs(lanes_->fromRight[l]) * right_.spread;
        if (crane2_.varies()) makeSuffix(side, true);
    }

    /// A value can be the first to reach an extreme only within twice the error of the best, and only if it may lie
    /// beyond 0. Forces keep largest and smallest apart; of a deflection the larger magnitude counts.
    void setThresholds() {
        for (std::size_t l = 0; l < count_; ++l) {
            const double E = lanes_->error[l];
            const double D = lanes_->dead[l];
            const double magnitude = std::max(sides_[0].best[l] + D, sides_[1].best[l] - D);
            for (Side& side : sides_) {
                const double toReach = quantity_ == Quantity::Forces
                                           ? std::max(side.best[l] - 2 * E, -E - side.sign * D)
                                           : magnitude - 2 * E - side.sign * D;
                side.threshold[l] = lanes_->alwaysZero[l] ? -kNothing : toReach;
            }
        }
    }

    void collect(const Side& side) {
        LaneValues room;
        if (a2_ > 0) {
            const double* from = suffixAt(side, a2_, room);
            for (std::size_t l = 0; l < count_; ++l) collectLeft(side, l, from[l]);
        }
        for (int j = a2_; j < b1_; ++j) {
            if (rules_.repeats(j)) continue;
            const double* from = suffixAt(side, j, room);
            const double* row = row1(j);
            std::int64_t any = 0;
            for (std::size_t l = 0; l < count_; ++l) any |= side.sign * row[l] + from[l] >= side.threshold[l] ? 1 : 0;
            if (any == 0) continue;
            for (std::size_t l = 0; l < count_; ++l)
                if (side.sign * row[l] + from[l] >= side.threshold[l])
                    pairFrom(side, l, j, j, side.threshold[l] - side.sign * row[l]);
        }
        for (std::size_t l = 0; l < count_ && b1_ <= N_; ++l) collectRight(side, l);
    }

    /// Crane 1 left of the span, crane 2 left of it too, or on it, or right of it.
    void collectLeft(const Side& side, std::size_t l, double fromArrival) {
        const double factor = side.sign * lanes_->fromLeft[l];
        const double threshold = side.threshold[l];
        leftOfLanes_->moment1.reaching(factor, threshold - fromArrival, [&](int j) {
            if (!rules_.repeats(j)) pairFrom(side, l, j, a2_, threshold - factor * double{leftOfLanes_->moment1[j]});
        });
        (factor >= 0 ? leftOfLanes_->highest : leftOfLanes_->lowest).reaching(factor, threshold, [&](int j) {
            if (rules_.repeats(j)) return;
            const double needed = threshold - factor * double{leftOfLanes_->moment1[j]};
            for (int s = j; s <= rules_.lastS(j, a2_ - 1); ++s)
                if (leftOfLanes_->at2(factor, s) >= needed) add(j, s);
        });
    }

    void collectRight(const Side& side, std::size_t l) {
        const double factor = side.sign * lanes_->fromRight[l];
        const double threshold = side.threshold[l];
        (factor >= 0 ? right_.highest : right_.lowest).reaching(factor, threshold, [&](int j) {
            if (!rules_.repeats(j)) pairFrom(side, l, j, j, threshold - factor * double{right_.moment1[j]});
        });
    }

    /// Pairs j with every s >= first at which crane 2 gives at least `needed`. @param first  from a2 on
    void pairFrom(const Side& side, std::size_t l, int j, int first, double needed) {
        int s = std::max(first, j);
        const int end = rules_.lastS(j, N_) + 1;
        for (; s < std::min(b2_, end); ++s)
            if (side.sign * row2(side, s, true)[l] >= needed) add(j, s);
        const double factor = side.sign * lanes_->fromRight[l];
        for (; s < end && right_.best2(factor, s) >= needed; ++s)
            if (right_.at2(factor, s) >= needed) add(j, s);
    }

    void add(int j, int s) { rules_.add(j, s, spans_); }

    const CraneResponse &crane1_, &crane2_;
    const int N_;
    const Quantity quantity_;
    const PairRules rules_;
    const Lanes* lanes_ = nullptr;
    SpanMask spans_ = 0;
    std::size_t count_ = 0;
    int a2_ = 0, b2_ = 0, b1_ = 0;        ///< crane 2 arrives and has left, crane 1 has left
    OneSided left_, leftBefore_, right_;  ///< of the last span, of the one before; and right of the last span
    const OneSided* leftOfLanes_ = &left_;
    std::vector<double> rows1_, high2_, low2_;  ///< [j - a2][lane] and [s - a2][lane]; low2_ only where variants differ
    std::array<Side, 2> sides_{{{1, {}, {}, {}}, {-1, {}, {}, {}}}};
};

}  // namespace

void searchPlane(const Plane& plane, const CraneResponse& crane1, const CraneResponse& crane2, int last,
                 Quantity quantity, Candidates& candidates) {
    const MomentBounds bounds(plane, crane1.magnitudes(), crane2.magnitudes());
    LaneSearch search(crane1, crane2, last, quantity, candidates);
    for (int i = 1; i <= plane.beam.n && !candidates.tooMany(); ++i) {
        search.findInSpan(SpanLanes(plane, i, quantity, bounds));
        if (i > 1 && quantity == Quantity::Forces) search.findReaction(ReactionLane(plane, i, bounds));
    }
}

}  // namespace borvik
