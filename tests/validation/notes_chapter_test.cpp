#include "notes_chapter.h"

#include <gtest/gtest.h>

#include "notes/notes.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

TEST(NotesChapter, theManualHasTheNotesOfTheProgram) {
    const std::string manual = testing_support::bytesOf(BORVIK_SOURCE_DIR "/docs/theory.md");
    EXPECT_TRUE(withNotesChapter(manual) == manual)
        << "docs/theory.md is out of date: run build/release/tools/notes-chapter/notes-chapter docs/theory.md";
    for (const NoteRule& rule : noteRules()) {
        const std::string row = std::string("\n| ") + rule.key + " | ";
        const std::size_t at = manual.find(row);
        EXPECT_NE(at, std::string::npos) << rule.key;
        EXPECT_EQ(manual.find(row, at + 1), std::string::npos) << rule.key << " stands twice";
    }
    EXPECT_THROW((void)withNotesChapter("# Another manual\n"), std::runtime_error);
}

}  // namespace
}  // namespace borvik
