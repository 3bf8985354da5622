#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace borvik {

/// States one after the other, with one of them present: the way back and forth of an undo. Whole states, so that no
/// change needs a way back of its own.
template <class State>
class Steps {
public:
    /// States kept before the present one; the oldest is forgotten first. A project's record takes some 50 kB.
    static constexpr std::size_t kSteps = 200;

    [[nodiscard]] bool empty() const { return states_.empty(); }
    /// A new state, after the present one; what was undone before it is forgotten.
    void add(State state) {
        if (!empty()) states_.resize(present_ + 1);
        if (states_.size() == kSteps + 1) states_.erase(states_.begin());
        states_.push_back(std::move(state));
        present_ = states_.size() - 1;
    }
    [[nodiscard]] State& present() { return states_[present_]; }
    [[nodiscard]] const State& present() const { return states_[present_]; }
    /// The state that going forward leads to; null where there is none.
    [[nodiscard]] const State* next() const { return present_ + 1 < states_.size() ? &states_[present_ + 1] : nullptr; }
    [[nodiscard]] bool canGoBack() const { return present_ > 0; }

    /// One step back or forward, where there is one. @return the state that is present then
    const State& back() {
        if (canGoBack()) --present_;
        return present();
    }
    const State& forward() {
        if (next() != nullptr) ++present_;
        return present();
    }

private:
    std::vector<State> states_;
    std::size_t present_ = 0;
};

}  // namespace borvik
