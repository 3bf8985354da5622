#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> bucklingNotes() {
    return {};
}

}  // namespace borvik
