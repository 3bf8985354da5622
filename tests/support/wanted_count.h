#pragma once

#include <cstdlib>

namespace borvik::testing_support {

/// How often a test on random input runs: `usual` times, or as often as the environment variable says, so that
/// BORVIK_RANDOM_CASES=30000 makes a long run of it and a sanitizer's a short one.
inline int wantedCount(const char* variable, int usual) {
    const char* wanted = std::getenv(variable);
    return wanted != nullptr ? std::atoi(wanted) : usual;
}

}  // namespace borvik::testing_support
