#include "second_opinion/band_matrix.h"

#include <algorithm>
#include <cmath>

namespace borvik {

BandMatrix::BandMatrix(int size, int width)
    : size_(size), width_(width), entries_(static_cast<std::size_t>(size * (width + 1))) {}

BandMatrix BandMatrix::plus(double factor, const BandMatrix& other) const {
    BandMatrix sum = *this;
    for (std::size_t i = 0; i < entries_.size(); ++i) sum.entries_[i] += factor * other.entries_[i];
    return sum;
}

std::vector<double> BandMatrix::times(const std::vector<double>& x) const {
    std::vector<double> y(x.size());
    for (int row = 0; row < size_; ++row) {
        const auto r = static_cast<std::size_t>(row);
        y[r] += entry(row, row) * x[r];
        for (int column = std::max(0, row - width_); column < row; ++column) {
            const auto c = static_cast<std::size_t>(column);
            y[r] += entry(row, column) * x[c];
            y[c] += entry(row, column) * x[r];
        }
    }
    return y;
}

double BandMatrix::form(const std::vector<double>& x) const {
    const std::vector<double> y = times(x);
    double sum = 0;
    for (std::size_t i = 0; i < x.size(); ++i) sum += x[i] * y[i];
    return sum;
}

int BandMatrix::factor() {
    constexpr double kSingular = 1e-14;  // of the diagonal entry: what is left of it is rounding
    std::vector<double> diagonal;
    for (int i = 0; i < size_; ++i) diagonal.push_back(std::abs(entry(i, i)));
    int negative = 0;
    for (int k = 0; k < size_; ++k) {
        double& pivot = entry(k, k);
        const double least = kSingular * diagonal[static_cast<std::size_t>(k)];
        if (!(std::abs(pivot) > least)) {
            singular_ = true;
            pivot = least > 0 ? least : 1;  // lets the iteration for an eigenvalue step over it
        }
        if (pivot < 0) ++negative;
        const int last = std::min(size_ - 1, k + width_);
        for (int i = k + 1; i <= last; ++i) {
            const double l = entry(i, k) / pivot;
            if (l == 0) continue;
            for (int j = i; j <= last; ++j) entry(j, i) -= l * entry(j, k);
        }
        for (int i = k + 1; i <= last; ++i) entry(i, k) /= pivot;
    }
    return negative;
}

void BandMatrix::solve(std::vector<double>& x) const {
    const auto at = [&x](int i) -> double& { return x[static_cast<std::size_t>(i)]; };
    for (int i = 0; i < size_; ++i)
        for (int k = std::max(0, i - width_); k < i; ++k) at(i) -= entry(i, k) * at(k);
    for (int i = 0; i < size_; ++i) at(i) /= entry(i, i);
    for (int i = size_ - 1; i >= 0; --i)
        for (int k = i + 1; k <= std::min(size_ - 1, i + width_); ++k) at(i) -= entry(k, i) * at(k);
}

}  // namespace borvik
