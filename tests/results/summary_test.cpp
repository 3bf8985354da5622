#include "results/summary.h"

#include <gtest/gtest.h>

#include "calculation/calculation.h"

namespace borvik {
namespace {

TableCell cell(const char* text, Emphasis emphasis = Emphasis::None) {
    return {text, emphasis, {}, {}};
}

TEST(TableText, alignsColumnsMarksRatiosAndBreaksLongTexts) {
    ResultTable table;
    table.columns = {{"Control", "", ""}, {"Ratio", "", ""}, {"Reference ", "", ""}};
    const std::string longText(80, 'x');
    table.rows = {{cell("A heading that is longer than the column", Emphasis::Heading)},
                  {cell("χLT = "), cell("1.000", Emphasis::OverLimit), cell(" <  1.00 ")},
                  {cell("IR ="), cell("1.000"), cell(" <  1.00 ")},
                  {cell(longText.c_str()), cell("0.5"), cell("")}};
    const std::string pad(76 - 7, ' ');
    EXPECT_EQ(tableText(table), "Control" + pad + "   Ratio      Reference\n" +     //
                                    "A heading that is longer than the column\n" +  //
                                    "χLT =  " + pad + "   1.000 !!   <  1.00\n" +   //
                                    "IR =   " + pad + "   1.000      <  1.00\n" +   //
                                    longText + "\n" + std::string(76, ' ') + "   0.5        \n");
}

TEST(SummaryText, saysWhetherAllHolds) {
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    EXPECT_NE(summaryText(session).find("Not calculated."), std::string::npos);
    MessageList messages;
    Progress progress;
    Calculate(session, messages, progress);
    EXPECT_EQ(summaryText(session).find("!!"), std::string::npos);

    session.project.V(1) = session.project.V(2) = 300;
    Calculate(session, messages, progress);
    const std::string text = summaryText(session);
    EXPECT_EQ(text.find("TestProjekt, TestTravers: 3 spans, 15 m, 1 crane\n"), 0u);
    EXPECT_NE(text.find(" !! "), std::string::npos);
    EXPECT_NE(text.find(", over 1: marked !!\n"), std::string::npos);
}

}  // namespace
}  // namespace borvik
