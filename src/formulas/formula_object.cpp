#include "formulas/formula_object.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetrics>
#include <QPainter>
#include <QTextDocumentFragment>
#include <algorithm>
#include <utility>

#include "formulas/formula_layout.h"
#include "formulas/formula_text.h"

namespace borvik {

namespace {

constexpr double kLineRoom = 0.1;  // above and below a formula in a paragraph of its own; times the height of the font

constexpr int kLongestTogether = 16;  // characters of a formula within text that no line break divides

constexpr int kFormula = QTextFormat::UserObject + 1;

enum Property {
    kTex = QTextFormat::UserProperty + 1,
    kAlone,      ///< in a paragraph of its own
    kContinues,  ///< a piece of a formula that is not its first
    kDepth,      ///< not the piece, but the room below the baseline for it
};

FormulaBox boxOf(const QTextDocument& document, const QTextFormat& format) {
    return layFormula(readFormula(format.stringProperty(kTex)), format.toCharFormat().font(),
                      document.documentLayout()->paintDevice(),
                      format.boolProperty(kAlone) ? FormulaStyle::Display : FormulaStyle::Inline);
}

/// Whether the parts can stand on one line of text: symbols with one index or power each.
bool isPlain(const FormulaPart& part) {
    using Kind = FormulaPart::Kind;
    if (part.kind == Kind::Fraction || part.kind == Kind::Root || part.kind == Kind::Sum || part.kind == Kind::Bar)
        return false;
    if (part.kind == Kind::Scripts && !part.parts[1].empty() && !part.parts[2].empty()) return false;
    return std::all_of(part.parts.begin(), part.parts.end(), isPlain);
}

/// Extends the selection over a comma, point or bracket that follows it. Such a sign may not begin a line, but the
/// layout would break the line between an object and the text behind it.
/// @return TeX of the sign, empty when there is none
QString takenSign(QTextCursor& at) {
    const QChar next = at.document()->characterAt(at.selectionEnd());
    if (!QStringLiteral(",.;:)").contains(next)) return {};
    at.setPosition(at.selectionEnd() + 1, QTextCursor::KeepAnchor);
    return "\\text{" + QString(next) + "}";
}

}  // namespace

FormulaObject::FormulaObject(QTextDocument& document) : QObject(&document) {
    document.documentLayout()->registerHandler(kFormula, this);
}

/// The layout has no objects that reach below the baseline: it puts an object on the baseline or, aligned in the
/// middle, half above and half below a line that lies a quarter of the x-height above the baseline. So the formula
/// stands on the baseline, and a second object without width, aligned in the middle, keeps the room below it free.
QSizeF FormulaObject::intrinsicSize(QTextDocument* document, int /*position*/, const QTextFormat& format) {
    const FormulaBox box = boxOf(*document, format);
    const QFont font = format.toCharFormat().font();
    // Lines of built-up formulas keep a little apart.
    const double height = QFontMetricsF(font, document->documentLayout()->paintDevice()).height();
    const double apart = format.boolProperty(kAlone) ? kLineRoom * height : 0.0;
    if (!format.boolProperty(kDepth)) return {box.width, box.ascent + apart};
    return {0.0, 2.0 * (box.descent + apart) + QFontMetrics(font).xHeight() / 2.0};
}

void FormulaObject::drawObject(QPainter* painter, const QRectF& room, QTextDocument* document, int /*position*/,
                               const QTextFormat& format) {
    if (!format.boolProperty(kDepth)) drawFormula(*painter, boxOf(*document, format), room.bottomLeft());
}

void insertFormula(QTextCursor& at, const QString& tex, bool alone) {
    QString html = formulaHtml(tex);
    const bool together = !alone && QTextDocumentFragment::fromHtml(html).toPlainText().size() <= kLongestTogether;
    if (!alone && isPlain(readFormula(tex))) {
        if (together) html.replace(' ', QChar::Nbsp);
        at.insertHtml("<span>" + html + "</span>");
        return;
    }
    QTextCharFormat format = at.charFormat();
    format.setObjectType(kFormula);
    format.setProperty(kAlone, alone);
    QStringList pieces = together ? QStringList{tex} : formulaPieces(tex);
    pieces.back() += takenSign(at);
    bool continues = false;
    for (const QString& piece : std::as_const(pieces)) {
        format.setProperty(kTex, piece);
        format.setProperty(kContinues, continues);
        at.insertText(QString(QChar::ObjectReplacementCharacter), format);
        QTextCharFormat depth = format;
        depth.setProperty(kDepth, true);
        depth.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        at.insertText(QString(QChar::ObjectReplacementCharacter), depth);
        continues = true;
    }
}

void putFormulasOnOneLine(QTextDocument& document) {
    const QString sign(QChar::ObjectReplacementCharacter);
    QTextCursor whole(&document);
    whole.beginEditBlock();
    QTextCursor at = document.find(sign);
    while (!at.isNull()) {
        QTextCharFormat format = at.charFormat();
        if (format.boolProperty(kDepth)) {
            at.removeSelectedText();
        } else if (format.objectType() == kFormula) {
            at.insertText(format.boolProperty(kContinues) ? " " : QString(), QTextCharFormat());
            at.insertHtml("<span>" + formulaHtml(format.stringProperty(kTex)) + "</span>");
        }
        at = document.find(sign, at);
    }
    whole.endEditBlock();
}

}  // namespace borvik
