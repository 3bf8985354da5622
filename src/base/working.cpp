#include "base/working.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <utility>

namespace borvik {

namespace {

bool isWordPart(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '\'';
}

/// Calls `word` with every name in a formula and `other` with every other character, numbers included.
template <class Word, class Other>
void scan(std::string_view formula, Word word, Other other) {
    for (std::size_t i = 0; i < formula.size();) {
        if (std::isalpha(static_cast<unsigned char>(formula[i])) == 0) {
            // The E of a number is no name.
            if (std::isdigit(static_cast<unsigned char>(formula[i])) != 0)
                while (i + 1 < formula.size() && (isWordPart(formula[i + 1]) || formula[i + 1] == '.'))
                    other(formula[i++]);
            other(formula[i++]);
            continue;
        }
        std::size_t end = i;
        while (end < formula.size() && isWordPart(formula[end])) ++end;
        word(formula.substr(i, end - i));
        i = end;
    }
}

constexpr std::array<std::pair<std::string_view, std::string_view>, 16> kLetters{{
    {"alpha", "\u03b1"},
    {"beta", "\u03b2"},
    {"gamma", "\u03b3"},
    {"epsilon", "\u03b5"},
    {"eta", "\u03b7"},
    {"lambda", "\u03bb"},
    {"mu", "\u03bc"},
    {"pi", "\u03c0"},
    {"rho", "\u03c1"},
    {"sigma", "\u03c3"},
    {"tau", "\u03c4"},
    {"phi", "\u03c6"},
    {"chi", "\u03c7"},
    {"psi", "\u03c8"},
    {"xi", "\u03be"},
    {"sqrt", "\u221a"},
}};

std::string shownName(std::string_view name) {
    for (const auto& [letters, shown] : kLetters)
        if (name == letters || (name.starts_with(letters) && name[letters.size()] == '_')) {
            const std::string_view rest = name.substr(letters.size());
            return std::string(shown) + std::string(rest.starts_with('_') ? rest.substr(1) : rest);
        }
    std::string plain(name);
    std::erase(plain, '_');
    return plain;
}

}  // namespace

std::string workingNumber(double value) {
    constexpr double kMostDigits = 1e6;
    std::array<char, 40> text{};
    const double size = std::abs(value);
    std::snprintf(text.data(), text.size(), "%.3g", value);
    const bool isShort = size < kMostDigits && std::abs(std::stod(text.data()) - value) <= 1e-7 * size;
    if (value == std::floor(value) && size < kMostDigits)
        std::snprintf(text.data(), text.size(), "%.0f", value == 0 ? 0.0 : value);
    else if (isShort && std::string_view(text.data()).find('e') == std::string_view::npos)
        return text.data();
    else if (size >= kMostDigits || size < 1e-3)
        std::snprintf(text.data(), text.size(), "%.3E", value);
    else
        std::snprintf(text.data(), text.size(), "%.*f",
                      std::clamp(3 - static_cast<int>(std::floor(std::log10(size))), 1, 6), value);
    // "6.310E+07" as "6.310E7"
    std::string number = text.data();
    if (const auto e = number.find('E'); e != std::string::npos) {
        number.replace(e + 1, std::string::npos, std::to_string(std::stoi(number.substr(e + 1))));
    }
    return number;
}

std::string withNumbers(const std::vector<WorkingStep>& steps, std::size_t line) {
    std::string text;
    scan(
        steps[line].formula,
        [&](std::string_view name) {
            for (std::size_t i = line; i-- > 0;)
                if (!steps[i].isHeading && steps[i].symbol == name) {
                    const std::string number = workingNumber(steps[i].value);
                    text += number.starts_with('-') ? "(" + number + ")" : number;
                    return;
                }
            text += name;
        },
        [&](char c) { text += c; });
    return text;
}

std::string shownFormula(std::string_view formula) {
    std::string text;
    scan(
        formula, [&](std::string_view name) { text += shownName(name); }, [&](char c) { text += c; });
    const auto replaceAll = [&text](std::string_view from, std::string_view to) {
        for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size())
            text.replace(at, from.size(), to);
    };
    replaceAll("*", "\u00b7");
    replaceAll("^2", "\u00b2");
    replaceAll("^3", "\u00b3");
    return text;
}

}  // namespace borvik
