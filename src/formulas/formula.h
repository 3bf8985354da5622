#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace borvik {

/// A part of a formula, a tree.
struct FormulaPart {
    enum class Kind {
        Row,       ///< parts side by side
        Letter,    ///< a slanted symbol: a Latin letter
        Text,      ///< upright: numbers, Greek letters, words, brackets of fixed size
        Sign,      ///< a sign with room on both sides: + = ≤ ·
        Gap,       ///< room, `width` wide
        Sum,       ///< the sign of a sum; its limits are index and power
        Fraction,  ///< parts: what stands above and below the bar
        Root,      ///< parts: what stands below the root, and its degree (an empty row for a square root)
        Bar,       ///< parts: what stands below the bar
        Fenced,    ///< parts: what stands between brackets as high as itself
        Scripts,   ///< parts: the symbol, its index, its power; an empty row for one that isn't there
    };

    Kind kind = Kind::Row;
    QString text;                    ///< of Letter, Text and Sign; the opening bracket of Fenced
    QString closing = {};            ///< closing bracket of Fenced
    double width = 0.0;              ///< of Gap, in em
    std::vector<FormulaPart> parts;  ///< as `kind` says

    /// A row without parts.
    [[nodiscard]] bool empty() const { return kind == Kind::Row && parts.empty(); }
};

/// Reads a formula of the manuals.
/// @param tex  in the part of TeX that the manuals use: ^ _ {} \frac \sqrt \text \mathrm \bar \left \right, Greek
/// letters
///             and signs. An unknown command is a text of its name.
/// @return     a row
[[nodiscard]] FormulaPart readFormula(const QString& tex);

/// Cuts a formula before the signs between its terms and factors and at wide gaps, so that a long one can go on in a
/// new line. What stands in brackets stays together.
/// @return TeX of the pieces, at least one
[[nodiscard]] QStringList formulaPieces(const QString& tex);

}  // namespace borvik
