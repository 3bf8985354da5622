#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> bendingNotes() {
    return {};
}

}  // namespace borvik
