#pragma once

#include "pictures/picture.h"
#include "project/project.h"

namespace borvik {

/// The spans of the beam to scale on their supports, each with its number, length and section.
[[nodiscard]] PicturePainter beamPicture(const Project& project);

}  // namespace borvik
