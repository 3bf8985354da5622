#include "diagrams/diagrams.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "diagrams/diagram_kind.h"
#include "diagrams/diagram_reading.h"
#include "diagrams/sketch_geometry.h"
#include "results/tables.h"
#include "support/golden.h"
#include "support/recording_surface.h"
#include "support/samples.h"

namespace borvik {
namespace {

using namespace testing_support;
using testing::Contains;
using testing::IsEmpty;

DiagramData dataOf(const Session& session) {
    return {session.project, &*session.results};
}

std::vector<std::string> textsOf(const RecordingSurface& surface) {
    std::vector<std::string> texts;
    for (const RecordingSurface::Text& text : surface.texts) texts.push_back(text.text);
    return texts;
}

/// A picture as a window of that size shows it.
RecordingSurface drawn(const std::vector<Diagram>& diagrams, const DiagramData& data, double width = 900,
                       double height = 360) {
    RecordingSurface surface(width, height);
    DrawPicture(surface, diagrams, data);
    return surface;
}

/// Texts that cover one another or leave the frame, as a list to read in a failure.
std::vector<std::string> collisions(const RecordingSurface& surface) {
    constexpr double kTouch = 1e-6;
    std::vector<std::string> found;
    for (std::size_t i = 0; i < surface.texts.size(); ++i) {
        const auto& a = surface.texts[i];
        if (a.left < surface.left - kTouch || a.right > surface.right + kTouch || a.top < surface.top - kTouch ||
            a.bottom > surface.bottom + kTouch)
            found.push_back(a.text + " leaves the frame");
        for (std::size_t j = i + 1; j < surface.texts.size(); ++j) {
            const auto& b = surface.texts[j];
            if (a.left < b.right - kTouch && b.left < a.right - kTouch && a.top < b.bottom - kTouch &&
                b.top < a.bottom - kTouch)
                found.push_back(a.text + " | " + b.text);
        }
    }
    return found;
}

TEST(Diagrams, areTheGoldenOnes) {
    for (const Sample sample : {Sample::TwoCranes, Sample::Monorail}) {
        const DiagramData data = dataOf(sessionOf(sample));
        std::string text;
        for (const PictureKind& kind : pictureKinds())
            if (const auto diagrams = pictureDiagrams(kind.name, data.project); !diagrams.empty())
                text += std::string("== ") + kind.name + "\n" + drawn(diagrams, data).log();
        EXPECT_EQ(goldenDifference("pictures-" + nameOf(sample) + ".txt", text), "");
    }
    std::string paper, sketches;
    for (const DiagramKind& kind : diagramKinds()) {
        RecordingSurface surface(700, 1000);
        surface.scale(-5, 0, 1015, 2000);
        DrawDiagram(surface, kind.id, dataOf(sessionOf(Sample::Overloaded)), 0, 0, DiagramMode::Paper);
        paper += std::string("== ") + kind.name + "\n" + surface.log();
    }
    for (const Sample sample : kSamples)
        for (const bool fixed : {false, true}) {
            Project project = sessionOf(sample).project;
            project.Fixerad = fixed;
            sketches += "== " + nameOf(sample) + "\n" + drawn({Diagram::Sketch}, {project, nullptr}).log();
        }
    EXPECT_EQ(goldenDifference("diagrams-on-paper.txt", paper), "");
    EXPECT_EQ(goldenDifference("sketches.txt", sketches), "");
}

TEST(Curves, takeFortyUnitsForTheLargestValueOnTheRightSide) {
    const Session& session = sessionOf(Sample::OneCrane);
    struct Case {
        Diagram diagram;
        std::size_t polygon;  // of span 1: behind the paper, three spans a curve
        ResultTable table;
        std::size_t column, other;  // the curve and the one that shares its scale
        double below;               // the side of positive values, 0: always below
    };
    const ResultTable forces = TableMyVz(session.project, *session.results);
    const ResultTable deflections = TableDeflection(session.project, *session.results);
    const Case cases[] = {
        {Diagram::UlsMyVz, 1, forces, 1, 2, 1},  // sagging moments hang below the line
        {Diagram::UlsMyVz, 4, forces, 2, 1, 1},    {Diagram::UlsMyVz, 7, forces, 3, 4, -1},
        {Diagram::UlsMyVz, 10, forces, 4, 3, -1},  {Diagram::SlsUz, 1, deflections, 1, 1, 0},
        {Diagram::SlsUy, 1, deflections, 2, 2, 0},
    };
    for (const Case& c : cases) {
        const RecordingSurface surface = drawn({c.diagram}, dataOf(session));
        const std::vector<Place>& curve = surface.polygons.at(c.polygon);
        ASSERT_EQ(curve.size(), 23U);  // 21 points and both ends of the base
        double largest = 0;
        for (const auto& row : c.table.rows)
            largest = std::max({largest, std::abs(*row[c.column].number), std::abs(*row[c.other].number)});
        for (std::size_t i = 0; i < 21; ++i) {
            const double value = *c.table.rows[i][c.column].number;
            const double below = c.below == 0 ? std::abs(value) : c.below * value;
            EXPECT_NEAR(curve[i + 1].y - curve[0].y, 40.0 * below / largest, 1e-4) << diagramName(c.diagram) << i;
        }
        EXPECT_NEAR(curve[1].x, 50.0, 1e-9);
        EXPECT_NEAR(curve[21].x, 50.0 + 900.0 * 4000.0 / 15000.0, 1e-9);
    }
}

TEST(Curves, areFlatWhereNothingIsLoaded) {
    const Session& session = sessionOf(Sample::OneCrane);
    Results results = *session.results;
    results.Sls.UzMaxPoint = Cube<Single>(3, 21, 3);
    results.Sls.UzMaxSpan = Table<Single>(3, 3);
    const RecordingSurface surface = drawn({Diagram::SlsUz}, {session.project, &results});
    for (const Place place : surface.polygons.at(1)) EXPECT_EQ(place.y, surface.polygons[1][0].y);
    EXPECT_THAT(textsOf(surface), Contains("0.0"));
}

TEST(Paper, keepsToItsFrame) {
    for (const DiagramKind& kind : diagramKinds()) {
        RecordingSurface surface(700, 1000);
        surface.scale(-5, 0, 1015, kind.id == Diagram::Sketch || kind.id == Diagram::UlsMyVz ? 1400 : 2000);
        DrawDiagram(surface, kind.id, dataOf(sessionOf(Sample::TwoCranes)), 3, 400, DiagramMode::Paper);
        const auto [corner, opposite] = surface.rectangles.at(0);
        surface.left = corner.x;
        surface.right = opposite.x;
        surface.top = corner.y;
        surface.bottom = opposite.y;
        EXPECT_THAT(collisions(surface), IsEmpty()) << kind.name;
    }
}

struct SizeCase {
    int spans;
    double width, height;
};

class LabelRoom : public testing::TestWithParam<SizeCase> {};

TEST_P(LabelRoom, isFoundWithoutOverlapInEveryPicture) {
    Session session = calculated(GetParam().spans == kMaxSpans ? Sample::ThirtySpans : Sample::TwoCranes);
    Project& project = session.project;
    project.Fat5 = false;
    project.MinAvst = project.Avst(4) = 1000.0;  // short enough for a single span
    const SectionRecord section = project.SpanSection(1);
    for (int span = 1; span <= kMaxSpans; ++span) {
        project.Span(span) = span <= GetParam().spans ? 4000 + 700 * (span % 4) : 0;
        project.SpanSection(span) = span <= GetParam().spans ? section : SectionRecord{};
    }
    MessageList messages;
    Progress progress;
    ASSERT_TRUE(Calculate(session, messages, progress)) << testing::PrintToString(messages.texts);
    for (const std::string& name : pictureNames()) {
        const RecordingSurface surface =
            drawn(pictureDiagrams(name, project), dataOf(session), GetParam().width, GetParam().height);
        EXPECT_THAT(collisions(surface), IsEmpty()) << name;
        const bool roomForAll = GetParam().spans <= 6 && GetParam().width >= 800;
        EXPECT_TRUE(!roomForAll || !surface.hasText("+ more values")) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Beams, LabelRoom,
                         testing::Values(SizeCase{1, 900, 360}, SizeCase{2, 900, 360}, SizeCase{3, 900, 360},
                                         SizeCase{4, 900, 360}, SizeCase{5, 900, 360}, SizeCase{6, 900, 360},
                                         SizeCase{3, 500, 240}, SizeCase{6, 3000, 1200}, SizeCase{30, 900, 360}),
                         [](const auto& each) {
                             return std::to_string(each.param.spans) + "SpansIn" +
                                    std::to_string(static_cast<int>(each.param.width));
                         });

TEST(Pictures, areFoundByNameWhereTheyHaveSomethingToShow) {
    using testing::ElementsAre;
    const Project& two = sessionOf(Sample::TwoCranes).project;
    EXPECT_THAT(pictureDiagrams("cr2sp2", two), ElementsAre(Diagram::Cr2Bottom, Diagram::Cr2BottomRange));
    EXPECT_THAT(pictureDiagrams("Cr2Sp2", sessionOf(Sample::OneCrane).project), IsEmpty());
    EXPECT_THAT(pictureDiagrams("unknown", two), IsEmpty());
    const Project& vertical = sessionOf(Sample::Overloaded).project;
    EXPECT_THAT(pictureDiagrams("Uz", vertical), ElementsAre(Diagram::SlsUz));
    EXPECT_THAT(pictureDiagrams("MzVy", vertical), IsEmpty());
}

TEST(Reading, tellsSpanPlaceAndValuesBetweenThePoints) {
    const Session& session = sessionOf(Sample::TwoCranes);  // spans of 4, 5 and 6 m
    const DiagramData data = dataOf(session);
    const std::vector<Diagram> forces{Diagram::UlsMyVz};

    // 5125 mm from the start: 1125 mm in span 2, half way between its points 5 and 6.
    const auto reading = ReadPicture(forces, data, {50.0 + 900.0 * 5125.0 / 15000.0, 10.0});
    ASSERT_TRUE(reading);
    ASSERT_EQ(reading->points.size(), 1U);
    EXPECT_EQ(reading->points[0].span, 2);
    EXPECT_NEAR(reading->points[0].position, 1125.0, 1e-6);
    const auto rows = TableMyVz(session.project, *session.results).rows;
    const auto between = [&rows](std::size_t column) {
        return formatNumber(0.5 * (*rows[25][column].number + *rows[26][column].number), "0.0");
    };
    EXPECT_EQ(reading->text(), "Span 2, x = 1125 mm: My max " + between(1) + " kNm, My min " + between(2) +
                                   " kNm, Vz max " + between(3) + " kN, Vz min " + between(4) + " kN");

    EXPECT_FALSE(ReadPicture(forces, data, {49.0, 10.0}));
    EXPECT_FALSE(ReadPicture(forces, data, {951.0, 10.0}));
    EXPECT_EQ(ReadPicture(forces, data, {50.0, 0.0})->points[0].span, 1);
    EXPECT_NEAR(ReadPicture(forces, data, {950.0, 0.0})->points[0].position, 6000.0, 1e-6);
    EXPECT_FALSE(ReadPicture(forces, {session.project, nullptr}, {500.0, 10.0}));
    EXPECT_FALSE(ReadPicture(std::vector<Diagram>{Diagram::Sketch}, data, {500.0, 10.0}));

    const std::vector<Diagram> two = pictureDiagrams("Uz", session.project);
    EXPECT_EQ(ReadPicture(two, data, {500.0, 5.0})->diagram, Diagram::SlsUz);
    EXPECT_EQ(ReadPicture(two, data, {500.0, pictureHeight(two) - 5.0})->diagram, Diagram::SlsUy);
}

TEST(Sketch, followsTheSpansAsTheyAreEntered) {
    Project project = sessionOf(Sample::Overloaded).project;
    project.Span(2) = 7000;                     // entered since the last calculation, which counted one
    for (const int counted : {1, -1, 0, 31}) {  // or a damaged file
        project.NofSpans = static_cast<std::int16_t>(counted);
        EXPECT_THAT(textsOf(drawn({Diagram::Sketch}, {project, nullptr})), Contains("7000")) << counted;
    }
    EXPECT_EQ(drawn({Diagram::Sketch}, {Project{}, nullptr}).texts.front().text, "Beam Data (mm/kN)");
}

struct ScaleCase {
    std::string name;
    int length, cranes;
    double gap, between, position;  // position < 0: the crane moves
    double factor;
    std::string source;
};
void PrintTo(const ScaleCase& c, std::ostream* out) {
    *out << c.name;
}

class SketchScale : public testing::TestWithParam<ScaleCase> {};

TEST_P(SketchScale, stretchesShortTrains) {
    const ScaleCase& c = GetParam();
    Project project = sessionOf(Sample::Overloaded).project;
    project.Span(1) = c.length;
    project.NofCranes = static_cast<std::int16_t>(c.cranes);
    project.Avst(1) = c.gap;
    project.Avst(4) = c.cranes == 2 ? c.gap : 0.0;
    project.V(5) = project.V(6) = 10;
    project.MinAvst = c.between;
    project.Fixerad = c.position >= 0;
    project.Position = std::max(0.0, c.position);
    const CraneGeometry cranes = craneGeometry(project);
    EXPECT_NEAR(cranes.factor, c.factor, 1e-12) << c.source;
    const double first = 50.0 + project.Position * 900.0 / c.length;
    const double perMm = 900.0 / c.length * c.factor;
    ASSERT_EQ(cranes.wheels.size(), c.cranes == 2 ? 4u : 2u);
    EXPECT_NEAR(cranes.wheels[1].x, first + c.gap * perMm, 1e-9);
    if (c.cranes == 2) {
        EXPECT_NEAR(cranes.wheels[2].x, first + (c.gap + c.between) * perMm, 1e-9);
    }
    EXPECT_EQ(diagramTitle(Diagram::Sketch, project).find("Not to scale") == std::string::npos, c.factor == 1.0);
}

INSTANTIATE_TEST_SUITE_P(
    Trains, SketchScale,
    testing::Values(ScaleCase{"LongEnough", 9000, 1, 1000, 0, -1, 1.0, "100 units are no less than 100"},
                    ScaleCase{"Short", 9000, 1, 400, 0, -1, 100.0 / 90.0, "last wheel at 50 + 40"},
                    ScaleCase{"ShortAtAPlace", 9000, 1, 400, 0, 4500, 100.0 / 540.0, "last wheel at 50 + 450 + 40"},
                    ScaleCase{"NoDistance", 9000, 1, 0, 0, -1, 1.0, "nothing to stretch"},
                    ScaleCase{"TwoCranes", 18000, 2, 2000, 1000, -1, 350.0 / 300.0, "50 + 5000 / 20"}),
    [](const auto& each) { return each.param.name; });

}  // namespace
}  // namespace borvik
