#pragma once

#include <vector>

#include "dialogs/input_dialog.h"
#include "project/project.h"

namespace borvik {

/// Properties and capacities of an updated section as the section form lists them. Resistances include γM0.
[[nodiscard]] std::vector<PropertyRow> sectionRows(const SectionRecord& section, const Project& project);

}  // namespace borvik
