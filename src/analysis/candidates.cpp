#include "analysis/candidates.h"

#include <algorithm>

namespace borvik {

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

}  // namespace borvik
