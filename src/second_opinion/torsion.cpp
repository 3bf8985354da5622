#include "second_opinion/torsion.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/fault.h"

namespace borvik {

namespace {

/// Elements of each span so short that their number moves no result by more than some 1e-5: the error of a cubic grows
/// with (k h)^4/720, k = sqrt(G It/(E Iw)). Twenty at least: the points of the results are nodes.
std::vector<int> elementsOf(const LineBeam& beam) {
    constexpr int kLeast = 20, kMost = 160;
    constexpr double kLongest = 0.25;  // k h
    std::vector<int> counts;
    for (const LineBeam::Span& span : beam.spans) {
        const double kL = span.L * std::sqrt(kLineG * span.section.It / (kLineE * span.section.Iw));
        const double wanted = std::ceil(kL / kLongest / kLeast) * kLeast;
        counts.push_back(wanted < kMost ? std::max(kLeast, static_cast<int>(wanted)) : kMost);
    }
    return counts;
}

LineMesh meshOf(const LineBeam& beam, std::vector<double> required) {
    beam.check();
    return LineMesh(beam, elementsOf(beam), std::move(required));
}

}  // namespace

TorsionBeam::TorsionBeam(LineBeam beam, std::vector<double> required)
    : beam_(std::move(beam)), mesh_(meshOf(beam_, std::move(required))) {
    int next = 0;
    int slope = next++;
    int phi = -1;
    for (std::size_t e = 0; e < mesh_.elements.size(); ++e) {
        const bool support = mesh_.isSupport[e + 1] != 0;
        const int endPhi = support ? -1 : next++;
        const int endSlope = next++;
        freedoms_.push_back({phi, slope, endPhi, endSlope});
        phi = endPhi;
        const bool last = e + 1 == mesh_.elements.size();
        slope = support && !last && beam_.warping == InnerWarping::Free ? next++ : endSlope;
    }
    factors_ = BandMatrix(next, 3);
    for (std::size_t e = 0; e < freedoms_.size(); ++e) {
        const auto k = stiffness(e);
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j)
                if (freedoms_[e][i] >= 0 && freedoms_[e][j] >= 0)
                    factors_.add(freedoms_[e][i], freedoms_[e][j], k[i][j]);
    }
    factors_.factor();
    if (factors_.isSingular()) throw RuntimeFault("a section has no stiffness against torsion");
}

std::array<std::array<double, 4>, 4> TorsionBeam::stiffness(std::size_t element) const {
    const LineSection& section = beam_.spans[mesh_.elements[element].span].section;
    const double h = mesh_.elements[element].h;
    const double w = kLineE * section.Iw / (h * h * h), t = kLineG * section.It / (30 * h);
    const double a = 12 * w + 36 * t, b = (6 * w + 3 * t) * h;
    const double c = (4 * w + 4 * t) * h * h, d = (2 * w - t) * h * h;
    return {{{a, b, -a, b}, {b, c, -b, d}, {-a, -b, a, -b}, {b, d, -b, c}}};
}

std::array<double, 4> TorsionBeam::displacements(const std::vector<double>& u, std::size_t element) const {
    std::array<double, 4> of{};
    for (std::size_t i = 0; i < 4; ++i)
        if (freedoms_[element][i] >= 0) of[i] = u[static_cast<std::size_t>(freedoms_[element][i])];
    return of;
}

std::vector<TorsionState> TorsionBeam::solve(const Torques& torques) const {
    std::vector<std::array<double, 4>> loads(mesh_.elements.size());
    std::vector<double> u(static_cast<std::size_t>(factors_.size()));
    for (const PointTorque& torque : torques.points) {
        constexpr double kAtNode = 1e-9;
        const std::size_t e = mesh_.elementAt(torque.x);
        const double h = mesh_.elements[e].h, s = (torque.x - mesh_.elements[e].x) / h;
        const int node = s < kAtNode ? freedoms_[e][0] : s > 1 - kAtNode ? freedoms_[e][2] : -1;
        const Cubic cubic(s, h);
        if (node >= 0)
            u[static_cast<std::size_t>(node)] += torque.T;  // the states beside the node differ by it
        else
            for (std::size_t i = 0; i < 4; ++i) loads[e][i] += torque.T * cubic.value[i];
    }
    for (std::size_t e = 0; e < loads.size(); ++e) {
        if (!torques.uniform.empty()) {
            const double h = mesh_.elements[e].h, th = torques.uniform[mesh_.elements[e].span] * h;
            const std::array<double, 4> even{th / 2, th * h / 12, th / 2, -th * h / 12};
            for (std::size_t i = 0; i < 4; ++i) loads[e][i] += even[i];
        }
        for (std::size_t i = 0; i < 4; ++i)
            if (freedoms_[e][i] >= 0) u[static_cast<std::size_t>(freedoms_[e][i])] += loads[e][i];
    }
    factors_.solve(u);

    std::vector<TorsionState> states;
    for (std::size_t e = 0; e < loads.size(); ++e) {
        const LineMesh::Element& element = mesh_.elements[e];
        const auto of = displacements(u, e);
        const auto k = stiffness(e);
        std::array<double, 4> force{};
        for (std::size_t i = 0; i < 4; ++i) {
            force[i] = -loads[e][i];
            for (std::size_t j = 0; j < 4; ++j) force[i] += k[i][j] * of[j];
        }
        const double GIt = kLineG * beam_.spans[element.span].section.It;
        states.push_back({element.x, of[0], of[1], force[1], -force[0], GIt * of[1]});
        states.push_back({element.end(), of[2], of[3], -force[3], force[2], GIt * of[3]});
    }
    return states;
}

TorsionBeam::Place TorsionBeam::placeAt(double x) const {
    const std::size_t e = mesh_.elementAt(x);
    const LineMesh::Element& element = mesh_.elements[e];
    return {e, Cubic((x - element.x) / element.h, element.h).value};
}

TorsionBeam::Influence TorsionBeam::bimomentAt(double x) const {
    const std::size_t node = mesh_.nodeAt(x);
    const bool atLeft = node < mesh_.elements.size();
    Influence line;
    line.element_ = atLeft ? node : node - 1;
    line.held_ = atLeft ? std::array<double, 4>{0, -1, 0, 0} : std::array<double, 4>{0, 0, 0, 1};
    const auto k = stiffness(line.element_);
    std::vector<double> u(static_cast<std::size_t>(factors_.size()));
    for (std::size_t j = 0; j < 4; ++j) {
        const int freedom = freedoms_[line.element_][j];
        if (freedom >= 0) u[static_cast<std::size_t>(freedom)] = atLeft ? k[1][j] : -k[3][j];
    }
    factors_.solve(u);
    for (std::size_t e = 0; e < mesh_.elements.size(); ++e) line.u_.push_back(displacements(u, e));
    return line;
}

double TorsionBeam::Influence::at(const Place& place) const {
    double sum = 0;
    for (std::size_t i = 0; i < 4; ++i) sum += u_[place.element][i] * place.share[i];
    if (place.element == element_)
        for (std::size_t i = 0; i < 4; ++i) sum += held_[i] * place.share[i];
    return sum;
}

}  // namespace borvik
