#include "base/number_text.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "base/fault.h"

namespace borvik {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kLargestSingle = 3.4028234663852886e38;

TEST(DecimalValue, readsTheLongestNumericPrefix) {
    struct Case {
        const char* text;
        double expected;
    };
    const Case cases[] = {
        {"12", 12},
        {"  -3.5 mm", -3.5},
        {"+7", 7},
        {"12,75", 12.75},
        {"1,20E+12", Single(1.2e12)},
        {"1.5e-3x", Single(1.5e-3)},
        {"2E", 2},
        {"2E+", 2},
        {"1,234,5", Single(1.234)},
        {".5", 0.5},
        {"5.", 5},
        {"-.25e1", -2.5},
        {"0.1", Single(0.1)},
        {"16777217", 16777216},
        {"", 0},
        {"   ", 0},
        {".", 0},
        {"-", 0},
        {"E5", 0},
        {"abc", 0},
        {"inf", 0},
        {"nan", 0},
        {"- 5", 0},
        {"0x10", 0},
        {"1e39", kLargestSingle},
        {"-1e39", -kLargestSingle},
        {"1e999", kLargestSingle},
        {"-1e99999999999999999999", -kLargestSingle},
        {"1e-999", 0},
        {"0e999", 0},
        {"0.0001e400", kLargestSingle},
        {"-0.0001e-400", 0},
    };
    for (const Case& c : cases) EXPECT_EQ(double(DecimalValue(c.text)), c.expected) << '"' << c.text << '"';
    EXPECT_EQ(double(DecimalValue("1" + std::string(400, '0') + "e-10")), kLargestSingle);
    EXPECT_EQ(double(DecimalValue("0." + std::string(400, '0') + "1e10")), 0.0);
    EXPECT_EQ(double(DecimalValue("1" + std::string(400, '0') + "e-400")), 1.0);
}

TEST(DecimalValue, raisesNoArithmeticFault) {
    EXPECT_NO_THROW(watched("Reading", 0, [] {
        for (const char* text : {"1e39", "-1e999", "1e-60", "nonsense"}) (void)DecimalValue(text);
    }));
}

TEST(FormatNumber, followsTheMask) {
    struct Case {
        double number;
        const char* mask;
        const char* expected;
    };
    const Case cases[] = {
        // digits that always show and digits that show where they are needed
        {0, "0", "0"},
        {0, "#", ""},
        {0, "###", ""},
        {0.4, "###", ""},
        {3, "#", "3"},
        {12345, "###", "12345"},
        {5, "#0", "5"},
        {5, "#00", "05"},
        {5, "#000", "005"},
        {0, "#000", "000"},
        {355, "#000", "355"},
        {4000, "##0", "4000"},
        {0, "##0", "0"},
        {0.5, "#.0", ".5"},
        {0, "#.0", ".0"},
        {-0.5, "#.0", "-.5"},
        {12.34, "#.0", "12.3"},
        {210000, "##.0", "210000.0"},
        {1, "#.00", "1.00"},
        {1.15, "#.00", "1.15"},
        {1.5, "0.0##", "1.5"},
        {1.23456, "0.0##", "1.235"},
        // blanks and other characters stand for themselves
        {6000, "0 ", "6000 "},
        {88.3, "0.0 ", "88.3 "},
        {7, " 0 mm", " 7 mm"},
        // ties of the decimal text go away from zero, whatever the binary number is
        {0.125, "0.00", "0.13"},
        {-0.125, "0.00", "-0.13"},
        {1.005, "0.00", "1.01"},
        {0.0005, "0.000", "0.001"},
        {0.00049999, "0.000", "0.000"},
        {2.5, "0", "3"},
        {0.5, "0", "1"},
        {0.05, "0", "0"},
        {0.49, "0", "0"},
        {1.45, "0.0", "1.5"},
        {Single(1.45), "0.0", "1.5"},  // 1.4500000476837158 as a double
        {Single(0.15), "0.0", "0.2"},  // 0.15000000596046448
        {Single(0.35), "0.0", "0.3"},  // 0.3499999940395355: the single lies below the tie
        // carries
        {9.995, "0.00", "10.00"},
        {0.9996, "0.000", "1.000"},
        {99.96, "0.0", "100.0"},
        {0.96, "#.0", "1.0"},
        {0.96, "#.#", "1."},
        // signs
        {-0.0004, "0.000", "0.000"},
        {-0.0, "0.0", "0.0"},
        {-0.4, "#", ""},
        {-12.3, "0.00", "-12.30"},
        // the scientific form
        {1.2e12, "0.000E+0", "1.200E+12"},
        {11250, "0.000E+0", "1.125E+4"},
        {0, "0.000E+0", "0.000E+0"},
        {1, "0.000E+0", "1.000E+0"},
        {9.9996e5, "0.000E+0", "1.000E+6"},
        {-1.2345e-7, "0.000E+0", "-1.235E-7"},
        {1.2e12, "0.00E+00", "1.20E+12"},
        {5, "0.00E+00", "5.00E+00"},
        // large and small
        {1e22, "0.0", "10000000000000000000000.0"},
        {123456789012345680.0, "0", "123456789012345680"},
        {5e-324, "0.000", "0.000"},
        // what is no number stays visible
        {kNan, "0.000", "nan"},
        {-kNan, "0.000", "nan"},
        {kInfinity, "0.000E+0", "inf"},
        {-kInfinity, "#", "-inf"},
        // no digits asked for
        {5, "", "5"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(formatNumber(c.number, c.mask), c.expected) << c.number << " by \"" << c.mask << '"';
}

TEST(GeneralText, ofASingleIsTheShortestThatReadsBack) {
    struct Case {
        double number;
        const char* expected;
    };
    const Case cases[] = {
        {0, "0"},
        {-0.0, "0"},
        {15, "15"},
        {-1900, "-1900"},
        {0.1, "0.1"},
        {8.5, "8.5"},
        {0.05, "0.05"},
        {33.3, "33.3"},
        {1234.567, "1234.567"},
        {9999999, "9999999"},
        {1e7, "1E+07"},
        {1.2e12, "1.2E+12"},
        {1e-5, "0.00001"},
        {9.5e-6, "9.5E-06"},
        {-1e-6, "-1E-06"},
        {1e38, "1E+38"},
        {kNan, "nan"},
        {-kInfinity, "-inf"},
        {16777216, "1.6777216E+07"},
    };
    for (const Case& c : cases) EXPECT_EQ(generalText(Single(c.number)), c.expected) << c.number;
    EXPECT_EQ(generalText(-12), "-12");
}

TEST(PlainText, ofADoubleIsTheShortestThatReadsBack) {
    struct Case {
        double number;
        const char* expected;
    };
    const Case cases[] = {
        {0, "0"},
        {0.1, "0.1"},
        {Single(0.1), "0.10000000149011612"},
        {1900, "1900"},
        {1e-4, "0.0001"},
        {1.5e-5, "1.5E-05"},
        {1e14, "100000000000000"},
        {1e15, "1E+15"},
        {-1.25e100, "-1.25E+100"},
        {kNan, "nan"},
    };
    for (const Case& c : cases) EXPECT_EQ(plainText(c.number), c.expected) << c.number;
}

TEST(RoundHalfEven, takesTheEvenOfTwoEquallyNear) {
    for (const auto& [number, expected] : {std::pair{0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.500001, 3}})
        EXPECT_EQ(roundHalfEven(number), expected) << number;
    EXPECT_EQ(roundHalfEven(2147483647.0), 2147483647);
    for (const double number : {2147483648.0, -2147483649.0, kInfinity, kNan})
        EXPECT_THROW((void)roundHalfEven(number), RuntimeFault);
}

}  // namespace
}  // namespace borvik
