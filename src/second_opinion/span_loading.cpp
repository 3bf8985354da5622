#include "second_opinion/span_loading.h"

namespace borvik {

double SpanLoading::moment(double x, double L) const {
    double M = q * x / 2 * (L - x) + (1 - x / L) * Ma + x / L * Mb;
    for (const Load& load : loads) M += load.a < x ? load.P * load.a / L * (L - x) : load.P * (L - load.a) / L * x;
    return M;
}

double SpanLoading::shear(double x, double L, bool afterLoad) const {
    double V = q * (L / 2 - x) + (Mb - Ma) / L;
    for (const Load& load : loads) {
        const bool passed = afterLoad ? load.a <= x : load.a < x;
        V += passed ? -load.P * load.a / L : load.P * (L - load.a) / L;
    }
    return V;
}

}  // namespace borvik
