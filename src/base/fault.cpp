#include "base/fault.h"

#include <cfenv>

namespace borvik {

namespace {
constexpr int kFaults = FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW;
}

RuntimeFault RuntimeFault::at(const std::string& procedure, int span) const {
    std::string place = procedure;
    if (span > 0) place += ", span " + std::to_string(span);
    RuntimeFault placed(place + ": " + what());
    placed.hasPlace_ = true;
    return placed;
}

ArithmeticFlags::ArithmeticFlags() noexcept : before_(std::fetestexcept(kFaults)) {
    std::feclearexcept(kFaults);
}

ArithmeticFlags::~ArithmeticFlags() {
    std::feclearexcept(kFaults);
    if (before_ != 0) std::feraiseexcept(before_);
}

void ArithmeticFlags::check() const {
    const int raised = std::fetestexcept(kFaults);
    if ((raised & FE_DIVBYZERO) != 0) throw RuntimeFault("division by zero");
    if ((raised & FE_INVALID) != 0) throw RuntimeFault("invalid operation, such as the root of a negative number");
    if ((raised & FE_OVERFLOW) != 0) throw RuntimeFault("overflow: a number is too large to be stored");
}

}  // namespace borvik
