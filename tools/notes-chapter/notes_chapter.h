#pragma once

#include <string>

namespace borvik {

/// The chapter "Notes for the checking engineer" of the theory manual in Markdown: every note and every assumption of
/// the catalogue, a list for each of its chapters.
[[nodiscard]] std::string notesChapter();

/// The manual with its chapter of notes as the catalogue has it: what stands from the chapter's heading to the next one
/// of its level is replaced.
/// @throws std::runtime_error  where the manual has no such chapter
[[nodiscard]] std::string withNotesChapter(const std::string& manual);

}  // namespace borvik
