#include "results/reaction_tables.h"

#include <algorithm>
#include <cmath>

#include "base/fault.h"
#include "base/units.h"
#include "results/table_cells.h"
#include "results/text_columns.h"

namespace borvik {

namespace {

constexpr const char* kForce = "0.0";

std::string nameOf(Effect effect, bool largest) {
    return std::string(effect == Effect::Rz ? "Rz " : "Ry ") + (largest ? "max" : "min");
}

std::string kN(double force) {
    return formatNumber(force, kForce);
}

/// A force of one support in one of the parts.
struct Part {
    const char* header;
    const char* help;
    SupportForces ReactionCase::*forces;
    double SupportForce::*force;
};

constexpr Part kParts[] = {
    {"G Rz", "Dead load, characteristic", &ReactionCase::dead, &SupportForce::Rz},
    {"Q Rz", "Cranes, characteristic, without dynamic factors", &ReactionCase::crane, &SupportForce::Rz},
    {"Q phi Rz", "Cranes, characteristic, with dynamic factors", &ReactionCase::craneDynamic, &SupportForce::Rz},
    {"Rz", "With the factors of the limit state", &ReactionCase::total, &SupportForce::Rz},
    {"Q Ry", "Cranes, characteristic, without dynamic factors", &ReactionCase::crane, &SupportForce::Ry},
    {"Q phi Ry", "Cranes, characteristic, with dynamic factors", &ReactionCase::craneDynamic, &SupportForce::Ry},
    {"Ry", "With the factors of the limit state", &ReactionCase::total, &SupportForce::Ry},
};

void addPartColumns(ResultTable& table) {
    for (const Part& part : kParts) table.columns.push_back({part.header, "kN", part.help});
}

/// The parts of the forces of a support, from 0; empty cells where a state has no such part.
void addPartCells(const ReactionCase& each, std::size_t support, std::vector<TableCell>& row) {
    for (const Part& part : kParts) {
        const SupportForces& forces = each.*part.forces;
        const bool none = forces.empty() || (each.dead.empty() && part.force == &SupportForce::Ry);
        row.push_back(none ? textCell("") : numberCell(forces[support].*part.force, kForce));
    }
}

/// Span and distance from its left support, of a place on the beam.
std::string spanAndPlace(const Project& project, double x) {
    int span = 1;
    while (span < project.NofSpans && x > project.Span(span)) x -= project.Span(span++);
    return std::to_string(span) + "/" + formatNumber(x, "0");
}

std::string remarkOf(const ReactionCase& each) {
    if (each.ofCranesAlone) return "cranes alone";
    return each.effect == Effect::Rz && each.value() < 0 ? "uplift" : "";
}

/// "Wheels: 1 at 1/3000 V = 44.6 H = 4.5; ...". @param place  of a wheel, as a text
template <class Place>
std::string wheelsText(const std::vector<PlacedWheel>& wheels, Place place) {
    std::string text;
    for (const PlacedWheel& wheel : wheels)
        text += (text.empty() ? "Wheels: " : "; ") + std::to_string(wheel.number) + " at " + place(wheel.x) +
                " V = " + kN(wheel.V) + " H = " + kN(wheel.H);
    return text.empty() ? "No wheel on the beam" : text + " kN";
}

/// "W1 1/3200, W5 2/800": the first wheel of each crane.
template <class Place>
std::string firstWheels(const std::vector<PlacedWheel>& wheels, Place place) {
    std::string text;
    int crane = 0;
    for (const PlacedWheel& wheel : wheels) {
        const int its = wheel.number <= 4 ? 1 : 2;
        if (its == crane) continue;
        crane = its;
        text += (text.empty() ? "W" : ", W") + std::to_string(wheel.number) + " " + place(wheel.x);
    }
    return text;
}

/// How places are written that are counted from a joint.
std::string fromJoint(double x) {
    return formatNumber(x, "0");
}

std::string detailsOf(const Project& project, const ReactionCase& each) {
    std::string text =
        wheelsText(each.wheels, [&](double x) { return spanAndPlace(project, x); }) + "\nActing together:";
    for (std::size_t s = 0; s < each.total.size(); ++s)
        text += (s == 0 ? " " : "; ") + std::to_string(s + 1) + ": Rz = " + kN(each.total[s].Rz) +
                " Ry = " + kN(each.total[s].Ry);
    return text + " kN";
}

/// Adds a row and its details, which are needed for all rows or none.
void addRow(ResultTable& table, std::vector<TableCell> row, std::string details) {
    table.rows.push_back(std::move(row));
    table.details.push_back(std::move(details));
}

void addHeading(ResultTable& table, const std::string& text) {
    addRow(table, {textCell(text, Emphasis::Heading)}, text);
}

void addSet(const Project& project, const ReactionSet& set, ResultTable& table) {
    addHeading(table, nameOf(set));
    for (const ReactionCase& each : set.cases) {
        std::vector<TableCell> row{numberCell(each.support, "0"), textCell(nameOf(each))};
        addPartCells(each, static_cast<std::size_t>(each.support - 1), row);
        row.push_back(textCell(remarkOf(each)));
        row.push_back(textCell(placeOf(project, each)));
        if (!set.walkedAnew) row[1].stands[0] = {set.walk, each.effect, each.at, each.support, 0};
        addRow(table, std::move(row), detailsOf(project, each));
    }
}

SupportForce EndForces::*const kSumParts[] = {&EndForces::dead,  &EndForces::crane, &EndForces::craneDynamic,
                                              &EndForces::total, &EndForces::crane, &EndForces::craneDynamic,
                                              &EndForces::total};

/// The sum of two ends; places of wheels from the joint.
void addJoint(const JointReactions& joint, ResultTable& table) {
    addHeading(table, "Joint at support " + std::to_string(joint.support) + " with " +
                          (joint.mirrored ? "the same beam mirrored" : "the neighbouring beam") +
                          ", sum of both ends, ULS; W1, W5 in mm from the joint");
    for (const JointCase& each : joint.cases) {
        const bool ownLeft = joint.support != 1;
        std::vector<TableCell> row{numberCell(joint.support, "0"), textCell(nameOf(each.effect, each.largest))};
        for (std::size_t part = 0; part < std::size(kParts); ++part)
            row.push_back(numberCell(each.sum(kSumParts[part]).*kParts[part].force, kForce));
        row.push_back(textCell(each.effect == Effect::Rz && each.sum(&EndForces::total).Rz < 0 ? "uplift" : ""));
        row.push_back(textCell(firstWheels(each.wheels, fromJoint)));
        const EndForces& own = ownLeft ? each.left : each.right;
        const EndForces& other = ownLeft ? each.right : each.left;
        addRow(table, std::move(row),
               wheelsText(each.wheels, fromJoint) + "\nActing together: this beam Rz = " + kN(own.total.Rz) +
                   " Ry = " + kN(own.total.Ry) + "; its neighbour Rz = " + kN(other.total.Rz) +
                   " Ry = " + kN(other.total.Ry) + " kN");
    }
}

/// The lateral force that a span hands over at each of its ends: what a surge connector or an end stop's bracket takes.
void addSpanEnds(const Project& project, const UlsResults& uls, ResultTable& table) {
    bool headed = false;
    for (int span = 1; span <= project.NofSpans; ++span)
        for (const int point : {1, kPoints}) {
            const double largest = uls.VyMaxPoint(span, point, 4);
            const double smallest = uls.VyMinPoint(span, point, 4);
            const bool positive = largest >= -smallest;
            const WalkPosition at = (positive ? uls.At.VyMax : uls.At.VyMin)(span, point);
            if (!at.isKnown()) continue;
            if (!headed) addHeading(table, "Lateral force at the ends of the spans (surge connectors, end stops), ULS");
            headed = true;
            const int support = point == 1 ? span : span + 1;
            const std::string end = "Vy span " + std::to_string(span);
            std::vector<TableCell> row{numberCell(support, "0"), textCell(end)};
            row.resize(2 + std::size(kParts) - 1, textCell(""));
            row.push_back(numberCell((positive ? largest : smallest) / kPerKilo, kForce));
            row.back().stands[0] = {WalkOf::Uls, Effect::Vy, at, span, point};
            addRow(table, std::move(row), end + (point == 1 ? ", left end" : ", right end"));
        }
}

}  // namespace

std::string nameOf(const ReactionSet& set) {
    const char* state = set.state == ReactionState::Uls   ? "ULS"
                        : set.state == ReactionState::Sls ? "SLS"
                                                          : "Fatigue without equivalence factor";
    const char* cranes = set.acting == Acting::AllCranes ? ", all cranes"
                         : set.acting == Acting::Crane1  ? ", crane 1 alone"
                                                         : ", crane 2 alone";
    return std::string(state) + cranes;
}

std::string nameOf(const ReactionCase& each) {
    return nameOf(each.effect, each.largest);
}

std::string placeOf(const Project& project, const ReactionCase& each) {
    return firstWheels(each.wheels, [&](double x) { return spanAndPlace(project, x); });
}

ResultTable tableOf(const Project& project, const Results& results, const SupportReactions& reactions) {
    ResultTable table;
    table.note = "kN, upward positive";
    if (reactions.eccentricity > 0)
        table.note += "; wheels up to br/4 = " + kN(reactions.eccentricity) + " mm beside the web";
    table.columns = {{"Support", "", "Support number from the left"},
                     {"Extreme", "", "What is largest or smallest at this position of the cranes"}};
    addPartColumns(table);
    table.columns.push_back({"Remark", "", ""});
    table.columns.push_back({"Cranes", "", "First wheel of each crane: span / mm from its left support"});
    for (const ReactionSet& set : reactions.sets) addSet(project, set, table);
    for (const JointReactions& joint : reactions.joints) addJoint(joint, table);
    addSpanEnds(project, results.Uls, table);
    return table;
}

ResultTable TableSupportReactions(const Project& project, const Results& results) {
    try {
        return tableOf(project, results, supportReactions(project, results));
    } catch (const RuntimeFault& fault) {
        ResultTable table = tableOf(project, results, {});
        table.rows.insert(table.rows.begin(), {textCell(fault.what(), Emphasis::Note)});
        table.details.insert(table.details.begin(), fault.what());
        return table;
    }
}

ResultTable actingTogether(const SupportReactions& reactions, int support) {
    ResultTable table;
    table.note = "Forces of all supports at the position of the cranes that gives the extreme, upward positive";
    table.columns = {{"Loads", "", "Limit state and cranes"},
                     {"Extreme", "", "What is largest or smallest at this position of the cranes"},
                     {"of support", "", "Support number from the left"},
                     {"At support", "", "Support that the forces are of"}};
    addPartColumns(table);
    for (const ReactionSet& set : reactions.sets)
        for (const ReactionCase& each : set.cases) {
            if (support != 0 && each.support != support) continue;
            for (std::size_t s = 0; s < each.total.size(); ++s) {
                std::vector<TableCell> row{textCell(nameOf(set)), textCell(nameOf(each)), numberCell(each.support, "0"),
                                           numberCell(static_cast<double>(s + 1), "0")};
                addPartCells(each, s, row);
                table.rows.push_back(std::move(row));
            }
        }
    return table;
}

std::vector<NamedTable> sheetsOf(const SupportReactions& reactions, int supports) {
    std::vector<NamedTable> sheets;
    for (int support = 1; support <= supports; ++support)
        sheets.push_back({"Support " + std::to_string(support), actingTogether(reactions, support)});
    return sheets;
}

std::string reactionsText(const Project& project, const Results& results, const SupportReactions& reactions) {
    const ResultTable table = tableOf(project, results, reactions);
    std::vector<std::vector<std::string>> rows;
    std::string text = "Reactions for supports\n" + table.note + "\n";
    const auto flush = [&] {
        if (!rows.empty()) text += textColumns(rows);
        rows.clear();
    };
    for (const auto& cells : table.rows) {
        if (cells.size() == 1) {
            flush();
            text += "\n" + cells[0].text + "\n";
            rows.emplace_back();
            for (const TableColumn& column : table.columns) rows.back().push_back(column.header);
            continue;
        }
        rows.emplace_back();
        for (const TableCell& cell : cells) rows.back().push_back(cell.text);
    }
    flush();
    return text;
}

}  // namespace borvik
