// Whole calculations against results that another program computed.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "calculation/calculation.h"
#include "project/project_file.h"
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
    MessageList messages;
    Progress progress;
    Calculate(session, messages, progress, method);
    return nlohmann::json::parse(resultsJson(session, messages.texts, name, "Borvik"));
}

/// The first places where two result documents differ, and how many there are. Numbers must be the same 32 bits, texts
/// the same characters. Notes and the largest ratio no other program has; its name and the file's are its own.
std::string differences(nlohmann::json ours, nlohmann::json theirs) {
    for (nlohmann::json* document : {&ours, &theirs}) {
        for (const char* key : {"Notes", "LargestRatio", "Input", "Program", "File"}) document->erase(key);
        *document = document->flatten();
    }
    std::string text;
    int count = ours.size() == theirs.size() ? 0 : 1;
    if (count == 1) text = std::to_string(ours.size()) + " values, " + std::to_string(theirs.size()) + " wanted\n";
    for (const auto& [place, wanted] : theirs.items()) {
        const nlohmann::json value = ours.value(place, nlohmann::json("nothing"));
        const bool same =
            value.is_number() && wanted.is_number() ? value.get<float>() == wanted.get<float>() : value == wanted;
        if (!same && ++count <= 12) text += place + ": " + value.dump() + ", wanted " + wanted.dump() + "\n";
    }
    return count == 0 ? "" : text + std::to_string(count) + " differences";
}

class Vectors : public testing::TestWithParam<std::tuple<std::string, WalkMethod>> {};

TEST_P(Vectors, agreeWithTheIndependentResults) {
    const auto& [name, method] = GetParam();
    std::ifstream file(kVectors / (name + ".json"));
    EXPECT_EQ(differences(calculated(name, method), nlohmann::json::parse(file)), "");
}

INSTANTIATE_TEST_SUITE_P(All, Vectors,
                         testing::Combine(testing::ValuesIn(vectorNames()),
                                          testing::Values(WalkMethod::Plain, WalkMethod::Fast)),
                         [](const auto& test) {
                             std::string name = std::get<0>(test.param);
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name + (std::get<1>(test.param) == WalkMethod::Plain ? "_plain" : "_fast");
                         });

}  // namespace
}  // namespace borvik
