#include "support/stiffness_beam.h"

#include <cmath>
#include <utility>

namespace borvik::testing_support {

namespace {

constexpr double E = 210000;  // N/mm2

using Matrix = std::vector<std::vector<double>>;

/// Gauss and Jordan, with the largest pivot of each column.
Matrix inverse(Matrix A) {
    const std::size_t n = A.size();
    Matrix B(n, std::vector<double>(n));
    for (std::size_t i = 0; i < n; ++i) B[i][i] = 1;
    for (std::size_t column = 0; column < n; ++column) {
        std::size_t pivot = column;
        for (std::size_t row = column; row < n; ++row)
            if (std::abs(A[row][column]) > std::abs(A[pivot][column])) pivot = row;
        std::swap(A[pivot], A[column]);
        std::swap(B[pivot], B[column]);
        const double divisor = A[column][column];
        for (std::size_t i = 0; i < n; ++i) {
            A[column][i] /= divisor;
            B[column][i] /= divisor;
        }
        for (std::size_t row = 0; row < n; ++row) {
            if (row == column) continue;
            const double factor = A[row][column];
            for (std::size_t i = 0; i < n; ++i) {
                A[row][i] -= factor * A[column][i];
                B[row][i] -= factor * B[column][i];
            }
        }
    }
    return B;
}

std::size_t index(int i) {
    return static_cast<std::size_t>(i);
}

/// Deflection of a clamped span under a point load, left of the load.
double clampedPointLoad(double P, double a, double b, double x, double EI) {
    const double L = a + b;
    return P * b * b * x * x * (3 * a * L - x * (3 * a + b)) / (6 * EI * L * L * L);
}

}  // namespace

StiffnessBeam::StiffnessBeam(std::vector<Span> spans)
    : spans_(std::move(spans)), rotation_(spans_.size() + 1), ends_(spans_.size()), loads_(spans_.size()) {
    Matrix K(spans_.size() + 1, std::vector<double>(spans_.size() + 1));
    for (std::size_t i = 0; i < spans_.size(); ++i) {
        const double k = E * spans_[i].I / spans_[i].L;
        K[i][i] += 4 * k;
        K[i + 1][i + 1] += 4 * k;
        K[i][i + 1] += 2 * k;
        K[i + 1][i] += 2 * k;
    }
    flexibility_ = inverse(std::move(K));
}

StiffnessBeam::EndForces StiffnessBeam::fixedEnds(int span) const {
    const auto& [L, I, q] = spans_[index(span)];
    EndForces ends{-q * L * L / 12, -q * L * L / 12, 0};
    for (const PointLoad& load : loads_[index(span)]) {
        const double b = L - load.a;
        ends.Ma -= load.P * load.a * b * b / (L * L);
        ends.Mb -= load.P * load.a * load.a * b / (L * L);
    }
    return ends;
}

void StiffnessBeam::solve(const std::vector<PointLoad>& loads) {
    for (auto& ofSpan : loads_) ofSpan.clear();
    for (const PointLoad& load : loads) loads_[index(load.span)].push_back(load);

    std::vector<double> unbalanced(rotation_.size());
    for (int i = 0; i < spans(); ++i) {
        ends_[index(i)] = fixedEnds(i);
        unbalanced[index(i)] -= ends_[index(i)].Ma;
        unbalanced[index(i + 1)] += ends_[index(i)].Mb;
    }
    for (std::size_t r = 0; r < rotation_.size(); ++r) {
        rotation_[r] = 0;
        for (std::size_t c = 0; c < rotation_.size(); ++c) rotation_[r] += flexibility_[r][c] * unbalanced[c];
    }
    for (int i = 0; i < spans(); ++i) {
        const auto& [L, I, q] = spans_[index(i)];
        auto& [Ma, Mb, Va] = ends_[index(i)];
        const double k = 2 * E * I / L;
        const double left = rotation_[index(i)], right = rotation_[index(i + 1)];
        Ma += k * (2 * left + right);
        Mb -= k * (left + 2 * right);
        Va = (Mb - Ma) / L + q * L / 2;
        for (const PointLoad& load : loads_[index(i)]) Va += load.P * (L - load.a) / L;
    }
}

StiffnessBeam::Section StiffnessBeam::at(int span, double x) const {
    const auto& [L, I, q] = spans_[index(span)];
    const auto& [Ma, Mb, Va] = ends_[index(span)];
    const double EI = E * I;
    const double s = x / L;
    Section section;
    section.M = Ma + Va * x - q * x * x / 2;
    section.V = Va - q * x;
    section.w = rotation_[index(span)] * x * (1 - s) * (1 - s) - rotation_[index(span + 1)] * x * s * (1 - s) +
                q * x * x * (L - x) * (L - x) / (24 * EI);
    for (const PointLoad& load : loads_[index(span)]) {
        const double b = L - load.a;
        if (load.a < x) section.M -= load.P * (x - load.a);
        if (load.a < x || (load.a == L && x == L)) section.V -= load.P;
        section.w +=
            x <= load.a ? clampedPointLoad(load.P, load.a, b, x, EI) : clampedPointLoad(load.P, b, load.a, L - x, EI);
    }
    return section;
}

double StiffnessBeam::reaction(int support) const {
    double R = 0;
    if (support < spans()) R += at(support, 0).V;
    if (support > 0) R -= at(support - 1, spans_[index(support - 1)].L).V;
    return R;
}

}  // namespace borvik::testing_support
