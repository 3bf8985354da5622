#include "fatigue/wheel_stress.h"

#include <gtest/gtest.h>

#include "girder.h"

namespace borvik {
namespace {

TEST(WheelStress, eachCraneWithItsOwnWheelAndFactors) {
    Girder girder;
    const auto stress = [&girder] {
        return wheelStress(girder.project, girder.rail, girder.factors, girder.project.SpanSection(1));
    };
    WheelStress web = stress();  // 129.41 and 70.59 MPa before the factors
    EXPECT_NEAR(web.SigLoc(1), 110.0, 1e-4);
    EXPECT_NEAR(web.TauLoc(1), 22.0, 1e-4);  // 0.4 x 0.425
    EXPECT_NEAR(web.SigLoc(2), 24.0, 1e-4);
    EXPECT_NEAR(web.TauLoc(2), 4.8, 1e-4);
    girder.project.W1 = "FW";
    girder.project.W1a = 5.5;
    EXPECT_NEAR(stress().SigLoc(1), 100.0, 1e-4);
}

// Flat bar 50 x 40 worn by 40/8 = 5 mm: Ir = 35^3 x 50/12 = 178645.8 mm4, beff = 50 + 40 + 20 - 5 = 105 mm,
// If = 20^3 x 105/12 = 70000 mm4, leff = 4.25 (248645.8/10)^(1/3).
TEST(WheelStress, theRailIsWornByHalfOfTheStaticWear) {
    Girder girder;
    girder.rail.RailHr = 40;
    girder.rail.RailBr = girder.rail.RailKr = 50;
    girder.rail.RailAx = 2000;
    EXPECT_NEAR(wheelSpread(girder.project, girder.rail, girder.project.SpanSection(1)).leff, 124.04597, 1e-5);
}

TEST(WheelStress, flangeBendingOfAMonorail) {
    Girder girder;
    girder.project.Inn = 0;  // c = -2.11 + 0.0076; 100 kN x 2.1024/2 x 1000/20^2 = 262.8 MPa, without PhiFat
    const SectionRecord& section = girder.project.SpanSection(1);
    EXPECT_NEAR(flangeBending(girder.project, girder.factors, section), 262.8 * 0.85, 1e-4);
    girder.project.Inn = 47.5;  // mu = 0.5: c = -2.11 + 0.9885 + 0.0076 e^3.265 = -0.9225312
    EXPECT_NEAR(flangeBending(girder.project, girder.factors, section), 0.9225312 * 125 * 0.85, 1e-3);
}

}  // namespace
}  // namespace borvik
