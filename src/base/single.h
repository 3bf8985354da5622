#pragma once

namespace borvik {

/// A stored number: 32 bits wide at rest, a double as soon as it is read. Every expression is therefore computed in
/// double precision and rounded once, when it is stored; no expression is ever computed in single precision by
/// accident. A number too large for 32 bits is stored as infinity and raises the overflow flag that `watched` looks at.
class Single {
public:
    constexpr Single() noexcept = default;
    constexpr Single(double number) noexcept : stored_(static_cast<float>(number)) {}    // NOLINT: meant to be implicit
    constexpr operator double() const noexcept { return static_cast<double>(stored_); }  // NOLINT: meant to be implicit

    /// The 32-bit number as it stands in a file, whatever its bits.
    [[nodiscard]] static constexpr Single fromStored(float stored) noexcept {
        Single single;
        single.stored_ = stored;
        return single;
    }

    /// The 32-bit number itself, for files and for comparison bit by bit.
    [[nodiscard]] constexpr float stored() const noexcept { return stored_; }

    constexpr Single& operator+=(double x) noexcept { return *this = Single(double(*this) + x); }
    constexpr Single& operator-=(double x) noexcept { return *this = Single(double(*this) - x); }
    constexpr Single& operator*=(double x) noexcept { return *this = Single(double(*this) * x); }
    constexpr Single& operator/=(double x) noexcept { return *this = Single(double(*this) / x); }

private:
    float stored_ = 0.0F;
};

}  // namespace borvik
