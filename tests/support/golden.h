#pragma once

#include <string>

namespace borvik::testing_support {

/// Compares what a program shows with the golden text `file` of tests/data/golden, which was read by a person when it
/// was committed. With BORVIK_RENEW=1 in the environment the file is written anew and the test fails this once, so that
/// nobody renews a text without reading its difference in version control.
/// @return empty, or the first lines that differ and how to renew the file
[[nodiscard]] std::string goldenDifference(const std::string& file, const std::string& text);

}  // namespace borvik::testing_support
