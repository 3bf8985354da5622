#pragma once

#include <QString>

namespace borvik {

/// A formula of the manuals as rich text: indexes and powers are set low and high, variables slanted, numbers and words
/// upright; a fraction stands on one line, in brackets where they are needed.
/// @param tex  as readFormula takes it
/// @return     HTML that QTextDocument can show
[[nodiscard]] QString formulaHtml(const QString& tex);

}  // namespace borvik
