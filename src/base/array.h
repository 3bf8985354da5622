#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "base/fault.h"

namespace borvik {

/// Array of fixed bounds First..Last. Index bases are part of the formulas, so an array that starts at 1 in a formula
/// starts at 1 here. An index out of bounds is a RuntimeFault.
template <class T, int First, int Last>
class FixedArray {
public:
    static constexpr int first = First;
    static constexpr int last = Last;
    static constexpr int size = Last - First + 1;

    [[nodiscard]] T& operator()(int i) { return items_[offset(i)]; }
    [[nodiscard]] const T& operator()(int i) const { return items_[offset(i)]; }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    bool operator==(const FixedArray&) const = default;

    /// Public so that an array can be initialised by an aggregate: {{{a, b, c}}} or of().
    std::array<T, size> items_{};

    template <class... Values>
    static FixedArray of(Values... values) {
        return FixedArray{{{static_cast<T>(values)...}}};
    }

private:
    static std::size_t offset(int i) {
        if (i < First || i > Last) throw RuntimeFault("index " + std::to_string(i) + " out of bounds");
        return static_cast<std::size_t>(i - First);
    }
};

/// Array of bounds first..last chosen at run time; empty until sized. An index out of bounds is a RuntimeFault.
template <class T>
class Array {
public:
    Array() = default;
    Array(int first, int last)
        : first_(first), sized_(true), items_(static_cast<std::size_t>(last < first ? 0 : last - first + 1)) {}

    /// False for an array that never got bounds. One of no items,
    /// such as 1..0, has bounds; a project file tells the two apart.
    [[nodiscard]] bool sized() const noexcept { return sized_; }

    [[nodiscard]] int first() const noexcept { return first_; }
    [[nodiscard]] int last() const noexcept { return first_ + static_cast<int>(items_.size()) - 1; }
    [[nodiscard]] int size() const noexcept { return static_cast<int>(items_.size()); }
    [[nodiscard]] bool has(int i) const noexcept { return i >= first_ && i <= last(); }
    [[nodiscard]] T& operator()(int i) { return items_[offset(i)]; }
    [[nodiscard]] const T& operator()(int i) const { return items_[offset(i)]; }

    /// Adds an item behind the last one.
    void append(T item) {
        items_.push_back(std::move(item));
        sized_ = true;
    }
    void erase(int i) { items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(offset(i))); }
    [[nodiscard]] T* data() noexcept { return items_.data(); }
    [[nodiscard]] const T* data() const noexcept { return items_.data(); }
    auto begin() { return items_.begin(); }
    auto end() { return items_.end(); }
    auto begin() const { return items_.begin(); }
    auto end() const { return items_.end(); }
    bool operator==(const Array&) const = default;

private:
    [[nodiscard]] std::size_t offset(int i) const {
        if (!has(i)) throw RuntimeFault("index " + std::to_string(i) + " out of bounds");
        return static_cast<std::size_t>(i - first_);
    }
    int first_ = 0;
    bool sized_ = false;
    std::vector<T> items_;
};

/// Table of rows 1..rows and columns 1..columns, stored row by row. An index out of bounds is a RuntimeFault.
template <class T>
class Table {
public:
    Table() = default;
    Table(int rows, int columns)
        : rows_(rows), columns_(columns), items_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}

    [[nodiscard]] int rows() const noexcept { return rows_; }
    [[nodiscard]] int columns() const noexcept { return columns_; }
    [[nodiscard]] T& operator()(int row, int column) { return items_[offset(row, column)]; }
    [[nodiscard]] const T& operator()(int row, int column) const { return items_[offset(row, column)]; }
    [[nodiscard]] T* data() noexcept { return items_.data(); }
    [[nodiscard]] const T* data() const noexcept { return items_.data(); }
    bool operator==(const Table&) const = default;

private:
    [[nodiscard]] std::size_t offset(int row, int column) const {
        if (row < 1 || row > rows_ || column < 1 || column > columns_)
            throw RuntimeFault("index (" + std::to_string(row) + ", " + std::to_string(column) + ") out of bounds");
        return static_cast<std::size_t>(row - 1) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column - 1);
    }
    int rows_ = 0;
    int columns_ = 0;
    std::vector<T> items_;
};

/// Table of (span, point, slot), each from 1, stored slot by slot
/// within a point. An index out of bounds is a RuntimeFault.
template <class T>
class Cube {
public:
    Cube() = default;
    Cube(int rows, int columns, int slots) : slots_(slots), plane_(rows, columns * slots) {}

    [[nodiscard]] int rows() const noexcept { return plane_.rows(); }
    [[nodiscard]] int columns() const noexcept { return slots_ == 0 ? 0 : plane_.columns() / slots_; }
    [[nodiscard]] int slots() const noexcept { return slots_; }
    [[nodiscard]] T& operator()(int row, int column, int slot) { return plane_(row, place(column, slot)); }
    [[nodiscard]] const T& operator()(int row, int column, int slot) const { return plane_(row, place(column, slot)); }
    [[nodiscard]] T* data() noexcept { return plane_.data(); }
    [[nodiscard]] const T* data() const noexcept { return plane_.data(); }
    bool operator==(const Cube&) const = default;

private:
    [[nodiscard]] int place(int column, int slot) const {
        if (slot < 1 || slot > slots_) throw RuntimeFault("slot " + std::to_string(slot) + " out of bounds");
        return (column - 1) * slots_ + slot;
    }
    int slots_ = 0;
    Table<T> plane_;
};

}  // namespace borvik
