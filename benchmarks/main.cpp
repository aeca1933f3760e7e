// brisel-benchmarks: runs the benchmarks; with --check-growth, fails if costs grow too fast.
// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <iostream>
#include <string_view>
#include <vector>

#include "benchmarks/Growth.h"

namespace {

// The best of several interleaved repetitions is least sensitive to other load.
int checkGrowth(const char* program) {
    std::string name = program;
    std::string repetitions = "--benchmark_repetitions=7";
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::string time = "--benchmark_min_time=0.05";
    std::vector<char*> arguments{name.data(), repetitions.data(), interleaving.data(), time.data()};
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    brisel::benchmarks::GrowthReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.judge(std::cout) == brisel::benchmarks::GrowthReporter::Verdict::WithinLimits
               ? 0
               : 1;
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount == 2 && std::string_view(arguments[1]) == "--check-growth")
        return checkGrowth(arguments[0]);
    benchmark::Initialize(&argumentCount, arguments);
    if (benchmark::ReportUnrecognizedArguments(argumentCount, arguments)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
