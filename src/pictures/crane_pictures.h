#pragma once

#include "pictures/picture.h"
#include "project/project.h"

namespace borvik {

/// One or two overhead cranes on the beam: the wheels with their numbers at their distances to scale; wheels that
/// aren't there are faint.
[[nodiscard]] PicturePainter cranesPicture(const Project& project);
/// The same for the hoist of a monorail, hanging under the beam.
[[nodiscard]] PicturePainter hoistPicture(const Project& project);
/// The wheels of a hoist on the bottom flange, with the distance n from the tip of the flange.
[[nodiscard]] PicturePainter bottomFlangePicture(const Project& project);

}  // namespace borvik
