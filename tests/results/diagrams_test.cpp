#include "diagrams/diagrams.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "diagrams/diagram_kind.h"
#include "diagrams/diagram_reading.h"
#include "diagrams/sketch_geometry.h"
#include "results/result_tree.h"
#include "samples.h"
#include "support/recording_surface.h"

namespace borvik {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

constexpr int kCurvePoints = 23;  // 21 points and both ends of the base

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

TEST(Titles, tellCranesApartOnlyWhereThereAreTwo) {
    Project project = sampleProject(1);
    const auto titles = [&project] {
        std::vector<std::string> all;
        for (int i = static_cast<int>(Diagram::Cr1Top); i <= static_cast<int>(Diagram::Cr1ShearRange); ++i)
            all.push_back(diagramTitle(static_cast<Diagram>(i), project));
        return all;
    };
    EXPECT_THAT(titles(), ElementsAre("FLS - Stress in top flange (MPa)", "FLS - stress range top flange (MPa)",
                                      "FLS - Stress in top flange (MPa)", "FLS - stress range bottom flange (MPa)",
                                      "FLS - Shear stress in web (MPa)", "FLS - shear stress range in web (MPa)"));
    project.NofCranes = 2;
    EXPECT_THAT(
        titles(),
        ElementsAre("FLS - Crane 1 - Stress in top flange (MPa)", "FLS - Crane 1 - stress range top flange (MPa)",
                    "FLS - Crane 1 - Stress in bottom flange (MPa)", "FLS - Crane 1 stress range bottom flange (MPa)",
                    "FLS - Crane 1 - Shear stress in web (MPa)", "FLS - Crane 1 shear stress range in web (MPa)"));
    EXPECT_EQ(diagramTitle(Diagram::Cr2BottomRange, project), "FLS - Crane 2 stress range bottom flange (MPa)");
}

struct LabelCase {
    Diagram diagram;
    std::vector<std::string> labels;
};

class Labels : public testing::TestWithParam<LabelCase> {};

TEST_P(Labels, standInTheDiagramWithTheirNumbers) {
    Project project = sampleProject(2);
    project.NofCranes = 2;
    const Results results = sampleResults(project);
    const RecordingSurface surface = drawn({GetParam().diagram}, {project, &results});
    EXPECT_EQ(surface.texts.front().text, diagramTitle(GetParam().diagram, project));
    EXPECT_TRUE(surface.texts.front().font.underline);
    for (const std::string& label : GetParam().labels) EXPECT_THAT(textsOf(surface), Contains(label));
    EXPECT_THAT(collisions(surface), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Diagrams, Labels,
    testing::Values(
        LabelCase{Diagram::UlsMyVz,
                  {"Rz=+100.0/-12.3", "My=120.0  L=3000 mm", "My=-60.0  L=6000 mm", "Vz=+90.0", "Vz=-80.0",
                   "My on the tension side, + sagging below; L from the left support", "+My", "+Vz", "z", "x"}},
        LabelCase{Diagram::UlsMzVy,
                  {"Ry=+7.0/-0.6", "Mz=4.0  L=3000 mm", "Mz=-2.0  L=6000 mm", "Vy=+6.0", "Vy=-5.0", "+Mz", "y"}},
        LabelCase{Diagram::SlsUz, {"5.0"}}, LabelCase{Diagram::SlsUy, {"0.7"}},
        LabelCase{Diagram::Cr1Top, {"Sig= 5.0, x=3000", "Sig= -30.0, x=3000", "Max/Min, + tension"}},
        LabelCase{Diagram::Cr2Top, {"Sig= 2.5, x=3000", "Sig= -15.0, x=3000"}},
        LabelCase{Diagram::Cr1Bottom, {"Sig= 30.0, x=3000", "Sig=-5.0, x=3000"}},
        LabelCase{Diagram::Cr1Shear, {"Tau=+20.0", "Tau=-20.0", "Max/Min"}},
        LabelCase{Diagram::Cr1TopRange, {"dSig=35.0, x=3000"}}, LabelCase{Diagram::Cr1ShearRange, {"dTau=20.0, x=0"}},
        LabelCase{Diagram::FlsReactions,
                  {"Rz=+50.0/-2.5 (Crane1)", "Rz=+25.0/-1.3 (Crane2)", "Rz=+75.0/-3.8 (Crane 1+2)"}}),
    [](const auto& each) { return std::string(diagramName(each.param.diagram)); });

TEST(Curves, takeFortyUnitsForTheLargestValueOnTheToldSide) {
    const Project project = sampleProject(1);
    const Results results = sampleResults(project);

    const RecordingSurface forces = drawn({Diagram::UlsMyVz}, {project, &results});
    ASSERT_EQ(forces.polygons.size(), 5u);  // paper, and two curves of each panel
    ASSERT_EQ(forces.polygons[1].size(), static_cast<std::size_t>(kCurvePoints));
    const auto offset = [](const std::vector<Place>& curve, std::size_t point) { return curve[point].y - curve[0].y; };
    EXPECT_NEAR(offset(forces.polygons[1], 11), 40.0, 1e-4);                // 120 kNm sagging hang below the line
    EXPECT_NEAR(offset(forces.polygons[2], 21), -20.0, 1e-4);               // -60 kNm stand above
    EXPECT_NEAR(offset(forces.polygons[3], 1), -40.0, 1e-4);                // 90 kN above
    EXPECT_NEAR(offset(forces.polygons[4], 21), 80.0 / 90.0 * 40.0, 1e-4);  // -80 kN below
    EXPECT_NEAR(forces.polygons[1][1].x, 50.0, 1e-9);
    EXPECT_NEAR(forces.polygons[1][11].x, 500.0, 1e-9);
    EXPECT_NEAR(forces.polygons[1][21].x, 950.0, 1e-9);

    Results uplift = sampleResults(project);
    uplift.Sls.UyMaxPoint(1, 5, 1) = +0.35;  // a deflection is drawn below whatever its sign
    const RecordingSurface deflection = drawn({Diagram::SlsUy}, {project, &uplift});
    EXPECT_NEAR(offset(deflection.polygons[1], 5), 20.0, 1e-4);
    EXPECT_NEAR(offset(deflection.polygons[1], 11), 40.0, 1e-4);
}

TEST(Curves, areFlatWhereNothingIsLoaded) {
    const Project project = sampleProject(2);
    Results results = sampleResults(project);
    results.Sls.UzMaxPoint = Cube<Single>(2, 21, 3);
    results.Sls.UzMaxSpan = Table<Single>(2, 3);
    const RecordingSurface surface = drawn({Diagram::SlsUz}, {project, &results});
    for (const Place place : surface.polygons.at(1)) EXPECT_EQ(place.y, surface.polygons[1][0].y);
    EXPECT_THAT(textsOf(surface), Contains("0.0"));
}

TEST(HorizontalDiagrams, endAfterTheBeamWithoutHorizontalLoads) {
    Project project = sampleProject(3);
    project.HasLoadsY = false;
    const Results results = sampleResults(project);
    for (const Diagram diagram : {Diagram::SlsUy, Diagram::UlsMzVy}) {
        const RecordingSurface surface = drawn({diagram}, {project, &results});
        EXPECT_EQ(surface.polygons.size(), 1u);  // the paper
        EXPECT_THAT(textsOf(surface), ElementsAre(diagramTitle(diagram, project)));
        EXPECT_GE(surface.lines.size(), 5u);
    }
    EXPECT_THAT(pictureDiagrams("Uz", project), ElementsAre(Diagram::SlsUz));
    EXPECT_THAT(pictureDiagrams("MzVy", project), IsEmpty());
}

TEST(Paper, hasItsFrameAndKeepsToIt) {
    Project project = sampleProject(3);
    project.NofCranes = 2;
    const Results results = sampleResults(project);
    for (const DiagramKind& kind : diagramKinds()) {
        const Diagram diagram = kind.id;
        RecordingSurface surface(700, 1000);
        surface.scale(-5, 0, 1015, diagram == Diagram::Sketch || diagram == Diagram::UlsMyVz ? 1400 : 2000);
        const double X0 = 3;
        const double Y0 = 400;
        DrawDiagram(surface, diagram, {project, &results}, X0, Y0, DiagramMode::Paper);
        const auto [corner, opposite] = surface.rectangles.at(0);
        EXPECT_EQ(corner.x, X0 - 5);
        EXPECT_EQ(corner.y, Y0 - 10);
        EXPECT_EQ(opposite.x, X0 + 1010);
        if (diagram == Diagram::SlsUz) {
            EXPECT_EQ(opposite.y, Y0 + 88);
            const auto beam = std::find_if(surface.lines.begin(), surface.lines.end(),
                                           [](const auto& line) { return line.colour == colours::red; });
            ASSERT_NE(beam, surface.lines.end());
            EXPECT_EQ(beam->from.y, Y0 + 20);
            EXPECT_NEAR(beam->penWidth, 0.2 * surface.unitsPerMillimetre(), 1e-9);
        }
        // All texts are within the rectangle, which is a frame of its own here.
        surface.left = corner.x;
        surface.right = opposite.x;
        surface.top = corner.y;
        surface.bottom = opposite.y;
        EXPECT_THAT(collisions(surface), IsEmpty()) << diagramName(diagram);
    }
}

struct SizeCase {
    int spans;
    double width, height;
};

class LabelRoom : public testing::TestWithParam<SizeCase> {};

TEST_P(LabelRoom, isFoundWithoutOverlapInEveryPicture) {
    Project project = sampleProject(GetParam().spans);
    project.NofCranes = 2;
    for (int span = 1; span <= GetParam().spans; ++span) project.Span(span) = 4000 + 700 * (span % 4);
    const Results results = sampleResults(project);
    for (const std::string& name : pictureNames()) {
        const RecordingSurface surface =
            drawn(pictureDiagrams(name, project), {project, &results}, GetParam().width, GetParam().height);
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

TEST(Pictures, coverEveryPictureNodeOfTheTree) {
    Project project = sampleProject(1);
    project.NofCranes = 2;
    const TreeNode tree = mainTree(project, true);
    for (const TreeNode& part : tree.children)
        for (const TreeNode& group : part.children)
            for (const TreeNode& node : group.children) {
                EXPECT_THAT(pictureDiagrams(node.name, project), Not(IsEmpty())) << node.text;
            }
    EXPECT_THAT(pictureDiagrams("cr2sp2", project), ElementsAre(Diagram::Cr2Bottom, Diagram::Cr2BottomRange));
    EXPECT_THAT(pictureDiagrams("CrRz", project), ElementsAre(Diagram::FlsReactions));
    project.NofCranes = 1;
    EXPECT_THAT(pictureDiagrams("Cr2Sp2", project), IsEmpty());
    EXPECT_THAT(pictureDiagrams("unknown", project), IsEmpty());
}

TEST(Reading, tellsSpanPlaceAndValuesBetweenThePoints) {
    Project project = sampleProject(2, 4000);
    project.Span(2) = 5000;
    const Results results = sampleResults(project);
    const std::vector<Diagram> forces{Diagram::UlsMyVz};
    const DiagramData data{project, &results};

    // 5125 mm from the start: 1125 mm in span 2, half way between its points 5 and 6.
    const auto reading = ReadPicture(forces, data, {50.0 + 900.0 * 5125.0 / 9000.0, 10.0});
    ASSERT_TRUE(reading);
    ASSERT_EQ(reading->points.size(), 1U);
    EXPECT_EQ(reading->points[0].span, 2);
    EXPECT_NEAR(reading->points[0].position, 1125.0, 1e-6);
    EXPECT_EQ(reading->text(),
              "Span 2, x = 1125 mm: My max 77.7 kNm, My min -13.5 kNm, Vz max 69.8 kN, Vz min -18.0 kN");

    EXPECT_FALSE(ReadPicture(forces, data, {49.0, 10.0}));
    EXPECT_FALSE(ReadPicture(forces, data, {951.0, 10.0}));
    EXPECT_EQ(ReadPicture(forces, data, {50.0, 0.0})->points[0].span, 1);
    EXPECT_NEAR(ReadPicture(forces, data, {950.0, 0.0})->points[0].position, 5000.0, 1e-6);
    EXPECT_FALSE(ReadPicture(forces, {project, nullptr}, {500.0, 10.0}));
    EXPECT_FALSE(ReadPicture(std::vector<Diagram>{Diagram::Sketch}, data, {500.0, 10.0}));

    const std::vector<Diagram> two = pictureDiagrams("Uz", project);
    EXPECT_EQ(ReadPicture(two, data, {500.0, 5.0})->diagram, Diagram::SlsUz);
    EXPECT_EQ(ReadPicture(two, data, {500.0, pictureHeight(two) - 5.0})->diagram, Diagram::SlsUy);
}

TEST(Sketch, numbersSectionsAndSaysWhatItShows) {
    Project project = sampleProject(3);
    project.SpanSection(2).DisplayName = "IPE 400";
    project.Avst(1) = 2400;
    RecordingSurface surface = drawn({Diagram::Sketch}, {project, nullptr});
    EXPECT_THAT(textsOf(surface), testing::IsSupersetOf({"Beam Data (mm/kN)", "Vk = 30.0", "Hk = 3.0", "Vk = 40.0",
                                                         "Hk = 0.0", " Crane 1 ", "6000", "1", "2", "2400"}));
    EXPECT_THAT(textsOf(surface), Contains(HasSubstr("1 - HEA 300     2 - IPE 400")));
    EXPECT_EQ(surface.circles.size(), 5u);  // three section numbers, two wheels
    EXPECT_THAT(textsOf(surface), Not(Contains("X")));

    project.Fat5 = true;
    project.ChkFat5Sp(1) = true;
    project.Fat5Span(1) = 2;
    project.Fat5d1(1) = 3000;
    project.Fixerad = true;
    surface = drawn({Diagram::Sketch}, {project, nullptr});
    EXPECT_EQ(surface.texts.front().text, "Beam Data (mm/kN) - fixed position of crane");
    EXPECT_THAT(textsOf(surface), testing::IsSupersetOf({"          X = Beam splice", "X"}));
    const auto splice =
        std::find_if(surface.texts.begin(), surface.texts.end(), [](const auto& t) { return t.text == "X"; });
    EXPECT_NEAR(0.5 * (splice->left + splice->right), 500.0, 1e-6);

    project.CraneType = 2;  // the splices of the monorail are others
    project.Fixerad = false;
    surface = drawn({Diagram::Sketch}, {project, nullptr});
    EXPECT_THAT(textsOf(surface), testing::IsSupersetOf({" Hoist ", "Beam Data (mm/kN)"}));
    EXPECT_THAT(textsOf(surface), Not(Contains("X")));
    const auto top = [&surface](const std::string& text) {
        return std::find_if(surface.texts.begin(), surface.texts.end(), [&](const auto& t) { return t.text == text; })
            ->top;
    };
    EXPECT_LT(top("Hk = 3.0"), top("Vk = 30.0"));
}

TEST(Sketch, followsTheSpansAsTheyAreEntered) {
    Project project = sampleProject(2);
    project.Span(3) = 7000;  // entered since the last calculation, which counted two
    project.SpanSection(3).DisplayName = "HEB 300";
    EXPECT_THAT(textsOf(drawn({Diagram::Sketch}, {project, nullptr})), testing::IsSupersetOf({"6000", "7000", "2"}));
    for (const int counted : {-1, 0, 31}) {  // a damaged file
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
    Project project = sampleProject(1, c.length);
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
