#pragma once

#include <vector>

namespace borvik {

/// One span under its loads in one plane: end moments, a uniform load and point loads. Nmm, N/mm, N; loads in their
/// direction, moments sagging positive.
struct SpanLoading {
    struct Load {
        double a = 0;  ///< mm from the left support
        double P = 0;
        double z = 0;  ///< height above the shear centre, mm
    };
    double Ma = 0, Mb = 0;
    double q = 0;
    double qz = 0;  ///< sum of the parts of q, each times its height above the shear centre, N
    std::vector<Load> loads;

    /// The moment at x, mm from the left support. @param L mm
    [[nodiscard]] double moment(double x, double L) const;
    /// The shear beside x: right of a load at x where `afterLoad`, else left of it.
    [[nodiscard]] double shear(double x, double L, bool afterLoad) const;
};

}  // namespace borvik
