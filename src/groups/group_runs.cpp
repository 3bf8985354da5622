#include "groups/group_runs.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "actions/crane_fields.h"
#include "base/parallel.h"
#include "calculation/calculation.h"
#include "calculation/load_check.h"

namespace borvik {
namespace {

using actions::CraneData;
using actions::CraneLoads;
using actions::GroupLoads;

constexpr int kUnloaded = 3, kTest = 8;

/// The fields of the record that one crane's loads stand in.
struct CraneFields {
    int firstWheel, firstGap;
    Single Project::*psiV;
    Single Project::*psiH;
    std::int16_t Project::*craneClass;
};
constexpr CraneFields kCrane1{1, 1, &Project::PsiV1, &Project::PsiH1, &Project::CraneClass1};
constexpr CraneFields kCrane2{5, 4, &Project::PsiV2, &Project::PsiH2, &Project::CraneClass2};
constexpr int kWheelsOfCrane = 4;

/// The crane as it travels: its distances from the wheel that leads.
CraneData turned(CraneData crane, bool reversed) {
    if (reversed) std::reverse(crane.spacing.begin(), crane.spacing.end());
    return crane;
}

const GroupLoads& loadsOf(const CraneLoads& loads, int group) {
    const auto found = std::find_if(loads.groups.begin(), loads.groups.end(),
                                    [group](const GroupLoads& each) { return each.group == group; });
    if (found == loads.groups.end()) throw std::invalid_argument("there is no group " + std::to_string(group));
    return *found;
}

void clear(Project& project, const CraneFields& fields) {
    for (int i = 0; i < kWheelsOfCrane; ++i) project.V(fields.firstWheel + i) = project.H(fields.firstWheel + i) = 0.0;
    for (int i = 0; i < kWheelsOfCrane - 1; ++i) project.Avst(fields.firstGap + i) = 0.0;
}

void put(Project& project, const CraneFields& fields, const CraneData& crane, const GroupChoice& choice) {
    const CraneLoads loads = actions::craneLoads(turned(crane, choice.reversed));
    const GroupLoads& group = loadsOf(loads, choice.group);
    const auto& rail = choice.farRail ? group.far : group.crab;
    const auto& standing = choice.group == kUnloaded ? loads.unloaded : loads.loaded;
    const double wheel = choice.farRail ? standing.far : standing.crab;
    clear(project, fields);
    std::vector<double> H = rail.H;
    if (choice.reversed) std::reverse(H.begin(), H.end());
    for (int i = 0; i < crane.wheels(); ++i) {
        project.V(fields.firstWheel + i) = wheel;
        project.H(fields.firstWheel + i) = H[static_cast<std::size_t>(i)];
    }
    for (std::size_t i = 0; i < crane.spacing.size(); ++i)
        project.Avst(fields.firstGap + static_cast<int>(i)) = crane.spacing[i] * 1000.0;
    project.*fields.psiV = choice.group == kUnloaded ? 1.0 : rail.psiV;
    project.*fields.psiH = group.psiH;
    project.*fields.craneClass = static_cast<std::int16_t>(crane.S);
}

/// True where the same crane the other way round puts the same forces on the beam, but for their common sense.
bool isSymmetric(const CraneData& crane, int group, bool farRail) {
    Project forward, backward;
    put(forward, kCrane1, crane, {group, 1, false, farRail});
    put(backward, kCrane1, crane, {group, 1, true, farRail});
    bool same = true, opposite = true;
    for (int wheel = 1; wheel <= kWheelsOfCrane; ++wheel) {
        same = same && forward.H(wheel) == backward.H(wheel);
        opposite = opposite && forward.H(wheel) == -backward.H(wheel);
    }
    return same || opposite;
}

/// What the cranes that act put along the beam, kN.
double alongOf(const std::vector<CraneData>& cranes, const GroupChoice& choice) {
    double sum = 0.0;
    for (std::size_t i = 0; i < cranes.size(); ++i) {
        if (choice.crane != 0 && choice.crane != static_cast<int>(i) + 1) continue;
        const CraneLoads loads = actions::craneLoads(cranes[i]);
        const GroupLoads& group = loadsOf(loads, choice.group);
        sum += group.HL * group.psiH;
    }
    return sum;
}

void regard(GroupRun& run, std::size_t column, const RowSet& rows) {
    const double ratio = rows.Ratio < 0.0 || std::isnan(rows.Ratio) ? rows.Ratio : rows.largest();
    std::optional<double>& kept = run.ratios[column];
    // One without resistance is worse than any number.
    if (kept && !(*kept >= 0.0)) return;
    if (kept && ratio >= 0.0 && ratio <= *kept) return;
    kept = ratio;
    run.origins[column] = rows.Origin;
}

std::vector<std::string> columnsOf(const Project& project) {
    std::vector<std::string> columns;
    for (const StaticCheck& check : staticChecks())
        if ((check.applies == nullptr || check.applies(project)) && isShown(check, project))
            columns.emplace_back(check.name);
    columns.emplace_back("fatigue");
    return columns;
}

void takeRatios(GroupRun& run, const std::vector<std::string>& columns, const Results& results) {
    for (std::size_t column = 0; column < columns.size(); ++column) {
        for (const CheckResult& check : results.Checks.all) {
            if (check.check->name != columns[column]) continue;
            for (const auto& rows : check.extremes)
                for (const RowSet& row : rows) regard(run, column, row);
            for (const RowSet& row : check.spans) regard(run, column, row);
        }
    }
    const std::size_t fatigue = columns.size() - 1;
    for (const auto& rows : results.Fatigue.FatRows)
        if (rows)
            for (const RowSet& row : *rows) regard(run, fatigue, row);
    for (const auto& row : results.Fatigue.FatResult)
        if (row) regard(run, fatigue, *row);
}

void calculate(GroupRun& run, const ReferenceTables& tables, const std::vector<std::string>& columns) {
    MessageList messages;
    Progress progress;
    run.ratios.resize(columns.size());
    run.origins.resize(columns.size());
    const Outcome outcome = Calculate(run.project, tables, messages, progress);
    run.refusal.clear();
    if (outcome.results) {
        takeRatios(run, columns, *outcome.results);
        const UlsResults& uls = outcome.results->Uls;
        for (int support = 1; support <= outcome.settled.NofSpans + 1; ++support)
            run.reactions.push_back({uls.RzMax(support) / 1000.0, uls.RzMin(support) / 1000.0,
                                     uls.RyMax(support) / 1000.0, uls.RyMin(support) / 1000.0});
    } else {
        run.refusal = messages.texts.empty() ? outcome.Fault : messages.texts.front();
    }
}

void findGoverning(GroupMatrix& matrix) {
    matrix.governing.assign(matrix.checks.size(), -1);
    for (std::size_t column = 0; column < matrix.checks.size(); ++column)
        for (std::size_t row = 0; row < matrix.runs.size(); ++row) {
            const GroupRun& run = matrix.runs[row];
            const auto& ratio = run.ratios[column];
            if (!ratio || !GroupMatrix::counts(run, column + 1 == matrix.checks.size())) continue;
            matrix.negative |= !(*ratio >= 0.0);
            int& best = matrix.governing[column];
            if (best >= 0 && !(*ratio > *matrix.runs[static_cast<std::size_t>(best)].ratios[column])) continue;
            best = static_cast<int>(row);
            if (matrix.largestRun >= 0 && !(*ratio > matrix.largest)) continue;
            matrix.largest = *ratio;
            matrix.largestRun = static_cast<int>(row);
            matrix.largestCheck = static_cast<int>(column);
        }
}

}  // namespace

std::string nameOf(const GroupChoice& choice) {
    return "Group " + std::to_string(choice.group) +
           (choice.crane == 0 ? "" : ", crane " + std::to_string(choice.crane) + " alone") +
           (choice.reversed ? ", reversed" : "") + (choice.farRail ? ", far rail" : "");
}

Project withGroup(const Project& project, const std::vector<CraneData>& cranes, const GroupChoice& choice) {
    Project loaded = project;
    const bool both = choice.crane == 0 && cranes.size() == 2;
    put(loaded, kCrane1, cranes.at(choice.crane == 2 ? 1 : 0), choice);
    if (both) {
        put(loaded, kCrane2, cranes[1], choice);
    } else {
        clear(loaded, kCrane2);
        loaded.MinAvst = 0.0;
    }
    loaded.NofCranes = both ? 2 : 1;
    if (choice.group == kTest) loaded.LfULS = actions::NationalValues().gammaTest;
    settleLoads(loaded, LoadForm::Overhead);
    return loaded;
}

std::optional<GroupChoice> groupOf(const Project& project, const std::vector<CraneData>& cranes) {
    if (cranes.empty() || project.CraneType != CraneKind::Overhead) return std::nullopt;
    for (const GroupChoice& choice : groupChoices(project, cranes, true)) {
        Project made = withGroup(project, cranes, choice);
        // Its own flag, which the load form sets, is no load.
        made.HasLoadsY = project.HasLoadsY;
        if (made == project) return choice;
    }
    return std::nullopt;
}

std::vector<GroupChoice> groupChoices(const Project&, const std::vector<CraneData>& cranes, bool farRails) {
    std::vector<GroupChoice> choices;
    const std::vector<int> who = cranes.size() == 2 ? std::vector<int>{0, 1, 2} : std::vector<int>{0};
    for (const bool farRail : farRails ? std::vector<bool>{false, true} : std::vector<bool>{false})
        for (const int crane : who)
            for (const int group : {1, 2, 3, 4, 5, 6, 8}) {
                const auto acts = [&](std::size_t i) { return crane == 0 || crane == static_cast<int>(i) + 1; };
                bool applies = group != 2, symmetric = true;
                for (std::size_t i = 0; i < cranes.size(); ++i) {
                    if (!acts(i)) continue;
                    applies = applies || cranes[i].released > 0.0;
                    symmetric = symmetric && isSymmetric(cranes[i], group, farRail);
                }
                if (!applies) continue;
                choices.push_back({group, crane, false, farRail});
                if (!symmetric) choices.push_back({group, crane, true, farRail});
            }
    return choices;
}

GroupMatrix compareGroups(const Project& project, const ReferenceTables& tables, const std::vector<CraneData>& cranes,
                          bool farRails, const std::atomic<bool>* stop) {
    if (cranes.empty()) throw std::invalid_argument("the project has no crane data");
    if (project.CraneType != CraneKind::Overhead)
        throw std::invalid_argument("groups of loads are those of overhead cranes; this beam carries a hoist");
    for (std::size_t i = 0; i < cranes.size(); ++i)
        if (const auto check = actions::checkCrane(cranes[i]); !check.isGood())
            throw std::invalid_argument("crane " + std::to_string(i + 1) + ": " + check.faults.front().line());
    GroupMatrix matrix;
    matrix.checks = columnsOf(project);
    for (const GroupChoice& choice : groupChoices(project, cranes, farRails)) {
        GroupRun run;
        run.choice = choice;
        run.project = withGroup(project, cranes, choice);
        run.HL = alongOf(cranes, choice);
        run.refusal = "cancelled";
        run.ratios.resize(matrix.checks.size());
        run.origins.resize(matrix.checks.size());
        matrix.runs.push_back(std::move(run));
    }
    inParallel(
        matrix.runs.size(), [&](std::size_t i) { calculate(matrix.runs[i], tables, matrix.checks); }, stop);
    findGoverning(matrix);
    return matrix;
}

}  // namespace borvik
