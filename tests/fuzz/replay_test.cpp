// Replays kept inputs of the fuzzers: those that once broke a law, and a few that reach far.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "fuzz/laws.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

struct Door {
    const char* name;  ///< of the fuzzer, and of the folder of its inputs
    void (*check)(const std::string&);
};

constexpr Door kDoors[] = {
    {"numbers", fuzzing::checkNumbers},
    {"tables", fuzzing::checkTables},
    {"project_file", fuzzing::checkProjectFile},
    {"calculation", fuzzing::checkCalculation},
};

class Replay : public testing::TestWithParam<Door> {};

TEST_P(Replay, keptInputsBreakNoLaw) {
    std::vector<std::filesystem::path> inputs;
    const std::filesystem::path folder = std::filesystem::path(BORVIK_SOURCE_DIR "/tests/data/fuzz") / GetParam().name;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) inputs.push_back(entry.path());
    ASSERT_FALSE(inputs.empty());
    std::sort(inputs.begin(), inputs.end());
    for (const auto& input : inputs)
        EXPECT_NO_THROW(GetParam().check(testing_support::bytesOf(input))) << input.filename();
}

INSTANTIATE_TEST_SUITE_P(Doors, Replay, testing::ValuesIn(kDoors), [](const auto& test) { return test.param.name; });

/// A project file that was cut or spoilt is refused with a message, or calculated like any other.
TEST(Replay, spoiltProjectsBreakNoLaw) {
    const std::string whole = testing_support::bytesOf(BORVIK_SOURCE_DIR "/examples/workshop-single-span.brvk");
    std::mt19937 random(99);
    for (unsigned number = 0; number < 600; ++number) {
        std::string bytes = whole.substr(0, number % 3 == 0 ? random() % whole.size() + 1 : whole.size());
        for (unsigned spoilt = 0; spoilt < number % 5; ++spoilt) bytes[random() % bytes.size()] = char(random());
        ASSERT_NO_THROW(fuzzing::checkProjectFile(bytes)) << number;
        ASSERT_NO_THROW(fuzzing::checkCalculation(bytes)) << number;
    }
}

}  // namespace
}  // namespace borvik
