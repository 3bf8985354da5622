// The catalogue and the list of notes as a whole.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string_view>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

/// A hoist beam 20 m long under a light load: nothing grows, and only what always holds is said.
void lightHoist(Session& session) {
    oneWheel(session, 1, 20000);
    session.project.V(1) = 0.001;
    session.project.CraneType = CraneKind::Monorail;
}

TEST(Notes, keysAreUnique) {
    std::set<std::string> keys;
    for (const NoteRule& rule : noteRules()) {
        EXPECT_TRUE(keys.insert(rule.key).second) << rule.key;
        EXPECT_THAT(rule.says, testing::EndsWith(".")) << rule.key;
    }
}

TEST(Notes, theLargestGrowthComesFirst) {
    const Notes notes = projectNotes(calculated());
    ASSERT_GT(notes.notes.size(), 3u);
    double last = notes.notes[0].finding.changes.at(0).growth();
    for (const Note& note : notes.notes) {
        const double growth = note.finding.changes.empty() ? 0.0 : note.finding.changes[0].growth();
        EXPECT_LE(growth, last) << note.rule->key;
        last = growth;
    }
}

TEST(Notes, areOneSentenceEachWithNumbersAndClause) {
    const auto rules = noteRules();
    const auto rule = std::ranges::find(rules, std::string_view("D1"), &NoteRule::key);
    const Note note{&*rule, {{{"patch load, span 3", 0.0571, 0.0842}}, "a remark"}};
    EXPECT_EQ(noteText(note),
              "The patch load check takes the wheel load as entered, without load factor and without dynamic factor. "
              "Here: a remark. With both, patch load, span 3: 0.084 instead of 0.057. (EN 1993-6 6.5, EN 1991-3 2.4)");
}

TEST(Notes, aProjectWithNothingToTellHasAssumptionsAlone) {
    const Notes notes = projectNotes(calculated(lightHoist));
    for (const Note& note : notes.notes) ADD_FAILURE() << noteText(note);
    std::vector<std::string> keys;
    for (const NoteRule* rule : notes.assumptions) keys.emplace_back(rule->key);
    EXPECT_THAT(keys, testing::ElementsAre("A7", "A9", "E3b", "F7", "G14", "I1", "I5"));
}

TEST(Notes, withoutResultsThereAreNone) {
    Session session = calculated();
    session.inputChanged();
    const Notes notes = projectNotes(session);
    EXPECT_TRUE(notes.notes.empty() && notes.assumptions.empty());
}

}  // namespace
