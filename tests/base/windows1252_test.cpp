#include "base/windows1252.h"

#include <gtest/gtest.h>

#include <string>

namespace borvik {
namespace {

TEST(Windows1252, everyByteSurvivesTheWayToUtf8AndBack) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    bool lost = false;
    EXPECT_EQ(toWindows1252(fromWindows1252(bytes), lost), bytes);
    EXPECT_FALSE(lost);
}

TEST(Windows1252, knowsItsCharacters) {
    EXPECT_EQ(fromWindows1252("\xC5\xE4\xF6 \x80\x97\x9F"), "\u00C5\u00E4\u00F6 \u20AC\u2014\u0178");
    EXPECT_EQ(fromWindows1252("\x81"), "\u0081");
}

TEST(Windows1252, replacesWhatHasNoPlace) {
    struct Case {
        std::string utf8, expected;
        const char* what;
    };
    const Case cases[] = {
        {"a\u0141b", "a?b", "Polish L"},
        {"\u6881", "?", "Chinese beam"},
        {"\U0001F3D7x", "?x", "beyond 16 bits"},
        {"\xC2\x80", "?", "control character whose byte is taken by another"},
        {"\xC5", "?", "cut sequence"},
        {"\xE2\x82", "??", "cut sequence of three"},
        {"\xE2"
         "a",
         "?a", "broken sequence keeps what follows"},
        {"\xA4z", "?z", "continuation without a lead"},
        {"\xC0\x80", "??", "longer than needed"},
        {"\xFF", "?", "no lead byte"},
    };
    for (const Case& c : cases) {
        bool lost = false;
        EXPECT_EQ(toWindows1252(c.utf8, lost), c.expected) << c.what;
        EXPECT_TRUE(lost) << c.what;
    }
    bool lost = true;
    EXPECT_EQ(toWindows1252("plain", lost), "plain");
    EXPECT_TRUE(lost) << "a loss noted before stays noted";
}

}  // namespace
}  // namespace borvik
