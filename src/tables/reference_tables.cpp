#include "tables/reference_tables.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/number_text.h"
#include "base/whole_file.h"
#include "base/windows1252.h"

namespace borvik {

namespace {

constexpr char kSectionFile[] = "Euprof.csv";
constexpr char kRailFile[] = "Rail.csv";
constexpr char kMaterialFile[] = "ECmat.csv";

/// The cells of one line. A cell that the line doesn't have is empty.
class Cells {
public:
    explicit Cells(std::string_view line) {
        for (std::size_t end = 0; end != std::string_view::npos;) {
            end = line.find(';');
            cells_.push_back(line.substr(0, end));
            line.remove_prefix(end == std::string_view::npos ? line.size() : end + 1);
        }
    }
    [[nodiscard]] std::string text(std::size_t column) const { return fromWindows1252(cell(column)); }
    [[nodiscard]] Single number(std::size_t column) const { return DecimalValue(cell(column)); }
    [[nodiscard]] std::int16_t whole(std::size_t column) const {
        const double value = number(column);
        const bool fits = std::abs(value) <= std::numeric_limits<std::int16_t>::max();
        return fits ? static_cast<std::int16_t>(roundHalfEven(value)) : std::int16_t{0};
    }

private:
    [[nodiscard]] std::string_view cell(std::size_t column) const {
        return column < cells_.size() ? cells_[column] : std::string_view{};
    }
    std::vector<std::string_view> cells_;
};

/// Columns of Euprof.csv that are numbers of a section. The file names its axes x strong, y weak.
/// Column 17 is Wy, the elastic modulus of the weak axis: WplZ of a rolled section is therefore on the safe side.
struct SectionColumn {
    std::size_t column;
    Single SectionRecord::*field;
};
constexpr SectionColumn kSectionColumns[] = {
    {4, &SectionRecord::h},       {5, &SectionRecord::b1},  {5, &SectionRecord::b2},    {6, &SectionRecord::tf1},
    {6, &SectionRecord::tf2},     {7, &SectionRecord::tw},  {8, &SectionRecord::R},     {10, &SectionRecord::A},
    {12, &SectionRecord::Weight}, {13, &SectionRecord::Iy}, {15, &SectionRecord::Wply}, {16, &SectionRecord::Iz},
    {17, &SectionRecord::WplZ},   {19, &SectionRecord::It}, {20, &SectionRecord::Iw},
};

SectionRecord sectionOf(const Cells& cells, int row) {
    SectionRecord section;
    section.Id = cells.text(0);
    section.CType = cells.whole(1);
    section.Fab = cells.text(2);
    section.TableName = cells.text(3);
    section.DisplayName = section.TableName;
    section.TableIndex = static_cast<std::int16_t>(row);
    for (const auto& [column, field] : kSectionColumns) section.*field = cells.number(column);
    return section;
}

/// Numbers of a rail in the order of the columns, from column 2. The file's heading speaks of cm and cm4 for e1 and Iy,
/// but the values are mm and mm4.
constexpr Single RailRecord::*kRailColumns[] = {
    &RailRecord::RailAx, &RailRecord::RailWeight, &RailRecord::RailHr, &RailRecord::RailBr,
    &RailRecord::RailKr, &RailRecord::RailR1,     &RailRecord::RailE1, &RailRecord::RailIy,
    &RailRecord::RailH2, &RailRecord::RailH3,     &RailRecord::RailF2, &RailRecord::RailF3,
};

RailRecord railOf(const Cells& cells, int) {
    RailRecord rail;
    rail.Id = cells.text(0);
    rail.Name = cells.text(1);
    std::size_t column = 2;
    for (const auto field : kRailColumns) rail.*field = cells.number(column++);
    return rail;
}

SteelGradeRow steelGradeOf(const Cells& cells, int) {
    return {cells.text(0), cells.number(1), cells.number(2)};
}

std::string bytesOf(const std::filesystem::path& path) {
    try {
        return readFile(path.string());
    } catch (const std::system_error& error) {
        throw TableError("The table " + path.string() + " can't be read: " + error.code().message());
    }
}

/// Reads one table: a row for every line behind the headings, also for an empty line in between.
/// @param needed  the last row that the program can't do without
/// @param name    the field by which rows are found
template <class Row>
Array<Row> loadTable(const std::string& folder, const char* file, int headings, int needed, std::string Row::*name,
                     Row (*rowOf)(const Cells&, int)) {
    const std::filesystem::path path = std::filesystem::path(folder) / file;
    const std::string bytes = bytesOf(path);
    Array<Row> rows;
    int line = 0;
    for (std::string_view rest = bytes; !rest.empty(); ++line) {
        const std::size_t end = std::min(rest.find('\n'), rest.size());
        std::string_view text = rest.substr(0, end);
        rest.remove_prefix(std::min(end + 1, rest.size()));
        if (text.ends_with('\r')) text.remove_suffix(1);
        if (line >= headings) rows.append(rowOf(Cells(text), line - headings));
        if (rows.size() > std::numeric_limits<std::int16_t>::max())
            throw TableError("The table " + path.string() + " has too many rows");
    }
    if (!rows.has(needed) || (rows(needed).*name).empty())
        throw TableError("The table " + path.string() + " can't be used: it has no row " + std::to_string(needed) +
                         " (counted from 0) with a name");
    return rows;
}

template <class Row>
int find(const Array<Row>& rows, std::string Row::*field, const std::string& name) {
    for (int i = rows.first(); i <= rows.last(); ++i)
        if (rows(i).*field == name) return i;
    return -1;
}

}  // namespace

bool isWelded(const SectionRecord& section) {
    return section.Id == "Is" || section.Id == "Iu";
}

bool isRolled(const SectionRecord& section) {
    return section.Fab == "R";
}

ReferenceTables LoadTables(const std::string& folder) {
    ReferenceTables tables;
    tables.SectionTable = loadTable(folder, kSectionFile, 4, kDefaultSection, &SectionRecord::TableName, sectionOf);
    tables.RailTable = loadTable(folder, kRailFile, 1, kDefaultRail, &RailRecord::Name, railOf);
    tables.MaterialTable = loadTable(folder, kMaterialFile, 1, kDefaultMaterial, &SteelGradeRow::MatName, steelGradeOf);
    return tables;
}

int findSection(const ReferenceTables& tables, const std::string& name) {
    return find(tables.SectionTable, &SectionRecord::TableName, name);
}

int findRail(const ReferenceTables& tables, const std::string& name) {
    return find(tables.RailTable, &RailRecord::Name, name);
}

int findMaterial(const ReferenceTables& tables, const std::string& name) {
    return find(tables.MaterialTable, &SteelGradeRow::MatName, name);
}

}  // namespace borvik
