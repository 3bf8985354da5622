#include "base/shown_text.h"

namespace borvik {

std::string withoutControls(std::string text, std::string_view kept) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte < 0x20U || byte == 0x7FU) && kept.find(text[i]) == std::string_view::npos) text[i] = ' ';
        // U+0080 to U+009F command a terminal as well.
        if (byte == 0xC2U && i + 1 < text.size() && static_cast<unsigned char>(text[i + 1]) < 0xA0U)
            text[i] = text[i + 1] = ' ';
    }
    return text;
}

}  // namespace borvik
