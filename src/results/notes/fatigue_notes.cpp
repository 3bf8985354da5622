#include "notes/note_rules.h"

namespace borvik {

std::span<const NoteRule> fatigueNotes() {
    return {};
}

}  // namespace borvik
