#include "base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/fault.h"

namespace borvik {

namespace {

/// A number as its significant decimal digits: +-0.d1d2d3... times ten to the power of `point`. Zero has no digits.
struct Decimal {
    std::array<char, 20> digits{};  // a double never needs more than 17
    int count = 0;
    int point = 0;
    bool negative = false;

    /// The digit in place i behind the (imaginary) leading "0.", also outside the significant ones.
    [[nodiscard]] char digit(int i) const { return i >= 0 && i < count ? digits[static_cast<std::size_t>(i)] : '0'; }

    /// Keeps the first `places` digits, halves away from zero.
    void round(int places) {
        if (places >= count) return;
        const bool up = digit(places) >= '5';
        count = std::max(places, 0);
        if (up) {
            while (count > 0 && digits[static_cast<std::size_t>(count - 1)] == '9') --count;
            if (count > 0) {
                ++digits[static_cast<std::size_t>(count - 1)];
            } else {
                digits[0] = '1';
                count = 1;
                ++point;
            }
        } else {
            while (count > 0 && digits[static_cast<std::size_t>(count - 1)] == '0') --count;
        }
    }
};

/// The shortest decimal number that reads back as the same float or double. @pre number is finite
template <class Float>
Decimal shortestDecimal(Float number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::scientific).ptr;
    Decimal decimal;
    const char* at = text.data();
    if (*at == '-') {
        decimal.negative = true;
        ++at;
    }
    for (; *at != 'e'; ++at)
        if (*at != '.') decimal.digits[static_cast<std::size_t>(decimal.count++)] = *at;
    ++at;
    if (*at == '+') ++at;
    std::from_chars(at, end, decimal.point);
    ++decimal.point;
    if (decimal.digits[0] == '0') decimal.count = decimal.point = 0;
    return decimal;
}

std::string textOfNonFinite(double number) {
    if (std::isnan(number)) return "nan";
    return number < 0.0 ? "-inf" : "inf";
}

/// A mask taken apart.
struct Mask {
    std::string_view prefix, suffix;  // characters that stand for themselves
    int leastWhole = 0;               // digits before the point that always show
    int leastDecimals = 0, mostDecimals = 0;
    int leastExponent = 0;  // digits of the exponent; 0: no scientific form
    bool point = false;

    explicit Mask(std::string_view mask) {
        const auto isDigit = [&](std::size_t at) { return at < mask.size() && (mask[at] == '0' || mask[at] == '#'); };
        std::size_t at = std::min(mask.find_first_of("0#."), mask.size());
        prefix = mask.substr(0, at);
        for (; isDigit(at); ++at)
            if (mask[at] == '0' || leastWhole > 0) ++leastWhole;
        if (at < mask.size() && mask[at] == '.') {
            point = true;
            for (++at; isDigit(at); ++at) {
                ++mostDecimals;
                if (mask[at] == '0') leastDecimals = mostDecimals;
            }
        }
        if (mask.substr(at, 2) == "E+")
            for (at += 2; isDigit(at); ++at) ++leastExponent;
        suffix = mask.substr(at);
    }
};

/// Appends the digits from..to - 1 of a number.
void appendDigits(std::string& text, const Decimal& number, int from, int to) {
    for (int i = from; i < to; ++i) text += number.digit(i);
}

/// "E+07": at least `least` digits, always with a sign.
void appendExponent(std::string& text, int exponent, std::size_t least) {
    const std::string digits = std::to_string(std::abs(exponent));
    text += exponent < 0 ? "E-" : "E+";
    text.append(least - std::min(least, digits.size()), '0');
    text += digits;
}

/// @param leastPoint,mostPoint  where Decimal::point lies within these, the number is written without an exponent
std::string generalTextOf(const Decimal& number, int leastPoint, int mostPoint) {
    if (number.count == 0) return "0";
    std::string text = number.negative ? "-" : "";
    const bool scientific = number.point < leastPoint || number.point > mostPoint;
    const int point = scientific ? 1 : number.point;
    if (point <= 0) text += '0';
    appendDigits(text, number, 0, point);
    if (number.count > point) {
        text += '.';
        appendDigits(text, number, std::min(point, 0), 0);
        appendDigits(text, number, std::max(point, 0), number.count);
    }
    if (scientific) appendExponent(text, number.point - 1, 2);
    return text;
}

/// The longest numeric prefix of a text, with a point as the decimal sign.
struct NumericPrefix {
    std::string text;   // empty: no number
    int magnitude = 0;  // the number lies below ten to this power; below -1e6 and above 1e6 only roughly

    explicit NumericPrefix(std::string_view from) {
        std::size_t at = std::min(from.find_first_not_of(' '), from.size());
        const auto peek = [&](std::size_t i) {
            if (i >= from.size()) return '\0';
            return from[i] == ',' ? '.' : from[i];
        };
        const auto isDigit = [&](std::size_t i) { return peek(i) >= '0' && peek(i) <= '9'; };

        if (peek(at) == '-') text += '-';
        if (peek(at) == '-' || peek(at) == '+') ++at;
        bool anyDigit = false, significant = false, fraction = false;
        for (; isDigit(at) || (peek(at) == '.' && !fraction); ++at) {
            text += peek(at);
            if (peek(at) == '.') {
                fraction = true;
                continue;
            }
            anyDigit = true;
            significant = significant || peek(at) != '0';
            if (significant && !fraction) ++magnitude;
            if (!significant && fraction) --magnitude;
        }
        if (!anyDigit) {
            text.clear();
            return;
        }
        if (peek(at) != 'E' && peek(at) != 'e') return;
        const bool negative = peek(at + 1) == '-';
        at += negative || peek(at + 1) == '+' ? 2 : 1;
        int exponent = 0;
        for (; isDigit(at); ++at) exponent = std::min(exponent * 10 + (peek(at) - '0'), 1'000'000);
        exponent = negative ? -exponent : exponent;
        text += 'e' + std::to_string(exponent);
        magnitude += exponent;
    }
};

}  // namespace

Single DecimalValue(std::string_view text) {
    constexpr double largest = std::numeric_limits<float>::max();
    const NumericPrefix prefix(text);
    double number = 0.0;
    const auto [end, error] = std::from_chars(prefix.text.data(), prefix.text.data() + prefix.text.size(), number);
    if (error == std::errc::result_out_of_range) {
        if (prefix.magnitude < 0) return 0.0;
        return prefix.text.front() == '-' ? -largest : largest;
    }
    return std::clamp(number, -largest, largest);
}

std::string formatNumber(double number, std::string_view mask) {
    if (!std::isfinite(number)) return textOfNonFinite(number);
    const Mask form(mask);
    Decimal decimal = shortestDecimal(number);
    const bool scientific = form.leastExponent > 0;
    decimal.round((scientific ? 1 : decimal.point) + form.mostDecimals);
    const int exponent = scientific && decimal.count > 0 ? decimal.point - 1 : 0;
    const int point = decimal.count > 0 ? decimal.point - exponent : 0;

    std::string text;
    if (decimal.negative && decimal.count > 0) text += '-';
    text += form.prefix;
    for (int missing = form.leastWhole - std::max(point, 0); missing > 0; --missing) text += '0';
    appendDigits(text, decimal, 0, point);
    if (form.point) text += '.';
    const int decimals = std::clamp(decimal.count - point, form.leastDecimals, form.mostDecimals);
    appendDigits(text, decimal, point, point + decimals);
    if (scientific) appendExponent(text, exponent, static_cast<std::size_t>(form.leastExponent));
    text += form.suffix;
    return text;
}

std::string generalText(Single number) {
    const float stored = number.stored();
    if (!std::isfinite(stored)) return textOfNonFinite(number);
    return generalTextOf(shortestDecimal(stored), -4, 7);
}

std::string plainText(double number) {
    if (!std::isfinite(number)) return textOfNonFinite(number);
    return generalTextOf(shortestDecimal(number), -3, 15);
}

std::string generalText(int number) {
    return std::to_string(number);
}

int roundHalfEven(double number) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        throw RuntimeFault("number " + plainText(number) + " is outside the whole numbers");
    return static_cast<int>(rounded);
}

}  // namespace borvik
