#pragma once

#include <cstddef>
#include <vector>

namespace borvik {

/// A symmetric matrix whose entries further than `width` from the diagonal are zero, and its factors L D L^T. Indices
/// from 0.
class BandMatrix {
public:
    BandMatrix(int size, int width);

    [[nodiscard]] int size() const { return size_; }
    /// Adds to entry (row, column) and, the matrix being symmetric, to its mirror image; column <= row counts alone.
    void add(int row, int column, double value) {
        if (column <= row) entry(row, column) += value;
    }
    /// This matrix plus factor times another of the same shape.
    [[nodiscard]] BandMatrix plus(double factor, const BandMatrix& other) const;
    /// x times the matrix times x. Not once factored.
    [[nodiscard]] double form(const std::vector<double>& x) const;
    /// The matrix times x. Not once factored.
    [[nodiscard]] std::vector<double> times(const std::vector<double>& x) const;

    /// Puts the factors in place of the entries.
    /// @return the number of negative pivots, which is that of negative eigenvalues
    int factor();
    /// A pivot was zero beside its diagonal entry, or no number: solutions mean nothing.
    [[nodiscard]] bool isSingular() const { return singular_; }
    /// Solves for x in place, after factor().
    void solve(std::vector<double>& x) const;

private:
    [[nodiscard]] double& entry(int row, int column) {
        return entries_[static_cast<std::size_t>(row * (width_ + 1) + row - column)];
    }
    [[nodiscard]] double entry(int row, int column) const {
        return entries_[static_cast<std::size_t>(row * (width_ + 1) + row - column)];
    }
    int size_, width_;
    bool singular_ = false;
    std::vector<double> entries_;  ///< row by row, from the diagonal to the left
};

}  // namespace borvik
