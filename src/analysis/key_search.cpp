#include "analysis/key_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace borvik {

// --- Candidates
// ---------------------------------------------------------------------------------------------------------

void Candidates::add(int j, int k, SpanMask spans) {
    if (tooMany_) return;
    items_.push_back({j, k, spans});
    tooMany_ = ++added_ > kMostTimes * most_;
    if (items_.size() < mergeAt_) return;
    merge();
    tooMany_ = tooMany_ || items_.size() > most_;
    mergeAt_ = std::max(mergeAt_, 2 * items_.size());
}

const std::vector<Candidates::Item>& Candidates::inOrder() {
    merge();
    return items_;
}

void Candidates::merge() {
    std::sort(items_.begin(), items_.end(),
              [](const Item& a, const Item& b) { return a.j != b.j ? a.j < b.j : a.k < b.k; });
    std::size_t kept = 0;
    for (const Item& item : items_) {
        if (kept > 0 && items_[kept - 1].j == item.j && items_[kept - 1].k == item.k)
            items_[kept - 1].spans |= item.spans;
        else
            items_[kept++] = item;
    }
    items_.resize(kept);
}

namespace {

constexpr int kMostLanes = 2 * kPoints;
constexpr double kNothing = -std::numeric_limits<double>::infinity();
using LaneValues = std::array<double, kMostLanes>;

/// Bounds of what rounding makes of the support moments, uniform over all positions, and their magnitudes.
struct MomentBounds {
    PerSpan error{};      ///< [0..n] |stored - ideal|, Nmm
    PerSpan magnitude{};  ///< [0..n] |ideal|
    PerSpan kept{};       ///< [0..n] error of keeping the responses of both cranes, and their sum, as singles
    double load = 0;      ///< sum of all wheel loads, N

    MomentBounds(const Plane& plane, const Magnitudes& m1, const Magnitudes& m2) : load(m1.load + m2.load) {
        const int last = plane.beam.n - 1;
        const int wheels = m1.wheels + m2.wheels;
        PerSpan eliminated{};  // error of the eliminated load terms
        PerSpan size{};        // and their magnitude
        for (int r = 1; r <= last; ++r) {
            const double dead = std::abs(plane.deadTerms[r]);
            const double terms = kUnit * ((wheels + 1) * dead + wheels * (m1.rotation[r] + m2.rotation[r]));
            size[r] = std::abs(plane.deadEliminated[r]) + m1.eliminated[r] + m2.eliminated[r];
            eliminated[r] = (terms + std::abs(plane.matrix.factor[r]) * eliminated[r - 1]) * (1 + kUnit) +
                            kUnit * size[r] + kSmallest;
        }
        for (int r = last; r >= 1; --r) {
            magnitude[r] = std::abs(plane.deadMoments[r]) + m1.moment[r] + m2.moment[r];
            kept[r] = 2 * kUnit * (m1.moment[r] + m2.moment[r]);
            error[r] = ((eliminated[r] + kUnit * size[r]) / std::abs(plane.matrix.diagonal[r]) +
                        std::abs(plane.fromRight[r]) * error[r + 1]) *
                           (1 + kUnit) +
                       kUnit * magnitude[r] + kSmallest;
        }
    }

    static constexpr double kSmallest = 1e-30;  ///< where singles get so small that their relative error grows
};

/// The quantities of one span: lane k - 1 is the first quantity at point k, lane 21 + k - 1 the second.
/// Value = dead + left Ma + right Mb + wheels, linear in the loads.
class Lanes {
public:
    Lanes(const Plane& plane, int i, Quantity quantity, const MomentBounds& bounds)
        : count(quantity == Quantity::Forces ? 2 * kPoints : kPoints),
          points_(plane.points[static_cast<std::size_t>(i)]) {
        const SpanPoints& p = points_;
        const double W = bounds.load;
        for (int k = 1; k <= kPoints; ++k) {
            const double x = p.x[k];
            const double rest = p.rest[k];
            if (quantity == Quantity::Forces) {
                // A wheel a rounding beyond the end of the span gives a moment of at most its load times a millimetre.
                set(k - 1, p.leftShare[k], x / p.L, p.deadM[k], W * (x * rest / p.L + 1));
                set(kPoints + k - 1, -1 / p.L, 1 / p.L, p.deadV[k], W);
            } else {
                // (1 - t) t (2 - t) and (1 - t) t (1 + t) are at most 0.385.
                const double cubic = std::max(0.385 * p.L * p.L * x + p.x3[k], p.rest3[k] + 0.385 * p.L * p.L * rest);
                set(k - 1, -p.leftU[k] * rest * p.L / p.c6EI, -p.rightU[k] * x * p.L / p.c6EI, p.deadU[k],
                    W * cubic / p.c6EI);
            }
        }
        const auto at = static_cast<std::size_t>(i);
        for (std::size_t l = 0; l < static_cast<std::size_t>(count); ++l) {
            const double a = std::abs(left[l]);
            const double b = std::abs(right[l]);
            const double size =
                a * bounds.magnitude[at - 1] + b * bounds.magnitude[at] + wheels_[l] + std::abs(dead[l]);
            error[l] = a * (bounds.error[at - 1] + bounds.kept[at - 1]) + b * (bounds.error[at] + bounds.kept[at]) +
                       (kUnit + 0x1p-46) * size + MomentBounds::kSmallest;
            dead[l] += left[l] * plane.deadMoments[at - 1] + right[l] * plane.deadMoments[at];
            fromLeft[l] = left[l] - right[l] * plane.fromLeft[at];
            fromRight[l] = right[l] - left[l] * plane.fromRight[at - 1];
        }
    }

    /// Values that a crane gives at position p in one of its variants.
    void row(const CraneResponse& crane, int i, int p, int variant, double* values) const {
        double Ma = 0;
        double Mb = 0;
        SpanWheels wheels;
        crane.inSpan(i, p, variant, Ma, Mb, wheels);
        for (std::size_t l = 0; l < static_cast<std::size_t>(count); ++l) values[l] = left[l] * Ma + right[l] * Mb;
        if (wheels.count == 0) return;
        PointValues first{}, second{};
        for (int w = 0; w < wheels.count; ++w)
            count > kPoints ? points_.addForces(wheels.item[w], first, second)
                            : points_.subtractDeflection(wheels.item[w], first);
        for (int k = 1; k <= kPoints; ++k) values[k - 1] += first[k];
        if (count > kPoints)
            for (int k = 1; k <= kPoints; ++k) values[kPoints + k - 1] += second[k];
    }

    int count;
    LaneValues left{}, right{};  ///< shares of the end moments Ma, Mb
    LaneValues dead{};           ///< value under dead load alone
    LaneValues error{};          ///< bound of |stored - ideal|
    LaneValues fromLeft{},
        fromRight{};  ///< value per Ma while a crane stands left of the span, per Mb while it stands right

private:
    void set(int lane, double a, double b, double deadValue, double wheels) {
        const auto l = static_cast<std::size_t>(lane);
        left[l] = a;
        right[l] = b;
        dead[l] = deadValue;
        wheels_[l] = wheels;
    }
    const SpanPoints& points_;
    LaneValues wheels_{};  ///< magnitude of the wheels' share
};

/// A number at each position of a range, with the extremes of blocks of positions, so that those which reach a value
/// are found without looking at all.
class Profile {
public:
    Profile(int first, int end) : first_(first), values_(static_cast<std::size_t>(std::max(0, end - first))) {}
    [[nodiscard]] float& operator[](int p) { return values_[static_cast<std::size_t>(p - first_)]; }
    [[nodiscard]] float operator[](int p) const { return values_[static_cast<std::size_t>(p - first_)]; }
    [[nodiscard]] bool empty() const { return values_.empty(); }

    /// To be called when all values are set.
    void close() {
        for (std::size_t p = 0; p < values_.size(); p += kBlock) {
            const auto [low, high] = std::minmax_element(
                values_.begin() + static_cast<std::ptrdiff_t>(p),
                values_.begin() + static_cast<std::ptrdiff_t>(std::min(p + kBlock, values_.size())));
            low_.push_back(*low);
            high_.push_back(*high);
            lowest_ = std::min(lowest_, *low);
            highest_ = std::max(highest_, *high);
        }
    }
    /// Largest of factor x value. The profile must not be empty.
    [[nodiscard]] double best(double factor) const { return factor * double{factor >= 0 ? highest_ : lowest_}; }

    /// Calls visit(p) for each position at which factor x value reaches `needed`, in rising order.
    template <class Visit>
    void reaching(double factor, double needed, Visit visit) const {
        if (empty() || best(factor) < needed) return;
        const std::vector<float>& extreme = factor >= 0 ? high_ : low_;
        for (std::size_t block = 0; block < extreme.size(); ++block) {
            if (factor * double{extreme[block]} < needed) continue;
            const std::size_t end = std::min((block + 1) * kBlock, values_.size());
            for (std::size_t at = block * kBlock; at < end; ++at)
                if (factor * double{values_[at]} >= needed) visit(first_ + static_cast<int>(at));
        }
    }

private:
    static constexpr std::size_t kBlock = 32;
    int first_;
    std::vector<float> values_, low_, high_;
    float lowest_ = std::numeric_limits<float>::infinity();
    float highest_ = -std::numeric_limits<float>::infinity();
};

/// A range of positions in which each crane loads only what is on one side of the span, so that all lanes follow the
/// moment over one support. Sums of singles are kept as singles; the error bound has room for that.
struct OneSided {
    const float *high2, *low2;    ///< moment of crane 2 at s: largest and smallest of the variants
    Profile moment1;              ///< of crane 1 at j
    Profile largest2, smallest2;  ///< of crane 2 over s..end - 1
    Profile highest, lowest;      ///< of both: crane 1 at j with the best of crane 2 over s >= j
    double spread = 0;            ///< largest difference of the variants

    /// @param first1  crane 1 from here on; @param first2 <= first1  crane 2 from here on; @param end  of both
    OneSided(const CraneResponse& crane1, const CraneResponse& crane2, int support, int first1, int first2, int end)
        : high2(crane2.largestMoments(support)),
          low2(crane2.smallestMoments(support)),
          moment1(first1, end),
          largest2(first2, end),
          smallest2(first2, end),
          highest(first1, end),
          lowest(first1, end) {
        const float* one = crane1.largestMoments(support);
        float high = -std::numeric_limits<float>::infinity();
        float low = std::numeric_limits<float>::infinity();
        for (int p = end - 1; p >= first2; --p) {
            largest2[p] = high = std::max(high, high2[p]);
            smallest2[p] = low = std::min(low, low2[p]);
            if (p < first1) continue;
            moment1[p] = one[p];
            highest[p] = one[p] + high;
            lowest[p] = one[p] + low;
        }
        if (crane2.varies())
            for (int p = first2; p < end; ++p) spread = std::max(spread, double{high2[p]} - double{low2[p]});
        moment1.close();
        highest.close();
        lowest.close();
    }
    /// Largest of factor x moment of crane 2 at s.
    [[nodiscard]] double at2(double factor, int s) const { return factor * double{factor >= 0 ? high2[s] : low2[s]}; }
    /// The same over s..end - 1.
    [[nodiscard]] double best2(double factor, int s) const {
        return factor * double{factor >= 0 ? largest2[s] : smallest2[s]};
    }
    /// Largest of factor x sum of both.
    [[nodiscard]] double best(double factor) const { return (factor >= 0 ? highest : lowest).best(factor); }
};

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

/// Search of one span in one plane. The positions of each crane fall into three ranges: left of the span (until it
/// arrives), on it, and right of it (when it has left). Crane 2 is never left of crane 1.
class SpanSearch {
public:
    SpanSearch(const Plane& plane, int i, const Lanes& lanes, const CraneResponse& crane1, const CraneResponse& crane2,
               int last, Quantity quantity, Candidates& candidates)
        : i_(i),
          N_(last),
          lanes_(lanes),
          count_(static_cast<std::size_t>(lanes.count)),
          crane1_(crane1),
          crane2_(crane2),
          rules_{crane1, crane2, candidates},
          a2_(crane2.present() ? crane2.arrives(i) : crane1.arrives(i)),
          b2_(crane2.present() ? crane2.leaves(i) : a2_),
          b1_(crane1.present() ? crane1.leaves(i) : b2_),
          left_(crane1, crane2, i - 1, 0, 0, a2_),
          right_(crane1, crane2, i, b1_, b2_, N_ + 1) {
        fillRows(crane1, b1_, rows1_, nullptr);
        fillRows(crane2, b2_, high2_, crane2.varies() ? &low2_ : nullptr);
        for (Side& side : sides_) findBest(side);
        setThresholds(plane, quantity);
        for (const Side& side : sides_) collect(side);
    }

    /// Values of one lane at every position: of crane 1, and the largest and smallest of crane 2's variants.
    [[nodiscard]] std::vector<double> allOf1(int lane) const { return allOf(lane, crane1_, rows1_, b1_, true); }
    [[nodiscard]] std::vector<double> allOf2(int lane, bool largest) const {
        return allOf(lane, crane2_, largest || low2_.empty() ? high2_ : low2_, b2_, largest);
    }

private:
    /// The search for the largest (sign 1) or the smallest (sign -1) values: both look for the largest of sign x value.
    struct Side {
        double sign;
        std::vector<double> suffix;  ///< [s - a2][lane] best of crane 2 from s on, s = a2..b2 - 1
        LaneValues best{};           ///< best of both cranes together
        LaneValues threshold{};      ///< what a pair must reach to be a candidate
    };

    /// Rows of the positions a2..end - 1: the largest of the variants, and where wanted the smallest.
    void fillRows(const CraneResponse& crane, int end, std::vector<double>& high, std::vector<double>* low) const {
        high.resize(static_cast<std::size_t>(std::max(0, end - a2_)) * count_);
        if (low != nullptr) low->resize(high.size());
        LaneValues values;
        for (int p = a2_; p < end; ++p) {
            const std::size_t at = static_cast<std::size_t>(p - a2_) * count_;
            lanes_.row(crane, i_, p, 0, high.data() + at);
            if (low == nullptr) continue;
            std::copy_n(high.data() + at, count_, low->data() + at);
            for (int variant = 1; variant < crane.variants(p); ++variant) {
                lanes_.row(crane, i_, p, variant, values.data());
                for (std::size_t l = 0; l < count_; ++l) {
                    high[at + l] = std::max(high[at + l], values[l]);
                    (*low)[at + l] = std::min((*low)[at + l], values[l]);
                }
            }
        }
    }
    [[nodiscard]] std::vector<double> allOf(int lane, const CraneResponse& crane, const std::vector<double>& rows,
                                            int end, bool largest) const {
        const auto l = static_cast<std::size_t>(lane);
        std::vector<double> values(static_cast<std::size_t>(N_) + 1);
        const double left = lanes_.left[l];
        const double right = lanes_.right[l];
        const float* Ma = (left >= 0) == largest ? crane.largestMoments(i_ - 1) : crane.smallestMoments(i_ - 1);
        const float* Mb = (right >= 0) == largest ? crane.largestMoments(i_) : crane.smallestMoments(i_);
        for (int p = 0; p <= N_; ++p)
            values[static_cast<std::size_t>(p)] = p >= a2_ && p < end
                                                      ? rows[static_cast<std::size_t>(p - a2_) * count_ + l]
                                                      : left * double{Ma[p]} + right * double{Mb[p]};
        return values;
    }
    [[nodiscard]] const double* row1(int j) const { return rows1_.data() + static_cast<std::size_t>(j - a2_) * count_; }
    /// Rows of crane 2 as they count for a side: at their best, or at their worst.
    [[nodiscard]] const double* row2(const Side& side, int s, bool atBest) const {
        const bool high = low2_.empty() || (side.sign > 0) == atBest;
        return (high ? high2_ : low2_).data() + static_cast<std::size_t>(s - a2_) * count_;
    }

    /// Best of crane 2 over s..N, for s from a2 on.
    void suffixAt(const Side& side, int s, double* best) const {
        if (s < b2_) {
            std::copy_n(side.suffix.data() + static_cast<std::size_t>(s - a2_) * count_, count_, best);
            return;
        }
        for (std::size_t l = 0; l < count_; ++l)
            best[l] = s <= N_ ? right_.best2(side.sign * lanes_.fromRight[l], s) : kNothing;
    }

    /// Suffixes of crane 2's rows, at their best or at their worst.
    void makeSuffix(Side& side, bool atBest) {
        side.suffix.resize(high2_.size());
        LaneValues from{};
        suffixAt(side, b2_, from.data());
        for (int s = b2_ - 1; s >= a2_; --s) {
            const double* row = row2(side, s, atBest);
            for (std::size_t l = 0; l < count_; ++l) from[l] = std::max(from[l], side.sign * row[l]);
            std::copy_n(from.data(), count_, side.suffix.data() + static_cast<std::size_t>(s - a2_) * count_);
        }
    }

    /// The best that some pair reaches for certain: crane 2 counts with its worst variant.
    void findBest(Side& side) {
        makeSuffix(side, false);
        LaneValues from{};
        side.best.fill(kNothing);
        const auto improve = [&](std::size_t l, double value) { side.best[l] = std::max(side.best[l], value); };
        if (a2_ > 0) {
            suffixAt(side, a2_, from.data());
            for (std::size_t l = 0; l < count_; ++l) {
                const double factor = side.sign * lanes_.fromLeft[l];
                improve(l, left_.best(factor));
                improve(l, left_.moment1.best(factor) + from[l]);
            }
        }
        for (int j = a2_; j < b1_; ++j) {
            suffixAt(side, j, from.data());
            const double* row = row1(j);
            for (std::size_t l = 0; l < count_; ++l) improve(l, side.sign * row[l] + from[l]);
        }
        for (std::size_t l = 0; l < count_ && b1_ <= N_; ++l) improve(l, right_.best(side.sign * lanes_.fromRight[l]));
        for (std::size_t l = 0; l < count_; ++l)
            side.best[l] -= std::abs(lanes_.fromLeft[l]) * left_.spread + std::abs(lanes_.fromRight[l]) * right_.spread;
        if (crane2_.varies()) makeSuffix(side, true);
    }

    /// A value can be the first to reach an extreme only within twice the error of the best, and only if it may lie
    /// beyond 0. Forces keep largest and smallest apart; of a deflection the larger magnitude counts.
    void setThresholds(const Plane& plane, Quantity quantity) {
        for (std::size_t l = 0; l < count_; ++l) {
            const double E = lanes_.error[l];
            const double D = lanes_.dead[l];
            const double magnitude = std::max(sides_[0].best[l] + D, sides_[1].best[l] - D);
            for (Side& side : sides_) {
                const double toReach = quantity == Quantity::Forces ? std::max(side.best[l] - 2 * E, -E - side.sign * D)
                                                                    : magnitude - 2 * E - side.sign * D;
                side.threshold[l] = alwaysZero(plane, quantity, l) ? -kNothing : toReach;
            }
        }
    }

    /// Moments at the ends of the beam and deflections over supports are exactly 0 at every position.
    [[nodiscard]] bool alwaysZero(const Plane& plane, Quantity quantity, std::size_t lane) const {
        const bool first = lane == 0;
        const bool lastPoint = lane == kPoints - 1;
        if (quantity == Quantity::Deflections) return first || lastPoint;
        return (first && i_ == 1) || (lastPoint && i_ == plane.beam.n);
    }

    void collect(const Side& side) {
        LaneValues from{};
        if (a2_ > 0) suffixAt(side, a2_, from.data());
        for (std::size_t l = 0; l < count_ && a2_ > 0; ++l) collectLeft(side, l, from[l]);
        for (int j = a2_; j < b1_; ++j) {
            if (rules_.repeats(j)) continue;
            suffixAt(side, j, from.data());
            const double* row = row1(j);
            int any = 0;
            for (std::size_t l = 0; l < count_; ++l) any |= side.sign * row[l] + from[l] >= side.threshold[l];
            if (any == 0) continue;
            for (std::size_t l = 0; l < count_; ++l)
                if (side.sign * row[l] + from[l] >= side.threshold[l])
                    pairFrom(side, l, j, j, side.threshold[l] - side.sign * row[l]);
        }
        for (std::size_t l = 0; l < count_ && b1_ <= N_; ++l) collectRight(side, l);
    }

    /// Crane 1 left of the span, crane 2 left of it too, or on it, or right of it.
    void collectLeft(const Side& side, std::size_t l, double fromArrival) {
        const double factor = side.sign * lanes_.fromLeft[l];
        const double threshold = side.threshold[l];
        left_.moment1.reaching(factor, threshold - fromArrival, [&](int j) {
            if (!rules_.repeats(j)) pairFrom(side, l, j, a2_, threshold - factor * double{left_.moment1[j]});
        });
        (factor >= 0 ? left_.highest : left_.lowest).reaching(factor, threshold, [&](int j) {
            if (rules_.repeats(j)) return;
            const double needed = threshold - factor * double{left_.moment1[j]};
            for (int s = j; s <= rules_.lastS(j, a2_ - 1); ++s)
                if (left_.at2(factor, s) >= needed) add(j, s);
        });
    }

    void collectRight(const Side& side, std::size_t l) {
        const double factor = side.sign * lanes_.fromRight[l];
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
        const double factor = side.sign * lanes_.fromRight[l];
        for (; s < end && right_.best2(factor, s) >= needed; ++s)
            if (right_.at2(factor, s) >= needed) add(j, s);
    }

    void add(int j, int s) { rules_.add(j, s, SpanMask{1} << i_); }

    const int i_, N_;
    const Lanes& lanes_;
    const std::size_t count_;
    const CraneResponse &crane1_, &crane2_;
    const PairRules rules_;
    const int a2_, b2_, b1_;
    const OneSided left_, right_;
    std::vector<double> rows1_, high2_, low2_;  ///< [j - a2][lane] and [s - a2][lane]; low2_ only where variants differ
    std::array<Side, 2> sides_{{{1, {}, {}, {}}, {-1, {}, {}, {}}}};
};

/// One value that follows from a whole position: the shears that meet over a support.
struct EndShear {
    std::vector<double> crane1, high2, low2;  ///< at every position; of crane 2 the largest and smallest variant
    double dead = 0, error = 0;
};

EndShear endShear(const SpanSearch& search, const Lanes& lanes, int lane) {
    const auto l = static_cast<std::size_t>(lane);
    return {search.allOf1(lane), search.allOf2(lane, true), search.allOf2(lane, false), lanes.dead[l], lanes.error[l]};
}

/// Search of the reaction over the support between two spans: shear at the start of the right one less shear at the end
/// of the left one.
void searchReaction(const EndShear& leftEnd, const EndShear& rightStart, const PairRules& rules, SpanMask spans) {
    const std::size_t count = leftEnd.crane1.size();
    const int N = static_cast<int>(count) - 1;
    std::vector<double> one(count), two(count), suffix(count);
    const double dead = rightStart.dead - leftEnd.dead;
    for (const double sign : {1.0, -1.0}) {
        double largest1 = 0;
        double largest2 = 0;
        double best = kNothing;  // that some pair reaches for certain
        double worst2 = kNothing;
        for (int p = N; p >= 0; --p) {
            const auto at = static_cast<std::size_t>(p);
            const double high = rightStart.high2[at] - leftEnd.low2[at];
            const double low = rightStart.low2[at] - leftEnd.high2[at];
            one[at] = sign * (rightStart.crane1[at] - leftEnd.crane1[at]);
            two[at] = sign > 0 ? high : -low;
            suffix[at] = p == N ? two[at] : std::max(two[at], suffix[at + 1]);
            worst2 = std::max(worst2, sign > 0 ? low : -high);
            best = std::max(best, one[at] + worst2);
            largest1 = std::max(largest1, std::abs(one[at]));
            largest2 = std::max({largest2, std::abs(high), std::abs(low)});
        }
        const double E = leftEnd.error + rightStart.error + kUnit * (std::abs(dead) + largest1 + largest2);
        const double threshold = std::max(best - 2 * E, -E - sign * dead);
        for (int j = 0; j <= N; ++j) {
            const auto at = static_cast<std::size_t>(j);
            if (one[at] + suffix[at] < threshold || rules.repeats(j)) continue;
            for (int s = j; s <= rules.lastS(j, N); ++s)
                if (one[at] + two[static_cast<std::size_t>(s)] >= threshold) rules.add(j, s, spans);
        }
    }
}

}  // namespace

void searchPlane(const Plane& plane, const CraneResponse& crane1, const CraneResponse& crane2, int last,
                 Quantity quantity, Candidates& candidates) {
    const MomentBounds bounds(plane, crane1.magnitudes(), crane2.magnitudes());
    EndShear leftEnd;
    for (int i = 1; i <= plane.beam.n && !candidates.tooMany(); ++i) {
        const Lanes lanes(plane, i, quantity, bounds);
        const SpanSearch search(plane, i, lanes, crane1, crane2, last, quantity, candidates);
        if (quantity != Quantity::Forces) continue;
        if (i > 1)
            searchReaction(leftEnd, endShear(search, lanes, kPoints), {crane1, crane2, candidates},
                           SpanMask{3} << (i - 1));
        leftEnd = endShear(search, lanes, 2 * kPoints - 1);
    }
}

}  // namespace borvik
