#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <functional>
#include <string>

#include "platform/drawing_surface.h"

namespace borvik {

/// Draws a whole picture on a surface.
using PictureDrawing = std::function<void(DrawingSurface&)>;

/// A picture of that many pixels on white paper; text grows with pictures wider than 1000 pixels.
[[nodiscard]] QImage renderPicture(const PictureDrawing& drawing, QSize pixels);

/// Saves a picture as SVG where the file name ends in ".svg", as
/// PNG otherwise. The old file stays until the new one is whole.
/// @throws OutputError  the file is then as it was
void savePicture(const std::string& fileName, const PictureDrawing& drawing, QSize pixels, const QString& title);

}  // namespace borvik
