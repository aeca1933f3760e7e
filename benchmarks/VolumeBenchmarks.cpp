// Benchmarks of disk appearance, disk disappearance and menu rebuilds.
// SPDX-License-Identifier: MIT
#include <benchmark/benchmark.h>

#include <chrono>

#include "benchmarks/Allocations.h"
#include "benchmarks/BenchmarkProgram.h"

namespace brisel::benchmarks {

namespace {

using benchmark::Counter;
using benchmark::State;

constexpr int One = 1;
constexpr int Most = 1000;
constexpr int Steps = 10;

/// Measures the time and allocations of its scope.
class Stretch {
  public:
    explicit Stretch(State& state) : state_(state) {}
    Stretch(const Stretch&) = delete;
    Stretch& operator=(const Stretch&) = delete;

    ~Stretch() {
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start_;
        state_.SetIterationTime(time.count());
        state_.counters["allocations"] += static_cast<double>(allocations() - allocationsBefore_);
    }

  private:
    State& state_;
    std::size_t allocationsBefore_ = allocations();
    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

void averageAllocations(State& state) {
    state.counters["allocations"].flags = Counter::kAvgIterations;
}

// A volume appears beside `range` others; it is read-only, so the program prompts for it.
void appearanceToRebuiltMenu(State& state) {
    const auto others = static_cast<int>(state.range(0));
    BenchmarkProgram program;
    program.fill(others, Volumes::Writable);
    for ([[maybe_unused]] const auto iteration : state) {
        {
            const Stretch stretch(state);
            program.attach(others, Volumes::ReadOnly);
        }
        program.detach(others);
    }
    averageAllocations(state);
}

void disappearanceToRebuiltMenu(State& state) {
    const auto others = static_cast<int>(state.range(0));
    BenchmarkProgram program;
    program.fill(others, Volumes::Writable);
    for ([[maybe_unused]] const auto iteration : state) {
        program.attach(others, Volumes::ReadOnly);
        const Stretch stretch(state);
        program.detach(others);
    }
    averageAllocations(state);
}

void rebuild(State& state, Volumes kind, Icon icon) {
    const auto count = static_cast<int>(state.range(0));
    BenchmarkProgram program(icon);
    program.fill(count, kind);
    const auto readsBefore = program.mac().userDefaults.listReads();
    for ([[maybe_unused]] const auto iteration : state) {
        const Stretch stretch(state);
        program.manager().refreshVolumes();
    }
    const auto reads = program.mac().userDefaults.listReads() - readsBefore;
    state.counters["list_reads_per_volume"] =
        Counter(static_cast<double>(reads) / count, Counter::kAvgIterations);
    averageAllocations(state);
}

void rebuildWritable(State& state) {
    rebuild(state, Volumes::Writable, Icon::TellsTheMenu);
}

void rebuildReadOnly(State& state) {
    rebuild(state, Volumes::ReadOnly, Icon::TellsTheMenu);
}

void rebuildWritableSilently(State& state) {
    rebuild(state, Volumes::Writable, Icon::TellsNothing);
}

void rebuildReadOnlySilently(State& state) {
    rebuild(state, Volumes::ReadOnly, Icon::TellsNothing);
}

// Start, attach, remount with the tool (a real child process), unmount, detach.
void wholeScenario(State& state) {
    for ([[maybe_unused]] const auto iteration : state) {
        const Stretch stretch(state);
        BenchmarkProgram program;
        program.attach(One, Volumes::ReadOnly);
        program.choose("remountVolume:");
        program.choose("unmountVolume:");
        program.detach(One);
    }
    averageAllocations(state);
}

constexpr auto Unit = benchmark::kMicrosecond;

BENCHMARK(appearanceToRebuiltMenu)->UseManualTime()->Unit(Unit)->Arg(0)->Arg(Steps)->Arg(Most);
BENCHMARK(disappearanceToRebuiltMenu)->UseManualTime()->Unit(Unit)->Arg(0)->Arg(Steps)->Arg(Most);
BENCHMARK(rebuildWritable)->UseManualTime()->Unit(Unit)->RangeMultiplier(Steps)->Range(One, Most);
BENCHMARK(rebuildReadOnly)->UseManualTime()->Unit(Unit)->RangeMultiplier(Steps)->Range(One, Most);
BENCHMARK(rebuildWritableSilently)
    ->UseManualTime()
    ->Unit(Unit)
    ->RangeMultiplier(Steps)
    ->Range(One, Most);
BENCHMARK(rebuildReadOnlySilently)
    ->UseManualTime()
    ->Unit(Unit)
    ->RangeMultiplier(Steps)
    ->Range(One, Most);
BENCHMARK(wholeScenario)->UseManualTime()->Unit(Unit);

}  // namespace

}  // namespace brisel::benchmarks
