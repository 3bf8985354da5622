#include "diagrams/diagrams.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

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
    drawPicture(surface, diagrams, data);
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

/// The cranes at the position of an extreme: the line of that position touches it, and says its value.
TEST(DrivenCranes, touchTheExtremeThatTheyStandAt) {
    for (const Sample sample : {Sample::OneCrane, Sample::TwoCranes, Sample::Monorail, Sample::Together}) {
        const Session& session = sessionOf(sample);
        CraneDrive drive(session.project, *session.results);
        DiagramData data = dataOf(session);
        data.drive = &drive;
        int extremes = 0;
        for (const DiagramKind& kind : diagramKinds())
            for (const Panel& panel : diagramPanels(kind, data))
                for (const PeakLabel& peak : panel.peaks) {
                    if (!panel.effect || !peak.stands[0].isKnown()) continue;
                    ASSERT_TRUE(drive.goTo({peak.stands[0]})) << kind.name << peak.text;
                    RecordingSurface surface(900, 360);
                    const std::vector<Diagram> picture{Diagram::Sketch, kind.id};
                    drawPicture(surface, picture, data, {}, DiagramLayer::Moving);
                    const std::string value = formatNumber(panel.oneSided ? -peak.value : peak.value, "0.0");
                    EXPECT_TRUE(surface.hasText(value + " " + panel.unit) || surface.hasText(value.substr(1) + " mm"))
                        << nameOf(sample) << kind.name << peak.text;
                    EXPECT_THAT(collisions(surface), IsEmpty()) << kind.name << peak.text;
                    ++extremes;
                }
        EXPECT_GT(extremes, 10);
    }
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
        drawDiagram(surface, kind.id, dataOf(sessionOf(Sample::Overloaded)), 0, 0, DiagramMode::Paper);
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
        drawDiagram(surface, kind.id, dataOf(sessionOf(Sample::TwoCranes)), 3, 400, DiagramMode::Paper);
        const auto [corner, opposite] = surface.rectangles.at(0);
        surface.left = corner.x;
        surface.right = opposite.x;
        surface.top = corner.y;
        surface.bottom = opposite.y;
        EXPECT_THAT(collisions(surface), IsEmpty()) << kind.name;
    }
}

/// A number that no other value of a beam shows, so that a text tells what it belongs to.
double valueOf(int kind, int place) {
    return 1000.0 * kind + place + 0.1 * kind;
}

/// A beam whose every extreme is a value of its own, some moments alike on both sides of their support.
Results distinctResults(const Project& project, std::mt19937& random) {
    const int spans = project.NofSpans;
    Results results;
    UlsResults& uls = results.Uls;
    for (auto* cube : {&uls.MyMaxPoint, &uls.MyMinPoint, &uls.VzMaxPoint, &uls.VzMinPoint})
        *cube = Cube<Single>(spans, kPoints, 8);
    for (auto* table : {&uls.MyMaxSpan, &uls.MyMinSpan, &uls.VzMaxSpan, &uls.VzMinSpan})
        *table = Table<Single>(spans, UlsResults::kPlaceSlot);
    uls.RzMax = uls.RzMin = Array<Single>(1, spans + 1);
    results.Sls.UzMaxPoint = Cube<Single>(spans, kPoints, 3);
    results.Sls.UzMaxSpan = Table<Single>(spans, 3);
    StressSet& stresses = results.Fatigue.Cr1.emplace(spans);
    for (int span = 1; span <= spans; ++span) {
        const double length = project.Span(span);
        const auto record = [span](Table<Single>& table, int slot, double value, int placeSlot, double place) {
            table(span, slot) = value;
            table(span, placeSlot) = place;
        };
        const auto somewhere = [&] { return length * static_cast<double>(random() % kPoints) / (kPoints - 1); };
        const bool shared = span > 1 && uls.MyMinSpan(span - 1, 9) != 0.0 && random() % 2 == 0;
        record(uls.MyMaxSpan, 1, valueOf(1, span) * 1e6, 9, somewhere());
        record(uls.MyMinSpan, 1, -valueOf(2, shared ? span - 1 : span) * 1e6, 9, shared ? 0.0 : length);
        record(uls.VzMaxSpan, 2, valueOf(3, span) * 1e3, 9, 0.0);
        record(uls.VzMinSpan, 2, -valueOf(4, span) * 1e3, 9, length);
        results.Sls.UzMaxSpan(span, 1) = valueOf(5, span);
        record(stresses.Sig1MaxPeak, 1, valueOf(6, span), 2, somewhere());
        record(stresses.Sig1MinPeak, 1, -valueOf(7, span), 2, somewhere());
        for (int k = 1; k <= kPoints; ++k) {  // curves through the extremes
            const double wave = std::sin(M_PI * (k - 1) / (kPoints - 1));
            uls.MyMaxPoint(span, k, 1) = valueOf(1, span) * 1e6 * wave;
            uls.MyMinPoint(span, k, 1) = -valueOf(2, span) * 1e6 * (k - 1) / (kPoints - 1);
            uls.VzMaxPoint(span, k, 2) = valueOf(3, span) * 1e3 * (kPoints - k) / (kPoints - 1);
            uls.VzMinPoint(span, k, 2) = -valueOf(4, span) * 1e3 * (k - 1) / (kPoints - 1);
            results.Sls.UzMaxPoint(span, k, 1) = -valueOf(5, span) * wave;
            stresses.Sig1Max(span, k) = valueOf(6, span) * wave;
            stresses.Sig1Min(span, k) = -valueOf(7, span) * wave;
        }
    }
    for (int support = 1; support <= spans + 1; ++support) uls.RzMax(support) = valueOf(8, support) * 1e3;
    return results;
}

Project randomBeam(std::mt19937& random) {
    const int spans = random() % 3 == 0 ? 1 + static_cast<int>(random() % 30) : 1 + static_cast<int>(random() % 8);
    Project project = sessionOf(Sample::OneCrane).project;
    project.NofSpans = static_cast<std::int16_t>(spans);
    project.Span = {};
    for (int span = 1; span <= spans; ++span) {
        const int length = random() % 6 == 0 ? 100 : 3000 + static_cast<int>(random() % 12000);
        project.Span(span) = length / 31 * 31 + span;  // each another length
    }
    for (int wheel = 1; wheel <= 4; ++wheel) project.V(wheel) = valueOf(9, wheel);
    for (int gap = 1; gap <= 3; ++gap) project.Avst(gap) = 100 + static_cast<int>(random() % 4000);
    return project;
}

/// What is wrong with the labels of a drawing: values that stand outside their place, or neither there nor in the list.
std::vector<std::string> misplaced(const RecordingSurface& surface, const std::vector<std::string>& listed,
                                   const std::string& value, double from, double to, const std::string& where) {
    constexpr double kTouch = 1e-6;
    int found = 0;
    std::vector<std::string> wrong;
    for (const auto& text : surface.texts) {
        const std::size_t at = text.text.find(value);
        const auto digit = [&](std::size_t i) {
            return i < text.text.size() && std::string_view("0123456789.").find(text.text[i]) != std::string_view::npos;
        };
        if (at == std::string::npos || (at > 0 && digit(at - 1)) || digit(at + value.size())) continue;
        if (text.colour == colours::grey) continue;  // a wheel distance
        ++found;
        const bool within = text.left >= from - kTouch && text.right <= to + kTouch;
        if (!within && !text.text.starts_with("Span ")) wrong.push_back(text.text + " stands outside " + where);
    }
    for (const std::string& each : listed) found += each.find(value) != std::string::npos ? 1 : 0;
    if (found == 0) wrong.push_back(value + " of " + where + " is lost");
    return wrong;
}

/// One diagram of a part of the beam, and all that is wrong with it.
std::vector<std::string> wrongLabels(Diagram diagram, const DiagramData& data, RecordingSurface& surface,
                                     DiagramMode mode, const BeamPart& part) {
    constexpr double kEdge = 1000.0;
    const Project& project = data.project;
    const auto listed = drawDiagram(surface, diagram, data, 0.0, 0.0, mode, part);
    double total = 0.0;
    std::vector<double> starts{0.0};
    for (int span = 1; span <= project.NofSpans; ++span) starts.push_back(total += project.Span(span));
    const double from = part.from, to = part.isWhole() ? total : part.to;
    const double across = std::max(part.across, to - from);
    const auto x = [&](double place) { return 50.0 + 900.0 * (place - from) / across; };
    std::vector<std::string> wrong = collisions(surface);
    const auto check = [&](double value, double left, double right, const std::string& where) {
        for (const std::string& each : misplaced(surface, listed, formatNumber(value, "0.0"), left, right, where))
            wrong.push_back(each);
    };
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double start = starts[static_cast<std::size_t>(span - 1)], end = starts[static_cast<std::size_t>(span)];
        if (end <= from || start >= to) continue;
        const double left = span == 1 ? 0.0 : x(start), right = span == project.NofSpans ? kEdge : x(end);
        const std::string where = "span " + std::to_string(span);
        const auto inSpan = [&](std::initializer_list<int> kinds) {
            for (const int kind : kinds) check(valueOf(kind, span), left, right, where);
        };
        if (diagram == Diagram::UlsMyVz) {
            inSpan({1, 3, 4});
            const double support = x(end);  // a shared moment stands within half a span of its support
            const bool shared = span < project.NofSpans && data.results->Uls.MyMinSpan(span + 1, 9) == 0.0;
            if (data.results->Uls.MyMinSpan(span, 9) != 0.0 && end < to)
                check(valueOf(2, span), shared ? 0.5 * (x(start) + support) : left,
                      shared ? 0.5 * (support + x(starts[static_cast<std::size_t>(span + 1)])) : right, where);
        }
        if (diagram == Diagram::SlsUz) inSpan({5});
        if (diagram == Diagram::Cr1Top) inSpan({6, 7});
        if (diagram == Diagram::Sketch)
            for (const std::string& each :
                 misplaced(surface, listed, std::to_string(project.Span(span)), x(start), x(end), where))
                wrong.push_back(each);
    }
    for (int support = 1; support <= project.NofSpans + 1 && diagram == Diagram::UlsMyVz; ++support) {
        const double at = starts[static_cast<std::size_t>(support - 1)];
        const auto half = [&](int other) { return 0.5 * (x(at) + x(starts[static_cast<std::size_t>(other - 1)])); };
        if (at >= from && at <= to)
            check(valueOf(8, support), support == 1 ? 0.0 : half(support - 1),
                  support > project.NofSpans ? kEdge : std::min(kEdge, half(support + 1)),
                  "support " + std::to_string(support));
    }
    for (int wheel = 1; wheel <= 4 && diagram == Diagram::Sketch && part.isWhole(); ++wheel)
        check(valueOf(9, wheel), 0.0, kEdge, "the wheels");
    return wrong;
}

TEST(LabelRules, holdForRandomBeamsOnScreenAndPaper) {
    std::mt19937 random(20);
    for (int beam = 0; beam < 400; ++beam) {
        const Project project = randomBeam(random);
        const Results results = distinctResults(project, random);
        const DiagramData data{project, &results};
        const double width = 500.0 + static_cast<double>(random() % 2000);
        for (const Diagram diagram : {Diagram::Sketch, Diagram::UlsMyVz, Diagram::SlsUz, Diagram::Cr1Top}) {
            const auto [top, bottom] = diagramArea(diagram, DiagramMode::Screen);
            RecordingSurface screen(width, width * (bottom - top) / 1000.0 + static_cast<double>(random() % 300));
            screen.scale(-6, top, 1006, bottom);
            EXPECT_THAT(wrongLabels(diagram, data, screen, DiagramMode::Screen, {}), IsEmpty())
                << "beam " << beam << ", " << diagramName(diagram) << " in " << width;
            for (const BeamPart& part : beamParts(project)) {
                const auto [above, below] = diagramArea(diagram, DiagramMode::Paper);
                RecordingSurface paper(700, (below - above) * (diagram == Diagram::SlsUz ? 0.5 : 0.72));
                paper.scale(-5, above, 1015, below);
                EXPECT_THAT(wrongLabels(diagram, data, paper, DiagramMode::Paper, part), IsEmpty())
                    << "beam " << beam << ", " << diagramName(diagram) << " on paper";
            }
        }
    }
}

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
    const auto reading = readPicture(forces, data, {50.0 + 900.0 * 5125.0 / 15000.0, 10.0});
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

    EXPECT_FALSE(readPicture(forces, data, {49.0, 10.0}));
    EXPECT_FALSE(readPicture(forces, data, {951.0, 10.0}));
    EXPECT_EQ(readPicture(forces, data, {50.0, 0.0})->points[0].span, 1);
    EXPECT_NEAR(readPicture(forces, data, {950.0, 0.0})->points[0].position, 6000.0, 1e-6);
    EXPECT_FALSE(readPicture(forces, {session.project, nullptr}, {500.0, 10.0}));
    EXPECT_FALSE(readPicture(std::vector<Diagram>{Diagram::Sketch}, data, {500.0, 10.0}));

    const std::vector<Diagram> two = pictureDiagrams("Uz", session.project);
    EXPECT_EQ(readPicture(two, data, {500.0, 5.0})->diagram, Diagram::SlsUz);
    EXPECT_EQ(readPicture(two, data, {500.0, pictureHeight(two) - 5.0})->diagram, Diagram::SlsUy);
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
