#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> deflectionNotes() {
    return {};
}

}  // namespace borvik
