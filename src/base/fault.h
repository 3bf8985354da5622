#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace borvik {

/// A run-time fault of a calculation: division by zero, root of a negative number, overflow of a stored number, index
/// out of bounds, a section that no table has. The one exception type of the engine; it ends the calculation and is
/// caught in one place, by the driver.
class RuntimeFault : public std::runtime_error {
public:
    explicit RuntimeFault(const std::string& what) : std::runtime_error(what) {}

    /// The same fault with the place where it happened: "Lateral torsional buckling, span 2: division by zero".
    /// @param span  1..30, or 0 where the fault belongs to no span
    [[nodiscard]] RuntimeFault at(const std::string& procedure, int span) const;

    /// True once a place has been added; the innermost place stays.
    [[nodiscard]] bool hasPlace() const noexcept { return hasPlace_; }

private:
    bool hasPlace_ = false;
};

/// The arithmetic faults that the processor has noted since the flags were last cleared.
class ArithmeticFlags {
public:
    /// Notes what was raised before and clears the flags.
    ArithmeticFlags() noexcept;
    /// Raises again what had been raised before, so that watches can be nested.
    ~ArithmeticFlags();
    ArithmeticFlags(const ArithmeticFlags&) = delete;
    ArithmeticFlags& operator=(const ArithmeticFlags&) = delete;

    /// @throws RuntimeFault  when a division by zero, an invalid operation (such as
    ///                       the root of a negative number) or an overflow happened
    ///                       since construction
    void check() const;

private:
    int before_;
};

/// Runs `body` and turns an arithmetic fault inside it into a RuntimeFault that names the procedure and the span. The
/// test is made once, after the body, on the processor's flags; formulas stay free of guards.
/// @param span  1..30, or 0 where no span applies
template <class Body>
[[gnu::noinline]] void watched(const char* procedure, int span, Body&& body) {
    const ArithmeticFlags flags;
    try {
        std::forward<Body>(body)();
        flags.check();
    } catch (const RuntimeFault& fault) {
        if (fault.hasPlace()) throw;
        throw fault.at(procedure, span);
    }
}

}  // namespace borvik
