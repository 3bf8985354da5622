#include "project/attachment.h"

#include <algorithm>
#include <charconv>

#include "base/number_text.h"
#include "base/sha256.h"

namespace borvik {
namespace {

constexpr std::string_view kName = "\nBorvik attachment ";
constexpr char kVersion = '1';
constexpr std::size_t kLengthDigits = 10, kSumDigits = 16;
// name, version, blank, length, blank, sum, end of line
constexpr std::size_t kMarkSize = kName.size() + 1 + 1 + kLengthDigits + 1 + kSumDigits + 1;

std::string sumOf(std::string_view text) {
    return sha256(text).substr(0, kSumDigits);
}

}  // namespace

std::string attachmentBytes(const std::string& text) {
    std::string length = std::to_string(text.size());
    length.insert(0, kLengthDigits - std::min(kLengthDigits, length.size()), '0');
    return text + std::string(kName) + kVersion + " " + length + " " + sumOf(text) + "\n";
}

std::optional<Attachment> findAttachment(std::string_view bytes) {
    if (bytes.size() < kMarkSize) return std::nullopt;
    const std::string_view mark = bytes.substr(bytes.size() - kMarkSize);
    if (!mark.starts_with(kName) || mark.back() != '\n') return std::nullopt;
    Attachment found;
    const std::string_view digits = mark.substr(kName.size() + 2, kLengthDigits);
    std::size_t length = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    const std::size_t room = bytes.size() - kMarkSize;
    if (error != std::errc() || end != digits.data() + digits.size() || length > room) {
        found.size = kMarkSize;
        found.fault = "is damaged";
        return found;
    }
    found.size = length + kMarkSize;
    const std::string_view text = bytes.substr(room - length, length);
    if (mark[kName.size()] != kVersion)
        found.fault = "is of a later version of this program";
    else if (mark.substr(kMarkSize - 1 - kSumDigits, kSumDigits) != sumOf(text))
        found.fault = "is damaged";
    else
        found.text = text;
    return found;
}

}  // namespace borvik
