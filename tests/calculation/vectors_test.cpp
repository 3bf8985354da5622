// Whole calculations against results that another program computed.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "calculation/calculation.h"
#include "project/project_file.h"
#include "result_comparison.h"
#include "results/json.h"

namespace borvik {
namespace {

const std::filesystem::path kVectors = BORVIK_SOURCE_DIR "/tests/data/vectors";

std::vector<std::string> vectorNames() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(kVectors))
        if (entry.path().extension() == ".brvk") names.push_back(entry.path().stem().string());
    std::sort(names.begin(), names.end());
    return names;
}

nlohmann::json calculated(const std::string& name, WalkMethod method) {
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    LoadProject((kVectors / (name + ".brvk")).string(), session.project);
    FollowProject(session.tables, session.project, session.context);
    MessageList messages;
    Progress progress;
    Calculate(session, messages, progress, method);
    nlohmann::json results = nlohmann::json::parse(ResultsJson(session, messages.texts, name, "Borvik"));
    for (const char* ours : {"Notes", "LargestRatio"}) results.erase(ours);  // which other programs don't have
    return results;
}

class Vectors : public testing::TestWithParam<std::tuple<std::string, WalkMethod>> {};

TEST_P(Vectors, agreeWithTheIndependentResults) {
    const auto& [name, method] = GetParam();
    std::ifstream file(kVectors / (name + ".json"));
    const nlohmann::json theirs = nlohmann::json::parse(file);
    const ResultComparison comparison(calculated(name, method), theirs);
    EXPECT_TRUE(comparison.differences.empty()) << comparison;
}

INSTANTIATE_TEST_SUITE_P(All, Vectors,
                         testing::Combine(testing::ValuesIn(vectorNames()),
                                          testing::Values(WalkMethod::Plain, WalkMethod::Fast)),
                         [](const auto& test) {
                             std::string name = std::get<0>(test.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name + (std::get<1>(test.param) == WalkMethod::Plain ? "_plain" : "_fast");
                         });

TEST(ResultComparison, findsWhatDiffers) {
    const auto parse = [](const char* text) { return nlohmann::json::parse(text); };
    const struct {
        const char *ours, *theirs;
        std::size_t differences;
    } cases[] = {
        {R"({"Uls":{"RzMax":[1000,0.0002]}})", R"({"Uls":{"RzMax":[1000,0]}})", 0},
        {R"({"Uls":{"RzMax":[1000,0.0004]}})", R"({"Uls":{"RzMax":[1000,0]}})", 1},
        {R"({"Uls":{"RzMax":[1000.003,5]}})", R"({"Uls":{"RzMax":[1000,5]}})", 1},
        {R"({"Uls":{"MyMaxSpan":[[5,1,200]]}})", R"({"Uls":{"MyMaxSpan":[[5,1,400]]}})", 1},
        {R"({"Uls":{"MyMaxSpan":[[6,1,200]]}})", R"({"Uls":{"MyMaxSpan":[[5,1,400]]}})", 2},
        {R"({"Fls":{"Cr2":null}})", R"({"Fls":{"Cr2":{"RzMax":[1]}}})", 1},
        {R"({"Messages":["a"],"Program":"x"})", R"({"Messages":[],"Program":"y"})", 1},
        {R"({"Checks":{}})", R"({"Checks":{"ShearGov":["a"]}})", 1},
        {R"({"Fault":"one"})", R"({"Fault":"another"})", 0},
        {R"({"Fault":"one"})", R"({"Fault":null})", 1},
    };
    for (const auto& c : cases) {
        const ResultComparison comparison(parse(c.ours), parse(c.theirs));
        EXPECT_EQ(comparison.differences.size(), c.differences) << c.ours << " against " << c.theirs;
    }
    EXPECT_TRUE(agreeToTheLastDigit("72.4/763.5 = ", "72.5/763.5 = "));
    EXPECT_FALSE(agreeToTheLastDigit("72.4/763.5 = ", "72.6/763.5 = "));
    EXPECT_FALSE(agreeToTheLastDigit("1/400", "1/401"));
    EXPECT_FALSE(agreeToTheLastDigit("0.10", "0.1"));
    EXPECT_FALSE(agreeToTheLastDigit("0.1", "0.1 "));
}

}  // namespace
}  // namespace borvik
