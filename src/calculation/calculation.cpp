#include "calculation/calculation.h"

#include <chrono>
#include <utility>

#include "base/number_text.h"
#include "checks/ltb_checks.h"
#include "fatigue/fatigue.h"
#include "project/loads.h"
#include "section/section.h"

namespace borvik {

namespace {

/// A project with more positions than this would keep any machine busy for hours.
constexpr double kMostPositions = 1e9;

bool hasSection(const Project& project, int span) {
    return project.SpanSection.has(span) && !project.SpanSection(span).DisplayName.empty();
}

/// What the input check finds first in the spans and their sections, and where.
struct Refusal {
    const char* message = nullptr;  ///< null where they are in order
    int span = 0;
};

Refusal refusal(const Project& project) {
    for (int i = 2; i <= 29; ++i)
        if (project.Span(i + 1) != 0 && project.Span(i) == 0) return {" An inner beam can't have length = 0 ", i};
    for (int i = 2; i <= 29; ++i)
        if (hasSection(project, i + 1) && !hasSection(project, i)) return {" An inner beam must have a profile  ", i};
    for (int i = 1; i <= 30; ++i)
        if (!hasSection(project, i) && project.Span(i) != 0) return {" Missing profile  ", i};
    for (int i = 1; i <= 30; ++i)
        if (hasSection(project, i) && project.Span(i) == 0) return {" Missing beam length  ", i};
    return {};
}

/// Whether a splice stands on the beam. A span number below 1,
/// as only a spoilt file has it, is no place on the beam either.
bool fits(const Project& project, double span, double distance) {
    if (!(span > 0.5 && span <= project.NofSpans)) return false;
    return !(distance > project.Span(roundHalfEven(span)));
}

/// Unticks the splices that lie beyond the beam or beyond their span, without a message, and the whole detail when none
/// is left. Only the four splices that the form offers are looked at.
void dropSplices(const Project& project, bool& detail, FixedArray<bool, 1, 10>& inUse,
                 const FixedArray<Single, 1, 10>& span, const FixedArray<Single, 1, 10>& distance) {
    bool anyLeft = false;
    for (int splice = 1; splice <= 4; ++splice) {
        if (detail && inUse(splice)) inUse(splice) = fits(project, span(splice), distance(splice));
        anyLeft = anyLeft || inUse(splice);
    }
    if (!anyLeft) detail = false;
}

void turnRound(Array<Single>& largest, Array<Single>& smallest, Array<WalkPosition>& largestAt,
               Array<WalkPosition>& smallestAt) {
    const int support = largest.last();
    const double a = largest(support);
    const double b = smallest(support);
    largest(support) = -b;
    smallest(support) = -a;
    std::swap(largestAt(support), smallestAt(support));
}

struct Run {
    Project& project;  ///< is being settled
    const ReferenceTables& tables;
    Messages& messages;
    Progress& progress;
    WalkMethod method;
    RunLoads loads;
    Results results;
};

/// Sections, ULS, SLS and the static checks.
void RunStatic(Run& run) {
    Project& project = run.project;
    const RailRecord& rail = railOf(project, run.tables);
    UpdateSections(run.tables, project);
    run.loads.NCranes = project.NofCranes;
    run.results.Rail = rail;

    setUlsLoads(project, rail, run.loads);
    UlsResults& uls = run.results.Uls;
    uls = RunUls(project, run.loads, run.method, run.messages, run.progress);
    run.results.Steps = uls.Steps;
    turnReactionsUpward(uls);

    setSlsLoads(project, rail, run.loads);
    run.results.Sls = RunSls(project, run.loads, run.method, run.messages, run.progress);
    if (project.DefaultCfactor) DefaultCFactors(project);
    run.results.Checks = RunCodeChecks({project, rail, uls, run.results.Sls});
}

/// Two cranes are always overhead cranes here, whatever the crane type says.
void runFatigue(Run& run) {
    Project& project = run.project;
    const FatigueRun fatigue{
        project, railOf(project, run.tables), run.loads, run.method, run.messages, run.progress, run.results.Steps};
    const bool overhead = project.NofCranes == 2 || project.CraneType == CraneKind::Overhead;
    run.results.Fatigue = overhead ? RunFatigueOverhead(fatigue) : RunFatigueMonorail(fatigue);
    if (const auto both = run.results.Fatigue.ClassOfBoth) project.FatigueSpare = *both;
}

/// The lengths of beam and cranes, each sum rounded to a single.
void setLengths(Project& project) {
    project.BeamLength = 0;
    project.CraneLength1 = project.Avst(1) + project.Avst(2) + project.Avst(3);
    project.CraneLength2 = project.Avst(4) + project.Avst(5) + project.Avst(6);
    project.CranesLength = project.MinAvst + project.CraneLength1 + project.CraneLength2;
    for (int i = 1; i <= project.NofSpans; ++i) project.BeamLength += project.Span(i);
}

/// Whether the cranes, from the position of wheel 1 on, are shorter than the beam. Equal lengths are refused, and
/// whether the load may start and stop outside plays no part.
bool cranesFit(const Project& project, Messages& messages) {
    const Single required = project.Position + project.CranesLength;
    if (required < project.BeamLength) return true;
    messages.show(generalText(required) + " > " + generalText(project.BeamLength) +
                  " ; Traversen ryms ej på traversbalken!!");
    return false;
}

bool walkable(const Project& project, Messages& messages) {
    const double positions = countPositions(project, project.NofCranes);
    if (positions <= kMostPositions) return true;
    messages.show("The cranes would take " + formatNumber(positions, "0") +
                  " positions on this beam; the calculation goes up to 1000000000. Shorten the beam.");
    return false;
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace

Session::Session(ReferenceTables loaded) : tables(std::move(loaded)) {
    startAnew();
}

void Session::startAnew() {
    project = DefaultProject(tables);
    CurrentSection = blankSection(tables);
    named(kNewProjectFile);
}

void Session::take(Outcome outcome) {
    project = std::move(outcome.settled);
    InputOK = outcome.InputOK;
    Fault = std::move(outcome.Fault);
    Calculated = outcome.results.has_value();
    if (!Calculated) return;
    results = std::move(outcome.results);
    notes.reset();
    CurrentSection = project.SpanSection(project.NofSpans);
}

bool CheckInput(Project& project, Messages& messages) {
    project.NofSpans = 0;
    while (project.NofSpans < kMaxSpans && project.Span(project.NofSpans + 1) != 0) ++project.NofSpans;
    project.BeamChecked = true;
    bool ok = true;
    if (project.Span(1) == 0) {
        messages.show(" First Beam must have a length ");
        ok = false;
    }
    if (const char* text = refusal(project).message) {
        messages.show(text);
        return false;
    }
    dropSplices(project, project.FatR5, project.ChkFatR5Sp, project.FatR5Span, project.FatR5d1);
    dropSplices(project, project.Fat5, project.ChkFat5Sp, project.Fat5Span, project.Fat5d1);
    return ok;
}

int refusedSpan(const Project& project) {
    return project.Span(1) == 0 ? 1 : refusal(project).span;
}

void turnReactionsUpward(UlsResults& uls) {
    turnRound(uls.RzMax, uls.RzMin, uls.At.RzMax, uls.At.RzMin);
    turnRound(uls.RyMax, uls.RyMin, uls.At.RyMax, uls.At.RyMin);
}

Outcome Calculate(const Project& entered, const ReferenceTables& tables, Messages& messages, Progress& progress,
                  WalkMethod method) {
    const auto start = std::chrono::steady_clock::now();
    Outcome outcome{entered, std::nullopt, true, ""};
    Project& project = outcome.settled;
    try {
        outcome.InputOK = CheckInput(project, messages);
        if (!outcome.InputOK) return outcome;
        watched("Lengths of beam and cranes", 0, [&] { setLengths(project); });
        if (!cranesFit(project, messages) || !walkable(project, messages)) return outcome;

        Run run{project, tables, messages, progress, method, {}, {}};
        RunStatic(run);
        run.results.SecondsStatic = secondsSince(start);
        runFatigue(run);
        run.results.Seconds = secondsSince(start);
        if (project.NofCranes == 2) progress.runEnds(run.results.SecondsStatic);
        outcome.results = std::move(run.results);
    } catch (const RuntimeFault& fault) {
        // Half-filled sections go back to what was entered.
        project.SpanSection = entered.SpanSection;
        outcome.Fault = std::string("Run-time error. ") + fault.what();
        messages.show(outcome.Fault);
    }
    return outcome;
}

bool Calculate(Session& session, Messages& messages, Progress& progress, WalkMethod method) {
    session.Fault.clear();
    session.Calculated = false;
    session.take(Calculate(session.project, session.tables, messages, progress, method));
    return session.Calculated;
}

}  // namespace borvik
