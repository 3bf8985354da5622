#include "report/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "notes/notes.h"
#include "project/input_ranges.h"
#include "recording_printer.h"
#include "results/json.h"
#include "results/tables.h"
#include "support/samples.h"

namespace borvik {
namespace {

using namespace testing_support;

constexpr Extent kA4{200.0, 287.0};  // printable, mm
constexpr Extent kLetter{206.0, 269.0};

RecordingPrinter printed(Sample sample, ReportScope scope, Extent paper = kA4, bool withNotes = false) {
    RecordingPrinter printer(paper.width, paper.height);
    PrintReport(printer, sessionOf(sample), scope, {"2026-03-01", "9:05"}, withNotes);
    return printer;
}

/// The first of the texts that doesn't stand behind its predecessor in the document; empty when all do.
std::string firstMissing(const std::string& document, const std::vector<std::string>& texts) {
    std::size_t at = 0;
    for (const std::string& text : texts) {
        at = document.find(text, at);
        if (at == std::string::npos) return text;
        at += text.size();
    }
    return {};
}

const std::vector<std::string> kInputHeadings{
    "General:", "Crane & Loadcombinations:", "Profile:", "Lateral Torsional Buckling:"};

std::vector<std::string> chapters(Sample sample, ReportScope scope) {
    const bool two = sample == Sample::TwoCranes || sample == Sample::ThirtySpans;
    const std::string crane = two ? "FLS - Crane 1 - " : "FLS - ";
    const std::string craneToo = two ? "FLS - Crane 1 " : "FLS - ";
    std::vector<std::string> texts = kInputHeadings;
    const auto add = [&texts](std::initializer_list<std::string> more) { texts.insert(texts.end(), more); };
    if (scope == ReportScope::All || scope == ReportScope::Compressed) add({"Fatigue Details:"});
    add({"Beam Data (mm/kN", "ULS - My/Vz/Rz (kN/kNm)"});
    if (scope != ReportScope::Uls) add({"SLS - Uz (mm)", "SLS - Uy (mm)"});
    if (scope == ReportScope::All)
        add({crane + "stress range top flange (MPa)", craneToo + "stress range bottom flange (MPa)",
             craneToo + "shear stress range in web (MPa)", "FLS - Reactions (kN) excluding lamda factor",
             "Results: ", "ULS", "SLS - Deflection Control", "FLS - Fatigue Control"});
    if (scope == ReportScope::Compressed)
        add({crane + "stress range top flange (MPa)", craneToo + "shear stress range in web (MPa)", "Results: ", "ULS",
             "SLS - Deflection Control", "FLS - Fatigue Control"});
    return texts;
}

constexpr Sample kPlain[] = {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail, Sample::ThirtySpans};
constexpr ReportScope kScopes[] = {ReportScope::Uls, ReportScope::UlsSls, ReportScope::All, ReportScope::Compressed};

TEST(Report, chaptersOfEveryScopeStandInOrder) {
    for (const Sample sample : kPlain)
        for (const ReportScope scope : kScopes)
            EXPECT_EQ(firstMissing(printed(sample, scope).text(), chapters(sample, scope)), "")
                << "sample " << int(sample) << " scope " << int(scope);
}

TEST(Report, scopesLeaveOutWhatTheyDontCover) {
    using testing::HasSubstr;
    using testing::Not;
    for (const ReportScope scope : {ReportScope::Uls, ReportScope::UlsSls}) {
        const std::string text = printed(Sample::OneCrane, scope).text();
        for (const char* absent : {"Fatigue Details:", "FLS - ", "Results: ", "IR = "})
            EXPECT_THAT(text, Not(HasSubstr(absent))) << int(scope);
    }
    EXPECT_THAT(printed(Sample::OneCrane, ReportScope::Uls).text(), Not(HasSubstr("SLS - Uz")));
    EXPECT_THAT(printed(Sample::OneCrane, ReportScope::Compressed).text(), Not(HasSubstr("range bottom flange")));
}

TEST(Report, withoutHorizontalLoadsTheirDiagramStandsInTheLargeScopesOnly) {
    Session session = sessionOf(Sample::OneCrane);
    session.project.HasLoadsY = false;
    for (const ReportScope scope : kScopes) {
        RecordingPrinter printer(kA4.width, kA4.height);
        PrintReport(printer, session, scope, {});
        const bool there = printer.text().find("SLS - Uy (mm)") != std::string::npos;
        EXPECT_EQ(there, scope == ReportScope::All || scope == ReportScope::Compressed) << int(scope);
    }
}

std::string withoutBlanks(const std::string& text) {
    std::string kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept), [](char c) { return c != ' ' && c != '\n'; });
    return kept;
}

TEST(Report, everyRowOfTheChecksIsPrinted) {
    for (const Sample sample : kPlain) {
        const Session& session = sessionOf(sample);
        // Lines are broken to fit their column, so the blanks between the pieces don't count.
        const std::string document = withoutBlanks(printed(sample, ReportScope::All).text());
        for (const char* name : {"CodeStatic", "CodeFatigue"}) {
            const ResultTable table = findTable(name)->fill(session.project, *session.results);
            std::size_t at = 0;
            for (const std::vector<TableCell>& row : table.rows) {
                if (row.size() < 4 || !row[3].number) continue;
                // formula, ratio and numbers, in whatever order the columns are drawn
                for (const std::size_t cell : {std::size_t{1}, std::size_t{2}, std::size_t{3}, std::size_t{4}})
                    EXPECT_NE(document.find(withoutBlanks(row[cell].text)), std::string::npos)
                        << int(sample) << name << ": " << row[cell].text;
                ++at;
            }
            EXPECT_GT(at, 5U);
        }
    }
}

TEST(Report, ratiosOverOneAreMarkedBesideTheirColour) {
    const RecordingPrinter printer = printed(Sample::Overloaded, ReportScope::Compressed);
    int red = 0, marks = 0;
    for (const auto& page : printer.pages)
        for (const auto& text : page->covered) {
            if (text.text == "!!") ++marks;
            if (text.colour == colours::red && text.text != "!!") {
                EXPECT_GT(std::stod(text.text), 1.0);
                ++red;
            }
        }
    EXPECT_GT(red, 3);
    EXPECT_EQ(marks, red);
    EXPECT_EQ(printed(Sample::OneCrane, ReportScope::Uls).text().find("!!"), std::string::npos);
}

TEST(Report, everyPageHasItsHeadAndNumber) {
    const RecordingPrinter printer = printed(Sample::ThirtySpans, ReportScope::All);
    ASSERT_GT(printer.pages.size(), 5U);
    int number = 0;
    for (const auto& page : printer.pages) {
        ++number;
        std::string text;
        for (const auto& covered : page->covered) text += covered.text + "\n";
        for (const std::string& wanted :
             {std::string("Borvik "), "Page: " + std::to_string(number) + "\n", std::string("Date: 2026-03-01"),
              std::string("Crane supporting Structures according to Eurocode 1993-6"), std::string("Time: 9:05"),
              std::string("Project: Hall Åmål"), std::string("File: /projects/hall åmål.brvk"),
              std::string("Identification: Girder A")})
            EXPECT_NE(text.find(wanted), std::string::npos) << "page " << number << ": " << wanted;
        EXPECT_GT(page->covered.size(), 12U) << "page " << number << " has nothing but its head";
    }
}

TEST(Report, tablesGoOnWithTheirHeadOnANewPage) {
    const RecordingPrinter printer = printed(Sample::ThirtySpans, ReportScope::All);
    int pagesOfRows = 0;
    for (const auto& page : printer.pages) {
        const auto rows = std::count_if(page->covered.begin(), page->covered.end(),
                                        [](const auto& text) { return text.text.find("IR =") != std::string::npos; });
        if (rows == 0) continue;
        ++pagesOfRows;
        EXPECT_TRUE(page->hasText("Interaction Ratio / Equation"));
    }
    EXPECT_GT(pagesOfRows, 5);
}

/// Texts of the report's own layout keep clear of each other; those within a diagram are placed by it.
TEST(Report, nothingOverlapsAndNothingLeavesThePage) {
    constexpr double kTolerance = 0.5;  // pixels
    for (const Extent paper : {kA4, kLetter})
        for (const Sample sample : kPlain)
            for (const ReportScope scope : kScopes) {
                const RecordingPrinter printer = printed(sample, scope, paper, true);
                for (const auto& page : printer.pages) {
                    const auto inDiagram = [&page](const RecordingPage::Covered& text) {
                        return std::any_of(page->boxes.begin(), page->boxes.end(), [&text](const auto& box) {
                            return text.top >= box.first.y - 1.0 && text.bottom <= box.second.y + 1.0;
                        });
                    };
                    std::vector<RecordingPage::Covered> texts;
                    for (const auto& text : page->covered) {
                        EXPECT_GE(text.left, -kTolerance) << text.text;
                        EXPECT_GE(text.top, -kTolerance) << text.text;
                        EXPECT_LE(text.right, printer.pixelsAcross() + kTolerance) << text.text;
                        EXPECT_LE(text.bottom, printer.pixelsDown() + kTolerance) << text.text;
                        if (!inDiagram(text)) texts.push_back(text);
                    }
                    for (std::size_t a = 0; a < texts.size(); ++a)
                        for (std::size_t b = a + 1; b < texts.size(); ++b) {
                            // lines of text may share the leading between them
                            const double leading = 0.2 * (texts[a].bottom - texts[a].top);
                            const bool apart = texts[a].right <= texts[b].left + kTolerance ||
                                               texts[b].right <= texts[a].left + kTolerance ||
                                               texts[a].bottom <= texts[b].top + leading ||
                                               texts[b].bottom <= texts[a].top + leading;
                            EXPECT_TRUE(apart) << int(sample) << '/' << int(scope) << ": \"" << texts[a].text
                                               << "\" and \"" << texts[b].text << '"';
                        }
                    for (std::size_t i = 0; i < page->boxes.size(); ++i) {
                        EXPECT_LE(page->boxes[i].second.y, printer.pixelsDown() + kTolerance);
                        if (i > 0) {
                            EXPECT_LE(page->boxes[i - 1].second.y, page->boxes[i].first.y + kTolerance);
                        }
                    }
                }
            }
}

TEST(Report, longTitlesAreBrokenAndKeptWhole) {
    Session session = sessionOf(Sample::OneCrane);
    std::string title;
    for (int word = 1; word <= 40; ++word) title += "word" + std::to_string(word) + " ";
    session.project.Proj = title;
    session.context.FileTitle = "/" + std::string(300, 'x') + ".brvk";
    RecordingPrinter printer(kA4.width, kA4.height);
    PrintReport(printer, session, ReportScope::Uls, {});
    const std::string text = withoutBlanks(printer.text());
    EXPECT_NE(text.find(withoutBlanks(title)), std::string::npos);
    EXPECT_NE(text.find(std::string(300, 'x') + ".brvk"), std::string::npos);
    for (const auto& page : printer.pages)
        for (const auto& covered : page->covered) EXPECT_LE(covered.right, printer.pixelsAcross()) << covered.text;

    session.project.Proj = std::string(32767, 'x');  // as much as a box takes: the rest of the page is still to be read
    RecordingPrinter again(kA4.width, kA4.height);
    PrintReport(again, session, ReportScope::Uls, {});
    EXPECT_EQ(again.pages.size(), printer.pages.size());
}

TEST(Report, inputChaptersTellTheProject) {
    struct Case {
        Sample sample;
        std::vector<std::string> texts;
    };
    const Case cases[] = {
        {Sample::OneCrane,
         {"Material: S355",
          "355 MPa",
          "210000.0 MPa",
          "1.00/1.00",
          "Shear area factor = 1.20",
          "Cranetype: Overhead Crane",
          "Craneclass: ",
          "1 - HEA 300",
          "Span: 1, 2, 3",
          "MyRd/VzRd (kNm/kN)",
          "Section Class M+/M-",
          "Deadload (qk) of profile included, non rigid end-post (one stiffener/support)",
          "Rail: Pl 50x30",
          "Rail deadload: ",
          "Rail mounted: ",
          "Positiv Moment",
          "Negativ Moment",
          "Load Level: Top of rail",
          "1 Rail to topflange",
          "Cx = 90",
          "3 Top flange/web",
          "Cz/Ct = 71/80",
          "Full Pen Weld ",
          "4 Bottom flange/web",
          "Fillet Weld - a4.0 mm",
          "5 Beam Splice",
          "Span: 1  x = 1001 mm",
          "6  Support Point",
          "e = 100, t = 15 mm"}},
        {Sample::TwoCranes,
         {"Craneclass Crane 1: ", "Craneclass Crane 2: ", "Acting Independently",
          "Crane 1: Vk = ", "Crane 2: Vk = 40.0/40.0 kN", "Wheel distances = 2500.0 mm"}},
        {Sample::Monorail,
         {"Cranetype: Monorail", "Load Level: On bottom flange", "1 Edge of Support", "Cx = 56",
          "2 Support to top flange", "e = 150, t = 12 mm", "3 Top flange/web at support", "Cz/Ct = 80/100",
          "4 Top flange/web", "Fillet Weld - a5.0 mm", "6 Bottom flange/web", "Cy/Ct = 80/100"}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(firstMissing(printed(c.sample, ReportScope::All).text(), c.texts), "") << int(c.sample);
    EXPECT_EQ(printed(Sample::Monorail, ReportScope::All).text().find("Rail: "), std::string::npos);
    const std::string thirty = printed(Sample::ThirtySpans, ReportScope::Uls).text();
    for (int number = 2; number <= 12; ++number)
        EXPECT_NE(thirty.find("\n" + std::to_string(number) + " - "), std::string::npos) << "section " << number;
}

/// Calculates; the numbers, and the report as far as the sketch, which holds the span lengths.
std::pair<std::string, std::string> resultsAndInput(Session& session) {
    MessageList messages;
    Progress progress;
    EXPECT_TRUE(Calculate(session, messages, progress));
    RecordingPrinter printer(kA4.width, kA4.height);
    PrintReport(printer, session, ReportScope::All, {});
    return {ResultsJson(session, {}, {}, ""), printer.text().substr(0, printer.text().find("ULS - My/Vz/Rz"))};
}

TEST(Report, inputThatChangesResultsStandsInItsChapters) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail}) {
        Session base = sessionOf(sample);
        base.project.DefaultCfactor = false;
        if (sample == Sample::OneCrane) base.project.V(7) = base.project.H(7) = 1.0;
        base.project.Fixerad = sample == Sample::Monorail;
        const auto [results, input] = resultsAndInput(base);
        for (std::size_t i = 0; i < inputNumbers(base.project).size(); ++i) {
            Session changed = base;
            const InputNumber number = inputNumbers(changed.project)[i];
            void* field = const_cast<void*>(number.field);
            const bool counted = number.name.ends_with(", span");
            const Single more = number.value + (counted ? 1.0 : 0.25 * number.value + 0.25);
            if (number.name.starts_with("Beam: length"))
                *static_cast<std::int32_t*>(field) += 500;
            else if (number.name.find(" of detail ") != std::string::npos)
                *static_cast<std::int16_t*>(field) = 63;
            else if (number.name.find(": t of") != std::string::npos)
                *static_cast<std::string*>(field) = "25";
            else
                *static_cast<Single*>(field) = number.range.holds(more) ? more : Single(0.5 * number.value);
            const auto [newResults, newInput] = resultsAndInput(changed);
            EXPECT_TRUE(newResults == results || newInput != input) << int(sample) << ": " << number.name;
        }
    }
}

/// Thirty numbers would run into the name of the section.
TEST(Report, manySpansOfOneSectionStandAsARange) {
    Session session = calculated(Sample::ThirtySpans);
    for (int span = 2; span <= 29; ++span) session.project.SpanSection(span) = session.project.SpanSection(1);
    RecordingPrinter printer(kA4.width, kA4.height);
    PrintReport(printer, session, ReportScope::Uls, {"2026-03-01", "9:05"});
    const std::string text = printer.text();
    EXPECT_NE(text.find("Span: 1-29"), std::string::npos);
    EXPECT_NE(text.find("Span: 30"), std::string::npos);
}

TEST(Report, longBeamsListTheirReactions) {
    const Session& session = sessionOf(Sample::ThirtySpans);
    const ResultTable table = TableReactions(session.project, *session.results);
    for (const ReportScope scope : kScopes) {
        const std::string text = printed(Sample::ThirtySpans, scope).text();
        std::vector<std::string> rows{"ULS - Reactions (kN)"};
        for (const std::vector<TableCell>& row : table.rows)
            for (const TableCell& cell : row) rows.push_back("\n" + cell.text);
        EXPECT_EQ(firstMissing(text, rows), "") << int(scope);
    }
    EXPECT_EQ(printed(Sample::OneCrane, ReportScope::All).text().find("ULS - Reactions (kN)"), std::string::npos);
}

TEST(Report, notesAreALastChapterAndChangeNoOther) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail}) {
        const std::string without = printed(sample, ReportScope::All).text();
        const std::string with = printed(sample, ReportScope::All, kA4, true).text();
        ASSERT_TRUE(with.starts_with(without));
        const std::string chapter = with.substr(without.size());
        EXPECT_EQ(without.find("Notes for the checking engineer"), std::string::npos);
        EXPECT_NE(chapter.find("Notes for the checking engineer:\n"), std::string::npos);
        for (const Note& note : ProjectNotes(sessionOf(sample)).notes)
            EXPECT_NE(chapter.find(std::string(note.rule->says).substr(0, 40)), std::string::npos) << note.rule->key;
    }
}

TEST(Report, pageRangeKeepsPagesAndNumbersOfTheWhole) {
    const RecordingPrinter whole = printed(Sample::ThirtySpans, ReportScope::All);
    RecordingPrinter some(kA4.width, kA4.height);
    PageRange range(some, 2, 4);
    PrintReport(range, sessionOf(Sample::ThirtySpans), ReportScope::All, {"2026-03-01", "9:05"});
    ASSERT_EQ(some.pages.size(), 3U);
    EXPECT_TRUE(range.hasPages());
    for (std::size_t page = 0; page < 3; ++page) EXPECT_EQ(some.pages[page]->log(), whole.pages[page + 1]->log());

    RecordingPrinter none(kA4.width, kA4.height);
    PageRange beyond(none, 500, 501);
    PrintReport(beyond, sessionOf(Sample::ThirtySpans), ReportScope::All, {});
    EXPECT_FALSE(beyond.hasPages());
    EXPECT_TRUE(none.pages.front()->covered.empty());
}

TEST(Report, onlyResultsOfThePresentInputCanBePrinted) {
    Session session = sessionOf(Sample::OneCrane);
    EXPECT_TRUE(canReport(session));
    session.inputChanged();
    EXPECT_FALSE(canReport(session));
}

TEST(Report, fileNameFollowsProjectAndScope) {
    Session session = sessionOf(Sample::OneCrane);
    EXPECT_EQ(reportFileName(session, ReportScope::UlsSls), "Hall ÅMÅL-ULS-SLS.pdf");
    session.context.FileName.clear();
    session.project.Proj = " a/b: c ";
    EXPECT_EQ(reportFileName(session, ReportScope::Compressed), "a-b- c-compressed.pdf");
    session.project.Proj = " ";
    EXPECT_EQ(reportFileName(session, ReportScope::Uls), "report-ULS.pdf");
}

}  // namespace
}  // namespace borvik
