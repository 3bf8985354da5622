#pragma once

#include <cstddef>
#include <vector>

#include "analysis/position.h"

namespace borvik {

/// The positions that may be the first to reach an extreme: pairs (j, k) with the spans to compare there.
class Candidates {
public:
    struct Item {
        int j, k;
        SpanMask spans;
    };

    /// @param most  pairs beyond which collecting ends; the plain walk is as quick then
    explicit Candidates(std::size_t most) : most_(most) {}
    void add(int j, int k, SpanMask spans);
    [[nodiscard]] bool tooMany() const noexcept { return tooMany_; }
    /// In the order of the walk, each pair once.
    [[nodiscard]] const std::vector<Item>& inOrder();

private:
    void merge();
    static constexpr std::size_t kMostTimes =
        10;  ///< how often a pair may be found, on average, before collecting ends
    std::size_t most_;
    std::size_t added_ = 0;
    std::size_t mergeAt_ = 1 << 16;
    bool tooMany_ = false;
    std::vector<Item> items_;
};

}  // namespace borvik
