#pragma once

#include <QObject>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextObjectInterface>

namespace borvik {

/// Shows the formulas of a QTextDocument, each piece of which stands there as one object character.
class FormulaObject : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    /// @param document  that owns it and shows formulas from now on; its printed copies do so too
    explicit FormulaObject(QTextDocument& document);

    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& room, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

/// Writes a formula in place of what the cursor has selected. In a paragraph of its own, or when it takes more than a
/// line of text can show (a fraction, a root), it is set in two dimensions, in pieces between which lines can break.
/// @param tex    as readFormula takes it
/// @param alone  in a paragraph of its own
void insertFormula(QTextCursor& at, const QString& tex, bool alone);

/// Writes every formula of a document on one line, as text that can be searched and pasted.
void putFormulasOnOneLine(QTextDocument& document);

}  // namespace borvik
