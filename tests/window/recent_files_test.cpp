#include "window/recent_files.h"

#include <gtest/gtest.h>

namespace borvik {
namespace {

using Paths = std::vector<std::string>;

Paths stored(const SettingsInMemory& settings) {
    Paths paths;
    for (const auto& [key, path] : settings.getAll("Borvik", "Recent Files")) paths.push_back(path);
    return paths;
}

Paths shown(const RescentFile& recent) {
    Paths paths;
    for (const std::string& caption : recent.captions()) paths.push_back(RescentFile::pathOf(caption));
    return paths;
}

struct Case {
    const char* name;
    Paths before;
    bool open;  ///< else saved
    std::string path;
    Paths after;
};
void PrintTo(const Case& c, std::ostream* out) {
    *out << c.name;
}

class RecentFiles : public testing::TestWithParam<Case> {};

TEST_P(RecentFiles, keepTheirOrder) {
    const Case& c = GetParam();
    SettingsInMemory settings;
    for (std::size_t i = 0; i < c.before.size(); ++i)
        settings.save("Borvik", "Recent Files", "RecentFile" + std::to_string(i + 1), c.before[i]);
    RescentFile recent(settings, "Borvik");
    recent.ShowRecentFiles();
    if (c.open) {
        recent.AddRecentOnOpen(c.path);
    } else {
        recent.AddRecentOnSave(c.path);
    }
    EXPECT_EQ(stored(settings), c.after);
    recent.ShowRecentFiles();
    EXPECT_EQ(shown(recent), c.after);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, RecentFiles,
    testing::Values(Case{"firstSave", {}, false, "/a", {"/a"}}, Case{"firstOpen", {}, true, "/a", {"/a"}},
                    Case{"savedTwiceStandsTwice", {"/a"}, false, "/a", {"/a", "/a"}},
                    Case{"fifthSaveLosesTheOldest", {"/a", "/b", "/c", "/d"}, false, "/e", {"/e", "/a", "/b", "/c"}},
                    Case{"openFirst", {"/a", "/b", "/c", "/d"}, true, "/a", {"/a", "/b", "/c", "/d"}},
                    Case{"openSecond", {"/a", "/b", "/c", "/d"}, true, "/b", {"/b", "/a", "/c", "/d"}},
                    Case{"openThird", {"/a", "/b", "/c", "/d"}, true, "/c", {"/c", "/a", "/b", "/d"}},
                    Case{"openFourth", {"/a", "/b", "/c", "/d"}, true, "/d", {"/d", "/a", "/b", "/c"}},
                    Case{"openUnlisted", {"/a", "/b", "/c", "/d"}, true, "/e", {"/e", "/a", "/b", "/c"}},
                    Case{"openUnlistedShortList", {"/a", "/b"}, true, "/e", {"/e", "/a", "/b"}}),
    [](const auto& tested) { return tested.param.name; });

TEST(RecentFiles, captionsAreNumberAndPath) {
    SettingsInMemory settings;
    RescentFile recent(settings, "Borvik");
    recent.ShowRecentFiles();
    EXPECT_TRUE(recent.captions().empty());
    recent.AddRecentOnSave("/home/räls/b & c.brvk");
    recent.AddRecentOnSave("/tmp/x.brvk");
    recent.ShowRecentFiles();
    EXPECT_EQ(recent.captions(), (Paths{"1. /tmp/x.brvk", "2. /home/räls/b & c.brvk"}));
    EXPECT_EQ(RescentFile::pathOf("2. /home/räls/b & c.brvk"), "/home/räls/b & c.brvk");
}

}  // namespace
}  // namespace borvik
