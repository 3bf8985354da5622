// Project files that are cut or spoilt: a message, a refusal, a fault text or a result, never anything worse.

#include <gtest/gtest.h>

#include "project/project_file.h"
#include "solved_projects.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TestSession;

/// A short file: two spans, no working sections.
std::string shortProject() {
    TestSession session;
    Project& p = session.project;
    p.SectionList = Array<SectionRecord>(0, -1);
    p.Span(3) = 0;
    const SectionRecord section = p.SpanSection(1);
    p.SpanSection = Array<SectionRecord>(1, 2);
    p.SpanSection(1) = p.SpanSection(2) = section;
    p.Span(1) = 2000;
    p.Span(2) = 3000;
    p.ChkFat5Sp(1) = p.ChkFat5Sp(2) = p.ChkFatR5Sp(1) = p.ChkFatR5Sp(2) = false;
    bool lost = false;
    return ProjectBytes(p, lost);
}

/// Loads the bytes, on whatever they give calculates, and holds the outcome against what the user is told.
/// @return whether the bytes were accepted as a project
bool loadAndCalculate(TestSession& session, const std::string& bytes) {
    bool accepted = true;
    try {
        ReadProjectBytes(bytes, session.project);
    } catch (const ProjectFileError& error) {
        accepted = false;
        EXPECT_STRNE(error.what(), "");
    }
    FollowProject(session.tables, session.project, session.context);
    double length = 0;
    for (const std::int32_t span : session.project.Span) length += std::abs(double(span));
    if (length > 200e3) return accepted;  // a walk of its own length
    const bool calculated = session.calculate();
    EXPECT_EQ(calculated, session.Calculated);
    EXPECT_TRUE(calculated || !session.messages.texts.empty()) << "refused without a word";
    return accepted;
}

TEST(DamagedFiles, ofEveryLengthGiveAMessageOrAResult) {
    const std::string whole = shortProject();
    TestSession session;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE("cut to " + std::to_string(length) + " of " + std::to_string(whole.size()) + " bytes");
        session.project = Project();
        ASSERT_FALSE(loadAndCalculate(session, whole.substr(0, length)));
        ASSERT_FALSE(HasFailure());
    }
    session.project = Project();
    EXPECT_TRUE(loadAndCalculate(session, whole));
    EXPECT_TRUE(session.Calculated);
}

TEST(DamagedFiles, thatAreLongAndCutAnywhereAreRefused) {
    const std::string whole = bytesOf(BORVIK_SOURCE_DIR "/tests/data/vectors/default.brvk");
    Project project;
    for (std::size_t length = 0; length < whole.size(); length += 7)
        ASSERT_THROW(ReadProjectBytes(whole.substr(0, length), project), ProjectFileError) << length;
}

TEST(DamagedFiles, withSpoiltBytesGiveAMessageOrAResult) {
    const std::string whole = shortProject();
    std::mt19937 random(99);
    TestSession session;
    int finished = 0;
    for (int number = 1; number <= 1500; ++number) {
        SCOPED_TRACE("file " + std::to_string(number));
        std::string bytes = whole;
        for (int spoilt = 0; spoilt <= number % 4; ++spoilt)
            bytes[random() % bytes.size()] = static_cast<char>(random());
        session.project = Project();
        loadAndCalculate(session, bytes);
        finished += session.Calculated;
        ASSERT_FALSE(HasFailure());
    }
    EXPECT_GT(finished, 300);
}

}  // namespace
}  // namespace borvik
