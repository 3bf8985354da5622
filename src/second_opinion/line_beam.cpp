#include "second_opinion/line_beam.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"

namespace borvik {

const std::array<GaussPoint, 4> kGauss{{{0.0694318442029737, 0.1739274225687269},
                                        {0.3300094782075719, 0.3260725774312731},
                                        {0.6699905217924281, 0.3260725774312731},
                                        {0.9305681557970263, 0.1739274225687269}}};

double LineBeam::supportAt(std::size_t support) const {
    double x = 0;
    for (std::size_t i = 0; i < support; ++i) x += spans[i].L;
    return x;
}

void LineBeam::check() const {
    if (spans.empty()) throw RuntimeFault("the beam has no span");
    for (const Span& span : spans)
        if (!(span.L > 0)) throw RuntimeFault("there is no length between two supports");
}

LineMesh::LineMesh(const LineBeam& beam, const std::vector<int>& perSpan, std::vector<double> required) {
    constexpr double kSamePlace = 0.003;  // of a span
    std::sort(required.begin(), required.end());
    isSupport.push_back(1);
    double start = 0;
    for (std::size_t i = 0; i < beam.spans.size(); ++i) {
        const double L = beam.spans[i].L;
        std::vector<double> nodes{0};
        const auto addNode = [&](double a) {
            const auto next = std::lower_bound(nodes.begin(), nodes.end(), a);
            const bool taken = (next != nodes.end() && *next - a < kSamePlace * L) ||
                               (next != nodes.begin() && a - *(next - 1) < kSamePlace * L);
            if (!taken && L - a >= kSamePlace * L) nodes.insert(next, a);
        };
        for (const double x : required)
            if (x > start && x < start + L) addNode(x - start);
        for (int k = 1; k < perSpan[i]; ++k) addNode(L * k / perSpan[i]);
        nodes.push_back(L);
        for (std::size_t k = 1; k < nodes.size(); ++k) {
            elements.push_back({i, start + nodes[k - 1], nodes[k] - nodes[k - 1]});
            isSupport.push_back(k + 1 == nodes.size());
        }
        start += L;
    }
}

std::size_t LineMesh::elementAt(double x) const {
    const auto found = std::lower_bound(elements.begin(), elements.end(), x,
                                        [](const Element& element, double place) { return element.end() < place; });
    return static_cast<std::size_t>(std::min(found, elements.end() - 1) - elements.begin());
}

std::size_t LineMesh::nodeAt(double x) const {
    const std::size_t e = elementAt(x);
    return x - elements[e].x < elements[e].end() - x ? e : e + 1;
}

Cubic::Cubic(double s, double h)
    : value{1 - s * s * (3 - 2 * s), h * s * (1 - s) * (1 - s), s * s * (3 - 2 * s), h * s * s * (s - 1)},
      slope{-6 * s * (1 - s) / h, 1 - s * (4 - 3 * s), 6 * s * (1 - s) / h, s * (3 * s - 2)},
      curvature{(12 * s - 6) / h / h, (6 * s - 4) / h, (6 - 12 * s) / h / h, (6 * s - 2) / h} {}

}  // namespace borvik
