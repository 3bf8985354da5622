#pragma once

#include <cstddef>
#include <string_view>

namespace borvik {

/// True for two names that differ in capitals only. Letters beyond ASCII must be equal.
[[nodiscard]] bool sameName(std::string_view a, std::string_view b);

/// Characters of a UTF-8 text, not bytes.
[[nodiscard]] std::size_t characters(std::string_view text);

/// True for a byte of a UTF-8 text that doesn't begin a character.
[[nodiscard]] bool continuesCharacter(char byte);

/// Bytes of the UTF-8 character that begins with this byte.
[[nodiscard]] std::size_t bytesOfCharacter(char first);

/// The text without blanks at its ends.
[[nodiscard]] std::string_view trimmed(std::string_view text);

}  // namespace borvik
