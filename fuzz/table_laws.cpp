#include <unistd.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>

#include "laws.h"
#include "project/project_file.h"

namespace borvik::fuzzing {

namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, 3> kFiles = {"Euprof.csv", "Rail.csv", "ECmat.csv"};

/// The folder of the program's own tables, with one of them to be replaced.
class TableFolder {
public:
    TableFolder() : path_(fs::temp_directory_path() / ("borvik-fuzz-" + std::to_string(::getpid()))) {
        fs::create_directories(path_);
    }
    TableFolder(const TableFolder&) = delete;
    TableFolder& operator=(const TableFolder&) = delete;
    ~TableFolder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }
    void fill(std::size_t replaced, const std::string& content) const {
        for (std::size_t i = 0; i < kFiles.size(); ++i) {
            const fs::path file = path_ / kFiles[i];
            if (i == replaced)
                std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
            else
                fs::copy_file(fs::path(BORVIK_SOURCE_DIR "/data") / kFiles[i], file, fs::copy_options::update_existing);
        }
    }
    [[nodiscard]] std::string path() const { return path_.string(); }

private:
    fs::path path_;
};

void checkRows(const ReferenceTables& tables) {
    for (const SectionRecord& section : tables.SectionTable)
        for (const Single field : {section.h, section.b1, section.tw, section.tf1, section.A, section.Iy, section.Iw})
            if (!std::isfinite(field.stored())) throw BrokenLaw("a section with a number that is not finite");
    for (const RailRecord& rail : tables.RailTable)
        for (const Single field : {rail.RailAx, rail.RailWeight, rail.RailIy, rail.RailF3})
            if (!std::isfinite(field.stored())) throw BrokenLaw("a rail with a number that is not finite");
    for (int i = tables.SectionTable.first(); i <= tables.SectionTable.last(); ++i) {
        const std::string& name = tables.SectionTable(i).TableName;
        if (const int found = findSection(tables, name); found > i || tables.SectionTable(found).TableName != name)
            throw BrokenLaw("a section is not found by its name");
    }
}

}  // namespace

void checkTables(const std::string& bytes) {
    if (bytes.empty()) return;
    const TableFolder folder;
    folder.fill(static_cast<unsigned char>(bytes[0]) % kFiles.size(), bytes.substr(1));
    ReferenceTables tables;
    try {
        tables = LoadTables(folder.path());
    } catch (const TableError&) {
        return;
    }
    checkRows(tables);
    Project project = DefaultProject(tables);
    try {
        bool lost = false;
        Project again;
        readProjectBytes(projectBytes(project, lost), again);
        if (lost || again.SteelGrade != project.SteelGrade || again.RailName != project.RailName)
            throw BrokenLaw("the default project of these tables can't be saved and loaded");
    } catch (const ProjectFileError& error) {
        // a name of more than 65535 characters has no place in a project file, and the user is told so
        if (std::string(error.what()).find("holds at most") == std::string::npos) throw BrokenLaw(error.what());
    }
}

}  // namespace borvik::fuzzing
