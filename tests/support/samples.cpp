#include "support/samples.h"

#include <gtest/gtest.h>

#include <map>

#include "project/project_file.h"
#include "section/section.h"

namespace borvik::testing_support {
namespace {

void setAllDetails(Project& p) {
    p.Fat1 = p.Fat2 = p.Fat3 = p.Fat4 = p.Fat5 = p.Fat6 = true;
    p.Fat1C1 = 90;
    p.Fat2C1 = p.Fat4C1 = p.Fat5C1 = p.Fat6C1 = p.Fat3C2 = 80;
    p.Fat3C1 = 71;
    p.W1 = "FP";
    p.W2 = p.W3 = "FW";
    p.W2a = p.W3a = 4.0;
    p.Fat6d1 = 100.0;
    p.WS1t = "15";
}

void setSplices(Project& p, int count) {
    for (int splice = 1; splice <= count; ++splice) {
        p.ChkFat5Sp(splice) = p.ChkFatR5Sp(splice) = true;
        p.Fat5Span(splice) = p.FatR5Span(splice) = splice;
        p.Fat5d1(splice) = p.FatR5d1(splice) = 1000.0 + splice;
    }
}

void setTwoCranes(Project& p) {
    p.NofCranes = 2;
    p.TwoCraneMode = TwoCranes::Independent;
    p.MinAvst = 2000.0;
    p.V(5) = p.V(6) = 40.0;
    p.H(5) = p.H(6) = 4.0;
    p.Avst(4) = 2500.0;
}

void setMonorail(Project& p) {
    p.CraneType = CraneKind::Monorail;
    p.LoadLevel = LoadPoint::BottomFlange;
    p.Inn = 20.0;
    p.FatR1 = p.FatR2 = p.FatR3 = p.FatR4 = p.FatR5 = p.FatR6 = true;
    p.FatR1C1 = 56;
    p.FatR2C1 = p.FatR3C1 = p.FatR4C1 = p.FatR5C1 = p.FatR6C1 = 80;
    p.FatR3C2 = p.FatR6C2 = 100;
    p.RW1 = p.RW2 = p.RW4 = "FP";
    p.RW3 = "FW";
    p.RW3a = p.RW4a = 5.0;
    p.RWS1d = 150.0;
    p.RWS1t = "12";
}

/// Thirty spans with as many sections; lengths differ so that texts of every width stand beside each other.
void setThirtySpans(const ReferenceTables& tables, Project& p) {
    const SectionRecord blank = p.SpanSection(1);
    p.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    p.NofSpans = kMaxSpans;
    const int firstRow = findSection(tables, "HEB 300");
    for (int span = 1; span <= kMaxSpans; ++span) {
        p.Span(span) = 5000 + 40 * span;
        p.SpanSection(span) = blank;
        const SectionRecord& row = tables.SectionTable((firstRow + span) % tables.SectionTable.size());
        LoadRolled(tables, row.Fab == "R" && row.h > 290.0 ? row.TableName : "HEB 400", p.SpanSection(span));
    }
}

}  // namespace

Session calculated(Sample sample) {
    Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
    Project& p = session.project;
    p.Proj = "Hall Åmål";
    p.Ident = "Girder A";
    setAllDetails(p);
    switch (sample) {
        case Sample::OneCrane:
            setSplices(p, 1);
            break;
        case Sample::TwoCranes:
            setTwoCranes(p);
            setSplices(p, 2);
            break;
        case Sample::Monorail:
            setMonorail(p);
            setSplices(p, 1);
            break;
        case Sample::ThirtySpans:
            setThirtySpans(session.tables, p);
            setTwoCranes(p);
            setSplices(p, 4);
            break;
        case Sample::Overloaded:
            p.Span(1) = 6000;
            p.Span(2) = p.Span(3) = 0;
            p.SpanSection(2) = p.SpanSection(3) = SectionRecord{};
            p.V(1) = p.V(2) = 1400.0;
            p.H(1) = p.H(2) = 0.0;
            p.HasLoadsY = false;
            p.Fat5 = false;
            break;
        case Sample::Together:
            setTwoCranes(p);
            p.TwoCraneMode = TwoCranes::Together;
            p.MinDistConst = 1.0;
            p.SpanSection(2) = p.SectionList(2);
            p.SpanSection(2).tw = 6.0;
            p.SpanSection(2).DisplayName = "Iu 700x300x200x6x25x25";
            p.LoadLevel = LoadPoint::TopFlange;
            p.Fat6 = false;
            break;
    }
    session.FileName = session.FileTitle = "/projects/Hall ÅMÅL.brvk";
    MessageList messages;
    Progress progress;
    EXPECT_TRUE(Calculate(session, messages, progress))
        << (messages.texts.empty() ? session.Fault : messages.texts.front());
    return session;
}

const Session& sessionOf(Sample sample) {
    static std::map<Sample, Session> sessions;
    const auto found = sessions.find(sample);
    return found != sessions.end() ? found->second : sessions.emplace(sample, calculated(sample)).first->second;
}

std::string nameOf(Sample sample) {
    static const std::map<Sample, std::string> names{
        {Sample::OneCrane, "one-crane"},       {Sample::TwoCranes, "two-cranes"},  {Sample::Monorail, "monorail"},
        {Sample::ThirtySpans, "thirty-spans"}, {Sample::Overloaded, "overloaded"}, {Sample::Together, "together"}};
    return names.at(sample);
}

Session calculatedAndSaved(Sample sample, const std::string& file) {
    Session session = calculated(sample);
    SaveProject(file, session.project);
    return session;
}

}  // namespace borvik::testing_support
