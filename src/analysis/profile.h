#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

#include "analysis/crane_response.h"

namespace borvik {

/// A number at each position of a range, with the extremes of blocks of positions, so that those which reach a value
/// are found without looking at all.
class Profile {
public:
    /// Begins anew; all values of first..end - 1 must then be set.
    void open(int first, int end) {
        first_ = first;
        values_.resize(static_cast<std::size_t>(std::max(0, end - first)));
        low_.clear();
        high_.clear();
        lowest_ = std::numeric_limits<float>::infinity();
        highest_ = -std::numeric_limits<float>::infinity();
    }
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
    int first_ = 0;
    std::vector<float> values_, low_, high_;
    float lowest_ = std::numeric_limits<float>::infinity();
    float highest_ = -std::numeric_limits<float>::infinity();
};

/// A range of positions in which each crane loads only what is on one side of the span, so that all lanes follow the
/// moment over one support. Sums of singles are kept as singles; the error bound has room for that.
struct OneSided {
    const float* high2 = nullptr;  ///< moment of crane 2 at s: largest of the variants
    const float* low2 = nullptr;   ///< and smallest
    Profile moment1;               ///< of crane 1 at j
    Profile largest2, smallest2;   ///< of crane 2 over s..end - 1
    Profile highest, lowest;       ///< of both: crane 1 at j with the best of crane 2 over s >= j
    double spread = 0;             ///< largest difference of the variants

    /// @param first1  crane 1 from here on; @param first2 <= first1  crane 2 from here on; @param end  of both
    void open(const CraneResponse& crane1, const CraneResponse& crane2, int support, int first1, int first2, int end) {
        high2 = crane2.largestMoments(support);
        low2 = crane2.smallestMoments(support);
        largest2.open(first2, end);
        smallest2.open(first2, end);
        for (Profile* profile : {&moment1, &highest, &lowest}) profile->open(first1, end);
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
        spread = 0;
        if (crane2.varies())
            for (int p = first2; p < end; ++p) spread = std::max(spread, double{high2[p]} - double{low2[p]});
        for (Profile* profile : {&moment1, &highest, &lowest}) profile->close();
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

}  // namespace borvik
