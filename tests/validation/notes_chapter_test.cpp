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
    const std::size_t formulas = manual.find("\n## Formulas behind the notes' numbers\n");
    ASSERT_NE(formulas, std::string::npos);
    for (const NoteRule& rule : noteRules()) {
        EXPECT_TRUE(*rule.with == '\0' ||
                    manual.find(std::string("**") + rule.key + "**", formulas) != std::string::npos)
            << rule.key << " prints a number that no formula explains";
        EXPECT_NE(manual.find(std::string("\n- **") + rule.key + "**, "), std::string::npos) << rule.key;
        EXPECT_EQ(manual.find(std::string("\n| ") + rule.key + " | "), std::string::npos)
            << rule.key << " stands among the simplifications without a note too";
    }
    EXPECT_THROW((void)withNotesChapter("# Another manual\n"), std::runtime_error);
}

}  // namespace
}  // namespace borvik
