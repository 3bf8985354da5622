#include "second_opinion/wheel_torques.h"

#include <algorithm>
#include <cmath>

#include "analysis/steps.h"
#include "second_opinion/warping_section.h"

namespace borvik {

WheelTorques::WheelTorques(const Project& project, const RailRecord& rail)
    : leverH_(1), eccentricity_(project.CraneType == CraneKind::Overhead ? rail.RailKr / 4 : 0) {
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& s = project.SpanSection(span);
        const double zs = WarpingSection(s).zs;
        leverH_.push_back(project.CraneType == CraneKind::Overhead ? rail.RailHr + s.h - s.EzEl - zs
                                                                   : -(s.EzEl - s.tf2 + zs));
    }
}

namespace {

/// The torques of some wheels at one step, ready for an influence line.
struct Step {
    struct Torque {
        TorsionBeam::Place place;
        double H, V;
    };
    std::vector<Torque> torques;
};

/// Bimoments of the horizontal and of the vertical loads.
struct Bimoments {
    double H = 0, V = 0;
};

/// The steps of the cranes: those that move with crane 1, and crane 2 where it moves on its own.
class Steps {
public:
    Steps(const Project& project, const RunLoads& loads, const WheelTorques& torques, const TorsionBeam& beam)
        : steps_(project, loads.NCranes), torques_(torques), beam_(beam) {
        const Beam plain(project);
        const WheelPlacer placer(project, plain, loads);
        Wheels wheels;
        for (int j = 0; j <= steps_.N1; ++j) {
            placer.PlaceWheels(j, 0, wheels);
            first_.push_back(stepOf(plain, wheels, 1, steps_.secondCraneMoves ? 4 : 8));
            if (steps_.secondCraneMoves) lastOfSecond_ = std::max(lastOfSecond_, j + steps_.lastK(j));
        }
        for (int m = 0; m <= lastOfSecond_; ++m) {
            placer.PlaceWheels(0, m, wheels);
            second_.push_back(stepOf(plain, wheels, 5, 8));
        }
    }

    /// Compares the bimoments of all positions with the largest.
    void compare(const TorsionBeam::Influence& line, int point, LargestBimoment& largest) const {
        const std::vector<Bimoments> first = along(line, first_), second = along(line, second_);
        for (const double side : {1.0, -1.0})
            for (const double sign : {1.0, -1.0}) {
                const auto value = [&](const Bimoments& of) { return sign * (of.H + side * of.V); };
                int best = lastOfSecond_;  // step of crane 2, at j or beyond
                for (int j = steps_.N1; j >= 0; --j) {
                    const auto at = static_cast<std::size_t>(j);
                    double B = value(first[at]);
                    int k = 0;
                    if (steps_.secondCraneMoves) {
                        if (value(second[at]) >= value(second[static_cast<std::size_t>(best)]) || best < j) best = j;
                        k = std::min(best - j, steps_.lastK(j));
                        B += value(second[static_cast<std::size_t>(j + k)]);
                    }
                    if (B <= std::abs(largest.B)) continue;
                    largest = {{static_cast<std::int16_t>(j), static_cast<std::int16_t>(k)}, sign * B, point};
                }
            }
    }

private:
    [[nodiscard]] Step stepOf(const Beam& plain, const Wheels& wheels, int from, int to) const {
        Step step;
        for (int w = from; w <= to; ++w) {
            const Wheel& wheel = wheels[static_cast<std::size_t>(w)];
            const double H = torques_.ofH(wheel), V = torques_.ofV(wheel);
            if (H == 0 && V == 0) continue;
            step.torques.push_back({beam_.placeAt(wheel.x - plain.Cum[0]), H, V});
        }
        return step;
    }

    [[nodiscard]] static std::vector<Bimoments> along(const TorsionBeam::Influence& line,
                                                      const std::vector<Step>& steps) {
        std::vector<Bimoments> values;
        values.reserve(steps.size());
        for (const Step& step : steps) {
            Bimoments sum;
            for (const Step::Torque& torque : step.torques) {
                const double influence = line.at(torque.place);
                sum.H += torque.H * influence;
                sum.V += torque.V * influence;
            }
            values.push_back(sum);
        }
        return values;
    }

    WalkSteps steps_;
    const WheelTorques& torques_;
    const TorsionBeam& beam_;
    std::vector<Step> first_, second_;
    int lastOfSecond_ = -1;
};

}  // namespace

std::vector<LargestBimoment> largestBimoments(const Project& project, const RunLoads& loads,
                                              const WheelTorques& torques, const TorsionBeam& beam) {
    const Steps steps(project, loads, torques, beam);
    std::vector<LargestBimoment> found;
    double start = 0;
    for (int span = 1; span <= project.NofSpans; ++span) {
        LargestBimoment largest;
        const double L = project.Span(span);
        for (int k = 1; k <= kPoints; ++k)
            steps.compare(beam.bimomentAt(start + (k - 1) * L / (kPoints - 1)), k, largest);
        found.push_back(largest);
        start += L;
    }
    return found;
}

}  // namespace borvik
