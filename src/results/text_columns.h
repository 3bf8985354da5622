#pragma once

#include <string>
#include <vector>

namespace borvik {

/// A table of texts for a fixed-width font, indented by two: each column as wide as its widest cell, all but the first
/// to the right. Rows may be shorter than the first.
[[nodiscard]] std::string textColumns(const std::vector<std::vector<std::string>>& rows);

}  // namespace borvik
