#include "reactions/joint.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

#include "analysis/driven_cranes.h"
#include "base/fault.h"
#include "base/units.h"
#include "reactions/parts.h"

namespace borvik {

namespace {

constexpr double kStep = 200;  // mm, of the walk

/// The beam of `own` under the cranes of `cranes`, with wheel 1 at `start` in step 0.
Project withCranes(const Project& own, const Project& cranes, double start) {
    Project project = own;
    project.Position = start;
    project.Fixerad = false;
    project.NofCranes = cranes.NofCranes;
    project.Avst = cranes.Avst;
    project.MinAvst = cranes.MinAvst;
    project.MinDistConst = cranes.MinDistConst;
    project.V = cranes.V;
    project.H = cranes.H;
    project.PsiV1 = cranes.PsiV1;
    project.PsiH1 = cranes.PsiH1;
    project.PsiV2 = cranes.PsiV2;
    project.PsiH2 = cranes.PsiH2;
    project.LfULS = cranes.LfULS;
    return project;
}

enum class Crane { First, Second };

RunLoads onlyOf(Crane crane, RunLoads loads) {
    for (int w = 1; w <= 8; ++w)
        if ((w <= 4) != (crane == Crane::First)) loads.WheelV(w) = loads.WheelH(w) = 0.0;
    return loads;
}

/// Both beams under a part of the loads, the cranes at one position.
class JoinedEnds {
public:
    JoinedEnds(const Project& left, const RunLoads& leftLoads, const Project& right, const RunLoads& rightLoads)
        : left_(left, leftLoads, true),
          right_(right, rightLoads, true),
          joint_(left.NofSpans + 1),
          length_(left.BeamLength) {}

    void standAt(WalkPosition position) {
        left_.standAt(position);
        right_.standAt(position);
    }
    [[nodiscard]] SupportForce left() const { return forceOf(left_, joint_); }
    /// A wheel just over the joint stands on both: the left beam has it.
    [[nodiscard]] SupportForce right() const {
        SupportForce force = forceOf(right_, 1);
        for (int w = 1; w <= 8; ++w) {
            if (!isOnLeft(w)) continue;
            const Wheel& wheel = right_.wheels()[static_cast<std::size_t>(w)];
            force.Rz -= wheel.V;
            if (right_.hasHorizontal()) force.Ry -= wheel.H;
        }
        return force;
    }
    [[nodiscard]] SupportForce sum() const {
        const SupportForce one = left();
        const SupportForce other = right();
        return {one.Rz + other.Rz, one.Ry + other.Ry};
    }
    /// The wheels on either beam, from the joint.
    [[nodiscard]] std::vector<PlacedWheel> wheels() const {
        std::vector<PlacedWheel> wheels;
        for (int w = 1; w <= 8; ++w) {
            const bool onLeft = isOnLeft(w);
            const Wheel& wheel = (onLeft ? left_ : right_).wheels()[static_cast<std::size_t>(w)];
            if (wheel.V == 0 && wheel.H == 0) continue;
            wheels.push_back({w, onLeft ? left_.place(w) - length_ : right_.place(w), wheel.V, wheel.H});
        }
        return wheels;
    }

private:
    [[nodiscard]] bool isOnLeft(int w) const { return left_.place(w) >= 0 && left_.place(w) <= length_; }
    [[nodiscard]] static SupportForce forceOf(const DrivenCranes& driven, int support) {
        return {driven.reaction(support, false) / kPerKilo,
                driven.hasHorizontal() ? driven.reaction(support, true) / kPerKilo : 0.0};
    }

    DrivenCranes left_, right_;
    int joint_;
    double length_;
};

/// Two beams and the cranes that pass their joint.
class Joint {
public:
    Joint(const JoinedBeam& left, const JoinedBeam& right, const Project& cranes)
        : steps_(std::floor(left.project.BeamLength / kStep)),
          last_(steps_ + std::floor(right.project.BeamLength / kStep)),
          left_(withCranes(left.project, cranes, left.project.BeamLength - steps_ * kStep)),
          right_(withCranes(right.project, cranes, -steps_ * kStep)),
          design_{loadsOf(left_, left.rail, true), loadsOf(right_, right.rail, true)},
          characteristic_{loadsOf(left_, left.rail, false), loadsOf(right_, right.rail, false)} {
        if (last_ > std::numeric_limits<std::int16_t>::max())
            throw RuntimeFault("overflow: the beams are too long, the walk counts its positions to 32767");
    }

    /// Sums of both ends under one crane at each of its steps, first wheel of crane 1 from the far end of the left beam
    /// to that of the right one; design values without dead load.
    [[nodiscard]] std::vector<SupportForce> line(Crane crane) const {
        JoinedEnds ends =
            under(design_, [crane](const RunLoads& loads) { return onlyOf(crane, withoutDeadLoad(loads)); });
        std::vector<SupportForce> line;
        for (int j = 0; j <= static_cast<int>(last_); ++j) {
            ends.standAt({static_cast<std::int16_t>(j), 0});
            line.push_back(ends.sum());
        }
        return line;
    }

    [[nodiscard]] JointCase at(WalkPosition position, Effect effect, bool largest) const {
        JointCase each{effect, largest, {}, {}, {}};
        const auto solve = [&](SupportForce EndForces::*part, JoinedEnds ends) {
            ends.standAt(position);
            each.left.*part = ends.left();
            each.right.*part = ends.right();
            if (part == &EndForces::total) each.wheels = ends.wheels();
        };
        const auto wheelsOf = [this](bool dynamic) {
            return [this, dynamic](RunLoads loads) {
                setCharacteristicWheels(left_, dynamic, loads);
                return withoutDeadLoad(loads);
            };
        };
        solve(&EndForces::total, under(design_, [](const RunLoads& loads) { return loads; }));
        solve(&EndForces::dead, under(characteristic_, withoutWheels));
        solve(&EndForces::crane, under(characteristic_, wheelsOf(false)));
        solve(&EndForces::craneDynamic, under(characteristic_, wheelsOf(true)));
        return each;
    }

private:
    using BothLoads = std::array<RunLoads, 2>;

    static RunLoads loadsOf(const Project& project, const RailRecord& rail, bool design) {
        RunLoads loads;
        loads.NCranes = project.NofCranes;
        setUlsLoads(project, rail, loads);
        if (!design) setDeadLoad(project, rail, 1.0, loads);
        return loads;
    }
    template <class Change>
    [[nodiscard]] JoinedEnds under(const BothLoads& loads, Change change) const {
        return {left_, change(loads[0]), right_, change(loads[1])};
    }

    double steps_, last_;
    Project left_, right_;
    BothLoads design_, characteristic_;
};

/// The first pair of steps of crane 1 and crane 2, the latter not before the former, with the largest sum.
/// @param moves  crane 2 moves on its own; else it keeps the step of crane 1
/// @param sign   -1: the smallest sum
std::pair<int, int> bestSteps(const std::vector<SupportForce>& first, const std::vector<SupportForce>& second,
                              bool moves, double SupportForce::*force, double sign) {
    const int last = static_cast<int>(first.size()) - 1;
    std::pair<int, int> best{last, last};
    double largest = 0;
    int ahead = last;  // the best step of crane 2 from j on
    for (int j = last; j >= 0; --j) {
        const auto at = [&](const std::vector<SupportForce>& line, int step) {
            return sign * line[static_cast<std::size_t>(step)].*force;
        };
        if (!moves || at(second, j) >= at(second, ahead)) ahead = j;
        const double sum = at(first, j) + at(second, ahead);
        if (j < last && sum < largest) continue;
        largest = sum;
        best = {j, ahead};
    }
    return best;
}

}  // namespace

Project mirrored(const Project& project) {
    Project mirror = project;
    const int n = project.NofSpans;
    for (int i = 1; i <= n; ++i) {
        mirror.Span(i) = project.Span(n + 1 - i);
        mirror.SpanSection(i) = project.SpanSection(n + 1 - i);
    }
    return mirror;
}

std::vector<JointCase> jointReactions(const JoinedBeam& left, const JoinedBeam& right, const Project& cranes) {
    const Joint joint(left, right, cranes);
    const std::vector<SupportForce> first = joint.line(Crane::First);
    const std::vector<SupportForce> second = joint.line(Crane::Second);
    const bool moves = cranes.NofCranes == 2 && cranes.MinDistConst != 1.0;
    const bool horizontal = std::any_of(cranes.H.begin(), cranes.H.end(), [](double H) { return H != 0; });
    std::vector<JointCase> cases;
    for (const Effect effect : {Effect::Rz, Effect::Ry})
        for (const bool largest : {true, false}) {
            if (effect == Effect::Ry && !horizontal) continue;
            const auto force = effect == Effect::Rz ? &SupportForce::Rz : &SupportForce::Ry;
            const auto [j, m] = bestSteps(first, second, moves, force, largest ? 1.0 : -1.0);
            cases.push_back(
                joint.at({static_cast<std::int16_t>(j), static_cast<std::int16_t>(m - j)}, effect, largest));
        }
    return cases;
}

}  // namespace borvik
