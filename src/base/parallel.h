#pragma once

#include <atomic>
#include <cstddef>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace borvik {

/// Calls `work(0)` to `work(count - 1)`, on all cores side by side unless told otherwise. Each call writes to a place
/// of its own, so that the outcome doesn't depend on the number of threads.
/// @param stop  looked at before each call; where it becomes true the calls that have not begun are left out
/// @throws what the first failing call threw, after all that were begun have ended
template <class Work>
void inParallel(std::size_t count, Work work, const std::atomic<bool>* stop = nullptr,
                unsigned threads = std::thread::hardware_concurrency()) {
    std::atomic<std::size_t> next = 0;
    std::exception_ptr fault;
    std::mutex guard;
    const auto run = [&] {
        for (std::size_t i = next++; i < count && !(stop != nullptr && *stop); i = next++) {
            try {
                work(i);
            } catch (...) {
                const std::lock_guard lock(guard);
                if (!fault) fault = std::current_exception();
                next = count;
            }
        }
    };
    {
        std::vector<std::jthread> others;
        for (unsigned n = 1; n < threads && n < count; ++n) others.emplace_back(run);
        run();
    }
    if (fault) std::rethrow_exception(fault);
}

}  // namespace borvik
