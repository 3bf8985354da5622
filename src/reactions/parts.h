#pragma once

#include "project/loads.h"

namespace borvik {

/// Characteristic wheel loads. @param dynamic  with the dynamic factors of each crane
void setCharacteristicWheels(const Project& project, bool dynamic, RunLoads& loads);

[[nodiscard]] RunLoads withoutDeadLoad(RunLoads loads);
[[nodiscard]] RunLoads withoutWheels(RunLoads loads);

}  // namespace borvik
