#pragma once

#include <string>
#include <vector>

#include "calculation/session.h"

namespace borvik {

/// False in a program built without Qt: it has no diagrams.
#ifdef BORVIK_PICTURES
inline constexpr bool kHasPictures = true;
#else
inline constexpr bool kHasPictures = false;
#endif

/// True for a name that some project has a picture of.
[[nodiscard]] bool isPictureName(const std::string& name);

/// A place on the beam: mm from the left support of a span, or before and behind it.
struct BeamPlace {
    int span = 1;
    double position = 0.0;
};
/// "2:4600" of crane 1, or "2:4600,3:800" of both.
/// @return nothing where the text is neither
[[nodiscard]] std::vector<BeamPlace> beamPlaces(const std::string& text);

/// Saves a picture of the results, as SVG where the file name ends in ".svg", as PNG otherwise. Needs no display.
/// @param name  one that isPictureName knows
/// @param cranesAt  where to put the first wheels of the cranes, to draw the sketch and the forces of that position
///                  too; empty: nowhere
/// @return a remark where they can't stand just there; empty where there is none
/// @throws OutputError  when this project has no such picture or span, isn't calculated, or the file can't be written
std::string savePictureOf(const Session& session, const std::string& name, const std::vector<BeamPlace>& cranesAt,
                          const std::string& file);

}  // namespace borvik
