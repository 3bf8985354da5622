#pragma once

#include <QFont>
#include <QPaintDevice>
#include <QPainterPath>
#include <QPointF>
#include <QString>
#include <vector>

#include "formulas/formula.h"

class QPainter;

namespace borvik {

/// A formula, or a part of it, set in two dimensions. The origin is the left end of the baseline, y points down; all
/// lengths are in units of the paint device.
struct FormulaBox {
    struct Symbols {
        QPointF at;  ///< left end of their baseline
        QString text;
        QFont font;
    };

    double width = 0.0;
    double ascent = 0.0;    ///< what it takes above the baseline
    double descent = 0.0;   ///< what it takes below the baseline
    double overhang = 0.0;  ///< by which its last symbol, being slanted, reaches beyond the width
    std::vector<Symbols> symbols;
    QPainterPath shapes;  ///< bars, root signs and tall brackets, to be filled
};

enum class FormulaStyle {
    Display,  ///< in a paragraph of its own: fractions in full size
    Inline,   ///< within text: fractions smaller, so that lines stay close
};

/// Sets a formula: fractions with a bar at the height of the minus, roots over the whole of what stands below them,
/// brackets as high as what they enclose, limits below and above a sum.
/// @param font    of the text around it
/// @param device  on which it will be drawn, for its resolution; null for the screen
[[nodiscard]] FormulaBox layFormula(const FormulaPart& formula, const QFont& font, const QPaintDevice* device,
                                    FormulaStyle style);

/// Draws a formula in the colour of the painter's pen.
/// @param origin  left end of the baseline
void drawFormula(QPainter& painter, const FormulaBox& formula, const QPointF& origin);

}  // namespace borvik
