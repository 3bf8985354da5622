#include "results/group_tables.h"

#include "results/summary.h"
#include "results/table_cells.h"

namespace borvik {
namespace {

std::string lowerFirst(std::string text) {
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z') text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

TableCell ratioOf(const GroupRun& run, std::size_t column, bool governs) {
    const auto& ratio = run.ratios[column];
    if (!ratio) return textCell("-");
    TableCell cell = numberCell(*ratio, "0.000");
    if (governs) cell.text += " *";
    if (!isSatisfied(*ratio)) cell.emphasis = Emphasis::OverLimit;
    cell.origin = run.origins[column];
    return cell;
}

std::string acrossText(const std::vector<double>& forces) {
    std::string text;
    for (const double force : forces) text += (text.empty() ? "" : "/") + formatNumber(force, "0.00");
    return text;
}

}  // namespace

ResultTable tableOf(const GroupMatrix& matrix) {
    ResultTable table;
    table.columns.push_back({"Loads", "", "group of EN 1991-3 Table 2.2, cranes, way of travelling, rail", true});
    for (const std::string& check : matrix.checks) table.columns.push_back({check, "", "largest ratio of all spans"});
    for (std::size_t row = 0; row < matrix.runs.size(); ++row) {
        const GroupRun& run = matrix.runs[row];
        std::vector<TableCell> cells{textCell(nameOf(run.choice) + (run.refusal.empty() ? "" : ": " + run.refusal))};
        for (std::size_t column = 0; column < matrix.checks.size(); ++column)
            cells.push_back(ratioOf(run, column, matrix.governing[column] == static_cast<int>(row)));
        table.rows.push_back(std::move(cells));
    }
    table.note =
        "* governs its check. Fatigue counts in groups 1 and 2 alone, deflections are without dynamic factors.";
    return table;
}

std::string governingText(const GroupMatrix& matrix) {
    if (matrix.largestRun < 0) return "no group has results";
    return formatNumber(matrix.largest, "0.000") + ", " + matrix.checks[static_cast<std::size_t>(matrix.largestCheck)] +
           ", " + lowerFirst(nameOf(matrix.runs[static_cast<std::size_t>(matrix.largestRun)].choice)) +
           (matrix.negative ? ", some are negative: no resistance is left" : "");
}

ResultTable tableOfLoads(const actions::CraneLoads& loads) {
    ResultTable table;
    table.columns = {{"Group", "", "EN 1991-3 Table 2.2"},
                     {"V", "kN", "of a wheel beside the crab, with dynamic factors"},
                     {"V/Vstat", "", "over the wheel load of the loaded crane"},
                     {"H", "kN", "across the rail beside the crab at its wheels, with phi5"},
                     {"V far", "kN", "of a wheel of the other rail"},
                     {"H far", "kN", "across the other rail"},
                     {"HL", "kN", "along each rail, with phi5"}};
    for (const actions::GroupLoads& group : loads.groups) {
        const auto withPhi = [&group](std::vector<double> forces) {
            for (double& force : forces) force *= group.psiH;
            return acrossText(forces);
        };
        table.rows.push_back({textCell(std::to_string(group.group)), numberCell(group.crab.V, "0.00"),
                              numberCell(group.crab.psiV, "0.0000"), textCell(withPhi(group.crab.H)),
                              numberCell(group.far.V, "0.00"), textCell(withPhi(group.far.H)),
                              numberCell(group.HL * group.psiH, "0.00")});
    }
    return table;
}

ResultTable tableOfReactions(const GroupMatrix& matrix) {
    ResultTable table;
    table.columns = {{"Loads", "", "group of EN 1991-3 Table 2.2", true},
                     {"Support", "", ""},
                     {"Rz max", "kN", "upward positive"},
                     {"Rz min", "kN", "upward positive"},
                     {"Ry max", "kN", "across the beam"},
                     {"Ry min", "kN", "across the beam"},
                     {"HL", "kN", "along the beam, for the fixed support or the bracing: all cranes of the row"}};
    for (const GroupRun& run : matrix.runs)
        for (std::size_t i = 0; i < run.reactions.size(); ++i) {
            const GroupReaction& each = run.reactions[i];
            table.rows.push_back({textCell(i == 0 ? nameOf(run.choice) : ""), textCell(std::to_string(i + 1)),
                                  numberCell(each.RzMax, "0.0"), numberCell(each.RzMin, "0.0"),
                                  numberCell(each.RyMax, "0.0"), numberCell(each.RyMin, "0.0"),
                                  i == 0 ? numberCell(run.HL, "0.0") : textCell("")});
        }
    table.note =
        "ULS, dynamic factors of the group and load factors included; Side loads act in either sense: Ry also with the "
        "opposite sign. HL characteristic, with phi5.";
    return table;
}

std::string buffersText(const std::vector<actions::CraneData>& cranes) {
    std::string text;
    for (std::size_t i = 0; i < cranes.size(); ++i) {
        if (!cranes[i].hasBuffer()) continue;
        const actions::BufferForce force = actions::bufferForce(cranes[i], true);
        text += "Buffers, group 9: HB = " + formatNumber(force.HB1, "0.0") + " kN of crane " + std::to_string(i + 1) +
                " with its load, on the rail beside the crab " + formatNumber(force.crab, "0.0") +
                " kN, on the far rail " + formatNumber(force.far, "0.0") + " kN.\n";
    }
    return text;
}

std::string groupsText(const GroupMatrix& matrix) {
    const ResultTable table = tableOf(matrix);
    return "Groups of loads\n" + tableText(table) + table.note + "\nLargest ratio of all groups " +
           governingText(matrix) + "\n";
}

}  // namespace borvik
