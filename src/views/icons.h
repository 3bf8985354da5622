#pragma once

#include <QIcon>
#include <QStyle>

namespace borvik {

/// What the program's own small pictures stand for.
enum class Picture { Form, Table, Diagram, Printer, OverLimit, OutOfDate, Good };

/// Drawn for the density of the screen, readable on light and dark ground.
[[nodiscard]] QIcon pictureIcon(Picture picture);

/// The icon of the desktop's theme by its standard name; where the theme has none, the style's own.
[[nodiscard]] QIcon themeIcon(const char* name, QStyle::StandardPixmap otherwise);

/// Red for ratios over the limit, chosen to be readable on the palette's base colour.
[[nodiscard]] QColor overLimitColour(const QPalette& palette);

}  // namespace borvik
