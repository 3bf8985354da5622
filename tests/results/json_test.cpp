#include "results/json.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "calculation/calculation.h"
#include "notes/notes.h"

namespace borvik {
namespace {

using Document = nlohmann::ordered_json;

struct DefaultRun {
    DefaultRun() : session(LoadTables(BORVIK_SOURCE_DIR "/data")) {}
    Document document(const std::optional<std::string>& file = std::nullopt) {
        Progress progress;
        if (Calculate(session, messages, progress)) makeNotes(session);
        text = resultsJson(session, messages.texts, file, "Borvik 1.2.3", {.notes = true});
        return Document::parse(text);
    }
    Session session;
    MessageList messages;
    std::string text;
};

TEST(ResultsJson, namesProgramAndFileAndNoFault) {
    DefaultRun run;
    const Document d = run.document();
    EXPECT_EQ(d["Schema"], 1);
    EXPECT_EQ(d["Program"], "Borvik 1.2.3");
    EXPECT_TRUE(d["File"].is_null() && d["Fault"].is_null());
}

TEST(ResultsJson, storedNumbersAreShort) {
    DefaultRun run;
    run.session.project.Avst(1) = 1900.1;
    run.document();
    EXPECT_NE(run.text.find("\"CraneLength1\":1900.1,"), std::string::npos);
    EXPECT_NE(run.text.find("\"tw\":8.5,"), std::string::npos);
    EXPECT_EQ(run.text.find('\n'), run.text.size() - 1) << "one line a project";
}

TEST(ResultsJson, notesTellTheChangeAndLeaveTheResultsAlone) {
    DefaultRun run;
    Document first = run.document();  // whose notes are made after the results have been written
    Document second = Document::parse(resultsJson(run.session, {}, std::nullopt, "Borvik 1.2.3", {.notes = true}));
    const Document notes = first["Notes"];
    first.erase("Notes");
    second.erase("Notes");
    EXPECT_EQ(first, second);

    const auto note =
        std::find_if(notes.begin(), notes.end(), [](const Document& each) { return each["Key"] == "D1"; });
    ASSERT_NE(note, notes.end());
    EXPECT_EQ((*note)["Effect"], "unsafe");
    EXPECT_EQ((*note)["Assumption"], false);
    EXPECT_EQ((*note)["Clause"], "EN 1993-6 6.5, EN 1991-3 2.4");
    EXPECT_EQ((*note)["Changes"][0]["What"], "patch load, span 3");
    EXPECT_NEAR((*note)["Changes"][0]["Shown"], 0.057, 0.0005);
    EXPECT_NEAR((*note)["Changes"][0]["Other"], 0.084, 0.0005);
    EXPECT_EQ(notes.back()["Assumption"], true);
}

TEST(ResultsJson, aRefusedProjectHasMessagesAndNoResults) {
    DefaultRun run;
    run.session.project.Span(1) = 0;
    const Document d = run.document("beam.brvk");
    EXPECT_EQ(d["Calculated"], false);
    EXPECT_EQ(d["Messages"].front(), " First Beam must have a length ");
    EXPECT_EQ(d["File"], "beam.brvk");
    for (const char* key : {"Sections", "Uls", "Sls", "Checks", "Fls", "Steps", "Fatigue", "Notes", "LargestRatio"})
        EXPECT_TRUE(d[key].is_null()) << key;
}

TEST(ResultsJson, resultsOfAFormerRunAreOutOfReach) {
    DefaultRun run;
    run.document();
    run.session.inputChanged();
    EXPECT_TRUE(Document::parse(resultsJson(run.session, {}, std::nullopt, ""))["Uls"].is_null());
}

TEST(ResultsJson, anyTextSurvives) {
    DefaultRun run;
    run.session.project.Proj = "Kran \"väst\"\\\n";
    const Document d = run.document("caf\xE9.brvk");  // a file name in another encoding
    EXPECT_EQ(d["Project"]["Proj"], "Kran \"väst\"\\\n");
    EXPECT_EQ(d["File"], "caf\xEF\xBF\xBD.brvk");
}

}  // namespace
}  // namespace borvik
