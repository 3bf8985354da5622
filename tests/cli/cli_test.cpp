// The built borvik-calc, run as a script runs it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <thread>

#include "platform/version.h"
#include "project/project_file.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;
using testing_support::bytesOf;
using testing_support::writeBytes;

struct Outcome {
    int exitCode;
    std::string out, err;
};

/// Each test works in an empty folder of its own.
class CommandLine : public testing::Test {
protected:
    Outcome run(const std::string& arguments) const {
        const std::string command = "cd '" + folder.string() + "' && " BORVIK_CALC " " + arguments + " >.out 2>.err";
        const int status = std::system(command.c_str());
        return {WEXITSTATUS(status), bytesOf(folder / ".out"), bytesOf(folder / ".err")};
    }

    /// Puts a project of the tests into the folder.
    std::string take(const std::string& name, const std::string& as) const {
        fs::copy_file(fs::path(BORVIK_SOURCE_DIR "/tests/data/vectors") / (name + ".brvk"), folder / as);
        return as;
    }

    testing_support::TempFolder own;
    const fs::path folder = own.path();
};

TEST_F(CommandLine, wrongUseExitsWith2) {
    for (const char* arguments :
         {"", "--nonsense", "--default a.brvk", "--save x.brvk a.brvk b.brvk", "--default --fail-above much",
          "--default --with-notes", "--default --fail-above -1", "--default --walk slow", "--json",
          "--default --lateral-supports 2:3000", "--default --second-opinion --lateral-supports 2",
          "--default --neighbour a.brvk", "--default --decimal comma", "a.brvk --reactions-csv a.brvk",
          "--default --reactions-xlsx a.csv --reactions-csv a.csv"}) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments;
        EXPECT_NE(outcome.err, "") << arguments;
        EXPECT_EQ(outcome.out, "") << arguments;
    }
}

TEST_F(CommandLine, answersHelpAndVersion) {
    EXPECT_EQ(run("--version").out, std::string("Borvik ") + kVersion + "\n");
    const Outcome help = run("--help");
    EXPECT_EQ(help.exitCode, 0);
    for (const char* option : {"--default", "--tables DIR", "--summary", "--json FILE", "--save FILE.brvk",
                               "--fail-above X", "--walk plain|fast", "--quiet", "--version"})
        EXPECT_THAT(help.out, HasSubstr(option));
}

TEST_F(CommandLine, theDefaultProjectGivesItsSummary) {
    const Outcome outcome = run("--default");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, StartsWith("TestProjekt, TestTravers: 3 spans, 15 m, 1 crane\n"));
    EXPECT_THAT(outcome.out, HasSubstr("Largest ratio 0."));
    EXPECT_EQ(outcome.err, "");
}

TEST_F(CommandLine, printsTheLoadsOfCraneData) {
    const auto vectors =
        nlohmann::json::parse(bytesOf(fs::path(BORVIK_SOURCE_DIR "/tests/data/crane-loads/cranes.json")));
    const nlohmann::json crane = vectors[0]["Crane"];
    nlohmann::json bad = crane;
    bad["hc"] = "HC\n5";
    writeBytes(folder / "one.json", crane.dump());
    writeBytes(folder / "two.json", nlohmann::json{crane, crane}.dump());
    writeBytes(folder / "bad.json", nlohmann::json{crane, bad}.dump());
    writeBytes(folder / "cut.json", crane.dump().substr(0, 30));

    const Outcome one = run("--crane-loads one.json"), two = run("--crane-loads two.json");
    EXPECT_EQ(one.exitCode, 0);
    EXPECT_EQ(nlohmann::json::parse(one.out)["phi2"], 1.215436);
    EXPECT_EQ(nlohmann::json::parse(two.out)[1], nlohmann::json::parse(one.out));
    const struct {
        const char *arguments, *message;
        int exitCode;
    } refused[] = {{"--crane-loads bad.json", "bad.json: crane 2: hc: HC1, HC2, HC3 or HC4", 3},
                   {"--crane-loads cut.json", "cut.json: not JSON: ", 3},
                   {"--crane-loads none.json", "none.json: No such file", 5},
                   {"--crane-loads one.json --default", "borvik-calc: ", 2}};
    for (const auto& each : refused) {
        const Outcome outcome = run(each.arguments);
        EXPECT_EQ(outcome.exitCode, each.exitCode) << each.arguments;
        EXPECT_THAT(outcome.err, StartsWith(each.message));
        EXPECT_EQ(outcome.out, "") << each.arguments;
    }
}

TEST_F(CommandLine, exitCodesTellWhatHappened) {
    take("default", "good.brvk");
    take("gap_in_spans", "gap.brvk");
    writeBytes(folder / "cut.brvk", bytesOf(folder / "good.brvk").substr(0, 3000));
    writeBytes(folder / "empty.brvk", "");
    writeBytes(folder / "beam.json", R"({"Span": [5000]})");
    writeBytes(folder / "wrong.json", R"({"Spam": [5000]})");
    Project faulty;
    LoadProject((folder / "good.brvk").string(), faulty);
    faulty.fyk = 0;  // a strength that the window would refuse: the resistances divide by it
    SaveProject((folder / "faulty.brvk").string(), faulty);

    const struct {
        std::string arguments;
        int exitCode;
        std::string message;
    } cases[] = {
        {"good.brvk", 0, ""},
        {"--fail-above 0.2 good.brvk", 1, ""},
        {"--fail-above 0.6 good.brvk", 0, ""},
        {"gap.brvk", 3, "gap.brvk:  An inner beam can't have length = 0 \n"},
        {"faulty.brvk", 4, "faulty.brvk: Run-time error."},
        {"missing.brvk", 5, "missing.brvk: "},
        {"--from-json beam.json --save beam.brvk", 0, ""},
        {"--from-json wrong.json", 3, "wrong.json: there is no \"Spam\""},
        {"--from-json none.json", 5, "none.json: can't be read"},
        {"--from-json beam.json good.brvk", 2, "borvik-calc: "},
        {"--table MyVz --csv x.brvk good.brvk", 2, "borvik-calc: --csv: would overwrite"},
        {"--csv x.csv good.brvk", 2, "borvik-calc: --csv requires --table"},
        {"cut.brvk", 5, "cut.brvk: "},
        {"empty.brvk", 5, "empty.brvk: "},
        {".", 5, ".: "},
        {"--json nowhere/results.json good.brvk", 5, "good.brvk: can't write nowhere/results.json"},
        {"--save nowhere/x.brvk good.brvk", 5, "good.brvk: "},
        {"--tables . good.brvk", 5, "borvik-calc: "},
    };
    for (const auto& c : cases) {
        const Outcome outcome = run(c.arguments);
        EXPECT_EQ(outcome.exitCode, c.exitCode) << c.arguments << '\n' << outcome.err;
        EXPECT_THAT(outcome.err, StartsWith(c.message)) << c.arguments;
        EXPECT_EQ(outcome.err.empty(), c.message.empty()) << c.arguments;
    }
}

TEST_F(CommandLine, noOutputTakesThePlaceOfAProjectOrAnotherOutput) {
    take("case-10", "a.brvk");
    take("case-12", "b.brvk");
    fs::create_symlink("a.brvk", folder / "link.pdf");
    const std::string a = bytesOf(folder / "a.brvk"), b = bytesOf(folder / "b.brvk");
    for (const char* arguments :
         {"--json *.brvk", "--report *.brvk", "--table MyVz --xlsx *.brvk", "--diagram MyVz --png *.brvk",
          "b.brvk --save b.brvk", "b.brvk --report ./new.BRVK", "b.brvk --report link.pdf",
          "--default --json x --table MyVz --xlsx x", "--default --diagram MyVz --png x.jpg"}) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments;
        EXPECT_THAT(outcome.err, StartsWith("borvik-calc: --")) << arguments;
    }
    EXPECT_EQ(bytesOf(folder / "a.brvk") + bytesOf(folder / "b.brvk"), a + b);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 5) << "the projects, the link, .out and .err";
}

TEST_F(CommandLine, aPipeOrDeviceTakesAnOutputAndStaysWhatItIs) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(run("pipe").exitCode, 5) << "reading one would wait for ever";
    for (const char* option :
         {"--json pipe", "--report pipe", "--table MyVz --xlsx pipe", "--diagram MyVz --png pipe"}) {
        std::string read;
        std::thread reader([&] { read = bytesOf(folder / "pipe"); });
        EXPECT_EQ(run(std::string("--default ") + option).exitCode, 0);
        reader.join();
        EXPECT_GT(read.size(), 1000U) << option;
    }
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST_F(CommandLine, aProjectCannotCommandTheTerminal) {
    Project project;
    LoadProject(folder / take("default", "a.brvk"), project);
    project.Proj = "Hall\x1b]0;title\a\nLargest ratio 0.001";
    SaveProject(folder / "a.brvk", project);
    const std::string out = run("a.brvk").out;
    EXPECT_THAT(out, StartsWith("a.brvk\nHall ]0;title  Largest ratio 0.001, "));
    EXPECT_EQ(std::count_if(out.begin(), out.end(), [](unsigned char c) { return c < 32 && c != '\n'; }), 0);
}

TEST_F(CommandLine, oneBadFileDoesNotStopTheOthers) {
    take("default", "a.brvk");
    take("gap_in_spans", "b.brvk");
    fs::create_directory(folder / "other");
    take("simultaneous", "other/a.brvk");
    const Outcome outcome = run("--json results a.brvk missing.brvk b.brvk other/a.brvk");
    EXPECT_EQ(outcome.exitCode, 5);
    EXPECT_THAT(outcome.err, HasSubstr("missing.brvk: "));
    EXPECT_THAT(outcome.err, HasSubstr("b.brvk:  An inner beam"));
    const auto document = [&](const char* name) { return nlohmann::json::parse(bytesOf(folder / "results" / name)); };
    EXPECT_EQ(document("a.json")["File"], "a.brvk");
    EXPECT_EQ(document("b.json")["Calculated"], false);
    EXPECT_EQ(document("a-2.json")["File"], "other/a.brvk");
    EXPECT_EQ(document("a-2.json")["Calculated"], true);
}

TEST_F(CommandLine, jsonOnStandardOutputIsOneLineAProject) {
    take("default", "a.brvk");
    take("independent", "b.brvk");
    const Outcome outcome = run("--json - a.brvk b.brvk");
    EXPECT_EQ(outcome.exitCode, 0);
    std::istringstream lines(outcome.out);
    std::vector<std::string> files;
    for (std::string line; std::getline(lines, line);) files.push_back(nlohmann::json::parse(line)["File"]);
    EXPECT_THAT(files, testing::ElementsAre("a.brvk", "b.brvk"));
}

TEST_F(CommandLine, bothWalksGiveTheSameBytes) {
    take("independent", "a.brvk");
    const Outcome plain = run("--json - --walk plain a.brvk");
    const Outcome fast = run("--json - --walk fast a.brvk");
    EXPECT_EQ(plain.exitCode, 0) << plain.err;
    EXPECT_GT(plain.out.size(), 10000u);
    EXPECT_TRUE(plain.out == fast.out);
}

TEST_F(CommandLine, savesTheProjectAsItStandsAfterTheRun) {
    take("splices_dropped", "a.brvk");
    EXPECT_EQ(run("--save b.brvk a.brvk").exitCode, 0);
    Project before, after;
    LoadProject((folder / "a.brvk").string(), before);
    LoadProject((folder / "b.brvk").string(), after);
    EXPECT_EQ(after.BeamLength, 9000.0);
    EXPECT_FALSE(after.ChkFat5Sp == before.ChkFat5Sp) << "splices that no longer fit are dropped";
    EXPECT_EQ(after.V(1), before.V(1));
}

TEST_F(CommandLine, quietSaysNothingUnlessAsked) {
    EXPECT_EQ(run("--quiet --default").out, "");
    EXPECT_NE(run("--quiet --summary --default").out, "");
}

TEST_F(CommandLine, severalOutputsComeTogether) {
    const Outcome outcome = run("--default --summary --json results.json --save saved.brvk");
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.out, HasSubstr("Largest ratio"));
    EXPECT_TRUE(nlohmann::json::parse(bytesOf(folder / "results.json"))["File"].is_null());
    EXPECT_TRUE(fs::exists(folder / "saved.brvk"));
}

TEST_F(CommandLine, printsTheSecondOpinion) {
    const auto opinionOf = [&](const std::string& arguments) {
        EXPECT_THAT(run("--default --json r.json " + arguments).out,
                    StartsWith(arguments.empty() ? "" : "Second opinion: "));
        return nlohmann::json::parse(bytesOf(folder / "r.json"));
    };
    EXPECT_FALSE(opinionOf("").contains("SecondOpinion"));
    const double factor = opinionOf("--second-opinion")["SecondOpinion"]["LowestFactor"];
    EXPECT_GT(opinionOf("--second-opinion --lateral-supports 3:2000,3:4000:100")["SecondOpinion"]["LowestFactor"],
              1.2 * factor);
    EXPECT_LT(opinionOf("--second-opinion --warping-free")["SecondOpinion"]["LowestFactor"], factor);
    EXPECT_EQ(run("--default --second-opinion --lateral-supports 3:6000").out,
              "No second opinion: a lateral support at 6000 mm in span 3 does not stand between the ends of a span\n");
}

TEST_F(CommandLine, printsTheNotes) {
    take("default", "a.brvk");
    const std::string out = run("--notes a.brvk").out;
    EXPECT_THAT(out, StartsWith("a.brvk\nNotes for the checking engineer: "));
    EXPECT_THAT(out, HasSubstr("\nWheel loads, unsafe [D1]\n"));
    EXPECT_THAT(out, HasSubstr("\nAssumptions\n  - "));
    EXPECT_THAT(out, testing::Not(HasSubstr("Largest ratio"))) << "no summary unless asked for";
    std::istringstream lines(out);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 100u) << line;
}

TEST_F(CommandLine, printsATableByName) {
    const Outcome reactions = run("--default --table reactions");
    EXPECT_EQ(reactions.exitCode, 0);
    EXPECT_THAT(reactions.out, StartsWith("Support\tRz - max\tRz - min\tRy - max\tRy - min\n1\t"));
    EXPECT_EQ(std::count(reactions.out.begin(), reactions.out.end(), '\n'), 5);  // head and four supports
    EXPECT_EQ(reactions.err, "");

    take("default", "a.brvk");
    take("default", "b.brvk");
    EXPECT_THAT(run("a.brvk b.brvk --table Reactions").out, HasSubstr("b.brvk\nSupport\t"));

    const Outcome unknown = run("--default --table Nothing");
    EXPECT_EQ(unknown.exitCode, 2);
    EXPECT_THAT(unknown.err, HasSubstr("SummaryULS, "));
}

TEST_F(CommandLine, drawsADiagramWithoutADisplay) {
    if (run("--help").out.find("--diagram") == std::string::npos) GTEST_SKIP() << "built without diagrams";
    const Outcome drawn = run("--default --diagram MyVz --png forces.png");
    EXPECT_EQ(drawn.exitCode, 0);
    EXPECT_EQ(drawn.out + drawn.err, "");
    EXPECT_THAT(bytesOf(folder / "forces.png"), StartsWith("\x89PNG"));

    EXPECT_EQ(run("--default --diagram cr1sp1 --png stress.svg").exitCode, 0);
    const std::string svg = bytesOf(folder / "stress.svg");
    EXPECT_THAT(svg, HasSubstr("FLS - Stress in top flange (MPa)"));
    EXPECT_THAT(svg, HasSubstr("</svg>"));

    const Outcome driven = run("--default --quiet --diagram MyVz --png driven.png --at 1:1130");
    EXPECT_EQ(driven.exitCode, 0);
    EXPECT_NE(driven.err.find("nearest step of their walk: Crane 1: span 1, 1200 mm"), std::string::npos) << driven.err;
    for (const char* at : {"9:0", "1:1,1:1,1:1", "1", "x:1", "0:5"})
        EXPECT_NE(run(std::string("--default --diagram MyVz --png none.png --at ") + at).exitCode, 0) << at;
    EXPECT_EQ(run("--default --diagram Cr2Sp1 --png none.png").exitCode, 5);  // there is one crane
    EXPECT_FALSE(fs::exists(folder / "none.png"));
    EXPECT_EQ(run("--default --diagram MyVz").exitCode, 2);
    EXPECT_EQ(run("--default --png forces.png").exitCode, 2);
    EXPECT_EQ(run("--default --diagram Nothing --png forces.png").exitCode, 2);
    EXPECT_EQ(run("--default --diagram MyVz --png missing/forces.png").exitCode, 5);
}

TEST_F(CommandLine, crane2HasNoTableWhereThereIsOneCrane) {
    const Outcome outcome = run("--default --table Stress2");
    EXPECT_EQ(outcome.exitCode, 5);
    EXPECT_THAT(outcome.err, HasSubstr("this project has no table Stress2"));
    EXPECT_EQ(outcome.out, "");
}

}  // namespace
}  // namespace borvik
