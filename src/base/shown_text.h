#pragma once

#include <string>
#include <string_view>

namespace borvik {

/// A text as a terminal may show it: control characters, which could command the terminal or forge lines, become
/// blanks. The texts of a project come from its file, which anybody may have written.
/// @param text  UTF-8
/// @param kept  control characters that stay, such as "\n" in a text of several lines
[[nodiscard]] std::string withoutControls(std::string text, std::string_view kept = {});

}  // namespace borvik
