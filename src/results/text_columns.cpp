#include "results/text_columns.h"

#include <algorithm>

namespace borvik {

std::string textColumns(const std::vector<std::vector<std::string>>& rows) {
    std::vector<std::size_t> widths(rows.front().size());
    for (const auto& row : rows)
        for (std::size_t c = 0; c < row.size(); ++c) widths[c] = std::max(widths[c], row[c].size());
    std::string text;
    for (const auto& row : rows) {
        std::string line = "  ";
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string blanks(widths[c] - row[c].size(), ' ');
            line += c == 0 ? row[c] + blanks : "  " + blanks + row[c];
        }
        text += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

}  // namespace borvik
