#include "validation.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace borvik {
namespace {

TEST(Validation, theProgramAgreesWithTheHandCalculations) {
    const validation::Document document = validation::validate(LoadTables(BORVIK_SOURCE_DIR "/data"));
    EXPECT_THAT(document.failures(), testing::IsEmpty());
    EXPECT_GE(document.comparisons(), 60);
    EXPECT_TRUE(document.markdown() == testing_support::bytesOf(BORVIK_SOURCE_DIR "/docs/validation.md"))
        << "docs/validation.md is out of date: run build/release/tools/validation/validation docs/validation.md";
}

TEST(Validation, seesANumberThatDiffers) {
    validation::Document document;
    document.compare({{"M, kNm", "P L/4", 200, 200.0003}, {"R, kN", "P/2", 50, 50.00001}});
    EXPECT_THAT(document.failures(), testing::ElementsAre(testing::HasSubstr("M, kNm is 200, by hand 200")));
}

}  // namespace
}  // namespace borvik
