#pragma once

#include <string>

#include "project/project.h"

namespace borvik {

/// The three load combinations as text, with every factor by "0.00".
struct LoadCombinations {
    std::string TextULS;
    std::string TextSLS;
    std::string TextFLS;
    bool operator==(const LoadCombinations&) const = default;
};

/// How the combinations are written: the setup form names the permanent load qk, the load forms the crane loads alone.
enum class CombinationText { WithPermanentLoad, CraneLoadsOnly };

/// The combinations that follow from the load factors and from the dynamic factors of one crane or two.
[[nodiscard]] LoadCombinations combinationTexts(const Project& project, CombinationText kind);

}  // namespace borvik
