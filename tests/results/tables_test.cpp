#include "results/tables.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "base/number_text.h"
#include "calculation/crane_drive.h"
#include "project/project_file.h"
#include "results/csv.h"
#include "results/result_tree.h"
#include "results/table_cells.h"
#include "support/golden.h"
#include "support/samples.h"

namespace borvik {
namespace {

using namespace testing_support;

std::string shown(const TableCell& cell) {
    const char* const marks[] = {"", " (heading)", " (over the limit)", " (note)"};
    return cell.text + marks[static_cast<int>(cell.emphasis)] + (cell.number ? " {" + cell.mask + "}" : "");
}

/// Of a long table every seventh row.
std::string shown(const std::string& title, const ResultTable& table) {
    std::string text = "== " + title + "\n" + table.note + "\n";
    for (const TableColumn& column : table.columns) text += column.header + " [" + column.unit + "] | ";
    text += "\n";
    for (std::size_t r = 0; r<table.rows.size(); r += table.rows.size()> 40 ? 7 : 1) {
        for (const TableCell& cell : table.rows[r]) text += shown(cell) + " | ";
        text += r < table.details.size() ? table.details[r] + "\n" : "\n";
    }
    return text;
}

std::string shown(const TreeNode& node, const std::string& indent = "") {
    std::string text = indent + node.key + " | " + node.text + " | " + std::to_string(static_cast<int>(node.opens)) +
                       " | " + node.name + (node.needsLoadsY ? " | horizontal\n" : "\n");
    EXPECT_TRUE(node.opens != NodeOpens::Table || findTable(node.name)) << node.name;
    for (const TreeNode& child : node.children) text += shown(child, indent + "  ");
    return text;
}

TEST(Tables, areTheGoldenOnes) {
    for (const Sample sample : kSamples) {
        const Session& session = sessionOf(sample);
        std::string text;
        for (const TableEntry& entry : tableEntries())
            text += shown(std::string(entry.name) + " " + entry.title +
                              (entry.isAvailable(session.project) ? "" : " (not available)"),
                          entry.fill(session.project, *session.results));
        text += "== Trees\n" + shown(mainTree({"Input", "Input"}, session.project, true)) +
                shown(detailedTree(session.project));
        EXPECT_EQ(goldenDifference("tables-" + nameOf(sample) + ".txt", text), "");
    }
}

/// Marks in tables, spreadsheets and the exit code of the command line rest on the numbers, so each must stand behind
/// its text.
TEST(Tables, everyShownNumberStandsBehindItsText) {
    for (const char* folder : {"/examples", "/tests/data/vectors"})
        for (const auto& entry : std::filesystem::directory_iterator(std::string(BORVIK_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".brvk") continue;
            Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
            LoadProject(entry.path().string(), session.project);
            MessageList messages;
            Progress progress;
            if (!Calculate(session, messages, progress)) continue;
            for (const TableEntry& table : tableEntries())
                for (const auto& row : table.fill(session.project, *session.results).rows)
                    for (const TableCell& cell : row) {
                        EXPECT_TRUE(!cell.number || formatNumber(*cell.number, cell.mask) == cell.text)
                            << entry.path() << ": " << cell.text << " is " << *cell.number;
                        EXPECT_EQ(cell.emphasis == Emphasis::OverLimit,
                                  cell.number && cell.mask == "0.000" && !(*cell.number >= 0.0 && *cell.number <= 1.0))
                            << entry.path() << ": " << cell.text;
                    }
        }
}

double valueThere(CraneDrive& drive, const std::array<CraneStand, 2>& stands) {
    EXPECT_TRUE(drive.goTo({stands[0]}));
    const auto& [walk, effect, at, place, point] = drive.stand();
    if (point == 0) return drive.reaction(place, effect == Effect::Ry);
    return drive.values(effect, place)[static_cast<std::size_t>(point)];
}

/// The cranes, put where a cell says, give its number to the bit, and the number in the equation of a check.
TEST(Tables, theCranesStandWhereTheNumbersComeFrom) {
    for (const Sample sample : kSamples) {
        const Session& session = sessionOf(sample);
        CraneDrive drive(session.project, *session.results);
        for (const char* name : {"MyVz", "MzVy", "Reactions", "Deflection", "Stress1", "Stress2"}) {
            const ResultTable table = findTable(name)->fill(session.project, *session.results);
            for (const auto& row : table.rows)
                for (std::size_t column = 1; column < row.size(); ++column)
                    if (row[column].stands[0].isKnown() && table.columns[column].header != "Range") {
                        ASSERT_EQ(Single(valueThere(drive, row[column].stands)), Single(*row[column].number))
                            << nameOf(sample) << name << row[0].text << table.columns[column].header;
                    }
        }
        for (const auto& row : TableCodeStatic(session.project, *session.results).rows) {
            if (row.size() < 4 || !row[3].stands[0].isKnown()) continue;
            const std::string& formula = row[1].text;
            if (formula.find("Fz,Ed") < 9 || formula.find("SigvM") < 9) continue;  // begin with a wheel, a stress
            const std::string equation = row[2].text.substr(row[2].text[0] == '[');
            const double value = std::abs(valueThere(drive, row[3].stands));
            EXPECT_EQ(equation.rfind(formatNumber(value, "0.0") + "/", 0), 0U) << row[0].text << formula;
        }
        // The bending stress range of a detail is what lies between both positions.
        for (const auto& row : findTable("CodeFatigue")->fill(session.project, *session.results).rows) {
            if (row.size() < 4 || row[3].stands[0].effect != Effect::BottomFlange) continue;
            const auto [one, other] = row[3].stands;
            const double range =
                std::abs(valueThere(drive, {one}) - (other.isKnown() ? valueThere(drive, {other}) : 0));
            const bool printed = row[2].text.find("*" + formatNumber(range, "0.0") + "/") != std::string::npos;
            EXPECT_TRUE(printed || session.results->Fatigue.Summed == Cranes::Together) << row[2].text << range;
        }
    }
}

TEST(Tables, areFoundByNameWhateverTheCapitals) {
    EXPECT_EQ(findTable("codefatigue"), findTable("CodeFatigue"));
    EXPECT_NE(findTable("codefatigue"), nullptr);
    EXPECT_EQ(findTable("MyV"), nullptr);
    const TreeNode tree = mainTree({"Input", "Input"}, Project{}, false);
    EXPECT_NE(findNode(tree, "Input"), nullptr);
    EXPECT_EQ(findNode(tree, "Results"), nullptr);
}

TEST(TableText, isTabSeparatedWithAllColumns) {
    ResultTable table;
    table.columns = {{"A ", "", ""}, {"B", "", ""}};
    table.rows = {{{"Heading", Emphasis::Heading, {}, {}}}, {{"x", {}, {}, {}}, {"1.0", {}, 1.0, "0.0"}}};
    EXPECT_EQ(tabSeparated(table), "A \tB\nHeading\t\nx\t1.0\n");
    EXPECT_EQ(tabSeparated(table, false), "Heading\t\nx\t1.0\n");
}

TEST(Csv, hasUnitsAndPlacesToPlotByAndEitherDecimalSign) {
    ResultTable table;
    table.columns = {{"Beam/Pos(mm) ", "", ""}, {"My-max", "kNm", ""}, {"Remark", "", ""}};
    table.rows = {{textCell("1 / 500"), numberCell(12.5, "0.0"), textCell("a, \"b\"; 1.5")}, {textCell("Note:")}};
    EXPECT_EQ(csvText(table, DecimalSign::Point),
              "Beam,Pos (mm),My-max (kNm),Remark\r\n1,500,12.5,\"a, \"\"b\"\"; 1.5\"\r\nNote:,\r\n");
    EXPECT_EQ(csvText(table, DecimalSign::Comma),
              "Beam;Pos (mm);My-max (kNm);Remark\r\n1;500;12,5;\"a, \"\"b\"\"; 1.5\"\r\nNote:;\r\n");
}

}  // namespace
}  // namespace borvik
