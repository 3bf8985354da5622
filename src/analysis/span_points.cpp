#include "analysis/span_points.h"

#include <cmath>

namespace borvik {

SpanWheels wheelsInSpan(const Wheels& wheels, int i, double Wheel::*load) {
    SpanWheels found;
    for (int w = 1; w <= 8; ++w)
        if (wheels[w].span == i && wheels[w].*load != 0) found.item[found.count++] = {wheels[w].a, wheels[w].*load};
    return found;
}

SpanPoints::SpanPoints(double length, double I, double q) : L(length), c6EI(I * k6E) {
    const double L2 = std::pow(L, 2);
    const double L3 = std::pow(L, 3);
    for (int k = 1; k <= kPoints; ++k) {
        x[k] = (k - 1) * L / 20;
        rest[k] = L - x[k];
        leftShare[k] = 1 - x[k] / L;
        deadV[k] = L * q / 2 - x[k] * q;
        deadM[k] = (x[k] * q / 2) * rest[k];
        leftU[k] = 1 - std::pow(rest[k], 2) / L2;
        rightU[k] = 1 - std::pow(x[k], 2) / L2;
        x3[k] = std::pow(x[k], 3);
        rest3[k] = std::pow(rest[k], 3);
        deadU[k] = (L3 * (-q * x[k])) / (I * k24E) * (1 - 2 * std::pow(x[k], 2) / L2 + x3[k] / L3);
    }
}

void SpanPoints::addForces(const SpanWheel& wheel, PointValues& M, PointValues& V) const {
    const double a = wheel.a;
    const double right = wheel.load * a / L;       // reaction at the right support
    const double left = (L - a) * wheel.load / L;  // reaction at the left support
    int k = 1;
    for (; k <= kPoints && x[k] <= a; ++k) {
        if (a == L)
            V[k] -= x[k] == L ? wheel.load : 0.0;
        else
            V[k] += a == 0 ? wheel.load : left;
        M[k] += left * x[k];
    }
    for (; k <= kPoints; ++k) {
        V[k] -= right;
        M[k] += right * rest[k];
    }
}

double SpanPoints::startShear(const SpanWheel& wheel) const {
    if (wheel.a == L) return 0.0;
    return wheel.a == 0 ? wheel.load : (L - wheel.a) * wheel.load / L;
}

double SpanPoints::endShear(const SpanWheel& wheel) const {
    if (wheel.a == L) return -wheel.load;
    return wheel.a < L ? -(wheel.load * wheel.a / L) : (L - wheel.a) * wheel.load / L;
}

void SpanPoints::forces(double Ma, double Mb, const SpanWheels& wheels, PointSteps& M, PointSteps& V) const {
    PointValues wheelM{}, wheelV{};
    for (int w = 0; w < wheels.count; ++w) addForces(wheels.item[w], wheelM, wheelV);
    const double shearA = Ma / L;
    const double shearB = Mb / L;
    for (int k = 1; k <= kPoints; ++k) {
        V[k] = static_cast<float>(deadV[k] - shearA + shearB + wheelV[k]);
        M[k] = static_cast<float>(deadM[k] + leftShare[k] * Ma + x[k] * Mb / L + wheelM[k]);
    }
}

void SpanPoints::subtractDeflection(const SpanWheel& wheel, PointValues& U) const {
    const double t = wheel.a / L;
    const double L2 = L * L;
    const double before = (1 - t) * t * (2 - t);
    const double behind = L2 * ((1 - t) * t * (1 + t));
    int k = 1;
    for (; k <= kPoints && x[k] <= wheel.a; ++k) {
        const double D = L2 * (before * x[k]) + x3[k] * (-(1 - t));
        U[k] -= D * wheel.load / c6EI;
    }
    for (; k <= kPoints; ++k) {
        const double D = rest3[k] * (-t) - behind * (x[k] - L);
        U[k] -= D * wheel.load / c6EI;
    }
}

void SpanPoints::deflections(double Ma, double Mb, const SpanWheels& wheels, PointSteps& U) const {
    PointValues wheelU{};
    for (int w = 0; w < wheels.count; ++w) subtractDeflection(wheels.item[w], wheelU);
    for (int k = 1; k <= kPoints; ++k)
        U[k] = static_cast<float>(deadU[k] - leftU[k] * (rest[k] * Ma * L) / c6EI - rightU[k] * (x[k] * Mb * L) / c6EI +
                                  wheelU[k]);
}

}  // namespace borvik
