#include "results/csv.h"

#include <algorithm>

#include "base/text.h"

namespace borvik {
namespace {

constexpr const char* kBetweenPlaces = " / ";

class CsvLine {
public:
    explicit CsvLine(DecimalSign sign) : sign_(sign) {}

    void add(std::string text, bool isNumber = false) {
        if (isNumber && sign_ == DecimalSign::Comma) std::replace(text.begin(), text.end(), '.', ',');
        if (!line_.empty() || started_) line_ += separator();
        started_ = true;
        if (text.find_first_of(std::string("\"\r\n") + separator()) == std::string::npos) {
            line_ += text;
            return;
        }
        line_ += '"';
        for (const char c : text) line_ += c == '"' ? "\"\"" : std::string(1, c);
        line_ += '"';
    }

    [[nodiscard]] std::string ended() const { return line_ + "\r\n"; }

private:
    [[nodiscard]] char separator() const { return sign_ == DecimalSign::Comma ? ';' : ','; }

    DecimalSign sign_;
    std::string line_;
    bool started_ = false;
};

/// A table whose first column holds places, such as "1 / 500".
bool hasPlaces(const ResultTable& table) {
    return !table.columns.empty() && trimmed(table.columns[0].header) == "Beam/Pos(mm)";
}

}  // namespace

std::string csvText(const ResultTable& table, DecimalSign sign) {
    const bool places = hasPlaces(table);
    CsvLine heads(sign);
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
        const TableColumn& column = table.columns[c];
        if (c == 0 && places) {
            heads.add("Beam");
            heads.add("Pos (mm)");
            continue;
        }
        heads.add(std::string(trimmed(column.header)) + (column.unit.empty() ? "" : " (" + column.unit + ")"));
    }
    std::string text = heads.ended();
    for (const std::vector<TableCell>& row : table.rows) {
        CsvLine line(sign);
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string& cell = row[c].text;
            const auto cut = cell.find(kBetweenPlaces);
            if (c == 0 && places && cut != std::string::npos) {
                line.add(cell.substr(0, cut), true);
                line.add(cell.substr(cut + std::string_view(kBetweenPlaces).size()), true);
            } else {
                line.add(cell, row[c].number.has_value());
                if (c == 0 && places) line.add("");
            }
        }
        text += line.ended();
    }
    return text;
}

}  // namespace borvik
