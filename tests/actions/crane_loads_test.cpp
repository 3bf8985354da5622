#include "actions/crane_loads.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "actions/json/crane_json.h"
#include "support/temp_folder.h"

namespace borvik::actions {
namespace {

using testing::HasSubstr;

Json vectors() {
    return parseJson(testing_support::bytesOf(BORVIK_SOURCE_DIR "/tests/data/crane-loads/cranes.json"));
}

void expectSame(const Json& ours, const Json& expected, const std::string& where) {
    ASSERT_EQ(ours.size(), expected.size()) << where;
    if (expected.is_number())
        EXPECT_NEAR(ours.get<double>(), expected.get<double>(), 1e-9 * std::abs(expected.get<double>())) << where;
    else
        for (const auto& [name, value] : expected.items())
            expectSame(expected.is_object() ? ours.at(name) : ours.at(std::stoul(name)), value, where + "/" + name);
}

TEST(CraneLoads, agreeWithAnIndependentProgramForRandomCranes) {
    const Json cranes = vectors();
    ASSERT_EQ(cranes.size(), 40u);
    for (std::size_t i = 0; i < cranes.size(); ++i) {
        const ReadCrane read = craneFromJson(cranes[i].at("Crane"));
        ASSERT_TRUE(read.isGood()) << i << read.faults.front().line();
        expectSame(loadsToJson(craneLoads(read.crane)), cranes[i].at("Expected"), std::to_string(i));
        const ReadCrane again = craneFromJson(craneToJson(read.crane));
        EXPECT_EQ(craneToJson(again.crane), craneToJson(read.crane)) << i;
    }
}

// A complete printed calculation of a 3.2 t crane.
// It takes K and xi1 with dynamic factors in groups 1 and 2 and without them in 3 and 4, phiFat2 for self-weight too,
// and the largest skewing angle.
TEST(CraneLoads, agreeWithAPrintedCalculationToItsLastDigit) {
    CraneData crane;
    crane.bridge = 27.27, crane.crab = 2.8, crane.hoist = 32, crane.span = 15, crane.emin = 0.78;
    crane.spacing = {1.6};
    crane.vh = 20.0 / 60, crane.S = 2, crane.alpha = 0.015, crane.phiOnK = true;
    const CraneLoads with = craneLoads(crane);
    crane.phiOnK = false;
    const CraneLoads without = craneLoads(crane);
    const auto HT = [&](std::size_t group, auto rail) {
        return (with.groups[group].*rail).H[0] * with.groups[group].psiH;
    };
    const Skewing& skewed = with.guidedByFarRail;
    const auto Qe = [&](double lambda) { return lambda * with.factors.phiFat2 * with.loaded.crab; };
    const struct {
        const char* what;
        double ours, printed, digit;
    } numbers[] = {
        {"phi2", with.factors.phi2, 1.213, 0.001},
        {"Qr,max 1", with.groups[0].crab.V, 27.36, 0.01},
        {"Qr,(max) 1", with.groups[0].far.V, 8.59, 0.01},
        {"Qr,max 2", with.groups[1].crab.V, 24.13, 0.01},
        {"Qr,(max) 2", with.groups[1].far.V, 8.41, 0.01},
        {"Qr,max 4", with.groups[3].crab.V, 23.31, 0.01},
        {"Qr,(max) 4", with.groups[3].far.V, 7.72, 0.01},
        {"Qr,(min) 3", with.groups[2].crab.V, 8.14, 0.01},
        {"Qr,min 3", with.groups[2].far.V, 6.89, 0.01},
        {"K with phi1", with.moving.K, 3.03, 0.01},
        {"K", without.moving.K, 2.76, 0.01},
        {"HL with phi1", with.moving.HL, 2.27, 0.01},
        {"ls with phi", with.moving.ls, 3.92, 0.01},
        {"M", without.moving.M, 10.38, 0.01},
        {"HT1 of group 1", HT(0, &GroupLoads::far), 2.66, 0.01},
        {"HT2 of group 1", HT(0, &GroupLoads::crab), 8.47, 0.01},
        {"HT1 of group 4", HT(3, &GroupLoads::far), 2.42, 0.01},
        {"HT2 of group 4", HT(3, &GroupLoads::crab), 7.31, 0.01},
        {"sum of Qr", skewed.sumQr, 62.07, 0.01},
        {"S", skewed.S, 9.09, 0.01},
        {"HS of the far rail's share", skewed.f * skewed.sumQr / 2 * skewed.xiGuided, 2.26, 0.01},
        {"HS of the other's", skewed.otherRail[0], 6.83, 0.01},
        {"phi_fat", with.factors.phiFat2, 1.11, 0.01},
        {"Qe sigma", Qe(with.fatigue.lambdaSigma), 8.13, 0.01},
        {"Qe tau", Qe(with.fatigue.lambdaTau), 12.90, 0.01},
    };
    for (const auto& number : numbers) EXPECT_NEAR(number.ours, number.printed, number.digit / 2 + 1e-9) << number.what;
}

// The workshop crane of docs/crane-loads.md, by hand: what no vector has.
TEST(CraneLoads, giveEachGroupItsHorizontalLoads) {
    CraneData crane;
    crane.bridge = 65, crane.crab = 12, crane.hoist = 100, crane.span = 18, crane.emin = 0.9;
    crane.spacing = {3.2};
    crane.vh = 8.0 / 60;
    crane.v = 40.0 / 60, crane.SB = 500, crane.xib = 0.6;
    const CraneLoads loads = craneLoads(crane);
    const struct {
        std::size_t row;
        int group;
        double crab1, crab2, far1, far2;
    } rows[] = {{0, 1, 12.48, -12.48, 3.42, -3.42}, {2, 3, 12.48, -12.48, 3.42, -3.42}, {4, 5, 15.81, 0, -15.81, 0},
                {5, 6, 2.80, 2.80, 2.80, 2.80},     {6, 8, 12.48, -12.48, 3.42, -3.42}, {7, 9, 0, 0, 0, 0}};
    for (const auto& row : rows) {
        const GroupLoads& group = loads.groups.at(row.row);
        EXPECT_EQ(group.group, row.group);
        EXPECT_NEAR(group.crab.H[0] * group.psiH, row.crab1, 0.005) << row.group;
        EXPECT_NEAR(group.crab.H[1] * group.psiH, row.crab2, 0.005) << row.group;
        EXPECT_NEAR(std::abs(group.far.H[0]) * group.psiH, std::abs(row.far1), 0.005) << row.group;
        EXPECT_NEAR(group.far.H[1] * group.psiH, row.far2, 0.005) << row.group;
    }
    EXPECT_NEAR(loads.test.dynamic.crab, 80.19, 0.005);
    EXPECT_NEAR(loads.bufferLoaded->HB1, 58.5, 0.05);
    EXPECT_NEAR(loads.bufferUnloaded->HB1, 38.6, 0.05);
    EXPECT_NEAR(loads.groups[7].HBCrab + loads.groups[7].HBFar, 58.5, 0.05);

    crane.release = Release::Grab, crane.released = 0.4, crane.HS = 9, crane.K = 10;
    const CraneLoads maker = craneLoads(crane);
    EXPECT_NEAR(maker.factors.phi3, 1 - 0.4 * 1.5, 1e-15);
    EXPECT_EQ(maker.groups[4].crab.H, (std::vector<double>{9, 0}));
    EXPECT_NEAR(maker.moving.HL, 1.5 * 10 / 2, 1e-15);
    const MonorailLoads monorail = monorailLoads({8, 32, 4, HoistingClass::HC2, 0.1, 1.1});
    EXPECT_NEAR(monorail.wheel, (1.1 * 8 + 1.134 * 32) / 4, 1e-12);
    EXPECT_NEAR(monorail.along, 0.5, 1e-12);
}

// Whatever the wheel system, friction and guide force are in equilibrium: across the rails, and in moment about the
// front guide.
TEST(Skewing, isInEquilibrium) {
    std::mt19937 random(7);
    const auto between = [&](double least, double most) {
        return least + (most - least) * (static_cast<double>(random()) / 4294967296.0);
    };
    for (int i = 0; i < 500; ++i) {
        CraneData crane;
        crane.bridge = between(0, 500), crane.crab = between(1, 90), crane.hoist = between(1, 500);
        crane.span = between(5, 40), crane.emin = between(0, 2);
        for (std::size_t wheels = 2 + random() % 3; crane.spacing.size() + 1 < wheels;)
            crane.spacing.push_back(between(0.5, 4));
        crane.system = static_cast<WheelSystem>(i % 4);
        if (isCoupled(crane.system)) crane.m = 1 + static_cast<int>(random() % 2);
        crane.guide = static_cast<Guide>(i / 4 % 2);
        if (crane.guide == Guide::Rollers) crane.e1 = between(0.1, 1);
        ASSERT_TRUE(checkCrane(crane).isGood()) << checkCrane(crane).faults.front().line();
        for (const Rail guided : {Rail::Crab, Rail::Far}) {
            const Skewing skewed = skewing(crane, guided);
            double across = crane.guide == Guide::Rollers ? -skewed.S : 0, moment = -crane.m * skewed.HSL * crane.span;
            for (std::size_t j = 0; j < crane.e().size(); ++j) {
                across += skewed.guidedRail[j] + skewed.otherRail[j];
                moment += (skewed.guidedRail[j] + skewed.otherRail[j]) * crane.e()[j];
            }
            EXPECT_NEAR(across / skewed.sumQr, 0, 1e-14) << i;
            EXPECT_NEAR(moment / skewed.sumQr, 0, 1e-13) << i;
        }
    }
}

// EN 13001-1: each class takes twice the damage of the one below, with slopes 3 and 5. The table cuts and
// raises the third digit now and then.
TEST(FatigueClasses, followTheirRule) {
    for (int k = 0; k < 10; ++k) {
        EXPECT_NEAR(kLambdaSigma.at(static_cast<std::size_t>(k)), std::pow(2, (k - 7) / 3.0), 0.00075) << k;
        EXPECT_NEAR(kLambdaTau.at(static_cast<std::size_t>(k)), std::pow(2, (k - 7) / 5.0), 0.00075) << k;
    }
    EXPECT_EQ(fatigueClass(*loadSpectrumOf(0.125), *utilisationOf(125001)), 1);
    EXPECT_EQ(fatigueClass(5, 9), 9);
    EXPECT_EQ(fatigueClass(1, 2), 0);
    EXPECT_FALSE(loadSpectrumOf(1.01) || utilisationOf(8.1e6) || loadSpectrumOf(std::nan("")));
}

TEST(CraneData, saysWhichFieldIsWrong) {
    const Json good = vectors()[1].at("Crane");  // four wheels, rollers
    const struct {
        const char *changes, *message;
    } cases[] = {
        {R"({"emin": 8.91})", "emin: 8.91 m is beyond mid-span"},
        {R"({"wheels": 0, "spacing": [], "base": 0, "e": []})", "wheels: 0 is outside the range of 2 to 4"},
        {R"({"spacing": [1, -1, 3]})", "spacing: -1 m is outside"},
        {R"({"spacing": [4.29, 4.12]})", "spacing: 4 wheels have 3 distances, not 2"},
        {R"({"base": 9})", "base: 9 m is not the sum of spacing"},
        {R"({"e": [0.37, 4.66, 8.7, 9.5]})", "e: 8.7 m of wheel 3 does not follow"},
        {R"({"e": [0, 4.29, 8.41, 9.13]})", "e: guide rollers need"},
        {R"({"guide": "flanges"})", "e: with flanges"},
        {R"({"drive": "central", "bridge": 0, "emin": 0})", "drive: central needs"},
        {R"({"hc": "HC5"})", "hc: HC1, HC2, HC3 or HC4 is needed"},
        {R"({"S": 10})", "S: 10 is outside the range of 0 to 9"},
        {R"({"S": 2.5})", "S: 2.5 is no whole number"},
        {R"({"bridge": "65"})", "bridge: a number is needed"},
        {R"({"hoist": 0})", "hoist: 0 kN is outside the range of more than 0"},
        {R"({"phi_on_K": 1})", "phi_on_K: true or false is needed"},
        {R"({"system": "CFF"})", "m: coupled wheels"},
        {R"({"v": 1})", "SB: end stops need"},
        {R"({"colour": "red"})", "colour: unknown name"},
        {R"({"mu": null})", "mu: a number is needed"},
    };
    for (const auto& each : cases) {
        Json changed = good;
        changed.update(Json::parse(each.changes));
        const ReadCrane read = craneFromJson(changed);
        ASSERT_FALSE(read.isGood()) << each.message;
        EXPECT_THAT(read.faults.front().line(), HasSubstr(each.message));
    }
    for (const auto& [name, value] : good.items()) {
        Json lacking = good;
        lacking.erase(name);
        ASSERT_FALSE(craneFromJson(lacking).isGood()) << name;
        EXPECT_EQ(craneFromJson(lacking).faults.front().line(), name + ": missing");
    }
    CraneData crane = craneFromJson(good).crane;
    crane.phi1 = std::nan("");
    EXPECT_THAT([&] { (void)craneLoads(crane); },
                testing::ThrowsMessage<std::invalid_argument>(HasSubstr("phi1: not a number")));
    crane.phi1 = 1.1, crane.alpha = 0.02;
    EXPECT_EQ(checkCrane(crane).remarks.at(0).line(), "alpha: 0.02 is cut to 0.015, its largest value");
    EXPECT_EQ(craneLoads(crane).guidedByFarRail.angle.alpha, 0.015);
    EXPECT_THAT([] { (void)parseJson(R"({"a": 1, "a": 2})"); },
                testing::ThrowsMessage<std::runtime_error>(HasSubstr("a: given twice")));
}

}  // namespace
}  // namespace borvik::actions
