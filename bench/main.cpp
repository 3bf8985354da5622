#include <benchmark/benchmark.h>

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    const bool asked = !benchmark::GetBenchmarkFilter().empty();
    if (asked)
        benchmark::RunSpecifiedBenchmarks();
    else
        benchmark::RunSpecifiedBenchmarks("-Slow");
    benchmark::Shutdown();
}
