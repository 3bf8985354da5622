#include "results/tables.h"

#include <algorithm>
#include <array>

#include "base/shown_text.h"
#include "base/text.h"
#include "base/units.h"
#include "results/reaction_tables.h"
#include "results/table_cells.h"

namespace borvik {
namespace {

/// "2 / 1250": span and position of point k in it.
TableCell placeCell(const Project& project, int span, int k) {
    return textCell(std::to_string(span) + " / " + formatNumber(project.Span(span) * (k - 1) / 20.0, "0"));
}

/// One row for each of the 21 points of each span; `addValues` adds what stands behind the place.
template <class AddValues>
void addPointRows(ResultTable& table, const Project& project, AddValues addValues) {
    table.rows.reserve(static_cast<std::size_t>(project.NofSpans) * kPoints);
    for (int span = 1; span <= project.NofSpans; ++span)
        for (int k = 1; k <= kPoints; ++k) {
            std::vector<TableCell> row{placeCell(project, span, k)};
            addValues(row, span, k);
            table.rows.push_back(std::move(row));
        }
}

/// An envelope of point records as a column.
struct EnvelopeColumn {
    TableColumn column;
    const Cube<Single>& points;
    int slot;  ///< of the quantity in the records
    double divisor;
    Effect effect;
    const Table<WalkPosition>& positions;
};

/// A cell with the position of the cranes that gives its number.
TableCell at(TableCell cell, const CraneStand& stand) {
    cell.stands[0] = stand;
    return cell;
}

template <std::size_t Count>
ResultTable envelopeTable(const Project& project, WalkOf walk, const char* placeHeader, const char* note,
                          const std::array<EnvelopeColumn, Count>& columns) {
    ResultTable table;
    table.note = note;
    table.columns.push_back({placeHeader, "", "Span / distance from its left support in mm"});
    for (const EnvelopeColumn& column : columns) table.columns.push_back(column.column);
    addPointRows(table, project, [&columns, walk](std::vector<TableCell>& row, int span, int k) {
        for (const EnvelopeColumn& column : columns)
            row.push_back(at(numberCell(column.points(span, k, column.slot) / column.divisor, "0.0"),
                             {walk, column.effect, column.positions(span, k), span, k}));
    });
    return table;
}

ResultTable stressTable(const Project& project, const std::optional<StressSet>& set, WalkOf walk) {
    struct Column {
        const char* header;
        const char* help;
        Table<Single> StressSet::*stress;
        Effect effect;
        Table<WalkPosition> FlsPositions::*positions;  ///< hogging pulls the top flange
    };
    static constexpr std::array<Column, 7> kColumns{{
        {"Sig1-max", "Top flange, largest", &StressSet::Sig1Max, Effect::TopFlange, &FlsPositions::MyMin},
        {"Sig1-min", "Top flange, smallest", &StressSet::Sig1Min, Effect::TopFlange, &FlsPositions::MyMax},
        {"Range", "Top flange, range", &StressSet::Sig1Range, Effect::TopFlange, &FlsPositions::MyMax},
        {"Sig2-max", "Bottom flange, largest", &StressSet::Sig2Max, Effect::BottomFlange, &FlsPositions::MyMax},
        {"Sig2-min", "Bottom flange, smallest", &StressSet::Sig2Min, Effect::BottomFlange, &FlsPositions::MyMin},
        {"Tau-max", "Web, largest mean shear stress", &StressSet::TauMax, Effect::Web, &FlsPositions::VzMax},
        {"Tau-min", "Web, smallest mean shear stress", &StressSet::TauMin, Effect::Web, &FlsPositions::VzMin},
    }};
    ResultTable table;
    table.note = "MPa, tension positive, damage equivalence factor included";
    table.columns.push_back({"Beam/Pos(mm)", "", "Span / distance from its left support in mm"});
    for (const Column& column : kColumns) table.columns.push_back({column.header, "MPa", column.help});
    addPointRows(table, project, [&set, walk](std::vector<TableCell>& row, int span, int k) {
        for (const Column& column : kColumns) {
            if (set)
                row.push_back(at(numberCell(((*set).*column.stress)(span, k), "0.0"),
                                 {walk, column.effect, (set->At.*column.positions)(span, k), span, k}));
            else
                row.push_back(numberCell(0.0, "0.0"));
        }
    });
    return table;
}

/// The fatigue rows of the crane type at hand.
ResultTable codeFatigueByCraneType(const Project& project, const Results& results) {
    return project.CraneType == CraneKind::Monorail ? TableCodeFatigueR(project, results)
                                                    : TableCodeFatigue(project, results);
}

constexpr std::array<TableEntry, 14> kEntries{{
    {"SummaryULS", "ULS", ShowSummaryULS},
    {"SummaryULSSLS", "ULS + SLS", ShowSummaryULSSLS},
    {"SummaryAll", "ULS + SLS + FLS", ShowSummaryAll},
    {"Summary", "Summary", ShowSummary},
    {"MyVz", "MyVz max/min", TableMyVz},
    {"MzVy", "MzVy max/min", TableMzVy},
    {"Reactions", "Reactions", TableReactions},
    {"SupportReactions", "Reactions for supports", TableSupportReactions},
    {"Deflection", "Uz/Uy", TableDeflection},
    {"CodeStatic", "Static", TableCodeStatic},
    {"CodeFatigue", "Fatigue", codeFatigueByCraneType},
    {"Stress1", "FLS - Crane 1", TableStress1},
    {"Stress2", "FLS - Crane 2", TableStress2, true},
    {"Steps", "Intermediate steps", TableSteps},
}};

}  // namespace

// The headers keep their blanks: they are the same wherever a table is shown, also in files that others read.

ResultTable TableMyVz(const Project& project, const Results& results) {
    const UlsResults& uls = results.Uls;
    return envelopeTable<4>(
        project, WalkOf::Uls, "Beam/Pos(mm) ",
        "My sagging positive; Vz positive as the upward reaction at a left support",
        {{{{"My-max", "kNm", "Largest moment"}, uls.MyMaxPoint, 1, kPerKiloMetre, Effect::My, uls.At.MyMax},
          {{"My-min", "kNm", "Smallest moment"}, uls.MyMinPoint, 1, kPerKiloMetre, Effect::My, uls.At.MyMin},
          {{"Vz-max", "kN", "Largest shear force"}, uls.VzMaxPoint, 2, kPerKilo, Effect::Vz, uls.At.VzMax},
          {{"Vz-min ", "kN", "Smallest shear force"}, uls.VzMinPoint, 2, kPerKilo, Effect::Vz, uls.At.VzMin}}});
}

ResultTable TableMzVy(const Project& project, const Results& results) {
    const UlsResults& uls = results.Uls;
    return envelopeTable<4>(
        project, WalkOf::Uls, "Beam/Pos(mm)", "Signs as in the vertical plane, loads in the direction of H positive",
        {{{{"Mz-max", "kNm", "Largest moment"}, uls.MzMaxPoint, 3, kPerKiloMetre, Effect::Mz, uls.At.MzMax},
          {{"Mz-min", "kNm", "Smallest moment"}, uls.MzMinPoint, 3, kPerKiloMetre, Effect::Mz, uls.At.MzMin},
          {{"Vy-max", "kN", "Largest shear force"}, uls.VyMaxPoint, 4, kPerKilo, Effect::Vy, uls.At.VyMax},
          {{"Vy-min ", "kN", "Smallest shear force"}, uls.VyMinPoint, 4, kPerKilo, Effect::Vy, uls.At.VyMin}}});
}

ResultTable TableDeflection(const Project& project, const Results& results) {
    const SlsResults& sls = results.Sls;
    return envelopeTable<2>(
        project, WalkOf::Sls, "Beam/Pos(mm) ", "Deflection of largest magnitude, downward negative",
        {{{{"Uz-max ", "mm", "Vertical deflection"}, sls.UzMaxPoint, 1, 1.0, Effect::Uz, sls.At.Uz},
          {{"Uy-max ", "mm", "Horizontal deflection"}, sls.UyMaxPoint, 1, 1.0, Effect::Uy, sls.At.Uy}}});
}

ResultTable TableReactions(const Project& project, const Results& results) {
    const UlsResults& uls = results.Uls;
    ResultTable table;
    table.note = "Reactions on the beam, upward positive";
    table.columns = {{"Support", "", "Support number from the left"},
                     {"Rz - max", "kN", "Largest vertical reaction"},
                     {"Rz - min", "kN", "Smallest vertical reaction"},
                     {"Ry - max", "kN", "Largest horizontal reaction"},
                     {"Ry - min", "kN", "Smallest horizontal reaction"}};
    const struct {
        const Array<Single>& reactions;
        Effect effect;
        const Array<WalkPosition>& positions;
    } columns[] = {{uls.RzMax, Effect::Rz, uls.At.RzMax},
                   {uls.RzMin, Effect::Rz, uls.At.RzMin},
                   {uls.RyMax, Effect::Ry, uls.At.RyMax},
                   {uls.RyMin, Effect::Ry, uls.At.RyMin}};
    for (int support = 1; support <= project.NofSpans + 1; ++support) {
        std::vector<TableCell> row{numberCell(support, "0")};
        for (const auto& [reactions, effect, positions] : columns)
            row.push_back(at(numberCell(reactions(support) / kPerKilo, "0.0"),
                             {WalkOf::Uls, effect, positions(support), support, 0}));
        table.rows.push_back(std::move(row));
    }
    return table;
}

ResultTable TableStress1(const Project& project, const Results& results) {
    return stressTable(project, results.Fatigue.Cr1, WalkOf::FatigueCrane1);
}

ResultTable TableStress2(const Project& project, const Results& results) {
    ResultTable table = stressTable(project, results.Fatigue.Cr2, WalkOf::FatigueCrane2);
    // Two cranes at a constant distance are walked as one train, and no stress of crane 2 by itself exists.
    if (!results.Fatigue.Cr2 && project.NofCranes == 2)
        table.rows.push_back(
            {textCell("Note:", Emphasis::Note),
             textCell("The cranes keep their distance: both are in the stresses of crane 1", Emphasis::Note)});
    return table;
}

ResultTable TableSteps(const Project&, const Results& results) {
    const PositionLog& log = results.Steps;
    ResultTable table;
    table.note = "Wheel loads in kN; a, b: distances from the left and right support of the span in mm";
    table.columns = {
        {"Steg ", "", "Position of crane 1, from 0"},
        {"Fack H1 ", "", "Span of wheel 1"},
        {"V", "kN", "Load of wheel 1"},
        {"a", "mm", "Wheel 1 from the left support"},
        {"b", "mm", "Wheel 1 from the right support"},
        {"Fack H2 ", "", "Span of wheel 2"},  // the second wheel of crane 1, although what follows is wheel 5
        {"V ", "kN", "Load of wheel 5"},
        {"a ", "mm", "Wheel 5 from the left support"},
        {"b ", "mm", "Wheel 5 from the right support"}};
    for (int j = log.StepNo.first(); j <= log.StepNo.last(); ++j)
        table.rows.push_back(
            {numberCell(log.StepNo(j), "0"), numberCell(log.StepSpan1(j), "0"), numberCell(log.StepV1(j), "0.0"),
             numberCell(log.StepA1(j), "0.0"), numberCell(log.StepB1(j), "0.0"), numberCell(log.StepSpan2(j), "0"),
             numberCell(log.StepV5(j), "0.0"), numberCell(log.StepA5(j), "0.0"), numberCell(log.StepB5(j), "0.0")});
    return table;
}

std::span<const TableEntry> tableEntries() {
    return kEntries;
}

const TableEntry* findTable(std::string_view name) {
    const auto* entry = std::find_if(kEntries.begin(), kEntries.end(),
                                     [name](const TableEntry& candidate) { return sameName(candidate.name, name); });
    return entry == kEntries.end() ? nullptr : entry;
}

int governingRow(const ResultTable& summary) {
    int governing = -1;
    double largest = 0.0;
    for (std::size_t row = 0; row < summary.rows.size(); ++row) {
        const auto& cells = summary.rows[row];
        if (cells.size() < 2 || !cells[1].number) continue;
        const double ratio = *cells[1].number;
        if (!(ratio >= 0.0)) return static_cast<int>(row);
        if (governing >= 0 && ratio <= largest) continue;
        governing = static_cast<int>(row);
        largest = ratio;
    }
    return governing;
}

std::array<CraneStand, 2> standsOf(const ResultTable& table, int row, int column) {
    if (row < 0 || static_cast<std::size_t>(row) >= table.rows.size()) return {};
    const std::vector<TableCell>& cells = table.rows[static_cast<std::size_t>(row)];
    const auto own = static_cast<std::size_t>(std::max(0, column));
    if (own < cells.size() && cells[own].stands[0].isKnown()) return cells[own].stands;
    const auto first =
        std::find_if(cells.begin(), cells.end(), [](const TableCell& cell) { return cell.stands[0].isKnown(); });
    return first == cells.end() ? std::array<CraneStand, 2>{} : first->stands;
}

RowOrigin originOf(const ResultTable& table, int row) {
    if (row < 0 || static_cast<std::size_t>(row) >= table.rows.size()) return {};
    for (const TableCell& cell : table.rows[static_cast<std::size_t>(row)])
        if (cell.origin.isKnown()) return cell.origin;
    return {};
}

std::string tabSeparated(const ResultTable& table, bool withHeaders) {
    std::string text;
    const auto addLine = [&text, &table](auto cellText) {
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            if (column > 0) text += '\t';
            text += cellText(column);
        }
        text += '\n';
    };
    if (withHeaders) addLine([&table](std::size_t column) { return table.columns[column].header; });
    for (const std::vector<TableCell>& row : table.rows)
        addLine([&row](std::size_t column) {
            return column < row.size() ? withoutControls(row[column].text) : std::string();
        });
    return text;
}

}  // namespace borvik
