// Saving while the process is killed, and where the system refuses.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <random>
#include <string>

#include "project/project_file.h"
#include "support/temp_folder.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TempFolder;

std::string bytesFrom(const Project& project) {
    bool lost = false;
    return projectBytes(project, lost);
}

/// Projects of the same length in bytes, so that a mixture of both would be a file that loads.
Project projectCalled(const std::string& title) {
    Project project;
    project.Proj = title;
    project.SpanSection = Array<SectionRecord>(1, 30);
    for (SectionRecord& section : project.SpanSection) section.DisplayName = title;
    return project;
}

const int kKills = testing_support::wantedCount("BORVIK_KILLS", 60);

/// Saves first one, then the other, until it is killed. Says by a byte in `pipe` that it has begun.
[[noreturn]] void saveForEver(const std::string& path, const Project& first, const Project& second, int pipe) {
    try {
        SaveProject(path, first);
        if (::write(pipe, "!", 1) != 1) ::_exit(2);
        for (;;) {
            SaveProject(path, second);
            SaveProject(path, first);
        }
    } catch (...) {
        ::_exit(1);
    }
}

std::ptrdiff_t removeWhatIsBeside(const TempFolder& folder, const std::string& path) {
    std::ptrdiff_t removed = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
        if (entry.path() != path) removed += std::filesystem::remove(entry.path()) ? 1 : 0;
    return removed;
}

TEST(KilledSave, leavesTheOldFileOrTheNewOne) {
    const TempFolder folder;
    const std::string path = folder.file("runway.brvk");
    const Project first = projectCalled("first "), second = projectCalled("second");
    const std::string firstBytes = bytesFrom(first), secondBytes = bytesFrom(second);
    SaveProject(path, first);

    std::mt19937 random(20260101);
    std::ptrdiff_t halfway = 0;
    for (int kill = 1; kill <= kKills; ++kill) {
        std::array<int, 2> begun{};
        ASSERT_EQ(::pipe(begun.data()), 0);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) saveForEver(path, first, second, begun[1]);
        ::close(begun[1]);
        char byte = 0;
        ASSERT_EQ(::read(begun[0], &byte, 1), 1) << "the first save failed";
        ::close(begun[0]);
        ::usleep(static_cast<useconds_t>(random() % 8000));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "saving failed before it could be killed";

        const std::string found = bytesOf(path);
        ASSERT_TRUE(found == firstBytes || found == secondBytes) << "kill " << kill << ", " << found.size() << " bytes";
        halfway += removeWhatIsBeside(folder, path);
    }
    EXPECT_GT(halfway, 0) << "no kill fell into a save, so nothing was tried";
    RecordProperty("kills", std::to_string(kKills));
    RecordProperty("killsInsideASave", std::to_string(halfway));
}

TEST(RefusedSave, saysWhatAndWhyAndLeavesTheOldFile) {
    const TempFolder folder;
    const std::string path = folder.file("runway.brvk");
    const Project old = projectCalled("old");
    SaveProject(path, old);

    // As on a full disk: no file may grow beyond 2000 bytes.
    auto* const handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{2000, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    std::string text;
    try {
        SaveProject(path, projectCalled("new"));
    } catch (const ProjectFileError& error) {
        text = error.what();
    }
    ::setrlimit(RLIMIT_FSIZE, &before);
    (void)std::signal(SIGXFSZ, handler);

    EXPECT_EQ(text, "The project file \"" + path + "\" can't be written: File too large.");
    EXPECT_TRUE(bytesOf(path) == bytesFrom(old));
    EXPECT_EQ(folder.count(), 1) << "something was left beside the file";
}

}  // namespace
}  // namespace borvik
