#include "notes/diagram_factors.h"

#include <cmath>
#include <numbers>

namespace borvik {

CFactors diagramFactors(const PointSteps& My, double MyEd, const SpanWheels& wheels, double L) {
    using std::numbers::pi;
    double squares = 0, firsts = 0;  // 2/L int m^2 sin^2 dx and 2/L int m cos^2 dx, by Simpson's rule
    for (int k = 1; k <= kPoints; ++k) {
        const double weight = (k == 1 || k == kPoints ? 1.0 : k % 2 == 0 ? 4.0 : 2.0) / 30;
        const double m = My[k] / MyEd;
        const double angle = pi * (k - 1) / 20;
        squares += weight * std::pow(m * std::sin(angle), 2);
        firsts += weight * m * std::pow(std::cos(angle), 2);
    }
    double load = 0;  // sum of F sin^2
    for (int w = 0; w < wheels.count; ++w)
        load += wheels.item[w].load * std::pow(std::sin(pi * wheels.item[w].a / L), 2);

    const double C1 = 1 / std::sqrt(squares);
    return {C1, C1 * L / (pi * pi) * load / std::abs(MyEd), C1 * firsts};
}

}  // namespace borvik
