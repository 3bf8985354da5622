#pragma once

#include "pictures/picture.h"

namespace borvik {

/// Partial factors of fatigue resistance by assessment method and consequence, EN 1993-1-9 Table 3.1.
[[nodiscard]] PicturePainter fatigueFactorPicture();
/// Limits of horizontal and vertical deflection of a runway beam, EN 1993-6 Tables 7.1 and 7.2.
[[nodiscard]] PicturePainter deflectionLimitPicture();
/// Which loads a combination puts together, on the cross-section of a runway beam.
[[nodiscard]] PicturePainter loadCombinationPicture();

}  // namespace borvik
