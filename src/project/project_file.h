#pragma once

#include <stdexcept>
#include <string>

#include "project/project.h"

namespace borvik {

/// A project file that can't be read or written. The text is the one for the user's box.
class ProjectFileError : public std::runtime_error {
public:
    enum class Kind { NotFound, EndOfFile, PathNotFound, Other };
    ProjectFileError(Kind kind, const std::string& text) : std::runtime_error(text), kind_(kind) {}
    [[nodiscard]] Kind kind() const noexcept { return kind_; }

private:
    Kind kind_;
};

/// The record as the bytes of a project file: little-endian, no padding, no header; texts in Windows-1252. What is
/// attached to the project stands behind it (attachment.h).
/// @param lost  set to true where a character of some text has no place in the code page and was written as "?"
[[nodiscard]] std::string projectBytes(const Project& project, bool& lost);

/// Whether two records hold the same: like ==, but a number that is none (a damaged file may hold one) is the same as
/// itself, so that a project that nobody touched does not count as changed.
[[nodiscard]] bool sameRecord(const Project& one, const Project& other);

/// Twelve hexadecimal digits that tell one input from another: the first of the SHA-256 of the bytes of its project
/// file.
[[nodiscard]] std::string fingerprintOf(const Project& project);

/// Reads a record from the bytes of a project file; of the bytes behind the record only an attachment at their end is
/// looked at. Lengths and counts in the bytes are never trusted. Then names that an earlier layout of the file did not
/// have are mended: a section without a DisplayName takes its TableName. On a fault the record holds what was read so
/// far.
/// @return what the user has to know: that an attachment can't be used and was left out; usually empty
/// @throws ProjectFileError  EndOfFile when the bytes end too early, Other when they can't be a project
std::string readProjectBytes(const std::string& bytes, Project& project);

/// Writes the project. A longer file of that name keeps its tail behind the record, which no loader reads, but for an
/// attachment, of which there is one or none: that of the project. The file is
/// written beside the old one, flushed and renamed: at any moment there is the old file or the new one, whole.
/// @return true when every text could be written; false when characters beyond Windows-1252 were replaced by "?"
/// @throws ProjectFileError  with what the system says
bool SaveProject(const std::string& path, const Project& project);

/// Reads a project into `project`; the record holds what was read so far when the file ends too early.
/// @return as readProjectBytes
/// @throws ProjectFileError  " Can't find file ", " End of file passed ", " Path not found ", or Other
std::string LoadProject(const std::string& path, Project& project);

}  // namespace borvik
