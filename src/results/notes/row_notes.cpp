#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> rowNotes() {
    return {};
}

}  // namespace borvik
