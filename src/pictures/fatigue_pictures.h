#pragma once

#include "pictures/picture.h"

namespace borvik {

/// The places of a runway beam where fatigue is checked, each by the kind of fastening or of stress.
enum class FatigueDetail {
    RailWeldedClip,
    RailBoltedClip,
    RailWelded,
    StiffenerWelded,
    StiffenerBolted,
    TopFlangeWebVertical,
    TopFlangeWebShear,
    BottomFlangeWeb,
    Splice,
    SupportPoint,
    SupportEdge,
    SupportToTopFlange,
    SupportWebVertical,
    SupportWebShear,
    MonorailTopFlangeWeb,
    BottomFlangeBending,
    BottomFlangeShear
};

/// The detail drawn with its welds, the stress that counts marked by an arrow, the place of the crack by a circle. On a
/// large area the detail categories of EN 1993-1-9 that belong to it stand beside it.
[[nodiscard]] PicturePainter fatigueDetailPicture(FatigueDetail detail);

}  // namespace borvik
