#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "base/number_text.h"
#include "laws.h"

namespace borvik::fuzzing {

namespace {

constexpr double kLargest = std::numeric_limits<float>::max();

std::uint32_t bits(Single number) {
    return std::bit_cast<std::uint32_t>(number.stored());
}

/// The number at the start of a text by the C library (in the "C" locale), where that knows the same numbers: it also
/// knows other white space, "inf", "nan" and hexadecimal numbers.
double byTheLibrary(std::string text) {
    text.erase(0, std::min(text.find_first_not_of(' '), text.size()));
    std::replace(text.begin(), text.end(), ',', '.');
    std::size_t at = text.starts_with('-') || text.starts_with('+') ? 1 : 0;
    if (text.size() > at && text[at] == '.') ++at;
    if (text.size() <= at || text[at] < '0' || text[at] > '9') return 0.0;
    if (const std::size_t x = text.find_first_of("xX"); x != std::string::npos) text.erase(x);
    return std::clamp(std::strtod(text.c_str(), nullptr), -kLargest, kLargest);
}

void checkReading(const std::string& text) {
    const Single number = DecimalValue(text);
    if (!std::isfinite(number.stored())) throw BrokenLaw("a text is read as no finite number");
    if (double(number) != double(Single(byTheLibrary(text)))) throw BrokenLaw("a text is read as another number");
    const Single again = DecimalValue(generalText(number));
    if (bits(again) != bits(number) && double(number) != 0.0)
        throw BrokenLaw("the general text of a number reads back as another number");
}

void checkMasks(double number, const std::string& mask) {
    for (int decimals = 0; decimals <= 6; ++decimals) {
        const std::string text =
            formatNumber(number, decimals == 0 ? "0" : "0." + std::string(std::size_t(decimals), '0'));
        const double half = 0.5 * std::pow(10.0, -decimals);
        const double error = std::abs(std::strtod(text.c_str(), nullptr) - number);
        if (error > half * (1.0 + 1e-9) + std::abs(number) * 1e-15)
            throw BrokenLaw("rounded by more than a half: " + text);
        if (text.find_first_of("123456789") == std::string::npos && text.starts_with('-'))
            throw BrokenLaw("zero with a sign: " + text);
    }
    const std::string text = formatNumber(number, mask);
    if (text.size() > mask.size() + 350) throw BrokenLaw("a text longer than number and mask");
}

}  // namespace

void checkNumbers(const std::string& bytes) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::string text = bytes.substr(0, end);
    const std::string mask = bytes.substr(std::min(end + 1, bytes.size()));
    checkReading(text);
    checkMasks(DecimalValue(text), mask);
    if (bytes.size() < sizeof(double)) return;
    std::uint64_t word = 0;
    for (std::size_t i = 0; i < sizeof word; ++i) word = word << 8 | static_cast<unsigned char>(bytes[i]);
    const auto number = std::bit_cast<double>(word);
    if (std::isfinite(number)) {
        checkMasks(number, mask);
        if (std::strtod(plainText(number).c_str(), nullptr) != number)
            throw BrokenLaw("the plain text of a number reads back as another number");
    } else {
        (void)formatNumber(number, mask);
        (void)plainText(number);
        (void)generalText(Single::fromStored(static_cast<float>(number)));
    }
}

}  // namespace borvik::fuzzing
