#include "notes/notes.h"

#include <algorithm>
#include <cctype>
#include <cmath>

#include "base/fault.h"
#include "base/number_text.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

std::string written(const NoteChange& change, double number) {
    return formatNumber(number, change.mask);
}

/// Finite, different in the digits that are shown, and of a ratio at least `least` or across 1.
bool shows(const NoteChange& change, double least) {
    if (!std::isfinite(change.shown) || !std::isfinite(change.other)) return false;
    if (written(change, change.shown) == written(change, change.other)) return false;
    const bool crossesOne = (change.shown > 1.0) != (change.other > 1.0);
    return !change.ratio || crossesOne || std::abs(change.growth()) >= least;
}

/// What the rule finds, in order; nullopt where none of its numbers shows a difference.
std::optional<NoteFinding> found(const NoteRule& rule, const Session& session, double least) {
    std::optional<NoteFinding> finding;
    try {
        watched("Notes", 0, [&] { finding = rule.find(session); });
    } catch (const RuntimeFault&) {
        return NoteFinding{};
    }
    if (!finding || finding->changes.empty()) return finding;
    auto& changes = finding->changes;
    std::erase_if(changes, [least](const NoteChange& change) { return !shows(change, least); });
    if (changes.empty()) return std::nullopt;
    std::stable_sort(changes.begin(), changes.end(),
                     [](const NoteChange& a, const NoteChange& b) { return a.growth() > b.growth(); });
    return finding;
}

double growthOf(const Note& note) {
    return note.finding.changes.empty() ? 0.0 : std::max(0.0, note.finding.changes.front().growth());
}

bool before(const Note& a, const Note& b) {
    if (growthOf(a) != growthOf(b)) return growthOf(a) > growthOf(b);
    return a.rule->effect < b.rule->effect;
}

std::vector<NoteRule> allRules() {
    std::vector<NoteRule> rules;
    for (const auto chapter : {loadNotes(), sectionNotes(), bendingNotes(), wheelNotes(), deflectionNotes(),
                               bucklingNotes(), fatigueNotes(), rowNotes(), missingNotes(), inputNotes()})
        rules.insert(rules.end(), chapter.begin(), chapter.end());
    return rules;
}

}  // namespace

std::span<const NoteRule> noteRules() {
    static const std::vector<NoteRule> rules = allRules();
    return rules;
}

const char* nameOf(NoteCheck check) {
    switch (check) {
        case NoteCheck::General:
            return "Loads and beam";
        case NoteCheck::Section:
            return "Shear and bending";
        case NoteCheck::LateralBuckling:
            return "Lateral torsional buckling";
        case NoteCheck::WheelLoad:
            return "Wheel loads";
        case NoteCheck::VonMises:
            return "Von Mises stress";
        case NoteCheck::Deflection:
            return "Deflection";
        case NoteCheck::Fatigue:
            return "Fatigue";
    }
    return "";
}

const char* nameOf(NoteEffect effect) {
    switch (effect) {
        case NoteEffect::Unsafe:
            return "unsafe";
        case NoteEffect::Either:
            return "either";
        case NoteEffect::Information:
            return "information";
    }
    return "";
}

Notes projectNotes(const Session& session, double least) {
    Notes notes;
    if (!session.Calculated || !session.results) return notes;
    for (const NoteRule& rule : noteRules()) {
        std::optional<NoteFinding> finding = found(rule, session, least);
        if (!finding) continue;
        if (rule.assumption) {
            notes.assumptions.push_back(&rule);
        } else {
            notes.notes.push_back({&rule, std::move(*finding)});
        }
    }
    std::stable_sort(notes.notes.begin(), notes.notes.end(), before);
    return notes;
}

std::string changeText(const NoteChange& change) {
    return change.what + ": " + written(change, change.other) + " instead of " + written(change, change.shown);
}

std::string capitalised(std::string text) {
    if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return text;
}

std::string largestChangeText(const Note& note) {
    if (note.finding.changes.empty()) return {};
    const std::string with = note.rule->with;
    return capitalised((with.empty() ? "" : with + ", ") + changeText(note.finding.changes.front()));
}

std::string noteText(const Note& note) {
    const NoteRule& rule = *note.rule;
    std::string text = rule.says;
    if (!note.finding.remark.empty()) text += " Here: " + note.finding.remark + ".";
    if (!note.finding.changes.empty()) text += " " + largestChangeText(note) + ".";
    if (*rule.clause != '\0') text += std::string(" (") + rule.clause + ")";
    return text;
}

void makeNotes(Session& session) {
    if (!session.notes) session.notes = std::make_shared<const Notes>(projectNotes(session));
}

}  // namespace borvik
