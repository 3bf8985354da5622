#include "tables/reference_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "base/number_text.h"
#include "support/golden.h"
#include "support/temp_folder.h"

namespace borvik {
namespace {

using testing_support::bytesOf;
using testing_support::TempFolder;
using testing_support::writeBytes;

const std::string kData = BORVIK_SOURCE_DIR "/data";

/// The shipped tables in a folder of their own, one of them replaced.
ReferenceTables loadWith(const char* file, const std::string& bytes) {
    const TempFolder folder;
    for (const auto& entry : std::filesystem::directory_iterator(kData))
        std::filesystem::copy_file(entry.path(), folder.path() / entry.path().filename());
    writeBytes(folder.path() / file, bytes);
    return LoadTables(folder.path().string());
}

std::string shown(std::initializer_list<std::string> texts, std::initializer_list<Single> numbers) {
    std::string row;
    for (const std::string& text : texts) row += text + " | ";
    for (const Single number : numbers) row += generalText(number) + " | ";
    return row + "\n";
}

TEST(LoadTables, readsWhatTheFilesHold) {
    const ReferenceTables tables = LoadTables(kData);
    std::string text;
    for (const SectionRecord& s : tables.SectionTable)
        text += shown({s.Id, s.Fab, s.TableName, s.DisplayName},
                      {Single(s.TableIndex), Single(s.CType), s.h, s.b1, s.b2, s.tf1, s.tf2, s.tw, s.R, s.A, s.Weight,
                       s.Iy, s.Wply, s.Iz, s.WplZ, s.It, s.Iw});
    for (const RailRecord& r : tables.RailTable)
        text += shown({r.Id, r.Name}, {r.RailAx, r.RailWeight, r.RailHr, r.RailBr, r.RailKr, r.RailR1, r.RailE1,
                                       r.RailIy, r.RailH2, r.RailH3, r.RailF2, r.RailF3});
    for (const SteelGradeRow& m : tables.MaterialTable) text += shown({m.MatName}, {m.fyk1, m.fyk2});
    EXPECT_EQ(testing_support::goldenDifference("reference-tables.txt", text), "");
    EXPECT_EQ(tables.SectionTable.first(), 0);
    EXPECT_EQ(findSection(tables, "HEA 300"), 49);
    EXPECT_EQ(findRail(tables, "Pl 70x40"), 9);
    EXPECT_EQ(findRail(tables, "pl 70x40"), -1);
    EXPECT_EQ(findMaterial(tables, "General"), 15);
    EXPECT_EQ(findMaterial(tables, ""), -1);
}

TEST(LoadTables, everySectionIsComplete) {
    const ReferenceTables tables = LoadTables(kData);
    std::set<std::string> names;
    for (const SectionRecord& section : tables.SectionTable) {
        names.insert(section.TableName);
        EXPECT_EQ(section.TableName.rfind(section.Id + " ", 0), 0U) << section.TableName;
        for (const Single number :
             {section.h, section.b1, section.tf1, section.tw, section.R, section.A, section.Weight, section.Iy,
              section.Wply, section.Iz, section.WplZ, section.It, section.Iw})
            EXPECT_GT(double(number), 0.0) << section.TableName;
        EXPECT_NEAR(section.Weight, section.A * 7.85e-3, 0.012 * section.Weight)
            << section.TableName << ": kg/m of mm2";
    }
    EXPECT_EQ(names.size(), 111U) << "a name stands twice";
}

TEST(LoadTables, toleratesDamagedLines) {
    std::string rails = "heading\n";                      // bare line feeds
    rails += "A;short\r\n";                               // cells are missing
    rails += "\r\n";                                      // an empty line is a row of its own
    rails += "A;R\xE4ls;12,5;x;1E1;-3;;;;;;;;;;;99\r\n";  // comma, no number, too many cells
    for (int i = 0; i < 4; ++i) rails += "P;filler;1\r\n";
    rails += "P;last;7";  // the file ends without a line break
    const ReferenceTables tables = loadWith("Rail.csv", rails);
    ASSERT_EQ(tables.RailTable.size(), 8);
    EXPECT_EQ(tables.RailTable(0).Name, "short");
    EXPECT_EQ(double(tables.RailTable(0).RailAx), 0);
    EXPECT_TRUE(tables.RailTable(1) == RailRecord{});
    const RailRecord odd = {"A", "R\u00E4ls", 12.5, 0, 10, -3, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_TRUE(tables.RailTable(2) == odd);
    EXPECT_EQ(double(tables.RailTable(7).RailAx), 7);

    std::string sections = bytesOf(kData + "/Euprof.csv");
    sections += "IPE;99999;R;wide type\r\nIPE;x;R;no type\r\n";
    const ReferenceTables longer = loadWith("Euprof.csv", sections);
    ASSERT_EQ(longer.SectionTable.size(), 113);
    EXPECT_EQ(longer.SectionTable(111).CType, 0);
    EXPECT_EQ(longer.SectionTable(112).CType, 0);
    EXPECT_EQ(longer.SectionTable(112).TableIndex, 112);
}

TEST(LoadTables, refusesTablesThatGiveNoDefaultProject) {
    const std::string rails = bytesOf(kData + "/Rail.csv");
    const std::string materials = bytesOf(kData + "/ECmat.csv");
    const std::string sections = bytesOf(kData + "/Euprof.csv");
    struct Case {
        const char* file;
        std::string bytes;
    };
    const Case cases[] = {
        {"Rail.csv", ""},
        {"Rail.csv", rails.substr(0, rails.find("P;Pl 50x30"))},
        {"ECmat.csv", materials.substr(0, materials.find("S355;"))},
        {"ECmat.csv", "heading\r\n\r\n\r\n;355;335\r\n"},
        {"Euprof.csv", sections.substr(0, sections.find("HEA;1;R;HEA 300"))},
        {"Euprof.csv", std::string(40000, '\n')},
    };
    for (const Case& c : cases) {
        try {
            (void)loadWith(c.file, c.bytes);
            ADD_FAILURE() << c.file << " of " << c.bytes.size() << " bytes was taken";
        } catch (const TableError& error) {
            EXPECT_NE(std::string(error.what()).find(c.file), std::string::npos) << error.what();
        }
    }
}

TEST(LoadTables, namesTheFileThatIsMissing) {
    const TempFolder folder;
    for (const char* file : {"Euprof.csv", "Rail.csv", "ECmat.csv"}) {
        try {
            (void)LoadTables(folder.path().string());
            ADD_FAILURE() << file << " is missing";
        } catch (const TableError& error) {
            EXPECT_EQ(std::string(error.what()),
                      "The table " + folder.file(file) + " can't be read: No such file or directory");
        }
        std::filesystem::copy_file(kData + "/" + file, folder.path() / file);
    }
    EXPECT_NO_THROW((void)LoadTables(folder.path().string()));
    std::filesystem::remove(folder.path() / "Rail.csv");
    std::filesystem::create_directory(folder.path() / "Rail.csv");
    EXPECT_THROW((void)LoadTables(folder.path().string()), TableError) << "a folder of that name";
}

}  // namespace
}  // namespace borvik
