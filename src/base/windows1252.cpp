#include "base/windows1252.h"

#include <algorithm>
#include <array>

namespace borvik {

namespace {

/// Characters of the bytes 0x80 to 0x9F; all other bytes are the character of the same number.
constexpr std::array<char32_t, 32> kHighControls = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                                    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kNoCharacter = 0xFFFFFFFF;

void appendUtf8(std::string& text, char32_t character) {
    const auto append = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0 | (character >> 6));
        append(0x80 | (character & 0x3F));
    } else {  // the code page has nothing beyond U+FFFF
        append(0xE0 | (character >> 12));
        append(0x80 | ((character >> 6) & 0x3F));
        append(0x80 | (character & 0x3F));
    }
}

/// Takes one character off the front; of a faulty sequence one byte, and kNoCharacter.
char32_t takeCharacter(std::string_view& utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<char32_t>(static_cast<unsigned char>(utf8[i])); };
    const char32_t lead = byte(0);
    std::size_t length = 1;
    char32_t character = lead;
    if (lead >= 0xC0 && lead < 0xF8) {
        length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
        character = lead & (0x7FU >> length);
        for (std::size_t i = 1; i < length; ++i) {
            if (i >= utf8.size() || (byte(i) & 0xC0) != 0x80) {
                utf8.remove_prefix(1);
                return kNoCharacter;
            }
            character = (character << 6) | (byte(i) & 0x3F);
        }
    }
    constexpr std::array<char32_t, 5> least = {0, 0, 0x80, 0x800, 0x10000};  // a longer form than needed is faulty
    const bool faulty = character < least[length] || (length == 1 && lead >= 0x80);
    utf8.remove_prefix(faulty ? 1 : length);
    return faulty ? kNoCharacter : character;
}

}  // namespace

std::string fromWindows1252(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        appendUtf8(text, byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80U] : byte);
    }
    return text;
}

std::string toWindows1252(std::string_view utf8, bool& lost) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) {
        const char32_t character = takeCharacter(utf8);
        if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
            bytes += static_cast<char>(static_cast<unsigned char>(character));
            continue;
        }
        const auto* const found = std::find(kHighControls.begin(), kHighControls.end(), character);
        if (found == kHighControls.end()) lost = true;
        bytes += found == kHighControls.end() ? '?' : static_cast<char>(0x80 + (found - kHighControls.begin()));
    }
    return bytes;
}

}  // namespace borvik
