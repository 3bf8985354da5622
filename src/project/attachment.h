#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace borvik {

/// What belongs to a project beside its record stands at the end of the file, where no reader of the record looks: a
/// block of UTF-8 text, then a mark of fixed size with the version of this layout, the block's length and the first
/// digits of its SHA-256. A file without the mark has no such block.
struct Attachment {
    std::string_view text;  ///< the block; empty where it can't be used
    std::string fault;      ///< why, in words for the user; empty: it can
    std::size_t size = 0;   ///< bytes at the end of the file, the mark with them
};

/// The block with its mark. @param text  not empty
[[nodiscard]] std::string attachmentBytes(const std::string& text);

/// The block at the end of a file. @param bytes  of the file behind the record @return nothing where there is no mark
[[nodiscard]] std::optional<Attachment> findAttachment(std::string_view bytes);

}  // namespace borvik
