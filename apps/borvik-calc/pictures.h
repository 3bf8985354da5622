#pragma once

#include <string>

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

/// Saves a picture of the results, as SVG where the file name ends in ".svg", as PNG otherwise. Needs no display.
/// @param name  one that isPictureName knows
/// @throws OutputError  when this project has no such picture, isn't calculated, or the file can't be written
void savePictureOf(const Session& session, const std::string& name, const std::string& file);

}  // namespace borvik
