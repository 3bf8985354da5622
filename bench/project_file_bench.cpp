#include <benchmark/benchmark.h>

#include <filesystem>

#include "project/project_file.h"
#include "runways.h"

namespace borvik {
namespace {

std::string temporaryFile() {
    return (std::filesystem::temp_directory_path() / "bench_borvik.brvk").string();
}

void saveProject(benchmark::State& state) {
    const Session session = runway(30, 30000, RunwayCranes::Independent);
    for (auto _ : state) SaveProject(temporaryFile(), session.project);
    std::filesystem::remove(temporaryFile());
}

void loadProject(benchmark::State& state) {
    SaveProject(temporaryFile(), runway(30, 30000, RunwayCranes::Independent).project);
    Project project;
    for (auto _ : state) LoadProject(temporaryFile(), project);
    std::filesystem::remove(temporaryFile());
}

void loadTables(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(LoadTables(BORVIK_SOURCE_DIR "/data"));
}

BENCHMARK(saveProject)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(loadProject)->Unit(benchmark::kMicrosecond);
BENCHMARK(loadTables)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace borvik
