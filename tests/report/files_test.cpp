// Reads the files that borvik-calc writes back with programs that know nothing of ours.

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <sstream>

#include "base/number_text.h"
#include "base/whole_file.h"
#include "project/project_file.h"
#include "results/spreadsheet.h"
#include "support/samples.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

using namespace testing_support;

struct Answer {
    int exitCode = -1;
    std::string output;
};

Answer run(const std::string& command) {
    Answer result;
    std::FILE* pipe = ::popen((command + " 2>&1").c_str(), "r");
    std::array<char, 4096> buffer{};
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe))
        result.output.append(buffer.data(), count);
    result.exitCode = WEXITSTATUS(::pclose(pipe));
    return result;
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

/// The cells of a workbook as an independent reader finds them: row, column, type ("n" or "s"), value, number format.
/// Below them the alignment of column A and the widths of the columns.
Answer readBack(const std::string& file) {
    return run(
        "/usr/bin/python3 -c '\n"
        "import openpyxl, sys\n"
        "sheet = openpyxl.load_workbook(sys.argv[1]).active\n"
        "for row in sheet.iter_rows():\n"
        "    for c in row:\n"
        "        if c.value is not None:\n"
        "            print(c.row, c.column, c.data_type, c.number_format, repr(c.value), sep=\"\\t\")\n"
        "print({c.alignment.horizontal for c in sheet[\"A\"] if c.value is not None})\n"
        "print(*[round(sheet.column_dimensions[c].width) for c in \"ABCDEFGH\"])\n"
        "' '" +
        file + "'");
}

TEST(SpreadsheetFile, holdsTheTextsOfTheTableWithNumbersAsNumbers) {
    const TempFolder folder;
    const Session session = calculated(Sample::TwoCranes);
    for (const TableEntry& entry : tableEntries()) {
        const ResultTable table = entry.fill(session.project, *session.results);
        const std::string file = folder.file(std::string(entry.name) + ".xlsx");
        ASSERT_NO_THROW(saveSpreadsheet(file, table, entry.title, {}));
        const Answer read = readBack(file);
        ASSERT_EQ(read.exitCode, 0) << read.output;
        std::vector<std::string> lines = linesOf(read.output);
        ASSERT_GT(lines.size(), 2U);
        EXPECT_EQ(lines[lines.size() - 2], "{'center'}") << entry.name;
        lines.resize(lines.size() - 2);

        std::vector<std::string> expected;
        for (std::size_t c = 0; c < table.columns.size(); ++c)
            expected.push_back("1\t" + std::to_string(c + 1) + "\ts\tGeneral\t'" + table.columns[c].header + "'");
        std::size_t at = 0;
        for (; at < expected.size(); ++at) EXPECT_EQ(lines[at], expected[at]);
        for (std::size_t r = 0; r < table.rows.size(); ++r)
            for (std::size_t c = 0; c < table.rows[r].size(); ++c) {
                const TableCell& cell = table.rows[r][c];
                if (cell.text.empty()) continue;
                ASSERT_LT(at, lines.size()) << entry.name;
                std::istringstream fields(lines[at++]);
                std::string row, column, type, format, value;
                for (std::string* field : {&row, &column, &type, &format, &value}) std::getline(fields, *field, '\t');
                EXPECT_EQ(row + " " + column, std::to_string(r + 2) + " " + std::to_string(c + 1));
                if (!cell.number) {
                    EXPECT_EQ(type + " " + value, "s '" + cell.text + "'") << entry.name;
                    continue;
                }
                EXPECT_EQ(type + " " + format, "n " + cell.mask) << entry.name;
                EXPECT_EQ(formatNumber(std::stod(value), cell.mask), cell.text) << entry.name;
            }
        EXPECT_EQ(at, lines.size()) << entry.name;
    }
}

TEST(SpreadsheetFile, emptyTableGivesItsHeaders) {
    const TempFolder folder;
    ResultTable table;
    table.columns = {{"Support", "", ""}, {"Rz - max", "kN", ""}};
    ASSERT_NO_THROW(saveSpreadsheet(folder.file("empty.xlsx"), table, "a/b:[c]", {}));
    const std::vector<std::string> lines = linesOf(readBack(folder.file("empty.xlsx")).output);
    ASSERT_EQ(lines.size(), 4U);
    EXPECT_EQ(lines[1], "1\t2\ts\tGeneral\t'Rz - max'");
}

TEST(SpreadsheetFile, failureLeavesTheOldFileAndNothingElse) {
    const TempFolder folder;
    EXPECT_THROW(saveSpreadsheet(folder.file("no/such/folder.xlsx"), {}, "T", {}), OutputError);
    EXPECT_EQ(folder.count(), 0);
}

TEST(SpreadsheetFile, commandLineWritesIt) {
    const TempFolder folder;
    calculatedAndSaved(Sample::OneCrane, folder.file("p.brvk"));
    const Answer made = run(std::string(BORVIK_CALC) + " --quiet " + folder.file("p.brvk") +
                            " --table Reactions --xlsx " + folder.file("r.xlsx"));
    EXPECT_EQ(made.exitCode, 0) << made.output;
    EXPECT_EQ(made.output, "");
    EXPECT_EQ(linesOf(readBack(folder.file("r.xlsx")).output).size(), 5U + 4U * 5U + 2U);
}

TEST(SpreadsheetFile, aWorkbookHasAllTablesWithTheirUnits) {
    const TempFolder folder;
    calculatedAndSaved(Sample::OneCrane, folder.file("p.brvk"));
    const Answer made =
        run(std::string(BORVIK_CALC) + " --quiet " + folder.file("p.brvk") + " --workbook " + folder.file("all.xlsx"));
    EXPECT_EQ(made.exitCode, 0) << made.output;
    const Answer read =
        run("/usr/bin/python3 -c '\n"
            "import openpyxl, sys\n"
            "book = openpyxl.load_workbook(sys.argv[1])\n"
            "print(*book.sheetnames, sep=\"|\")\n"
            "print(book[\"MyVz maxmin\"][\"B1\"].value, book[\"About\"][\"B1\"].value)\n"
            "' '" +
            folder.file("all.xlsx") + "'");
    EXPECT_EQ(read.output,
              "About|ULS|ULS + SLS|ULS + SLS + FLS|Summary|MyVz maxmin|MzVy maxmin|Reactions|Reactions for "
              "supports|UzUy|Static|Fatigue|"
              "FLS - Crane 1|Intermediate steps\nMy-max (kNm) Hall Åmål\n");
}

#ifdef BORVIK_PDF

std::string report(const TempFolder& folder, const std::string& project, const std::string& scope) {
    const std::string file = folder.file(scope + ".pdf");
    const Answer made =
        run(std::string(BORVIK_CALC) + " --quiet " + project + " --report " + file + " --scope " + scope);
    EXPECT_EQ(made.exitCode, 0) << made.output;
    return file;
}

/// Words and their boxes lie on the paper.
void expectAllOnPaper(const std::string& file) {
    const std::string boxes = run("pdftotext -bbox '" + file + "' -").output;
    double width = 0.0, height = 0.0;
    int words = 0;
    for (const std::string& line : linesOf(boxes)) {
        double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
        if (std::sscanf(line.c_str(), " <page width=\"%lf\" height=\"%lf\">", &width, &height) == 2) continue;
        if (std::sscanf(line.c_str(), " <word xMin=\"%lf\" yMin=\"%lf\" xMax=\"%lf\" yMax=\"%lf\">", &left, &top,
                        &right, &bottom) != 4)
            continue;
        ++words;
        EXPECT_TRUE(left >= 0.0 && top >= 0.0 && right <= width && bottom <= height) << line;
    }
    EXPECT_GT(words, 200);
}

TEST(ReportFile, textCanBeReadBackAndLiesOnThePaper) {
    struct Case {
        Sample sample;
        const char* scope;
        std::vector<std::string> texts;  ///< in this order
    };
    const Case cases[] = {
        {Sample::OneCrane,
         "uls",
         {"Borvik", "Page: 1", "Hall Åmål", "General:", "Profile:", "Beam Data", "ULS - My/Vz/Rz"}},
        {Sample::TwoCranes, "uls-sls", {"Craneclass Crane 2:", "Lateral Torsional Buckling:", "SLS - Uz (mm)"}},
        {Sample::TwoCranes,
         "all",
         {"Fatigue Details:", "Results:", "FLS - Fatigue Control", "Stress ranges of crane 2"}},
        {Sample::Monorail, "compressed", {"Monorail", "SLS - Uy (mm)", "Results:", "FLS - Fatigue Control"}},
    };
    const TempFolder folder;
    for (const Case& c : cases) {
        const std::string project = folder.file("p.brvk");
        const Session session = calculatedAndSaved(c.sample, project);
        const std::string file = report(folder, project, c.scope);
        const std::string text = run("pdftotext -raw '" + file + "' -").output;
        std::size_t at = 0;
        for (const std::string& wanted : c.texts) {
            const std::size_t found = text.find(wanted, at);
            EXPECT_NE(found, std::string::npos) << c.scope << ": " << wanted;
            if (found != std::string::npos) at = found;
        }
        if (std::string(c.scope) == "all") {
            for (const RowSet& row : session.results->Checks["Bend"].extremes[0])
                EXPECT_NE(text.find(row(2)), std::string::npos) << row(2);
        }
        expectAllOnPaper(file);
    }
}

TEST(ReportFile, hasEmbeddedFontsAndATitle) {
    const TempFolder folder;
    Session session = calculatedAndSaved(Sample::OneCrane, folder.file("p.brvk"));
    session.project.Ident += " \x1b & <B>";  // what an archive must still be able to read
    SaveProject(folder.file("p.brvk"), session.project);
    const std::string file = report(folder, folder.file("p.brvk"), "all");
    const std::vector<std::string> fonts = linesOf(run("pdffonts '" + file + "'").output);
    ASSERT_GT(fonts.size(), 2U);
    for (std::size_t i = 2; i < fonts.size(); ++i) EXPECT_NE(fonts[i].find(" yes "), std::string::npos) << fonts[i];
    const std::string pdf = run("pdfinfo '" + file + "'").output;
    EXPECT_NE(pdf.find("Hall Åmål, Girder A   & <B>"), std::string::npos) << pdf;
    EXPECT_NE(pdf.find("Author: "), std::string::npos) << pdf;
    const std::string archived = run("pdfinfo -meta '" + file + "'").output;
    EXPECT_NE(archived.find("Girder A   &amp; &lt;B&gt;"), std::string::npos) << archived;
    EXPECT_NE(archived.find("<dc:creator>"), std::string::npos);
}

TEST(ReportFile, thereIsNoneWithoutResults) {
    const TempFolder folder;
    Session session = calculated(Sample::OneCrane);
    session.project.Span(2) = 0;  // a gap, which the input check refuses
    SaveProject(folder.file("p.brvk"), session.project);
    const Answer made =
        run(std::string(BORVIK_CALC) + " --quiet " + folder.file("p.brvk") + " --report " + folder.file("p.pdf"));
    EXPECT_EQ(made.exitCode, 3) << made.output;
    EXPECT_NE(made.output.find("no report without results"), std::string::npos);
    EXPECT_EQ(folder.count(), 1);
}

#endif

}  // namespace
}  // namespace borvik
