#include "report/report.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <regex>

#include "base/number_text.h"
#include "notes/notes.h"
#include "platform/version.h"
#include "project/input_ranges.h"
#include "reactions/support_reactions.h"
#include "recording_printer.h"
#include "results/json.h"
#include "support/golden.h"
#include "support/samples.h"

namespace borvik {
namespace {

using namespace testing_support;
using ::testing::Contains;
using ::testing::HasSubstr;

constexpr Extent kA4{200.0, 287.0};  // printable, mm
constexpr Extent kLetter{206.0, 269.0};

RecordingPrinter printed(Sample sample, ReportScope scope, Extent paper = kA4, ReportExtras extras = {}) {
    RecordingPrinter printer(paper.width, paper.height);
    Session session = sessionOf(sample);
    if (extras.notes) makeNotes(session);
    PrintReport(printer, session, scope, {"2026-03-01", "9:05"}, extras);
    return printer;
}

/// A text without what differs where it is part of something longer: the number of pages, and settings that are the
/// initial ones.
std::string partOf(const std::string& text) {
    static const std::regex kVarying(R"((Page: \d+) / \d+|dashed no\n|fill none\n)");
    return std::regex_replace(text, kVarying, "$1");
}

constexpr Sample kPlain[] = {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail, Sample::ThirtySpans};
constexpr ReportScope kScopes[] = {ReportScope::Uls, ReportScope::UlsSls, ReportScope::All, ReportScope::Compressed};

/// The texts of a document as they are drawn, page by page, with what is bold and what is red.
std::string shown(const RecordingPrinter& printer) {
    std::string all;
    for (const auto& page : printer.pages) {
        all += "== page of " + std::to_string(page->boxes.size()) + " diagrams\n";
        for (const RecordingPage::Covered& text : page->covered)
            all += (text.bold ? "bold " : "") + std::string(text.colour == colours::red ? "red " : "") +
                   (text.text == kProgramAndVersion ? "program and version" : text.text) + "\n";
    }
    return all;
}

TEST(Report, isTheGoldenOne) {
    struct Case {
        Sample sample;
        std::vector<ReportScope> scopes;
    };
    const std::vector<ReportScope> four(std::begin(kScopes), std::end(kScopes));
    for (const auto& [sample, scopes] :
         {Case{Sample::OneCrane, {ReportScope::All}},
          Case{Sample::TwoCranes, {ReportScope::All, ReportScope::Compressed}},
          Case{Sample::Monorail, {ReportScope::All, ReportScope::Compressed}},
          Case{Sample::ThirtySpans, {ReportScope::All}}, Case{Sample::Together, {ReportScope::Compressed}},
          Case{Sample::Overloaded, four}})
        for (const ReportScope scope : scopes)
            EXPECT_EQ(goldenDifference("report-" + nameOf(sample) + "-" + std::to_string(int(scope)) + ".txt",
                                       shown(printed(sample, scope))),
                      "");
}

std::string withoutBlanks(const std::string& text) {
    std::string kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept), [](char c) { return c != ' ' && c != '\n'; });
    return kept;
}

/// Texts of the report's own layout keep clear of each other; those within a diagram are placed by it.
TEST(Report, nothingOverlapsAndNothingLeavesThePage) {
    constexpr double kTolerance = 0.5;  // pixels
    for (const Extent paper : {kA4, kLetter})
        for (const Sample sample :
             {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail, Sample::ThirtySpans, Sample::Overloaded})
            for (const ReportScope scope : kScopes) {
                const RecordingPrinter printer =
                    printed(sample, scope, paper, {true, true, true, true, true, true, true});
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

/// A page before the others, which keep their texts; its contents name the pages on which the chapters begin.
TEST(Report, theFirstPageTellsProjectVerdictAndContents) {
    ReportExtras extras{true, true, true, true, true, true, true};
    extras.office = {"Harbour Ltd", "N. N.", "", "B", ""};
    const RecordingPrinter whole = printed(Sample::Overloaded, ReportScope::All, kA4, extras);
    std::vector<std::string> first;
    for (const auto& text : whole.pages[0]->covered) first.push_back(text.text);
    for (const char* text : {"Harbour Ltd", "N. N.", "B", "2026-03-01"}) EXPECT_THAT(first, Contains(text));
    EXPECT_THAT(first, Contains(HasSubstr("not satisfied !!")));
    const auto contents = std::find(first.begin(), first.end(), "Contents");
    ASSERT_GE(first.end() - contents, 2 * 12);
    for (auto line = contents + 1; line != first.end(); line += 2) {
        const std::string title = line->substr(line->rfind("Results: ", 0) == 0 ? 9 : 0);
        if (title.find("iagrams") != std::string::npos) continue;  // a name of several
        const auto& page = *whole.pages.at(std::stoul(line[1]) - 1);
        EXPECT_TRUE(std::any_of(page.covered.begin(), page.covered.end(),
                                [&](const auto& text) { return text.bold && text.text.starts_with(title); }))
            << *line << " on " << line[1];
    }
    extras.firstPage = false;
    const RecordingPrinter others = printed(Sample::Overloaded, ReportScope::All, kA4, extras);
    EXPECT_EQ(whole.pages.size(), others.pages.size() + 1);
}

TEST(Report, longTitlesAreBrokenAndKeptWhole) {
    Session session = sessionOf(Sample::OneCrane);
    std::string title;
    for (int word = 1; word <= 40; ++word) title += "word" + std::to_string(word) + " ";
    session.project.Proj = title;
    session.FileTitle = "/" + std::string(300, 'x') + ".brvk";
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
    EXPECT_LE(again.pages.size(), printer.pages.size() + 1);
}

/// Calculates; the numbers, and the report as far as the sketch, which holds the span lengths.
std::pair<std::string, std::string> resultsAndInput(Session& session) {
    MessageList messages;
    Progress progress;
    EXPECT_TRUE(Calculate(session, messages, progress));
    RecordingPrinter printer(kA4.width, kA4.height);
    PrintReport(printer, session, ReportScope::All, {});
    const std::string json = resultsJson(session, {}, {}, "");
    return {json.substr(0, json.find("\"Input\"")), printer.text().substr(0, printer.text().find("ULS - My/Vz/Rz"))};
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

TEST(Report, notesAreALastChapterAndChangeNoOther) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail}) {
        const std::string without = partOf(printed(sample, ReportScope::All).text());
        const std::string with = partOf(printed(sample, ReportScope::All, kA4, {.notes = true}).text());
        ASSERT_TRUE(with.starts_with(without));
        const std::string chapter = with.substr(without.size());
        EXPECT_EQ(without.find("Notes for the checking engineer"), std::string::npos);
        EXPECT_NE(chapter.find("Notes for the checking engineer:\n"), std::string::npos);
        for (const Note& note : projectNotes(sessionOf(sample)).notes)
            EXPECT_NE(chapter.find(std::string(note.rule->says).substr(0, 40)), std::string::npos) << note.rule->key;
    }
}

TEST(Report, governingPositionsAreAChapterOfTheirOwn) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::ThirtySpans}) {
        const std::string without = partOf(printed(sample, ReportScope::All).text());
        const std::string with = partOf(printed(sample, ReportScope::All, kA4, {.positions = true}).text());
        ASSERT_TRUE(with.starts_with(without));
        const std::string chapter = with.substr(without.size());
        const CheckResults& checks = sessionOf(sample).results->Checks;
        for (const char* key : {"Bend", "Shear", "Ltb", "DefZ"})
            EXPECT_NE(withoutBlanks(chapter).find(withoutBlanks(checks[key].governing(2))), std::string::npos) << key;
        EXPECT_NE(chapter.find("Crane 1: span"), std::string::npos);
    }
}

TEST(Report, reactionsForSupportsHoldWhatActsTogether) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::ThirtySpans}) {
        const std::string without = partOf(printed(sample, ReportScope::Uls).text());
        const std::string with = partOf(printed(sample, ReportScope::Uls, kA4, {.reactions = true}).text());
        ASSERT_TRUE(with.starts_with(without));
        const std::string chapter = withoutBlanks(with.substr(without.size()));
        const Session& session = sessionOf(sample);
        const ReactionSet design = supportReactions(session.project, *session.results).sets.front();
        for (const ReactionCase& each : design.cases) {
            const SupportForce& far = each.total.back();
            const std::string last = std::to_string(each.total.size()) + ":Rz=" + formatNumber(far.Rz, "0.0") +
                                     "Ry=" + formatNumber(far.Ry, "0.0") + "kN";
            ASSERT_NE(chapter.find(last), std::string::npos) << last;
        }
    }
}

TEST(Report, pageRangeKeepsPagesAndNumbersOfTheWhole) {
    const RecordingPrinter whole = printed(Sample::ThirtySpans, ReportScope::All);
    RecordingPrinter some(kA4.width, kA4.height);
    PageRange range(some, 2, 4);
    PrintReport(range, sessionOf(Sample::ThirtySpans), ReportScope::All, {"2026-03-01", "9:05"});
    ASSERT_EQ(some.pages.size(), 3U);
    EXPECT_NE(some.text().find("Page: 4 / " + std::to_string(whole.pages.size())), std::string::npos);
    EXPECT_TRUE(range.hasPages());
    for (std::size_t page = 0; page < 3; ++page)
        EXPECT_EQ(partOf(some.pages[page]->log()), partOf(whole.pages[page + 1]->log()));

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
    session.FileName.clear();
    session.project.Proj = " a/b: c ";
    EXPECT_EQ(reportFileName(session, ReportScope::Compressed), "a-b- c-compressed.pdf");
    session.project.Proj = " ";
    EXPECT_EQ(reportFileName(session, ReportScope::Uls), "report-ULS.pdf");
}

}  // namespace
}  // namespace borvik
