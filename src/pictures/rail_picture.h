#pragma once

#include "pictures/picture.h"
#include "project/project.h"

namespace borvik {

/// The rail in use to scale on a top flange, with the fastening of the project: welded, clamped, or on a resilient pad.
[[nodiscard]] PicturePainter railPicture(const Project& project, const ReferenceTables& tables);

}  // namespace borvik
