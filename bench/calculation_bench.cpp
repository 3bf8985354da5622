// Whole calculations: sections, ULS, SLS, checks and fatigue.

#include <benchmark/benchmark.h>

#include <chrono>

#include "calculation/calculation.h"
#include "groups/group_runs.h"
#include "notes/notes.h"
#include "reactions/support_reactions.h"
#include "runways.h"
#include "second_opinion/second_opinion.h"

namespace borvik {
namespace {

double secondsOf(Session& session, WalkMethod method) {
    const auto start = std::chrono::steady_clock::now();
    MessageList messages;
    Progress progress;
    if (!Calculate(session, messages, progress, method)) throw std::runtime_error(messages.texts.back());
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void calculate(benchmark::State& state, Session session, WalkMethod method) {
    for (auto _ : state) secondsOf(session, method);
}

/// The time is that of the fast walk; the counter says how many times longer the plain one takes.
void plainAgainstFast(benchmark::State& state, Session session) {
    double plain = 0, fast = 0;
    for (auto _ : state) {
        plain += secondsOf(session, WalkMethod::Plain);
        const double seconds = secondsOf(session, WalkMethod::Fast);
        fast += seconds;
        state.SetIterationTime(seconds);
    }
    state.counters["plain/fast"] = plain / fast;
}

void growth(benchmark::State& state, WalkMethod method) {
    const auto spans = static_cast<int>(state.range(0));
    calculate(state, runway(spans, 30000, RunwayCranes::Independent), method);
    state.SetComplexityN(spans);
}

void notes(benchmark::State& state, Session session) {
    secondsOf(session, WalkMethod::Fast);
    for (auto _ : state) benchmark::DoNotOptimize(projectNotes(session));
}

void secondOpinions(benchmark::State& state, Session session) {
    secondsOf(session, WalkMethod::Fast);
    for (auto _ : state) benchmark::DoNotOptimize(secondOpinion(session));
}

void reactions(benchmark::State& state, Session session) {
    secondsOf(session, WalkMethod::Fast);
    for (auto _ : state) benchmark::DoNotOptimize(supportReactions(session.project, *session.results));
}

/// All groups of two cranes; the counter says how many single runs twelve of them take on all cores. A single run is
/// that of group 4 with both cranes.
void groups(benchmark::State& state, Session session) {
    actions::CraneData crane;
    crane.bridge = 65, crane.crab = 12, crane.hoist = 100, crane.span = 18, crane.emin = 0.9;
    crane.spacing = {3.2};
    const std::vector<actions::CraneData> cranes{crane, crane};
    double single = 0, all = 0, runs = 0;
    Session one = session;
    for (auto _ : state) {
        one.project = withGroup(session.project, cranes, {4});
        single += secondsOf(one, WalkMethod::Fast);
        const auto start = std::chrono::steady_clock::now();
        const GroupMatrix matrix = compareGroups(session.project, session.tables, cranes, false);
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        all += seconds;
        runs = static_cast<double>(matrix.runs.size());
        state.SetIterationTime(seconds);
    }
    state.counters["runs"] = runs;
    state.counters["12 runs/one"] = all / runs * 12 / single;
}

constexpr auto kMs = benchmark::kMillisecond;

BENCHMARK_CAPTURE(calculate, DefaultProject, defaultSession(), WalkMethod::Fast)->Unit(kMs);
BENCHMARK_CAPTURE(calculate, Train_30x30m, runway(30, 30000, RunwayCranes::Train), WalkMethod::Fast)->Unit(kMs);
BENCHMARK_CAPTURE(calculate, Independent_3x10m, runway(3, 10000, RunwayCranes::Independent), WalkMethod::Fast)
    ->Unit(kMs);
BENCHMARK_CAPTURE(calculate, Independent_30x30m, runway(30, 30000, RunwayCranes::Independent), WalkMethod::Fast)
    ->Unit(kMs);
BENCHMARK_CAPTURE(calculate, Slow_Independent_30x30m_plain, runway(30, 30000, RunwayCranes::Independent),
                  WalkMethod::Plain)
    ->Unit(benchmark::kSecond)
    ->Iterations(1);

BENCHMARK_CAPTURE(notes, DefaultProject, defaultSession())->Unit(kMs);
BENCHMARK_CAPTURE(notes, Independent_3x10m, runway(3, 10000, RunwayCranes::Independent))->Unit(kMs);
BENCHMARK_CAPTURE(notes, Independent_30x30m, runway(30, 30000, RunwayCranes::Independent))->Unit(kMs);

BENCHMARK_CAPTURE(secondOpinions, DefaultProject, defaultSession())->Unit(kMs);
BENCHMARK_CAPTURE(secondOpinions, Independent_10x12m, runway(10, 12000, RunwayCranes::Independent))->Unit(kMs);
BENCHMARK_CAPTURE(secondOpinions, Independent_30x30m, runway(30, 30000, RunwayCranes::Independent))->Unit(kMs);

BENCHMARK_CAPTURE(reactions, DefaultProject, defaultSession())->Unit(kMs);
BENCHMARK_CAPTURE(groups, Independent_3x10m, runway(3, 10000, RunwayCranes::Independent))->UseManualTime()->Unit(kMs);
BENCHMARK_CAPTURE(groups, Independent_30x30m, runway(30, 30000, RunwayCranes::Independent))->UseManualTime()->Unit(kMs);
BENCHMARK_CAPTURE(reactions, Independent_30x30m, runway(30, 30000, RunwayCranes::Independent))->Unit(kMs);

BENCHMARK_CAPTURE(plainAgainstFast, Train_30x30m, runway(30, 30000, RunwayCranes::Train))->UseManualTime()->Unit(kMs);
BENCHMARK_CAPTURE(plainAgainstFast, Independent_3x10m, runway(3, 10000, RunwayCranes::Independent))
    ->UseManualTime()
    ->Unit(kMs)
    ->Iterations(3);
BENCHMARK_CAPTURE(plainAgainstFast, Independent_10x12m, runway(10, 12000, RunwayCranes::Independent))
    ->UseManualTime()
    ->Unit(kMs)
    ->Iterations(1);

BENCHMARK_CAPTURE(growth, Fast_spans_of_30m, WalkMethod::Fast)
    ->Arg(3)
    ->Arg(6)
    ->Arg(12)
    ->Arg(24)
    ->Unit(kMs)
    ->Complexity();
BENCHMARK_CAPTURE(growth, Plain_spans_of_30m, WalkMethod::Plain)
    ->Arg(1)
    ->Arg(2)
    ->Arg(4)
    ->Unit(kMs)
    ->Iterations(1)
    ->Complexity();

}  // namespace
}  // namespace borvik
