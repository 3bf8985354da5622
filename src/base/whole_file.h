#pragma once

#include <stdexcept>
#include <string>
#include <system_error>

namespace borvik {

/// The bytes of a file, at most the first 16 MiB: no project and no table is that long. What is no file but a pipe or a
/// device is refused, as reading it may never end.
/// @throws std::system_error  with the system's reason
[[nodiscard]] std::string readFile(const std::string& path);

/// Writes `bytes` over the start of a file; what the file has beyond them stays. A file that doesn't exist is made.
/// The new content is written beside the file, flushed and renamed, so that at any moment, also after a power cut or on
/// a full disk, there is the old file or the new one, whole. The file keeps its permissions and, where the system
/// allows it, its owner; of a symbolic link the file that it points to is replaced; another
/// name of the file (a hard link) keeps the old content. What a killed save has left in the
/// folder is removed a day later.
/// @throws std::system_error  with the system's reason; the file is then as it was, and nothing is left beside it
void overwriteFile(const std::string& path, const std::string& bytes);

/// Who may read a file that is made new: whom the user's mask lets, or the user alone.
enum class Readers { Usual, UserOnly };

/// Makes `bytes` the whole of a file, with the same care. What exists and is no file, a device or a pipe, is written
/// into as it is: it must never be replaced by a file.
/// @throws std::system_error  with the system's reason; the file is then as it was, and nothing is left beside it
void replaceFile(const std::string& path, const std::string& bytes, Readers readers = Readers::Usual);

/// An output that could not be made or written; what() says why, in words for the user. Whoever names the file to the
/// user adds its name.
class OutputError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Why a file could not be read or written, in words.
[[nodiscard]] std::string reasonOf(const std::system_error& error);

}  // namespace borvik
