#include "base/whole_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <system_error>

#include "base/sha256.h"
#include "support/full_disk.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::FullDisk;
using testing_support::TempFolder;
using testing_support::writeBytes;
namespace fs = std::filesystem;

std::errc reasonOf(const std::string& path, const std::string& bytes) {
    try {
        overwriteFile(path, bytes);
    } catch (const std::system_error& error) {
        return static_cast<std::errc>(error.code().value());
    }
    return {};
}

TEST(OverwriteFile, keepsTheTailOfALongerFile) {
    const TempFolder folder;
    const std::string path = folder.file("a");
    struct Case {
        std::string old, written, expected;
    };
    const std::string longTail = std::string(200000, 'y') + "end";
    for (const Case& c : {Case{"", "new", "new"},
                          {"abcdef", "XY", "XYcdef"},
                          {"ab", "XY", "XY"},
                          {"a", "XYZ", "XYZ"},
                          {"12" + longTail, "AB", "AB" + longTail},
                          {"abc", "", "abc"}}) {
        writeBytes(path, c.old);
        overwriteFile(path, c.written);
        EXPECT_EQ(bytesOf(path), c.expected);
    }
    EXPECT_EQ(folder.count(), 1) << "something was left beside the file";
}

TEST(OverwriteFile, keepsPermissionsAndGivesANewFileTheUsualOnes) {
    const TempFolder folder;
    const std::string old = folder.file("old"), fresh = folder.file("fresh");
    writeBytes(old, "x");
    ::chmod(old.c_str(), 0640);
    const mode_t mask = ::umask(027);
    overwriteFile(old, "y");
    overwriteFile(fresh, "y");
    replaceFile(folder.file("private"), "y", Readers::UserOnly);
    ::umask(mask);
    struct stat status {};
    ASSERT_EQ(::stat(folder.file("private").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0600U);
    ASSERT_EQ(::stat(old.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    ASSERT_EQ(::stat(fresh.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U) << "0666 without the mask 027";
}

TEST(OverwriteFile, followsSymbolicLinks) {
    const TempFolder folder;
    fs::create_directory(folder.path() / "deep");
    writeBytes(folder.path() / "deep/real", "old!");
    fs::create_symlink("deep/real", folder.path() / "link");
    fs::create_symlink("link", folder.path() / "second");
    fs::create_symlink("deep/not yet", folder.path() / "dangling");
    fs::create_symlink("circle", folder.path() / "circle");

    overwriteFile(folder.file("second"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "second"));
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(bytesOf(folder.path() / "deep/real"), "new!");

    overwriteFile(folder.file("dangling"), "made");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "dangling"));
    EXPECT_EQ(bytesOf(folder.path() / "deep/not yet"), "made");

    EXPECT_EQ(reasonOf(folder.file("circle"), "x"), std::errc::too_many_symbolic_link_levels);
}

TEST(OverwriteFile, onAFullDiskTheOldFileStays) {
    const TempFolder folder;
    const std::string path = folder.file("a");
    const std::string old(3000, 'o');
    writeBytes(path, old);
    for (const std::string& bytes : {std::string(5000, 'n'), std::string("short, but the tail doesn't fit")}) {
        const FullDisk full(1000);
        EXPECT_EQ(reasonOf(path, bytes), std::errc::file_too_large);
        EXPECT_EQ(reasonOf(folder.file("fresh"), std::string(1001, 'n')), std::errc::file_too_large);
    }
    EXPECT_EQ(bytesOf(path), old);
    EXPECT_EQ(folder.count(), 1) << "something was left beside the file";
}

TEST(OverwriteFile, removesWhatKilledSavesHaveLeftADayAgo) {
    const TempFolder folder;
    const fs::path old = folder.path() / ".borvik-1-0.tmp", fresh = folder.path() / ".borvik-2-0.tmp";
    const fs::path foreign = folder.path() / "old.tmp";
    for (const fs::path& file : {old, fresh, foreign}) writeBytes(file, "half a project");
    for (const fs::path& file : {old, foreign})
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(25));
    overwriteFile((folder.path() / "beam.brvk").string(), "project");
    EXPECT_FALSE(fs::exists(old));
    EXPECT_TRUE(fs::exists(fresh)) << "another save may be writing it";
    EXPECT_TRUE(fs::exists(foreign));
}

TEST(OverwriteFile, refusesWhatIsNoFile) {
    const TempFolder folder;
    EXPECT_EQ(reasonOf(folder.path().string(), "x"), std::errc::is_a_directory);
    EXPECT_EQ(reasonOf(folder.file("no/such/folder"), "x"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(reasonOf("", "x"), std::errc::no_such_file_or_directory);
    ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
    EXPECT_EQ(reasonOf(folder.file("pipe"), "x"), std::errc::not_supported);
    EXPECT_TRUE(fs::is_fifo(folder.path() / "pipe"));
    EXPECT_EQ(folder.count(), 1);
}

/// An ordinary user while this lives, also where the tests run as the superuser, who may write everything.
class OrdinaryUser {
public:
    OrdinaryUser() { EXPECT_EQ(before_ == 0 ? ::seteuid(kNobody) : 0, 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() { EXPECT_EQ(before_ == 0 ? ::seteuid(before_) : 0, 0); }
    static void own(const fs::path& path) {
        EXPECT_EQ(::geteuid() == 0 ? ::chown(path.c_str(), kNobody, kNobody) : 0, 0);
    }

private:
    static constexpr uid_t kNobody = 65534;
    uid_t before_ = ::geteuid();
};

TEST(OverwriteFile, leavesAloneWhatTheUserMayNotWrite) {
    const TempFolder folder;
    fs::create_directory(folder.path() / "closed");
    const std::string readOnly = folder.file("a"), inside = folder.file("closed/b");
    for (const auto& path : {readOnly, inside}) writeBytes(path, "old");
    for (const auto& path : {folder.path().string(), readOnly, inside, folder.file("closed")}) OrdinaryUser::own(path);
    ::chmod(readOnly.c_str(), 0444);
    ::chmod(folder.file("closed").c_str(), 0555);
    {
        const OrdinaryUser user;
        EXPECT_EQ(reasonOf(readOnly, "new"), std::errc::permission_denied);
        EXPECT_EQ(reasonOf(inside, "new"), std::errc::permission_denied);
        EXPECT_EQ(reasonOf(folder.file("c"), "new"), std::errc{}) << "a file of the user's own";
    }
    ::chmod(folder.file("closed").c_str(), 0755);
    EXPECT_EQ(bytesOf(readOnly), "old");
    EXPECT_EQ(bytesOf(inside), "old");
    EXPECT_EQ(folder.count(), 3);
}

TEST(ReadFile, readsEveryByte) {
    const TempFolder folder;
    std::string bytes;
    for (int i = 0; i < 70000; ++i) bytes += static_cast<char>(i);
    writeBytes(folder.file("a"), bytes);
    EXPECT_EQ(readFile(folder.file("a")), bytes);
    EXPECT_THROW((void)readFile(folder.path().string()), std::system_error) << "a folder";
    EXPECT_THROW((void)readFile(folder.file("none")), std::system_error);
}

// FIPS 180-4's examples, and lengths on both sides of where another block begins.
TEST(Sha256, hasThePublishedDigests) {
    EXPECT_EQ(sha256(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(sha256("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(sha256("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"),
              "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
    EXPECT_EQ(sha256(std::string(1000000, 'a')), "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

}  // namespace
}  // namespace borvik
