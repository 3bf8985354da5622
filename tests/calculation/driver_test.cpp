// The driver: what it refuses and with which words, what it changes, and in which order it works.

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "solved_projects.h"

namespace borvik {
namespace {

using testing_support::TestSession;
using Texts = std::vector<std::string>;

const std::string kFirst = " First Beam must have a length ";
const std::string kInnerLength = " An inner beam can't have length = 0 ";
const std::string kInnerProfile = " An inner beam must have a profile  ";
const std::string kNoProfile = " Missing profile  ";
const std::string kNoLength = " Missing beam length  ";

// --- Input check ----------------------------------------------------------------------------------------------------

/// Spans as letters: "x" length and profile, "l" length alone, "p" profile alone, "." neither.
Project projectOf(const std::string& spans) {
    Project project;
    project.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    for (int i = 1; i <= static_cast<int>(spans.size()); ++i) {
        const char kind = spans[static_cast<std::size_t>(i - 1)];
        if (kind == 'x' || kind == 'l') project.Span(i) = 5000;
        if (kind == 'x' || kind == 'p') project.SpanSection(i).DisplayName = "HEA 300";
    }
    return project;
}

TEST(CheckInput, saysWhatIsMissing) {
    const struct {
        const char* spans;
        int counted;
        Texts messages;
    } cases[] = {
        {"x", 1, {}},
        {"xxx", 3, {}},
        {"", 0, {kFirst}},
        {".", 0, {kFirst}},
        {"p", 0, {kFirst, kNoLength}},
        {".x", 0, {kFirst}},  // looking for gaps starts at span 2
        {".xx", 0, {kFirst}},
        {"..x", 0, {kFirst, kInnerLength}},
        {"x.x", 1, {kInnerLength}},
        {"xpx", 1, {kInnerLength}},
        {"xx..x", 2, {kInnerLength}},
        {"xlx", 3, {kInnerProfile}},
        {"xxlp", 3, {kInnerProfile}},
        {"x.l", 1, {kInnerLength}},
        {"lx", 2, {kNoProfile}},
        {"xxl", 3, {kNoProfile}},
        {"xxp", 2, {kNoLength}},
        {"xpp", 1, {kNoLength}},
        {"xlpx", 2, {kInnerLength}},  // the gap comes before the missing profile
        {"llp", 2, {kInnerProfile}},
        {"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", 30, {}},
        {"xxxxxxxxxxxxxxxxxxxxxxxxxxxx.x", 28, {kInnerLength}},
        {"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxl", 30, {kNoProfile}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.spans);
        Project project = projectOf(c.spans);
        MessageList messages;
        EXPECT_EQ(CheckInput(project, messages), c.messages.empty());
        EXPECT_EQ(messages.texts, c.messages);
        EXPECT_EQ(project.NofSpans, c.counted);
        EXPECT_TRUE(project.BeamChecked);
    }
    Project shortList = projectOf("xx");
    shortList.SpanSection = Array<SectionRecord>(1, 1);
    shortList.SpanSection(1).DisplayName = "HEA 300";
    MessageList messages;
    EXPECT_FALSE(CheckInput(shortList, messages)) << "a file with fewer sections than spans";
    EXPECT_EQ(messages.texts, Texts{kNoProfile});
}

struct SpliceFields {
    bool Project::*detail;
    FixedArray<bool, 1, 10> Project::*inUse;
    FixedArray<Single, 1, 10> Project::*span;
    FixedArray<Single, 1, 10> Project::*distance;
};
const SpliceFields kSplices[] = {
    {&Project::Fat5, &Project::ChkFat5Sp, &Project::Fat5Span, &Project::Fat5d1},
    {&Project::FatR5, &Project::ChkFatR5Sp, &Project::FatR5Span, &Project::FatR5d1},
};

/// Two spans of 5 m and one of 8 m.
TEST(CheckInput, dropsSplicesThatNoLongerFit) {
    const struct {
        double span, distance;
        bool stays;
    } cases[] = {
        {1, 0, true},       {1, 5000, true},   {1, 5000.5, false}, {3, 8000, true},
        {3, 8001, false},   {4, 100, false},   {3.4, 100, false},  // beyond the beam, though 3.4 rounds to 3
        {2.6, 7000, true},                                         // rounds to span 3
        {2.5, 7000, false}, {2.5, 5000, true},                     // rounds to the even span 2
        {1.5, 5001, false}, {0.5, 0, false},   {0, 0, false},      // no span at all
    };
    for (const SpliceFields& fields : kSplices)
        for (const auto& c : cases) {
            SCOPED_TRACE("splice at " + std::to_string(c.distance) + " of span " + std::to_string(c.span));
            Project project = projectOf("xxx");
            project.Span(3) = 8000;
            project.*fields.detail = true;
            (project.*fields.inUse)(2) = true;
            (project.*fields.span)(2) = c.span;
            (project.*fields.distance)(2) = c.distance;
            // One of the splices that the form doesn't offer is in use and out of place: it is never looked at.
            (project.*fields.inUse)(5) = true;
            (project.*fields.span)(5) = 9;
            MessageList messages;
            EXPECT_TRUE(CheckInput(project, messages));
            EXPECT_TRUE(messages.texts.empty());
            EXPECT_EQ((project.*fields.inUse)(2), c.stays);
            EXPECT_EQ(project.*fields.detail, c.stays) << "the detail goes with its last splice";
            EXPECT_TRUE((project.*fields.inUse)(5));
            EXPECT_EQ((project.*fields.span)(2), Single(c.span)) << "its place stays";
        }
}

TEST(CheckInput, leavesSplicesAloneWhereItStops) {
    for (const auto& [spans, dropped] : {std::pair{"x.x", false}, std::pair{"", true}}) {
        Project project = projectOf(spans);
        project.Fat5 = project.ChkFat5Sp(1) = true;
        project.Fat5Span(1) = 7;
        MessageList messages;
        EXPECT_FALSE(CheckInput(project, messages));
        EXPECT_EQ(project.Fat5, !dropped)
            << "a first span without length alone lets the check go on: \"" << spans << "\"";
    }
    Project notAsked = projectOf("x");
    notAsked.ChkFat5Sp(1) = true;
    notAsked.Fat5Span(1) = 7;
    MessageList messages;
    EXPECT_TRUE(CheckInput(notAsked, messages));
    EXPECT_TRUE(notAsked.ChkFat5Sp(1)) << "the detail itself isn't wanted";
}

// --- Refusals -------------------------------------------------------------------------------------------------------

TEST(Calculate, refusesCranesThatAreNotShorterThanTheBeam) {
    const struct {
        double gap, position;
        bool outside;
        const char* text;
    } cases[] = {
        {15000, 0, false, "15000 > 15000 ; Traversen ryms ej på traversbalken!!"},
        {15000, 0, true, "15000 > 15000 ; Traversen ryms ej på traversbalken!!"},
        {14000.5, 1000, false, "15000.5 > 15000 ; Traversen ryms ej på traversbalken!!"},
        {14999, 0, false, nullptr},
        {1900, 13099, false, nullptr},
    };
    for (const auto& c : cases) {
        TestSession session;
        session.project.Avst(1) = c.gap;
        session.project.Position = c.position;
        session.project.StartStopOutside = c.outside ? 1 : 0;
        session.project.BeamLength = 7;
        EXPECT_EQ(session.calculate(), c.text == nullptr);
        EXPECT_EQ(session.messages.texts, c.text == nullptr ? Texts{} : Texts{c.text});
        EXPECT_TRUE(session.InputOK);
        EXPECT_EQ(session.Calculated, c.text == nullptr);
        EXPECT_EQ(session.project.BeamLength, 15000);
        EXPECT_EQ(session.project.CraneLength1, Single(c.gap));
        EXPECT_EQ(session.project.CranesLength, Single(c.gap));
    }
}

TEST(Calculate, refusesMorePositionsThanCanBeWalked) {
    TestSession session;
    for (int i = 1; i <= 30; ++i) {
        session.project.Span(i) = 300000;
        session.project.SpanSection(i) = session.project.SpanSection(1);
    }
    session.project.NofCranes = 2;
    EXPECT_FALSE(session.calculate());
    ASSERT_EQ(session.messages.texts.size(), 1U);
}

TEST(Calculate, changesNothingElseWhenItRefuses) {
    TestSession session;
    session.project.Span(2) = 0;
    session.Calculated = true;
    const Project entered = session.project;
    EXPECT_FALSE(session.calculate());
    EXPECT_EQ(session.messages.texts, Texts{kInnerLength});
    EXPECT_FALSE(session.InputOK);
    EXPECT_FALSE(session.Calculated);
    EXPECT_TRUE(session.Fault.empty());
    Project expected = entered;
    expected.NofSpans = 1;
    expected.BeamChecked = true;
    EXPECT_TRUE(session.project == expected);
}

// --- Faults ---------------------------------------------------------------------------------------------------------

/// Fields that the calculation writes: a fault may leave them moved on.
void takeComputedFields(const Project& from, Project& to) {
    for (auto field : {&Project::BeamLength, &Project::CraneLength1, &Project::CraneLength2, &Project::CranesLength,
                       &Project::C1EndPos, &Project::C2EndPos, &Project::C3EndPos, &Project::C1MidPos,
                       &Project::C2MidPos, &Project::C3MidPos, &Project::C1EndNeg, &Project::C2EndNeg,
                       &Project::C3EndNeg, &Project::C1MidNeg, &Project::C2MidNeg, &Project::C3MidNeg})
        to.*field = from.*field;
    to.BeamChecked = from.BeamChecked;
    to.FatigueSpare = from.FatigueSpare;
}

TEST(Calculate, leavesEverythingEnteredAsItWasAfterAFault) {
    const struct {
        const char* what;
        std::function<void(Project&)> spoil;
        const char* place;  ///< a word that the fault must hold
    } cases[] = {
        {"a designation that no table has", [](Project& p) { p.SpanSection(2).TableName = "HEA 301"; }, "span 2"},
        {"a welded section without dimensions",
         [](Project& p) {
             p.SpanSection(3) = SectionRecord();
             p.SpanSection(3).Id = "Is";
             p.SpanSection(3).Fab = "W";
             p.SpanSection(3).DisplayName = "nothing";
         },
         "span 3"},
        {"no partial factor", [](Project& p) { p.GammaM1 = 0; }, ""},
        {"no partial factor of fatigue", [](Project& p) { p.GammaMf = 0; }, ""},
        {"no deflection limit", [](Project& p) { p.DefZ = 0; }, ""},
        {"a crane class that doesn't exist", [](Project& p) { p.CraneClass1 = 12; }, ""},
        {"a wheel load beyond all numbers", [](Project& p) { p.V(1) = 3e38; }, ""},
        {"an infinite wheel load", [](Project& p) { p.V(1) = std::numeric_limits<double>::infinity(); }, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TestSession session;
        ASSERT_TRUE(session.calculate());
        const std::string before = session.json();
        const Project good = session.project;
        c.spoil(session.project);
        Project entered = session.project;
        session.inputChanged();
        EXPECT_FALSE(session.calculate());
        ASSERT_EQ(session.messages.texts.size(), 1U);
        EXPECT_EQ(session.messages.texts[0], session.Fault);
        EXPECT_EQ(session.Fault.rfind("Run-time error. ", 0), 0U) << session.Fault;
        EXPECT_NE(session.Fault.find(c.place), std::string::npos) << session.Fault;
        EXPECT_FALSE(session.Calculated);
        takeComputedFields(session.project, entered);
        EXPECT_TRUE(session.project == entered);
        EXPECT_TRUE(session.results.has_value()) << "the last results stay in memory, out of reach";

        session.project = good;
        EXPECT_TRUE(session.calculate()) << "the program lives on";
        EXPECT_EQ(session.json(), before);
    }
}

// --- The run --------------------------------------------------------------------------------------------------------

/// The walks in their order, and the text that the progress window ends with.
struct Recorder : Progress {
    void walkStarts(Walk walk) override {
        walks.push_back(walk);
        text.walkStarts(walk);
    }
    void position(Walk walk, double percent) override {
        EXPECT_EQ(walk, walks.back());
        EXPECT_GE(percent, 0);
        EXPECT_LE(percent, 100);
        text.position(walk, percent);
    }
    void walkEnds(Walk walk) override { text.walkEnds(walk); }
    void runEnds(double seconds) override {
        EXPECT_LT(seconds, 3600);
        ++ends;
        text.runEnds(0);
    }
    std::vector<Walk> walks;
    int ends = 0;
    ProgressText text;
};

TEST(Calculate, walksInOrderAndTellsItsProgress) {
    const std::string fls = "\nCalculating FLS ...100%\nCalculating FLS finnished";
    const std::string first = "Calculating ULS ...100%\nCalculating SLS ...100%\nCalculating SLS finnished" + fls;
    const struct {
        const char* what;
        int cranes, mode, craneType;
        bool constantDistance;
        std::size_t fatigueWalks;
    } cases[] = {
        {"one crane", 1, 1, 1, false, 1},
        {"a hoist", 1, 1, 2, false, 1},
        {"two independent cranes: each alone", 2, 1, 1, false, 2},
        {"two cranes together: each alone, then both", 2, 2, 1, false, 3},
        {"two cranes at a constant distance: as one", 2, 2, 1, true, 1},
        {"two cranes of an old file that calls them hoists", 2, 1, 2, false, 2},
    };
    for (const auto& c : cases)
        for (const WalkMethod method : {WalkMethod::Plain, WalkMethod::Fast}) {
            SCOPED_TRACE(c.what);
            TestSession session;
            session.project.NofCranes = static_cast<std::int16_t>(c.cranes);
            session.project.TwoCraneMode = TwoCranes(c.mode);
            session.project.CraneType = CraneKind(c.craneType);
            session.project.MinDistConst = c.constantDistance ? 1 : 0;
            if (c.cranes == 2) session.project.V(5) = 25;
            session.project.Span = FixedArray<std::int32_t, 1, 30>::of(4000, 5000, 4100);
            Recorder recorder;
            MessageList messages;
            ASSERT_TRUE(Calculate(session, messages, recorder, method));
            ASSERT_EQ(recorder.walks.size(), 2 + c.fatigueWalks);
            EXPECT_EQ(recorder.walks[0], Walk::Uls);
            EXPECT_EQ(recorder.walks[1], Walk::Sls);
            for (std::size_t i = 2; i < recorder.walks.size(); ++i) EXPECT_EQ(recorder.walks[i], Walk::Fls);
            EXPECT_EQ(recorder.ends, c.cranes == 2 ? 1 : 0);
            std::string expected = first;
            for (std::size_t i = 1; i < c.fatigueWalks; ++i) expected += fls;
            if (c.cranes == 2) expected += "\nCalculation FLS finnished  - 00:00:00\r";
            EXPECT_EQ(recorder.text.text(), expected);
        }
}

TEST(ProgressText, showsEachWalkWhileItRuns) {
    ProgressText text;
    text.walkStarts(Walk::Uls);
    text.position(Walk::Uls, 12.4);
    EXPECT_EQ(text.text(), "Calculating ULS ...12%");
    text.position(Walk::Uls, 100);
    text.walkEnds(Walk::Uls);
    EXPECT_EQ(text.text(), "Calculating ULS ...100%\nCalculating ULS finnished");
    text.walkStarts(Walk::Sls);
    text.position(Walk::Sls, 40);
    EXPECT_EQ(text.text(), "Calculating ULS ...40%\nCalculating SLS ...40%") << "the text of ULS comes back";
    text.walkEnds(Walk::Sls);
    text.walkStarts(Walk::Fls);
    text.position(Walk::Fls, 5);
    text.position(Walk::Fls, 6);
    EXPECT_EQ(text.text(),
              "Calculating ULS ...40%\nCalculating SLS ...40%\nCalculating SLS finnished\nCalculating FLS ...6%");
    text.runEnds(3725);
    EXPECT_EQ(text.text().substr(text.text().rfind('\n')), "\nCalculation FLS finnished  - 01:02:05\r");
}

TEST(Calculate, leavesTheSectionsComputed) {
    TestSession session;
    for (int i = 1; i <= 3; ++i) session.project.SpanSection(i).VzRd = session.project.SpanSection(i).MyRdPos = 0;
    session.project.SpanSection(3) = session.project.SectionList(1);
    ASSERT_TRUE(session.calculate());
    for (int i = 1; i <= 3; ++i) EXPECT_GT(session.project.SpanSection(i).MyRdPos, 0) << i;
    EXPECT_TRUE(session.CurrentSection == session.project.SpanSection(3));
}

/// The far end gets the sign of a support force: all weight is carried upward.
TEST(Calculate, turnsTheReactionOfTheLastSupportRound) {
    TestSession session;
    session.project.SelfWeight = false;
    session.project.H = {};
    ASSERT_TRUE(session.calculate());
    const UlsResults& uls = session.results->Uls;
    // Both wheels on the last span, the right one over the support: 1.1 x 1.35 x (40 + 30 x some share) kN.
    EXPECT_GT(uls.RzMax(4), 1.1 * 1.35 * 40e3);
    EXPECT_LT(uls.RzMax(4), 1.1 * 1.35 * 70e3);
    EXPECT_LT(uls.RzMin(4), 0) << "some uplift under loads in the span before";
    EXPECT_GT(uls.RzMin(4), -1.1 * 1.35 * 10e3);
    EXPECT_EQ(uls.RyMax(4), 0);
}

}  // namespace
}  // namespace borvik
