#include "forms/formula_text.h"

#include <QHash>
#include <QRegularExpression>
#include <utility>

namespace borvik {

namespace {

const QHash<QString, QString>& signs() {
    static const QHash<QString, QString> table{
        {"alpha", "α"},
        {"beta", "β"},
        {"gamma", "γ"},
        {"Delta", "Δ"},
        {"delta", "δ"},
        {"varepsilon", "ε"},
        {"eta", "η"},
        {"lambda", "λ"},
        {"mu", "μ"},
        {"nu", "ν"},
        {"pi", "π"},
        {"rho", "ρ"},
        {"sigma", "σ"},
        {"tau", "τ"},
        {"varphi", "φ"},
        {"Phi", "Φ"},
        {"chi", "χ"},
        {"psi", "ψ"},
        {"cdot", " · "},
        {"times", " × "},
        {"le", " ≤ "},
        {"ge", " ≥ "},
        {"ne", " ≠ "},
        {"approx", " ≈ "},
        {"pm", " ± "},
        {"lvert", "|"},
        {"rvert", "|"},
        {"infty", "∞"},
        {"dots", "…"},
        {"sum", "Σ"},
        {"to", " → "},
        {"quad", "&nbsp;&nbsp; "},
        {"qquad", "&nbsp;&nbsp;&nbsp;&nbsp; "},
        {",", " "},
        {";", " "},
        {"%", "%"},
        {"max", " max "},
        {"min", " min "},
        {"exp", "exp"},
        {"{", "{"},
        {"}", "}"},
    };
    return table;
}

/// Reads one formula from left to right.
class Reader {
public:
    explicit Reader(const QString& tex) : tex_(tex) {}

    QString all() {
        QString html;
        while (at_ < tex_.size()) html += item();
        return html;
    }

private:
    [[nodiscard]] QChar next() const { return at_ < tex_.size() ? tex_[at_] : QChar(); }

    void skipBlanks() {
        while (next().isSpace()) ++at_;
    }

    /// What stands between braces, or the one sign that stands there without them.
    QString argument() {
        skipBlanks();
        if (next() != '{') return item();
        ++at_;
        QString html;
        while (at_ < tex_.size() && next() != '}') html += item();
        ++at_;
        return html;
    }

    /// What stands between braces, as it is.
    QString words() {
        skipBlanks();
        const qsizetype end = tex_.indexOf('}', at_);
        const QString text = tex_.mid(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        return text.toHtmlEscaped();
    }

    QString item() {
        const QChar sign = tex_[at_++];
        if (sign == '\\') return command();
        if (sign == '^') return "<sup>" + tight() + "</sup>";
        if (sign == '_') return "<sub>" + tight() + "</sub>";
        if (sign == '{') {
            --at_;
            return argument();
        }
        if (sign.isSpace() || sign == '}') return {};
        if (sign.isLetter()) return "<i>" + QString(sign) + "</i>";
        if (sign == '-') return afterOperand() ? spaced("−") : "−";
        if (QStringLiteral("+=<>").contains(sign)) return spaced(QString(sign).toHtmlEscaped());
        if (sign == ',') return tight_ ? "," : ", ";
        return sign == '~' ? QString(" ") : QString(sign).toHtmlEscaped();
    }

    /// An index or a power, within which no room is left around signs.
    QString tight() {
        const bool before = std::exchange(tight_, true);
        QString html = argument();
        tight_ = before;
        return html;
    }
    [[nodiscard]] QString spaced(const QString& sign) const { return tight_ ? sign : " " + sign + " "; }

    /// Whether a factor follows. A fraction on one line must be kept apart from it: "a/b · c".
    [[nodiscard]] bool beforeFactor() const {
        static const QRegularExpression factor(
            "^\\s*(\\\\(?!right|cdot|times|le\\b|ge\\b|text|to\\b|q?quad|approx|,)|[A-Za-z0-9(])");
        return factor.match(tex_.mid(at_)).hasMatch();
    }

    /// Whether the sign just read stands behind something that it can be taken from.
    [[nodiscard]] bool afterOperand() const {
        qsizetype before = at_ - 2;
        while (before >= 0 && tex_[before].isSpace()) --before;
        return before >= 0 && (tex_[before].isLetterOrNumber() || tex_[before] == '}' || tex_[before] == ')');
    }

    QString command() {
        QString name;
        while (next().isLetter()) name += tex_[at_++];
        if (name.isEmpty()) name = tex_[at_++];
        if (name == "frac") {
            const QString upper = bracketed(argument());
            const QString fraction = upper + "/" + bracketed(argument());
            return beforeFactor() ? fraction + " · " : fraction;
        }
        if (name == "sqrt") return root();
        if (name == "text" || name == "mathrm") return words();
        if (name == "bar") return argument().replace("</i>", "\u0304</i>").replace("λ", "λ\u0304");
        if (name == "left" || name == "right") {
            if (next() == '.') ++at_;
            return {};
        }
        return signs().value(name, name);
    }

    QString root() {
        QString degree;
        if (next() == '[') {
            const qsizetype end = tex_.indexOf(']', at_);
            degree = "<sup>" + tex_.mid(at_ + 1, end - at_ - 1) + "</sup>";
            at_ = end + 1;
        }
        return degree + "√(" + argument() + ")";
    }

    /// A part of a fraction in brackets, unless it is one symbol or number with its indexes.
    static QString bracketed(const QString& html) {
        QString plain = html;
        plain.replace(QRegularExpression("<su[bp]>.*?</su[bp]>"), QString());
        plain.replace(QRegularExpression("<[^>]*>"), QString());
        const bool single =
            plain.size() <= 1 || QRegularExpression("^[0-9.]+$|^[A-Za-zα-ωΔ]\u0304$").match(plain).hasMatch();
        return single ? html : "(" + html + ")";
    }

    const QString& tex_;
    qsizetype at_ = 0;
    bool tight_ = false;
};

}  // namespace

QString formulaHtml(const QString& tex) {
    return Reader(tex).all().replace("  ", " ").trimmed();
}

}  // namespace borvik
