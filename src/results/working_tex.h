#pragma once

#include <string>
#include <string_view>

namespace borvik {

/// A formula of a working as it is set on paper: division as fractions, indices, Greek letters, roots; in the part of
/// TeX that the manuals use. @param formula  as WorkingStep has it, of names or of numbers
[[nodiscard]] std::string texOf(std::string_view formula);

}  // namespace borvik
