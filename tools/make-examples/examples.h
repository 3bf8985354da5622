#pragma once

#include <string>
#include <vector>

#include "project/project.h"

namespace borvik {

/// A project that an engineer would recognise, to open and to learn from.
struct Example {
    std::string file;  ///< name without folder
    Project project;
};

/// All examples, not yet calculated.
[[nodiscard]] std::vector<Example> Examples(const ReferenceTables& tables);

}  // namespace borvik
