#include "notes/note_rules.h"
#include "project/input_ranges.h"

namespace borvik {

namespace {

std::optional<NoteFinding> outOfRange(const Session& session) {
    std::string all;
    for (const std::string& each : valuesOutOfRange(session.project)) all += (all.empty() ? "" : "; ") + each;
    return matters(!all.empty(), all);
}

constexpr NoteRule kRules[]{
    {"J1", NoteCheck::General, NoteEffect::Unsafe,
     "A value of the input lies outside the range that its form takes, and the checks calculate with it as it stands.",
     "", "", outOfRange},
};

}  // namespace

std::span<const NoteRule> inputNotes() {
    return kRules;
}

}  // namespace borvik
