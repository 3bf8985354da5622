#pragma once

#include "results/result_tree.h"

namespace borvik {

/// The part of the main window's tree that opens the input forms.
[[nodiscard]] TreeNode inputTree();

}  // namespace borvik
