#pragma once

#include "pictures/picture.h"
#include "project/project.h"

namespace borvik {

/// The section to scale with its dimensions, its reinforcement, and an arrow at the point of load application.
[[nodiscard]] PicturePainter sectionPicture(const SectionRecord& section, const Project& project);
/// The top of the section with the reinforcement plates and their dimensions.
[[nodiscard]] PicturePainter reinforcementPicture(const SectionRecord& section);

/// The end of a beam over its support from the side: the stiffeners
/// of a rigid or a non-rigid end post, EN 1993-1-5 Figure 9.6.
[[nodiscard]] PicturePainter endPostPicture(EndPost endPost);

}  // namespace borvik
