#pragma once

#include <string>
#include <string_view>

namespace borvik {

/// Text of the single-byte code page Windows-1252 as UTF-8. The five bytes that the code page leaves open become the
/// control characters of the same number, so that every byte string survives the way to UTF-8 and back.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

/// UTF-8 as Windows-1252.
/// @param lost  set to true where a character has no place in the code page (or the text is no valid UTF-8) and was
/// replaced
///              by "?"; otherwise left alone
[[nodiscard]] std::string toWindows1252(std::string_view utf8, bool& lost);

}  // namespace borvik
