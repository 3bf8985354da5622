#pragma once

#include <random>

#include "project/loads.h"
#include "project/project.h"

namespace borvik::testing {

/// A beam with loads for the walks, and what made it.
struct BeamCase {
    Project project;
    RunLoads loads;
};

/// Random beams and cranes that the walks must get right: every crane mode, fixed, start and stop outside, whole and
/// fractional distances, zero and alternating horizontal loads, symmetric beams full of ties, wheels on supports and
/// points, light or unloaded second cranes. Sections are given by Iy and Iz alone.
class RandomBeams {
public:
    explicit RandomBeams(unsigned seed) : random_(seed) {}
    /// @param maxSpans, maxLength  spans and mm of a span
    BeamCase next(int maxSpans = 12, int maxLength = 4000);

    [[nodiscard]] int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }
    [[nodiscard]] double real(double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(random_);
    }
    [[nodiscard]] bool chance(double p) { return std::bernoulli_distribution(p)(random_); }

private:
    void makeSpans(Project& project, int maxSpans, int maxLength);
    void makeLoads(Project& project, RunLoads& loads);
    std::mt19937 random_;
};

/// Sets BeamLength and the lengths of the cranes as the calculation does.
void setLengths(Project& project);

}  // namespace borvik::testing
