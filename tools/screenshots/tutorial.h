#pragma once

#include "camera.h"

namespace borvik {

/// Takes a picture of each step of docs/help/tutorial.md, made in the real forms, and saves the project that comes of
/// it as tutorial.brvk beside the pictures.
void takeTutorial(Camera& camera);

}  // namespace borvik
