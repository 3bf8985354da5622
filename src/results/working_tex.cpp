#include "results/working_tex.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <vector>

namespace borvik {
namespace {

constexpr std::array<std::string_view, 15> kGreek{"alpha", "beta",  "gamma", "epsilon", "eta", "lambda", "mu", "pi",
                                                  "rho",   "sigma", "tau",   "phi",     "chi", "psi",    "xi"};
/// Names that are words, not a letter with an index.
constexpr std::array<std::string_view, 9> kWords{"root", "ratio", "limit", "class", "range",
                                                 "hole", "max_",  "min_",  "IR"};

template <class List>
bool isIn(const List& list, std::string_view name) {
    return std::find(list.begin(), list.end(), name) != list.end();
}

/// A name as the manuals write the letter: epsilon and phi in their rounder form.
std::string letterOf(std::string_view greek) {
    if (greek == "epsilon") return "\\varepsilon";
    if (greek == "phi") return "\\varphi";
    return "\\" + std::string(greek);
}

std::string withIndex(const std::string& letter, std::string_view index) {
    std::string plain(index);
    std::erase(plain, '_');
    return plain.empty() ? letter : letter + "_{\\mathrm{" + plain + "}}";
}

std::string symbolOf(std::string_view name) {
    if (isIn(kWords, name)) return "\\mathrm{" + std::string(name.substr(0, name.find('_'))) + "}";
    const std::string_view first = name.substr(0, name.find('_'));
    if (isIn(kGreek, first)) return withIndex(letterOf(first), name.substr(first.size()));
    return withIndex(std::string(name.substr(0, 1)), name.substr(1));
}

/// "6.310 \cdot 10^{7}" of "6.310E7".
std::string numberOf(std::string_view number) {
    const auto e = number.find('E');
    if (e == std::string_view::npos) return std::string(number);
    return std::string(number.substr(0, e)) + "\\cdot 10^{" + std::string(number.substr(e + 1)) + "}";
}

/// Part of a formula: what stands around it decides whether it needs brackets.
struct Piece {
    std::string tex;
    bool isSum = false;
};

/// Reads + - * / ^, brackets and functions, from left to right.
class Reader {
public:
    explicit Reader(std::string_view text) : text_(text) {}
    std::string all() {
        std::string tex = sum().tex;
        // Nothing is left of a sound formula; what can't be read stands as it is.
        if (at_ < text_.size()) tex += "\\text{" + std::string(text_.substr(at_)) + "}";
        return tex;
    }

private:
    char next() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    bool take(char c) {
        if (next() != c) return false;
        ++at_;
        return true;
    }
    static std::string bracketed(const Piece& piece) {
        return piece.isSum ? "\\left(" + piece.tex + "\\right)" : piece.tex;
    }

    Piece sum() {
        Piece all = product();
        for (;;) {
            const char sign = next();
            if (sign != '+' && sign != '-') return all;
            ++at_;
            all = {all.tex + " " + sign + " " + bracketed(product()), true};
        }
    }
    /// All factors above one bar, all divisors below it.
    Piece product() {
        std::vector<Piece> above{power()}, below;
        for (;;) {
            if (take('*'))
                above.push_back(power());
            else if (take('/'))
                below.push_back(power());
            else
                break;
        }
        if (below.empty()) return above.size() == 1 ? above[0] : Piece{joined(above)};
        return {"\\frac{" + joined(above) + "}{" + joined(below) + "}"};
    }
    static std::string joined(const std::vector<Piece>& factors) {
        if (factors.size() == 1) return factors[0].tex;
        std::string tex;
        for (const Piece& factor : factors) {
            // A sign before the first factor is that of the product.
            const bool signedFirst =
                tex.empty() && factor.tex.starts_with('-') && factor.tex.find(' ') == std::string::npos;
            tex += (tex.empty() ? "" : "\\cdot ") + (signedFirst ? factor.tex : bracketed(factor));
        }
        return tex;
    }
    Piece power() {
        if (take('-')) return {"-" + bracketed(power()), true};
        const Piece base = item();
        if (!take('^')) return base;
        const bool isOne =
            !base.isSum && !base.tex.starts_with("\\frac") && base.tex.find("\\cdot") == std::string::npos;
        return {(isOne ? base.tex : "\\left(" + base.tex + "\\right)") + "^{" + power().tex + "}"};
    }
    Piece item() {
        if (take('(')) {
            Piece inner = sum();
            take(')');
            return inner;
        }
        const char first = next();
        const std::size_t from = at_;
        if (std::isalpha(static_cast<unsigned char>(first)) == 0) {
            while (at_ < text_.size() &&
                   (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '.' ||
                    (text_[at_] == '-' && at_ > from && text_[at_ - 1] == 'E')))
                ++at_;
            if (at_ == from) return {};
            return {numberOf(text_.substr(from, at_ - from))};
        }
        while (at_ < text_.size() &&
               (std::isalnum(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '_' || text_[at_] == '\''))
            ++at_;
        const std::string_view name = text_.substr(from, at_ - from);
        return take('(') ? function(name) : Piece{symbolOf(name)};
    }
    Piece function(std::string_view name) {
        std::string arguments = sum().tex;
        while (take(',')) arguments += ", " + sum().tex;
        take(')');
        if (name == "sqrt") return {"\\sqrt{" + arguments + "}"};
        if (name == "abs") return {"\\left|" + arguments + "\\right|"};
        return {"\\mathrm{" + std::string(name) + "}\\left(" + arguments + "\\right)"};
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

}  // namespace

std::string texOf(std::string_view formula) {
    return Reader(formula).all();
}

}  // namespace borvik
