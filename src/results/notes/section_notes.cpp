#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> sectionNotes() {
    return {};
}

}  // namespace borvik
