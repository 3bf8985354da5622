#include "notes/noted_project.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calculation/calculation.h"

namespace borvik::testing_support {

Session calculated(const std::function<void(Session&)>& change) {
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    if (change) change(session);
    MessageList messages;
    Progress progress;
    EXPECT_TRUE(Calculate(session, messages, progress))
        << (messages.texts.empty() ? std::string() : messages.texts.front());
    return session;
}

void oneWheel(Session& session, int spans, int length) {
    Project& project = session.project;
    for (int span = 1; span <= kMaxSpans; ++span) {
        project.Span(span) = span <= spans ? length : 0;
        project.SpanSection(span) = span <= spans ? blankSection(session.tables) : SectionRecord{};
    }
    project.V = project.H = {};
    project.V(1) = 100;
    project.Avst = {};
    project.SelfWeight = project.RailOn = false;
    project.Gangway = 0;
    project.PsiV1 = project.PsiH1 = project.LfULS = 1;
}

void standsAt(Session& session, double x) {
    session.project.Fixerad = true;
    session.project.Position = x;
}

void weldedSection(Session& session, const char* family, double h, double b1, double b2, double tw, double tf) {
    SectionRecord section = session.project.SectionList(1);
    section.Id = family;
    section.h = h;
    section.b1 = b1;
    section.b2 = b2;
    section.tw = tw;
    section.tf1 = section.tf2 = tf;
    session.project.SpanSection(1) = section;
}

std::optional<NoteFinding> findingOf(const Session& session, const std::string& key) {
    const Notes notes = projectNotes(session, 0.0);  // small growths too: the rules are tested here
    for (const Note& note : notes.notes)
        if (note.rule->key == key) return note.finding;
    for (const NoteRule* rule : notes.assumptions)
        if (rule->key == key) return NoteFinding{};
    return std::nullopt;
}

std::ostream& operator<<(std::ostream& out, const NoteCase& noteCase) {
    return out << noteCase.key;
}

void expectNote(const NoteCase& noteCase) {
    EXPECT_FALSE(findingOf(calculated(noteCase.silent), noteCase.key))
        << noteCase.key << " speaks where it doesn't matter";
    const auto finding = findingOf(calculated(noteCase.matters), noteCase.key);
    ASSERT_TRUE(finding) << noteCase.key << " is silent where it matters";
    if (noteCase.what.empty()) return;
    ASSERT_FALSE(finding->changes.empty()) << noteCase.key;
    const NoteChange& change = finding->changes.front();
    const double scale = std::max(std::abs(noteCase.shown), std::abs(noteCase.other));
    EXPECT_EQ(change.what, noteCase.what);
    EXPECT_NEAR(change.shown, noteCase.shown, noteCase.tolerance * scale);
    EXPECT_NEAR(change.other, noteCase.other, noteCase.tolerance * scale);
}

}  // namespace borvik::testing_support
