#pragma once

#include <string>
#include <string_view>

namespace borvik {

/// SHA-256 of bytes (FIPS 180-4), as 64 hexadecimal digits.
[[nodiscard]] std::string sha256(std::string_view bytes);

}  // namespace borvik
