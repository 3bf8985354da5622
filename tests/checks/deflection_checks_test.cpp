#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "checks/samples.h"
#include "checks/static_checks.h"

namespace borvik {
namespace {

using testing::ElementsAre;

// Spans of 5000 mm: the limit is 10 mm vertically (L/500), 12.5 mm horizontally (L/400).
TEST(Deflection, textsAndWhatGoverns) {
    Project project = samples::project(3, samples::section());
    project.DefY = 400;
    SlsResults sls = samples::sls(3);
    samples::setRow(sls.UzMaxSpan, 1, {10, 1, 1400});  // exactly the limit
    samples::setRow(sls.UzMaxSpan, 2, {90, 2, 200.5});
    samples::setRow(sls.UzMaxSpan, 3, {100, 3, 0});  // 10.000 ranks below 9.000
    samples::setRow(sls.UyMaxSpan, 2, {2.5, 3, 600});
    samples::setRow(sls.UyMaxSpan, 3, {2.5, 3, 800});
    const UlsResults uls = samples::uls(3);
    const RailRecord rail;
    const CheckBasis basis{project, rail, uls, sls};
    const CheckResults checks{{runCheck("DefZ", basis), runCheck("DefY", basis)}};

    EXPECT_THAT(samples::texts(checks["DefZ"].spans(1), 5),
                ElementsAre("IR = dz/(L/500)=", "10.0/(5000/500)=", "1.000", " <  1.00 ", "1/1400"));
    EXPECT_THAT(samples::texts(checks["DefY"].spans(1), 5),
                ElementsAre("IR = dy/(L/400)=", "0.0/(5000/400)=", "0.000", " <  1.00 ", "0/0"));
    EXPECT_EQ(checks["DefZ"].spans(2)(5), "2/200.5");
    EXPECT_EQ(checks["DefZ"].spans(3)(3), "10.000");
    // The wheel's place stays that of the first span.
    EXPECT_THAT(samples::texts(checks["DefZ"].governing, 5),
                ElementsAre("IR = dz/(L/500)=", "90.0/(5000/500)=", "9.000", " <  1.00 ", "1/1400"));
    EXPECT_EQ(checks["DefZ"].governing.Ratio, 9.0);
    EXPECT_THAT(samples::texts(checks["DefY"].governing, 5),
                ElementsAre("IR = dy/(L/400)=", "2.5/(5000/400)=", "0.200", " <  1.00 ", "0/0"));
}

}  // namespace
}  // namespace borvik
