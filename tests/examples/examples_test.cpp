// The projects in examples/: a newcomer opens them first, so each must load, calculate and look like sound design.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "base/number_text.h"
#include "calculation/calculation.h"
#include "project/project_file.h"
#include "results/notes_table.h"
#include "results/ratios.h"

namespace borvik {
namespace {

const std::filesystem::path kExamples = BORVIK_SOURCE_DIR "/examples";

struct CalculatedExample {
    explicit CalculatedExample(const std::string& file) : session(LoadTables(BORVIK_SOURCE_DIR "/data")) {
        LoadProject((kExamples / file).string(), session.project);
        loaded = session.project;
        Progress progress;
        Calculate(session, messages, progress);
    }
    Session session;
    Project loaded;
    MessageList messages;
};

std::vector<std::string> exampleFiles() {
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(kExamples))
        if (entry.path().extension() == ".brvk") files.push_back(entry.path().filename().string());
    std::sort(files.begin(), files.end());
    return files;
}

double largestFatigueRatio(const FatigueResults& fatigue) {
    double largest = 0;
    for (const auto& result : fatigue.FatResult)
        if (result) largest = std::max(largest, result->Ratio);
    return largest;
}

class Examples : public testing::TestWithParam<std::string> {};

TEST_P(Examples, calculateAsSavedAndHold) {
    const CalculatedExample example(GetParam());
    ASSERT_TRUE(example.session.Calculated) << testing::PrintToString(example.messages.texts);
    EXPECT_TRUE(example.messages.texts.empty()) << testing::PrintToString(example.messages.texts);
    EXPECT_FALSE(example.loaded.Proj.empty());
    EXPECT_FALSE(example.loaded.Ident.empty());
    EXPECT_LE(verdictOf(*example.session.results).largest, 1.0);
    EXPECT_GE(verdictOf(*example.session.results).largest, 0.49);
    // They were saved after a run, so another run changes nothing in them: no splice is dropped, no section moves.
    EXPECT_TRUE(example.session.project == example.loaded);
}

TEST_P(Examples, notesLeadToTheNumberThatTheyName) {
    const CalculatedExample example(GetParam());
    const Results& results = *example.session.results;
    for (const Note& note : projectNotes(example.session, 0.0).notes) {
        if (note.finding.changes.empty()) continue;
        const NoteChange& change = note.finding.changes.front();
        const NoteTarget target = targetOf(note, example.session.project, results);
        ASSERT_GE(target.row, 0) << change.what;
        const auto row = findTable(target.table)->fill(example.session.project, results).rows.at(target.row);
        const std::string number = formatNumber(change.shown, change.mask);
        EXPECT_TRUE(std::any_of(row.begin(), row.end(), [&](const auto& cell) { return cell.text == number; }))
            << note.rule->key << ", " << change.what << ": " << number << " is not in row " << target.row << " of "
            << target.table;
    }
}

INSTANTIATE_TEST_SUITE_P(All, Examples, testing::ValuesIn(exampleFiles()), [](const auto& test) {
    std::string name = test.param.substr(0, test.param.rfind('.'));
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

TEST(ExampleSet, showsEveryKindOfProject) {
    std::set<std::string> kinds;
    for (const std::string& file : exampleFiles()) {
        const CalculatedExample example(file);
        const Project& p = example.session.project;
        const Results& results = *example.session.results;
        if (p.NofCranes == 1 && p.CraneType == CraneKind::Overhead && p.NofSpans == 1) kinds.insert("single span");
        if (p.NofCranes == 2 && p.TwoCraneMode == TwoCranes::Independent) kinds.insert("independent cranes");
        if (p.NofCranes == 2 && p.MinDistConst == 1.0) kinds.insert("constant distance");
        if (p.CraneType == CraneKind::Monorail) kinds.insert("monorail");
        if (p.SpanSection(1).Id == "Iu" && p.SpanSection(1).Reinforced) kinds.insert("reinforced plate girder");
        if (largestFatigueRatio(results.Fatigue) == verdictOf(results).largest) kinds.insert("governed by fatigue");
    }
    EXPECT_EQ(kinds.size(), 6u) << testing::PrintToString(kinds);
}

}  // namespace
}  // namespace borvik
