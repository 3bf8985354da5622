#include "exchange/input_json.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "base/whole_file.h"
#include "calculation/calculation.h"
#include "exchange/input_fields.h"
#include "project/project_file.h"
#include "results/json.h"

namespace borvik {
namespace {

namespace fs = std::filesystem;

const ReferenceTables& tables() {
    static const ReferenceTables read = LoadTables(BORVIK_SOURCE_DIR "/data");
    return read;
}

/// All results, but the records of sections: fields that nothing reads keep there what a form once left in them.
nlohmann::json resultsOf(const Project& project) {
    Session session(tables());
    session.project = project;
    MessageList messages;
    Progress progress;
    Calculate(session, messages, progress);
    nlohmann::json results = nlohmann::json::parse(resultsJson(session, messages.texts, std::nullopt, ""));
    results.erase("Sections");
    return results;
}

TEST(InputJson, makesTheSameProjectAgain) {
    for (const char* folder : {"/examples", "/tests/data/vectors"})
        for (const auto& entry : fs::directory_iterator(std::string(BORVIK_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".brvk") continue;
            Project project;
            LoadProject(entry.path().string(), project);
            const nlohmann::json results = resultsOf(project);
            EXPECT_EQ(resultsOf(projectFromJson(inputJson(project), tables())), results) << entry.path();
            // A result file is as good as its input.
            EXPECT_EQ(resultsOf(projectFromJson(results.dump(), tables())), results) << entry.path();
        }
}

TEST(InputJson, takesTheDefaultProjectsValuesForWhatIsLeftOut) {
    const Project project = projectFromJson(
        R"({"Span": [6000, 7000], "H": [], "Sections": [{"Name": "light", "Table": "HEA 200"},
            {"Name": "heavy", "Welded": "Iu", "h": 500, "b1": 300, "b2": 200, "tw": 12, "tf1": 20, "tf2": 15,
             "Reinforcement": "PL2", "ReinfD": 120, "ReinfT": 8}], "SpanSections": ["heavy", "light"]})",
        tables());
    EXPECT_EQ(project.Span(2), 7000);
    EXPECT_EQ(project.Span(3), 0);
    EXPECT_EQ(double(project.V(2)), 40.0);
    EXPECT_FALSE(project.HasLoadsY);
    EXPECT_EQ(project.SpanSection(1).DisplayName, "Iu 500x300x200x12x20x15+PL120x8");
    EXPECT_EQ(project.SpanSection(2).DisplayName, "HEA 200");
    EXPECT_TRUE(project.SectionList(0).InUse);
    EXPECT_EQ(projectFromJson("{}", tables()).SpanSection(3).DisplayName, "HEA 300");
}

TEST(InputJson, saysWhatIsWrong) {
    const std::pair<const char*, const char*> cases[] = {
        {"{\"V\": [1,", "no JSON"},
        {"[]", "the input must be a JSON object"},
        {R"({"PsiV": 1})", R"(there is no "PsiV"; the nearest name is "PsiV1")"},
        {R"({"craneType": "monorail"})", R"(the nearest name is "CraneType")"},
        {R"({"CraneType": "gantry"})", R"(CraneType must be one of "overhead", "monorail")"},
        {R"({"V": [1,2,3,4,5,6,7,8,9]})", "V must be a list of 8 values at most"},
        {R"({"V": [1, "2"]})", "V, value 2 must be a number"},
        {R"({"Span": [4000.5]})", "Span, value 1 must be a whole number"},
        {R"({"Gangway": 1e60})", "number overflow"},
        {R"({"NofCranes": 70000})", "NofCranes must be a whole number"},
        {R"({"RailOn": 1})", "RailOn must be true or false"},
        {R"({"Sections": []})", "Sections must be a list with an entry"},
        {R"({"Sections": [{"Table": "HEX 300"}]})", "Sections, entry 1: "},
        {R"({"Sections": [{"Welded": "Is", "h": 300, "b1": 200, "tf1": 10}]})", "Sections, entry 1: tw is missing"},
        {R"({"Sections": [{"Tabel": "HEA 300"}]})", R"(Sections, entry 1: there is no "Tabel")"},
        {R"({"SpanSections": ["HEA 300"]})", "SpanSections names 1 sections for 3 spans"},
        {R"({"SpanSections": ["HEA 300", "HEA 30", "HEA 300"]})", R"(the nearest name is "HEA 300")"}};
    for (const auto& [text, expected] : cases) {
        try {
            static_cast<void>(projectFromJson(text, tables()));
            ADD_FAILURE() << text << " was taken";
        } catch (const InputJsonError& error) {
            EXPECT_NE(std::string(error.what()).find(expected), std::string::npos) << error.what();
        }
    }
}

// docs/input-json.md lists each field with its unit: "| `V` | kN | ...".
TEST(InputJson, isDescribedFieldByField) {
    const std::string page = readFile(BORVIK_SOURCE_DIR "/docs/input-json.md");
    for (const InputField& field : inputFields()) {
        const std::string row =
            std::string("`") + field.name + "` | " + (*field.unit ? std::string(field.unit) + " |" : "");
        EXPECT_NE(page.find(row), std::string::npos) << row;
    }
}

}  // namespace
}  // namespace borvik
