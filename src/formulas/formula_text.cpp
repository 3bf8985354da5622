#include "formulas/formula_text.h"

#include <QRegularExpression>

#include "formulas/formula.h"

namespace borvik {

namespace {

using Kind = FormulaPart::Kind;

QString htmlOf(const FormulaPart& part, bool tight);

/// A part of a fraction in brackets, unless it is one symbol or number with its indexes.
QString bracketed(const FormulaPart& part, bool tight) {
    static const QRegularExpression scripts("<su[bp]>.*?</su[bp]>");
    static const QRegularExpression tags("<[^>]*>");
    static const QRegularExpression single("^.?$|^[0-9.]+$|^[A-Za-zα-ωΔ]\u0304$");
    QString html = htmlOf(part, tight);
    QString plain = html;
    plain.remove(scripts).remove(tags);
    return single.match(plain).hasMatch() ? html : "(" + html + ")";
}

/// Whether a factor begins with the part. A fraction on one line must be kept apart from it: "a/b · c".
bool isFactor(const FormulaPart& part) {
    switch (part.kind) {
        case Kind::Sign:
        case Kind::Gap:
            return false;
        case Kind::Text:
            return !part.text.isEmpty() && (part.text[0].isLetterOrNumber() || part.text[0] == '(');
        case Kind::Row:
        case Kind::Scripts:
            return !part.parts.empty() && isFactor(part.parts.front());
        default:
            return true;
    }
}

QString rowHtml(const std::vector<FormulaPart>& parts, bool tight) {
    QString html;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        html += htmlOf(parts[i], tight);
        const bool factorFollows = i + 1 < parts.size() && isFactor(parts[i + 1]);
        if (parts[i].kind == Kind::Fraction && factorFollows) html += " · ";
    }
    return html;
}

QString gapHtml(double width) {
    return width < 1.0 ? QString(" ") : QString("&nbsp;&nbsp;").repeated(qRound(width)) + ' ';
}

/// @param tight  within an index or a power, where no room is left around signs
QString htmlOf(const FormulaPart& part, bool tight) {
    const auto inside = [&](std::size_t i) { return htmlOf(part.parts[i], tight); };
    switch (part.kind) {
        case Kind::Row:
            return rowHtml(part.parts, tight);
        case Kind::Letter:
            return "<i>" + part.text + "</i>";
        case Kind::Text:
            return part.text == "," && !tight ? QString(", ") : part.text.toHtmlEscaped();
        case Kind::Sum:
            return part.text;
        case Kind::Sign:
            return tight ? part.text.toHtmlEscaped() : " " + part.text.toHtmlEscaped() + " ";
        case Kind::Gap:
            return gapHtml(part.width);
        case Kind::Fraction:
            return bracketed(part.parts[0], tight) + "/" + bracketed(part.parts[1], tight);
        case Kind::Root: {
            const QString degree = part.parts[1].empty() ? QString() : "<sup>" + htmlOf(part.parts[1], true) + "</sup>";
            return degree + "√(" + inside(0) + ")";
        }
        case Kind::Bar:
            return part.parts[0].kind == Kind::Text ? inside(0) + "\u0304" : inside(0).replace("</i>", "\u0304</i>");
        case Kind::Fenced:
            return part.text.toHtmlEscaped() + inside(0) + part.closing.toHtmlEscaped();
        case Kind::Scripts: {
            QString html = inside(0);
            if (!part.parts[1].empty()) html += "<sub>" + htmlOf(part.parts[1], true) + "</sub>";
            if (!part.parts[2].empty()) html += "<sup>" + htmlOf(part.parts[2], true) + "</sup>";
            return html;
        }
    }
    return {};
}

}  // namespace

QString formulaHtml(const QString& tex) {
    return htmlOf(readFormula(tex), false).replace("  ", " ").trimmed();
}

}  // namespace borvik
