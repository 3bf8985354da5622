#include "project/project_file.h"

#include <gtest/gtest.h>

#include <bit>
#include <filesystem>
#include <random>
#include <string>

#include "base/windows1252.h"
#include "project/project_fields.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TempFolder;
using testing_support::writeBytes;
using Kind = ProjectFileError::Kind;

const std::string kVectors = BORVIK_SOURCE_DIR "/tests/data/vectors";

// Where fields stand in a project without texts: two empty titles, then the beam and the loads.
constexpr std::size_t kBeam = 2 + 2;
constexpr std::size_t kLists = kBeam + 142 + 124;
constexpr std::size_t kDescriptor = 10;
constexpr std::size_t kSelfWeight = kLists + 2 * kDescriptor;
constexpr std::size_t kSectionBytes = 736;

std::string bytesFrom(const Project& project) {
    bool lost = false;
    return projectBytes(project, lost);
}

std::string littleEndian(std::int32_t number) {
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(static_cast<std::uint32_t>(number) >> shift);
    return bytes;
}

/// The kind and text of the refusal; fails the test when there is none.
template <class Action>
std::pair<Kind, std::string> refusalOf(Action action) {
    try {
        action();
    } catch (const ProjectFileError& error) {
        return {error.kind(), error.what()};
    }
    ADD_FAILURE() << "nothing was refused";
    return {Kind::Other, ""};
}

/// Gives every field random bits: NaNs, indices of all sizes, texts of all bytes.
class Filler {
public:
    explicit Filler(unsigned start) : random_(start) {}
    template <class... Fields>
    void operator()(Fields&... fields) {
        (fill(fields), ...);
    }
    void fixedText(std::string& text) { text = randomText(64); }

private:
    template <class Whole>
    void fill(Whole& number) {
        number = static_cast<Whole>(random_());
    }
    void fill(bool& flag) { flag = random_() % 2 == 0; }
    void fill(Single& number) {
        const auto bits = static_cast<std::uint32_t>(random_());
        const std::uint32_t notANumber = 0x7F800001U | (bits & 0x807FFFFFU);
        number = Single::fromStored(std::bit_cast<float>(bits % 3 == 0 ? notANumber : bits));
    }
    void fill(std::string& text) { text = randomText(random_() % 50); }
    template <class T, int First, int Last>
    void fill(FixedArray<T, First, Last>& items) {
        for (T& item : items) fill(item);
    }
    void fill(Array<SectionRecord>& sections) {
        const int first = static_cast<int>(random_() % 5) - 2;
        sections = Array<SectionRecord>(first, first + static_cast<int>(random_() % 4) - 1);
        for (SectionRecord& section : sections) {
            visitSection(*this, section);
            section.DisplayName = "a name, which needs no mending";
        }
    }
    std::string randomText(std::size_t length) {
        std::string bytes;
        for (std::size_t i = 0; i < length; ++i) bytes += static_cast<char>(random_());
        return fromWindows1252(bytes);
    }
    std::mt19937 random_;
};

TEST(ProjectFile, hasTheSizesOfItsLayout) {
    Project project;
    EXPECT_EQ(bytesFrom(project).size(), 952U + 18 * 2 + 2 * kDescriptor);
    EXPECT_EQ(bytesFrom(project).size(), 1008U);
    project.SectionList = {};
    project.SpanSection = {};
    EXPECT_EQ(bytesFrom(project).size(), 992U) << "arrays that never had bounds are a count of dimensions only";
    project.SpanSection = Array<SectionRecord>(1, 3);
    EXPECT_EQ(bytesFrom(project).size(), 1000U + 3 * kSectionBytes);
    project.SpanSection(2).TableName = "HEA 300";
    project.Proj = "\u00C5ker \u20AC";  // six characters, ten bytes of UTF-8
    EXPECT_EQ(bytesFrom(project).size(), 1000U + 3 * kSectionBytes + 7 + 6);
}

TEST(ProjectFile, fieldsStandWhereTheLayoutPutsThem) {
    Project project;
    project.Span(2) = 0x01020304;
    project.NofCranes = 2;
    project.Fixerad = true;
    project.V(8) = 1.0;
    project.StartStopOutside = 1;
    project.SectionList = Array<SectionRecord>(-1, -1);
    project.SectionList(-1).SpareText(5) = "tail";
    const std::string bytes = bytesFrom(project);
    EXPECT_EQ(bytes.substr(kBeam + 4, 4), "\x04\x03\x02\x01");
    EXPECT_EQ(bytes.substr(kBeam + 140, 2), std::string("\x02\0", 2));
    EXPECT_EQ(bytes.substr(kBeam + 142 + 4, 2), "\xFF\xFF");
    EXPECT_EQ(bytes.substr(kLists - 24 - 32 - 4, 4), std::string("\0\0\x80\x3F", 4));
    EXPECT_EQ(bytes.substr(kLists, kDescriptor), std::string("\x01\0", 2) + littleEndian(1) + littleEndian(-1));
    EXPECT_EQ(bytes.substr(kLists + kDescriptor + kSectionBytes - 64, 64), "tail" + std::string(60, ' '));
    EXPECT_EQ(bytes.substr(bytes.size() - 22, 2), std::string("\x01\0", 2));
}

TEST(ProjectFile, projectsOfAnIndependentProgramSurviveUnchanged) {
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kVectors)) {
        if (entry.path().extension() != ".brvk") continue;
        ++count;
        Project project;
        LoadProject(entry.path().string(), project);
        EXPECT_TRUE(bytesFrom(project) == bytesOf(entry.path())) << entry.path();
    }
    EXPECT_GE(count, 18);
    Project project;
    LoadProject(kVectors + "/case-10.brvk", project);
    EXPECT_EQ(project.Proj, "Random \u00E5 10");
    EXPECT_EQ(project.SpanSection.first(), 1);
    EXPECT_EQ(project.SpanSection.last(), 30);
    EXPECT_EQ(project.SectionList.first(), 0);
}

TEST(ProjectFile, everyBitOfEveryFieldSurvives) {
    for (unsigned start = 1; start <= 50; ++start) {
        Filler filler(start);
        Project project, read;
        visitProject(filler, project);
        const std::string bytes = bytesFrom(project);
        readProjectBytes(bytes, read);
        EXPECT_TRUE(bytesFrom(read) == bytes) << start;
        EXPECT_EQ(read.Proj, project.Proj);
        EXPECT_EQ(read.SetupSpare3(5).stored() == read.SetupSpare3(5).stored(),
                  project.SetupSpare3(5).stored() == project.SetupSpare3(5).stored());
    }
}

TEST(ProjectFile, fixedTextsKeepEveryByte) {
    Project project;
    project.SectionList = Array<SectionRecord>(0, 0);
    std::string bytes = bytesFrom(project);
    const std::size_t texts = kLists + kDescriptor + kSectionBytes - 5 * 64;
    for (std::size_t i = 0; i < 5 * 64; ++i) bytes[texts + i] = static_cast<char>(i);
    readProjectBytes(bytes, project);
    EXPECT_TRUE(bytesFrom(project) == bytes);

    Project blank;
    blank.SectionList = Array<SectionRecord>(0, 0);
    readProjectBytes(bytesFrom(blank), project);
    EXPECT_TRUE(project == blank) << "blanks that only fill are no part of the text";

    project.SectionList(0).SpareText(1) = std::string(65, 'x');
    EXPECT_EQ(refusalOf([&] { (void)bytesFrom(project); }).first, Kind::Other);
}

TEST(ProjectFile, anyFlagThatIsNotZeroIsTrue) {
    std::string bytes = bytesFrom(Project{});
    for (const char* flag : {"\x01\0", "\0\x01", "\xFF\xFF", "\0\x80"}) {
        bytes.replace(kSelfWeight, 2, std::string(flag, 2));
        Project project;
        readProjectBytes(bytes, project);
        EXPECT_TRUE(project.SelfWeight);
        EXPECT_EQ(bytesFrom(project).substr(kSelfWeight, 2), "\xFF\xFF");
    }
}

TEST(ProjectFile, everyCutLengthIsAnEndOfFile) {
    Project project;
    project.Proj = "Kran";
    project.SteelGrade = "S355";
    project.SectionList = Array<SectionRecord>(0, 1);
    project.SpanSection = Array<SectionRecord>(1, 2);
    project.SpanSection(2).DisplayName = "HEA 300";
    const std::string bytes = bytesFrom(project);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        Project read;
        const auto [kind, text] = refusalOf([&] { readProjectBytes(bytes.substr(0, length), read); });
        ASSERT_EQ(kind, Kind::EndOfFile) << length;
        ASSERT_EQ(text, " End of file passed ") << length;
    }
    Project read;
    EXPECT_NO_THROW(readProjectBytes(bytes + "the tail of a longer file", read));
    EXPECT_TRUE(read == project);
}

TEST(ProjectFile, aCutFileLeavesWhatWasRead) {
    Project saved;
    saved.Proj = "new";
    saved.Span(1) = 4321;
    saved.SpanSection = Array<SectionRecord>(1, 3);
    saved.SpanSection(1).TableName = "IPE 300";
    saved.RailName = "A 75";
    const std::string bytes = bytesFrom(saved);

    Project project;
    project.SteelGrade = "S235";
    project.Span(1) = 1;
    project.fyk = 235;
    project.StartStopOutside = 1;
    project.SectionList = Array<SectionRecord>(0, 2);
    const TempFolder folder;
    writeBytes(folder.file("cut.brvk"), bytes.substr(0, kLists + 3 + 2 * kDescriptor + kSectionBytes + 100));
    EXPECT_THROW(LoadProject(folder.file("cut.brvk"), project), ProjectFileError);
    EXPECT_EQ(project.Proj, "new");
    EXPECT_EQ(project.Span(1), 4321);
    EXPECT_EQ(project.SectionList.size(), 0);
    EXPECT_EQ(project.SpanSection(1).TableName, "IPE 300");
    EXPECT_EQ(project.SpanSection(1).DisplayName, "") << "only a whole project is mended";
    EXPECT_EQ(project.SteelGrade, "") << "texts are emptied before reading";
    EXPECT_EQ(double(project.fyk), 235) << "numbers that were not reached stay";
    EXPECT_EQ(project.StartStopOutside, 0);
}

TEST(ProjectFile, lengthsInTheFileAreNotBelieved) {
    const std::string bytes = bytesFrom(Project{});
    const auto lists = [](const char* dimensions, std::int32_t count, std::int32_t first) {
        return std::string(dimensions, 2) + littleEndian(count) + littleEndian(first);
    };
    constexpr std::int32_t most = 0x7FFFFFFF, least = -most - 1;
    struct Case {
        std::size_t at;
        std::string put;
        Kind expected;
    };
    const Case cases[] = {
        {kLists, lists("\x01\0", most, 0), Kind::EndOfFile},
        {kLists, lists("\x01\0", 100, 1), Kind::EndOfFile},
        {kLists, lists("\x01\0", -1, 0), Kind::Other},
        {kLists, lists("\x01\0", least, least), Kind::Other},
        {kLists, lists("\x01\0", 1, most), Kind::Other},
        {kLists, lists("\x01\0", 0, least), Kind::Other},
        {kLists, lists("\x02\0", 0, 0), Kind::Other},
        {kLists, lists("\xFF\xFF", 0, 0), Kind::Other},
        {0, "\xFF\xFF", Kind::EndOfFile},
    };
    for (const Case& c : cases) {
        std::string hostile = bytes;
        hostile.replace(c.at, c.put.size(), c.put);
        Project project;
        EXPECT_EQ(refusalOf([&] { readProjectBytes(hostile, project); }).first, c.expected)
            << ::testing::PrintToString(c.put);
    }
}

TEST(ProjectFile, aSectionWithoutADisplayNameTakesItsTableName) {
    Project saved, project;
    saved.SpanSection = Array<SectionRecord>(1, 2);
    saved.SectionList = Array<SectionRecord>(0, 1);
    saved.SpanSection(1).TableName = saved.SectionList(0).TableName = "HEB 200";
    saved.SpanSection(2).TableName = saved.SectionList(1).TableName = "HEB 200";
    saved.SpanSection(2).DisplayName = saved.SectionList(1).DisplayName = "HEB 200+PL100x10";
    readProjectBytes(bytesFrom(saved), project);
    EXPECT_EQ(project.SpanSection(1).DisplayName, "HEB 200");
    EXPECT_EQ(project.SectionList(0).DisplayName, "HEB 200");
    EXPECT_EQ(project.SpanSection(2).DisplayName, "HEB 200+PL100x10");
    EXPECT_EQ(project.SectionList(1).DisplayName, "HEB 200+PL100x10");
}

TEST(ProjectFile, textsBeyondTheCodePageAreReplacedAndReported) {
    const TempFolder folder;
    const std::string path = folder.file("a.brvk");
    Project project, read;
    project.Proj = "Ł\u00E4nk";
    EXPECT_FALSE(SaveProject(path, project));
    LoadProject(path, read);
    EXPECT_EQ(read.Proj, "?\u00E4nk");
    project.Proj = "l\u00E4nk \u201317\u20AC";
    EXPECT_TRUE(SaveProject(path, project));
    LoadProject(path, read);
    EXPECT_EQ(read.Proj, project.Proj);
}

TEST(ProjectFile, aTextThatIsTooLongLeavesTheOldFile) {
    const TempFolder folder;
    const std::string path = folder.file("a.brvk");
    Project project, read;
    project.Ident = std::string(65535, 'x');
    SaveProject(path, project);
    LoadProject(path, read);
    EXPECT_TRUE(read == project);
    const std::string old = bytesOf(path);
    project.Ident += '\xC3';
    project.Ident += '\xA5';
    const auto [kind, text] = refusalOf([&] { SaveProject(path, project); });
    EXPECT_EQ(kind, Kind::Other);
    EXPECT_NE(text.find("65536 characters"), std::string::npos) << text;
    EXPECT_TRUE(bytesOf(path) == old);
}

TEST(ProjectFile, aShorterProjectKeepsTheTailOfTheFile) {
    const TempFolder folder;
    const std::string path = folder.file("a.brvk");
    Project longer, shorter, read;
    longer.SpanSection = Array<SectionRecord>(1, 30);
    SaveProject(path, longer);
    const std::string before = bytesOf(path);
    shorter.Proj = "short";
    SaveProject(path, shorter);
    EXPECT_TRUE(bytesOf(path) == bytesFrom(shorter) + before.substr(bytesFrom(shorter).size()));
    LoadProject(path, read);
    EXPECT_TRUE(read == shorter);
}

TEST(ProjectFile, faultsOfTheSystemAreNamed) {
    const TempFolder folder;
    writeBytes(folder.file("file"), "x");
    Project project;
    using Refusal = std::pair<Kind, std::string>;
    const auto loading = [&](const std::string& path) {
        project.StartStopOutside = 1;
        const auto refusal = refusalOf([&] { LoadProject(path, project); });
        EXPECT_EQ(project.StartStopOutside, 0) << path;
        return refusal;
    };
    EXPECT_EQ(loading(folder.file("none.brvk")), Refusal(Kind::NotFound, " Can't find file "));
    EXPECT_EQ(loading(""), Refusal(Kind::NotFound, " Can't find file "));
    EXPECT_EQ(loading("no file of this name"), Refusal(Kind::NotFound, " Can't find file "));
    EXPECT_EQ(loading(folder.file("none/a.brvk")), Refusal(Kind::PathNotFound, " Path not found "));
    EXPECT_EQ(loading(folder.file("file/a.brvk")), Refusal(Kind::PathNotFound, " Path not found "));
    EXPECT_EQ(loading(folder.file("file")), Refusal(Kind::EndOfFile, " End of file passed "));
    EXPECT_EQ(loading(folder.path().string()).first, Kind::Other) << "a folder";

    const std::string unwritable = folder.file("none/a.brvk");
    const auto [kind, text] = refusalOf([&] { SaveProject(unwritable, project); });
    EXPECT_EQ(kind, Kind::Other);
    EXPECT_EQ(text, "The project file \"" + unwritable + "\" can't be written: No such file or directory.");
}

/// What is attached stands at the end of the file; a file without it has the bytes of the record alone.
TEST(ProjectFile, keepsWhatIsAttached) {
    const TempFolder folder;
    const std::string file = (folder.path() / "a.brvk").string();
    Project project, read;
    const std::string record = bytesFrom(project);
    project.Attached = "{\"Cranes\":[]}";
    SaveProject(file, project);
    EXPECT_EQ(LoadProject(file, read), "");
    EXPECT_EQ(read.Attached, project.Attached);
    EXPECT_TRUE(bytesOf(file).starts_with(record));
    EXPECT_NE(fingerprintOf(project), fingerprintOf(Project()));

    std::string damaged = bytesOf(file), later = damaged;
    damaged[record.size() + 2] = 'X';
    later.replace(later.find("attachment 1") + 11, 1, "2");
    for (const auto& [bytes, word] : {std::pair(damaged, "damaged"), std::pair(later, "later version")}) {
        Project spoilt;
        EXPECT_NE(readProjectBytes(bytes, spoilt).find(word), std::string::npos);
        EXPECT_EQ(spoilt.Attached, "");
        EXPECT_EQ(bytesFrom(spoilt), record);
    }
    for (std::size_t size = record.size(); size < damaged.size(); ++size)
        EXPECT_NO_THROW((void)readProjectBytes(bytesOf(file).substr(0, size), read)) << size;

    // Saved without, the block goes; the tail of a longer file stays.
    project.Attached.clear();
    SaveProject(file, project);
    EXPECT_EQ(bytesOf(file), record);
    writeBytes(file, record + "tail");
    project.Attached = "{}";
    SaveProject(file, project);
    EXPECT_EQ(bytesOf(file), record + "tail" + bytesFrom(project).substr(record.size()));
    project.Attached.clear();
    SaveProject(file, project);
    EXPECT_EQ(bytesOf(file), record + "tail");
}

}  // namespace
}  // namespace borvik
