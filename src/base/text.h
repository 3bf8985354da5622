#pragma once

#include <string_view>

namespace borvik {

/// True for two names that differ in capitals only. Letters beyond ASCII must be equal.
[[nodiscard]] bool sameName(std::string_view a, std::string_view b);

}  // namespace borvik
