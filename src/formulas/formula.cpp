#include "formulas/formula.h"

#include <QHash>
#include <utility>

namespace borvik {

namespace {

using Kind = FormulaPart::Kind;

const QStringList& functionNames() {
    static const QStringList names{"max", "min", "sin", "cos", "sinh", "cosh", "tanh"};
    return names;
}

const QHash<QString, QString>& uprightSymbols() {
    static const QHash<QString, QString> table{
        {"alpha", "α"}, {"beta", "β"},   {"gamma", "γ"},  {"Delta", "Δ"}, {"delta", "δ"}, {"varepsilon", "ε"},
        {"eta", "η"},   {"lambda", "λ"}, {"mu", "μ"},     {"nu", "ν"},    {"pi", "π"},    {"rho", "ρ"},
        {"sigma", "σ"}, {"tau", "τ"},    {"varphi", "φ"}, {"xi", "ξ"},    {"Phi", "Φ"},   {"chi", "χ"},
        {"psi", "ψ"},   {"lvert", "|"},  {"rvert", "|"},  {"infty", "∞"}, {"dots", "…"},  {"%", "%"},
        {"{", "{"},     {"}", "}"},
    };
    return table;
}

const QHash<QString, QString>& spacedSigns() {
    static const QHash<QString, QString> table{
        {"cdot", "·"}, {"times", "×"}, {"le", "≤"}, {"ge", "≥"}, {"ne", "≠"}, {"approx", "≈"}, {"pm", "±"}, {"to", "→"},
    };
    return table;
}

const QHash<QString, double>& gaps() {
    static const QHash<QString, double> table{{",", 0.17}, {";", 0.28}, {"quad", 1.0}, {"qquad", 2.0}};
    return table;
}

constexpr double kWideGap = 1.0;  // em; from here on a formula can be cut at a gap

FormulaPart leaf(Kind kind, const QString& text) {
    return {kind, text, {}, 0.0, {}};
}

FormulaPart gap(double width) {
    return {Kind::Gap, {}, {}, width, {}};
}

FormulaPart branch(Kind kind, std::vector<FormulaPart> parts) {
    return {kind, {}, {}, 0.0, std::move(parts)};
}

/// Whether a minus behind the part takes away from it.
bool isOperand(const FormulaPart& part) {
    if (part.kind == Kind::Sign || part.kind == Kind::Gap) return false;
    return part.kind != Kind::Text || (part.text != "(" && part.text != ",");
}

/// Reads one formula from left to right.
class Reader {
public:
    explicit Reader(const QString& tex) : tex_(tex) {}

    FormulaPart all() {
        return row([] { return false; });
    }

    /// Places where the formula can be cut.
    [[nodiscard]] const QList<qsizetype>& cuts() const { return cuts_; }

private:
    [[nodiscard]] QChar next() const { return at_ < tex_.size() ? tex_[at_] : QChar(); }
    [[nodiscard]] bool atEnd() const { return at_ >= tex_.size(); }

    void skipBlanks() {
        while (next().isSpace()) ++at_;
    }

    template <typename Ended>
    FormulaPart row(Ended ended) {
        FormulaPart all;
        ++depth_;
        int brackets = 0;
        for (skipBlanks(); !atEnd() && !ended(); skipBlanks()) {
            const qsizetype start = at_;
            add(all.parts, item(all.parts));
            const FormulaPart& last = all.parts.back();
            if (last.kind == Kind::Text && last.text == "(") ++brackets;
            if (last.kind == Kind::Text && last.text == ")") --brackets;
            const bool between = last.kind == Kind::Sign || (last.kind == Kind::Gap && last.width >= kWideGap);
            if (depth_ == 1 && brackets == 0 && between && all.parts.size() > 1) cuts_.append(start);
        }
        --depth_;
        return all;
    }

    /// Digits that follow each other are one number.
    static void add(std::vector<FormulaPart>& parts, FormulaPart part) {
        const auto isNumber = [](const FormulaPart& each) {
            return each.kind == Kind::Text && !each.text.isEmpty() && (each.text[0].isDigit() || each.text == ".");
        };
        if (isNumber(part) && !parts.empty() && isNumber(parts.back())) {
            parts.back().text += part.text;
        } else {
            parts.push_back(std::move(part));
        }
    }

    /// What stands between braces, or the one symbol that stands there without them.
    FormulaPart argument() {
        skipBlanks();
        if (atEnd()) return {};
        std::vector<FormulaPart> none;
        return item(none);
    }

    /// @param before  the parts of the row so far; an index or a power takes the last of them
    FormulaPart item(std::vector<FormulaPart>& before) {
        const QChar sign = tex_[at_++];
        if (sign == '\\') return command();
        if (sign == '^' || sign == '_') return scripts(before, sign == '^');
        if (sign == '{') return braced();
        if (sign == '~') return gap(gaps().value(","));
        if (sign.isLetter()) return leaf(Kind::Letter, sign);
        if (sign == '-') return leaf(!before.empty() && isOperand(before.back()) ? Kind::Sign : Kind::Text, "−");
        if (sign == '\'') return leaf(Kind::Text, "′");
        if (QStringLiteral("+=<>").contains(sign)) return leaf(Kind::Sign, sign);
        return leaf(Kind::Text, sign);
    }

    FormulaPart braced() {
        FormulaPart inside = row([this] { return next() == '}'; });
        ++at_;
        return inside;
    }

    FormulaPart scripts(std::vector<FormulaPart>& before, bool raised) {
        FormulaPart all = branch(Kind::Scripts, {{}, {}, {}});
        if (!before.empty()) {
            if (before.back().kind == Kind::Scripts) {
                all = std::move(before.back());
            } else {
                all.parts[0] = std::move(before.back());
            }
            before.pop_back();
        }
        all.parts[raised ? 2 : 1] = argument();
        return all;
    }

    FormulaPart command() {
        QString name;
        while (next().isLetter()) name += tex_[at_++];
        if (name.isEmpty() && !atEnd()) name = tex_[at_++];
        if (name == "frac") {
            FormulaPart upper = argument();
            FormulaPart lower = argument();
            return branch(Kind::Fraction, {std::move(upper), std::move(lower)});
        }
        if (name == "sqrt") return root();
        if (name == "text" || name == "mathrm") return words();
        if (name == "bar") return branch(Kind::Bar, {argument()});
        if (name == "sum") return leaf(Kind::Sum, "Σ");
        if (name == "int") return leaf(Kind::Sum, "∫");
        if (name == "left") return fenced();
        if (name == "right") return leaf(Kind::Text, bracket());
        if (functionNames().contains(name)) {
            FormulaPart function = branch(Kind::Row, {gap(gaps().value(",")), leaf(Kind::Text, name)});
            if (next() != '^') function.parts.push_back(gap(gaps().value(",")));  // a power stands close
            return function;
        }
        if (gaps().contains(name)) return gap(gaps().value(name));
        if (spacedSigns().contains(name)) return leaf(Kind::Sign, spacedSigns().value(name));
        return leaf(Kind::Text, uprightSymbols().value(name, name));
    }

    FormulaPart root() {
        FormulaPart degree;
        skipBlanks();
        if (next() == '[') {
            ++at_;
            degree = row([this] { return next() == ']'; });
            ++at_;
        }
        FormulaPart inside = argument();
        return branch(Kind::Root, {std::move(inside), std::move(degree)});
    }

    /// What stands between braces, as it is.
    FormulaPart words() {
        skipBlanks();
        const qsizetype end = tex_.indexOf('}', at_);
        const QString text = tex_.mid(at_ + 1, end - at_ - 1);
        at_ = end < 0 ? tex_.size() : end + 1;
        return leaf(Kind::Text, text);
    }

    /// The bracket behind \left or \right; a point stands for none.
    QString bracket() {
        skipBlanks();
        if (atEnd()) return {};
        const QChar sign = tex_[at_++];
        if (sign == '\\') {
            const FormulaPart named = command();
            return named.text;
        }
        return sign == '.' ? QString() : QString(sign);
    }

    FormulaPart fenced() {
        FormulaPart all = branch(Kind::Fenced, {});
        all.text = bracket();
        all.parts.push_back(row([this] { return QStringView(tex_).mid(at_).startsWith(QLatin1String("\\right")); }));
        at_ += qsizetype(sizeof("\\right")) - 1;
        all.closing = bracket();
        return all;
    }

    const QString& tex_;
    qsizetype at_ = 0;
    int depth_ = 0;
    QList<qsizetype> cuts_;
};

}  // namespace

FormulaPart readFormula(const QString& tex) {
    return Reader(tex).all();
}

QStringList formulaPieces(const QString& tex) {
    Reader reader(tex);
    static_cast<void>(reader.all());
    QStringList pieces;
    qsizetype from = 0;
    for (const qsizetype cut : reader.cuts()) {
        pieces += tex.mid(from, cut - from).trimmed();
        from = cut;
    }
    pieces += tex.mid(from).trimmed();
    // An empty group before a minus keeps it a sign between two terms.
    for (QString& piece : pieces)
        if (piece.startsWith('-') && &piece != &pieces.front()) piece.prepend("{}");
    return pieces;
}

}  // namespace borvik
