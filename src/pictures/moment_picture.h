#pragma once

#include "pictures/picture.h"

namespace borvik {

/// The moment diagrams that the factors C1, C2, C3 of the critical moment belong to.
enum class MomentZone { EndPositive, MidPositive, EndNegative, MidNegative };

/// A beam of three spans with the span and the part of its moment diagram marked.
[[nodiscard]] PicturePainter momentPicture(MomentZone zone);

}  // namespace borvik
