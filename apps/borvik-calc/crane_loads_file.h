#pragma once

#include <iosfwd>
#include <string>

namespace borvik {

/// Reads crane data from a JSON file, one crane or a list of them, and writes their loads, one or a list. What is wrong
/// is said on `err`, with the file's name in front and, in a list, the crane's number; then nothing is written.
/// @return kDone; kRefused where the content is wrong; kFileFault where the file can't be read or `out` not be written
[[nodiscard]] int writeCraneLoads(const std::string& file, std::ostream& out, std::ostream& err);

}  // namespace borvik
