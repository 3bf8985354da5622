#include "results/tables.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "results/result_tree.h"
#include "samples.h"

namespace borvik {
namespace {

using testing::ElementsAre;

std::vector<std::string> headers(const ResultTable& table) {
    std::vector<std::string> texts;
    for (const TableColumn& column : table.columns) texts.push_back(column.header);
    return texts;
}

std::vector<std::string> row(const ResultTable& table, std::size_t number) {
    std::vector<std::string> texts;
    for (const TableCell& cell : table.rows.at(number)) texts.push_back(cell.text);
    return texts;
}

std::vector<std::string> column(const ResultTable& table, std::size_t number) {
    std::vector<std::string> texts;
    for (const auto& cells : table.rows) texts.push_back(number < cells.size() ? cells[number].text : "");
    return texts;
}

/// Checks of a beam; the governing ratios are those of the summary tests.
Results checkedResults(const Project& project) {
    Results results = sampleResults(project);
    CheckResults& checks = results.Checks;
    for (auto* sets :
         {&checks.ShearMax, &checks.ShearMin, &checks.BendMax, &checks.BendMin, &checks.LtbPos, &checks.LtbNeg})
        *sets = Array<RowSet<8>>(1, project.NofSpans);
    checks.LocalSpan = checks.VonMisesSpan = Array<RowSet<4>>(1, project.NofSpans);
    checks.DefZSpan = checks.DefYSpan = Array<RowSet<5>>(1, project.NofSpans);
    for (int span = 1; span <= project.NofSpans; ++span) {
        checks.ShearMax(span) = rowSet<8>("ShearMax", 0.5, "0.500");
        checks.ShearMax(span)(5) = "1";
        checks.ShearMax(span)(6) = "1800.5";
        checks.ShearMax(span)(7) = "2";
        checks.ShearMax(span)(8) = "400";
        checks.ShearMin(span) = rowSet<8>("ShearMin", 0.4, "0.400");
        checks.BendMax(span) = rowSet<8>("BendMax", 1.0001, "1.000");
        checks.BendMin(span) = rowSet<8>("BendMin", 1.0, "1.000");
        checks.LtbPos(span) = rowSet<8>("LtbPos", 0.3, "0.300");
        checks.LtbNeg(span) = rowSet<8>("LtbNeg", 0.2, "0.200");
        checks.LocalSpan(span) = rowSet<4>("Local", 0.1, "0.100");
        checks.VonMisesSpan(span) = rowSet<4>("VonMises", 0.1, "0.100");
        checks.DefZSpan(span) = rowSet<5>("DefZ", 0.6, "0.600");
        checks.DefYSpan(span) = rowSet<5>("DefY", 0.7, "0.700");
    }
    checks.ShearGov = rowSet<8>("Shear", 0.5, "0.500");
    checks.BendGov = rowSet<8>("Bend", 1.0001, "1.000");
    checks.LtbGov = rowSet<8>("Ltb", 10.123, "10.123");
    checks.LocalGov = rowSet<6>("Local", 9.5, "9.500");
    checks.VonMisesGov = rowSet<6>("VonMises", 1.0, "1.000");
    checks.DefZGov = rowSet<5>("DefZ", 0.6, "0.600");
    checks.DefYGov = rowSet<5>("DefY", 0.7, "0.700");
    return results;
}

Array<RowSet<4>> fatigueRows(int count, const char* formula) {
    Array<RowSet<4>> rows(1, count);
    for (int i = 1; i <= count; ++i) rows(i) = rowSet<4>(formula, 0.1, "0.100");
    return rows;
}

TEST(EnvelopeTables, listEveryPointWithItsOwnQuantityInDisplayUnits) {
    const Project project = sampleProject(2, 6010);
    const Results results = sampleResults(project);

    const ResultTable vertical = TableMyVz(project, results);
    EXPECT_THAT(headers(vertical), ElementsAre("Beam/Pos(mm) ", "My-max", "My-min", "Vz-max", "Vz-min "));
    ASSERT_EQ(vertical.rows.size(), 42u);
    EXPECT_THAT(row(vertical, 0), ElementsAre("1 / 0", "0.0", "0.0", "90.0", "0.0"));
    EXPECT_THAT(row(vertical, 10), ElementsAre("1 / 3005", "120.0", "-30.0", "45.0", "-40.0"));
    EXPECT_THAT(row(vertical, 22), ElementsAre("2 / 301", "18.8", "-3.0", "85.5", "-4.0"));  // 300.5; 120 sin 9 degrees
    EXPECT_THAT(row(vertical, 41), ElementsAre("2 / 6010", "0.0", "-60.0", "0.0", "-80.0"));
    EXPECT_DOUBLE_EQ(vertical.rows[10][2].number.value(), -30.0);
    EXPECT_EQ(vertical.rows[10][2].mask, "0.0");
    EXPECT_FALSE(vertical.rows[10][0].number);

    const ResultTable horizontal = TableMzVy(project, results);
    EXPECT_THAT(headers(horizontal), ElementsAre("Beam/Pos(mm)", "Mz-max", "Mz-min", "Vy-max", "Vy-min "));
    EXPECT_THAT(row(horizontal, 10), ElementsAre("1 / 3005", "4.0", "-1.0", "3.0", "-2.5"));

    const ResultTable deflection = TableDeflection(project, results);
    EXPECT_THAT(headers(deflection), ElementsAre("Beam/Pos(mm) ", "Uz-max ", "Uy-max "));
    EXPECT_THAT(row(deflection, 10), ElementsAre("1 / 3005", "-5.0", "-0.7"));

    const ResultTable reactions = TableReactions(project, results);
    EXPECT_THAT(headers(reactions), ElementsAre("Support", "Rz - max", "Rz - min", "Ry - max", "Ry - min"));
    ASSERT_EQ(reactions.rows.size(), 3u);
    EXPECT_THAT(row(reactions, 2), ElementsAre("3", "100.0", "-12.3", "7.0", "-0.6"));
}

TEST(StressTables, showTheSetOfTheirCrane) {
    Project project = sampleProject(1);
    project.NofCranes = 2;
    Results results = sampleResults(project);
    const ResultTable first = TableStress1(project, results);
    EXPECT_THAT(headers(first), ElementsAre("Beam/Pos(mm)", "Sig1-max", "Sig1-min", "Range", "Sig2-max", "Sig2-min",
                                            "Tau-max", "Tau-min"));
    EXPECT_THAT(row(first, 10), ElementsAre("1 / 3000", "5.0", "-30.0", "35.0", "30.0", "-5.0", "10.0", "-10.0"));
    EXPECT_THAT(row(TableStress2(project, results), 10),
                ElementsAre("1 / 3000", "2.5", "-15.0", "17.5", "15.0", "-2.5", "5.0", "-5.0"));

    results.Fatigue.Cr2.reset();  // two cranes at a constant distance
    const ResultTable none = TableStress2(project, results);
    ASSERT_EQ(none.rows.size(), 22u);
    EXPECT_THAT(row(none, 10), ElementsAre("1 / 3000", "0.0", "0.0", "0.0", "0.0", "0.0", "0.0", "0.0"));
    EXPECT_EQ(none.rows[21][0].emphasis, Emphasis::Note);
}

TEST(StepTable, showsWheels1And5UnderTheirHeaders) {
    Results results;
    PositionLog& log = results.Steps;
    log.StepNo = Array<std::int16_t>(0, 1);
    for (auto* array :
         {&log.StepSpan1, &log.StepV1, &log.StepA1, &log.StepB1, &log.StepSpan2, &log.StepV5, &log.StepA5, &log.StepB5})
        *array = Array<Single>(0, 1);
    log.StepNo(1) = 1;
    log.StepSpan1(1) = 2;
    log.StepV1(1) = 33;
    log.StepA1(1) = 200;
    log.StepB1(1) = 4800;
    log.StepSpan2(1) = 3;
    log.StepV5(1) = 44;
    log.StepA5(1) = 100.25;
    log.StepB5(1) = 4899.75;
    const ResultTable table = TableSteps(sampleProject(1), results);
    EXPECT_THAT(headers(table), ElementsAre("Steg ", "Fack H1 ", "V", "a", "b", "Fack H2 ", "V ", "a ", "b "));
    ASSERT_EQ(table.rows.size(), 2u);
    EXPECT_THAT(row(table, 1), ElementsAre("1", "2", "33.0", "200.0", "4800.0", "3", "44.0", "100.3", "4899.8"));
}

TEST(StaticTable, listsEveryPartOfEverySpanAndMarksRatiosStrictlyOverOne) {
    Project project = sampleProject(2);
    project.NofCranes = 2;
    const Results results = checkedResults(project);
    const ResultTable table = TableCodeStatic(project, results);
    EXPECT_THAT(headers(table), ElementsAre("Bar/Point", "Interaction Ratio", "Equation", "Ratio ", "Reference ",
                                            "Crane 1", "Crane 2"));
    ASSERT_EQ(table.rows.size(), 2u * 9u + 1u);
    EXPECT_THAT(row(table, 0),
                ElementsAre("1/0", "ShearMax = ", "1/2 = ", "0.500", " <  1.00 (ShearMax)", "1/1800.5", "2/400"));
    const std::vector<std::string> parts = column(table, 1);
    EXPECT_THAT(std::vector<std::string>(parts.begin() + 9, parts.begin() + 18),
                ElementsAre("ShearMax = ", "ShearMin = ", "BendMax = ", "BendMin = ", "LtbPos = ", "LtbNeg = ",
                            "Local = ", "DefZ = ", "DefY = "));
    EXPECT_EQ(table.rows[2][0].text, "1/3000");   // the place of the largest moment
    EXPECT_EQ(table.rows[12][0].text, "2/6000");  // and of the smallest, in span 2
    EXPECT_THAT(row(table, 18), ElementsAre("Note:", "Crane Position: Span/Distance from left wheel to left support"));

    EXPECT_EQ(table.rows[2][3].text, "1.000");
    EXPECT_EQ(table.rows[2][3].emphasis, Emphasis::OverLimit);
    EXPECT_EQ(table.rows[3][3].text, "1.000");
    EXPECT_EQ(table.rows[3][3].emphasis, Emphasis::None);

    project.NofCranes = 1;
    project.HasLoadsY = false;
    project.CraneType = 2;  // von Mises joins, the horizontal deflection and wheel 5 go
    const ResultTable hoist = TableCodeStatic(project, results);
    ASSERT_EQ(hoist.rows.size(), 2u * 9u + 1u);
    EXPECT_EQ(hoist.rows[0].size(), 6u);
    EXPECT_EQ(hoist.rows[7][1].text, "VonMises = ");
    EXPECT_EQ(hoist.rows[8][1].text, "DefZ = ");
}

TEST(FatigueTable, groupsRowsByDetailAndPlace) {
    Project project = sampleProject(2);
    project.Fat1 = project.Fat2 = project.Fat4 = project.Fat5 = true;
    Results results = sampleResults(project);
    FatigueResults& fatigue = results.Fatigue;
    fatigue.FatRows(1) = fatigueRows(2, "1:");
    fatigue.FatRows(2) = fatigueRows(3, "2:");
    fatigue.FatRows(5) = Array<RowSet<4>>(1, 4);
    (*fatigue.FatRows(5))(3) = rowSet<4>("5:", 1.2, "1.200");
    fatigue.FatRows(6) = fatigueRows(2, "4:");  // detail 4 lives where detail 6 would
    for (const int detail : {1, 2, 4, 5}) fatigue.FatResult(detail) = rowSet<4>("governing", 0.1, "0.100");

    const ResultTable table = TableCodeFatigue(project, results);
    EXPECT_THAT(headers(table), ElementsAre("Bar/Point", "Interaction Ratio", "Equation", "Ratio ", "Reference "));
    EXPECT_THAT(column(table, 0),
                ElementsAre("Span: ", "1", "2", "Support:", "1", "2", "3", "Span: ", "1", "2", "Splice:", "3"));
    EXPECT_EQ(table.rows[8][1].text, "4: = ");
    EXPECT_EQ(table.rows[11][3].emphasis, Emphasis::OverLimit);

    project.Fat6 = true;  // takes the place of the rows of detail 4, whose governing row stays
    fatigue.FatRows(6) = fatigueRows(3, "6:");
    fatigue.FatResult(6) = rowSet<4>("governing", 0.1, "0.100");
    const ResultTable shared = TableCodeFatigue(project, results);
    EXPECT_THAT(column(shared, 1), testing::Not(testing::Contains("4: = ")));
    EXPECT_EQ(shared.rows[8][1].text, "governing = ");
    EXPECT_EQ(shared.rows.size(), 15u);

    project.CraneType = 2;
    project.FatR4 = true;
    fatigue.FatRows(4) = fatigueRows(2, "R4:");
    const ResultTable hoist = findTable("codefatigue")->fill(project, results);
    EXPECT_THAT(column(hoist, 1), ElementsAre("4 Top flange/web", "R4: = ", "R4: = "));
}

TEST(Summaries, listGoverningRowsInTheirOrder) {
    Project project = sampleProject(1);
    project.Fat1 = project.Fat3 = true;
    Results results = checkedResults(project);
    results.Fatigue.FatResult(1) = rowSet<4>("1:", 0.2, "0.200");
    results.Fatigue.FatResult(2) = rowSet<4>("2:", 0.2, "0.200");  // checked before its flag was taken away
    results.Fatigue.FatResult(3) = rowSet<4>("3:", 2.0, "2.000");

    const ResultTable all = ShowSummaryAll(project, results);
    EXPECT_THAT(headers(all), ElementsAre("Control", "Interaction Ratio", "Reference "));
    EXPECT_THAT(column(all, 0),
                ElementsAre("ULS - Section Control/Lateral Torsional Buckling", "Shear = 1/2 = ", "Bend = 1/2 = ",
                            "Ltb = 1/2 = ", "Local = 1/2 = ", "SLS - Deflection Control",
                            "DefZ = 1/2 = ", "DefY = 1/2 = ", "FLS - Fatigue  Control", "1: = 1/2 = ", "3: = 1/2 = "));
    EXPECT_THAT(column(all, 1),
                ElementsAre("", "0.500", "1.000", "10.123", "9.500", "", "0.600", "0.700", "", "0.200", "2.000"));
    EXPECT_EQ(all.rows[2][1].emphasis, Emphasis::OverLimit);  // 1.0001
    EXPECT_EQ(all.rows[0][0].emphasis, Emphasis::Heading);
    EXPECT_EQ(all.rows[1][2].text, " <  1.00 (Shear)");

    EXPECT_EQ(ShowSummaryULS(project, results).rows.size(), 5u);
    project.HasLoadsY = false;
    EXPECT_EQ(ShowSummaryULSSLS(project, results).rows.size(), 7u);
    project.CraneType = 2;
    const ResultTable hoist = ShowSummaryULS(project, results);
    EXPECT_EQ(hoist.rows.at(5)[0].text, "VonMises = 1/2 = ");
    EXPECT_EQ(hoist.rows.at(5)[1].emphasis, Emphasis::None);  // exactly 1
}

TEST(Summaries, rankRatiosByTheirTexts) {
    Project project = sampleProject(1);
    project.CraneType = 2;
    const Results results = checkedResults(project);
    const ResultTable table = ShowSummary(project, results);
    // "10.123" ranks below "9.500" and above "1.000"; equals keep their order.
    EXPECT_THAT(column(table, 0),
                ElementsAre("ULS - Section Control/Lateral Torsional Buckling", "Local = 1/2 = ", "Ltb = 1/2 = ",
                            "Bend = 1/2 = ", "VonMises = 1/2 = ", "Shear = 1/2 = ", "SLS - Deflection Control",
                            "DefZ = 1/2 = ", "DefY = 1/2 = ", "FLS - Fatigue Control"));
}

TEST(TableText, isTabSeparatedWithAllColumns) {
    ResultTable table;
    table.columns = {{"A ", "", ""}, {"B", "", ""}};
    table.rows = {{{"Heading", Emphasis::Heading, {}, {}}}, {{"x", {}, {}, {}}, {"1.0", {}, 1.0, "0.0"}}};
    EXPECT_EQ(tabSeparated(table), "A \tB\nHeading\t\nx\t1.0\n");
    EXPECT_EQ(tabSeparated(table, false), "Heading\t\nx\t1.0\n");
}

void collect(const TreeNode& node, std::vector<std::string>& texts, std::vector<std::string>& tables) {
    texts.push_back(node.text);
    if (node.opens == NodeOpens::Table) tables.push_back(node.name);
    for (const TreeNode& child : node.children) collect(child, texts, tables);
}

TEST(ResultTree, growsWithResultsAndCranes) {
    Project project = sampleProject(1);
    std::vector<std::string> texts, tables;
    collect(mainTree(project, false), texts, tables);
    EXPECT_THAT(texts, ElementsAre("Borvik", "Input", "Setup", "Beam", "Profile", "Rail", "Lateral Tors Buckl", "Loads",
                                   "Fatigue"));
    texts.clear();
    collect(mainTree(project, true), texts, tables);
    EXPECT_THAT(std::vector<std::string>(texts.begin() + 9, texts.end()),
                ElementsAre("Results", "ULS", "ULS + SLS", "ULS + SLS + FLS", "Summary", "Diagram", "ULS/SLS",
                            "My + Vz", "Mz + Vy", "Uz + Uy", "FLS", "Cr1-Point 1", "Cr1-Point 2", "Cr1-Point 3",
                            "Reactions", "Detailed Results", "Notes"));
    texts.clear();
    collect(detailedTree(project), texts, tables);
    EXPECT_THAT(texts, ElementsAre("Borvik", "ULS", "Moment", "MyVz max/min", "MzVy max/min", "Reactions", "SLS",
                                   "Uz/Uy", "Codecheck", "Static", "Fatigue", "FLS", "FLS - Crane 1"));

    project.NofCranes = 2;
    const TreeNode two = mainTree(project, true);
    EXPECT_NE(findNode(two, "Cr2-Point 3"), nullptr);
    EXPECT_NE(findNode(detailedTree(project), "FLS - Crane 2"), nullptr);
    EXPECT_TRUE(findNode(two, "Mz + Vy")->needsLoadsY);
    EXPECT_EQ(findNode(two, "nothing"), nullptr);
    for (const std::string& name : tables) EXPECT_NE(findTable(name), nullptr) << name;
    EXPECT_EQ(findTable("MyV"), nullptr);
}

}  // namespace
}  // namespace borvik
