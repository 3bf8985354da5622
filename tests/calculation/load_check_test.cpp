#include "calculation/load_check.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/golden.h"

namespace borvik {
namespace {

/// A beam of 15 m under a crane of two wheels, with a second crane of two wheels that counts only when asked for.
Project soundProject() {
    Project p;
    p.CraneType = CraneKind::Overhead;
    p.Span(1) = 4000;
    p.Span(2) = 5000;
    p.Span(3) = 6000;
    p.NofCranes = 1;
    p.V(1) = 30;
    p.V(2) = 40;
    p.Avst(1) = 1900;
    p.MinAvst = 1000;
    p.V(5) = p.V(6) = 20;
    p.Avst(4) = 2000;
    return p;
}

void print(std::ostream& out, const Project& p, LoadForm form) {
    const LoadFault fault = loadRefusal(p, form);
    const char* items[] = {"nothing", "V", "Avst", "Position", "MinAvst"};
    out << '\t' << items[static_cast<int>(fault.item)] << fault.number << "\t\"" << fault.message << '"'
        << (fault.mendable ? "" : "\tnot to be mended in the form") << '\n';
}

/// Every way in which wheels and distances can be there or not, and the limits of what fits: what is said, word for
/// word, and what it asks for.
TEST(LoadRefusals, areThoseOfTheList) {
    std::ostringstream said;
    for (const bool second : {false, true}) {
        const int wheel0 = second ? 4 : 0, gap0 = second ? 3 : 0, there = second ? 16 : 8;
        for (int loads = 0; loads < there; ++loads) {
            for (int gaps = 0; gaps < 8; ++gaps) {
                Project p = soundProject();
                p.NofCranes = second ? 2 : 1;
                said << "wheels";
                for (int i = 0; i < (second ? 4 : 3); ++i) {
                    const int wheel = wheel0 + i + (second ? 1 : 2);
                    p.V(wheel) = (loads >> i & 1) * 10;
                    if (double(p.V(wheel)) != 0) said << ' ' << wheel;
                }
                said << ", distances";
                for (int i = 0; i < 3; ++i) {
                    p.Avst(gap0 + i + 1) = (gaps >> i & 1) * 500;
                    if (double(p.Avst(gap0 + i + 1)) != 0) said << ' ' << gap0 + i + 1;
                }
                print(said, p, LoadForm::Overhead);
                if (!second) print(said, p, LoadForm::Monorail);
            }
        }
    }
    for (const double extent : {14999.0, 15000.0, 15000.5}) {
        for (const double distance : {100.0, 100.5, 1000.0, 20000.0}) {
            for (const bool fixed : {false, true}) {
                Project p = soundProject();
                p.NofCranes = 2;
                p.Fixerad = fixed;
                p.MinAvst = distance;
                p.Position = extent == 14999.0 ? 0 : extent - 1900 - 2000 - distance;
                said << "position " << p.Position << ", distance " << distance << (fixed ? ", fixed" : "");
                print(said, p, LoadForm::Overhead);
                print(said, p, LoadForm::Monorail);
            }
        }
    }
    EXPECT_EQ(testing_support::goldenDifference("load-refusals.txt", said.str()), "");
}

TEST(LoadRemarks, areOfWhatTheFormWouldNotHaveLetPass) {
    Project p = soundProject();
    p.MinAvst = 0;
    EXPECT_EQ(loadRemark(p), "");
    p.H(1) = 3;
    EXPECT_NE(loadRemark(p).find("horizontal"), std::string::npos);
    p.Avst(2) = 1000;
    EXPECT_NE(loadRemark(p).find("not in order: Vertical force for wheel 3 is missing!"), std::string::npos);
    p.V = {};
    p.Avst = {};
    p.V(5) = 10;
    EXPECT_EQ(loadRemark(p), "No wheel has a vertical load.") << "the second crane is not there";
}

TEST(SettledLoads, loseTheHorizontalLoadsOfWheelsThatAreNotThere) {
    Project p = soundProject();
    p.NofCranes = 2;
    for (int i = 1; i <= 8; ++i) p.H(i) = i;
    settleLoads(p, LoadForm::Overhead);
    const double left[] = {1, 2, 0, 0, 5, 6, 0, 0};
    for (int i = 1; i <= 8; ++i) EXPECT_EQ(double(p.H(i)), left[i - 1]) << i;
    EXPECT_TRUE(p.HasLoadsY);
}

TEST(SettledLoads, aHorizontalLoadOnWheelSixAloneDoesNotCount) {
    for (int wheel = 1; wheel <= 8; ++wheel) {
        Project p = soundProject();
        p.NofCranes = 2;
        for (const int gap : {1, 2, 3, 4, 5, 6}) p.Avst(gap) = 500;
        p.H(wheel) = -1.5;
        settleLoads(p, LoadForm::Overhead);
        EXPECT_EQ(p.HasLoadsY, wheel != 6) << wheel;
        settleLoads(p, LoadForm::Monorail);
        EXPECT_EQ(p.HasLoadsY, wheel <= 4) << wheel;
    }
}

}  // namespace
}  // namespace borvik
