// Checks how the cost of a menu rebuild grows.
// SPDX-License-Identifier: MIT
#include "benchmarks/Growth.h"

#include <algorithm>
#include <array>

namespace brisel::benchmarks {

namespace {

constexpr double Few = 10;
constexpr double Many = 1000;
constexpr double MicrosecondsPerSecond = 1e6;

constexpr double MostCostPerVolume = 1.3;
constexpr double MostListReadsPerVolume = 1;

double counterOf(const benchmark::BenchmarkReporter::Run& run, const char* name) {
    const auto found = run.counters.find(name);
    return found == run.counters.end() ? 0 : found->second.value;
}

GrowthReporter::Verdict tell(std::ostream& out, const std::string& what, double value,
                             double limit) {
    const bool within = value <= limit;
    out << what << ": " << value << " (at most " << limit << ")" << (within ? "" : "  BEYOND IT")
        << '\n';
    return within ? GrowthReporter::Verdict::WithinLimits : GrowthReporter::Verdict::BeyondLimits;
}

}  // namespace

void GrowthReporter::ReportRuns(const std::vector<Run>& runs) {
    for (const auto& run : runs) {
        if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
        const auto& args = run.run_name.args;
        const auto name = run.run_name.function_name + (args.empty() ? "" : '/' + args);
        const Best now{.time = run.real_accumulated_time / static_cast<double>(run.iterations),
                       .allocations = counterOf(run, "allocations"),
                       .listReadsPerVolume = counterOf(run, "list_reads_per_volume")};
        auto& best = best_.try_emplace(name, now).first->second;
        best.time = std::min(best.time, now.time);
        best.listReadsPerVolume = std::max(best.listReadsPerVolume, now.listReadsPerVolume);
    }
}

GrowthReporter::Verdict GrowthReporter::judge(std::ostream& out) const {
    for (const auto& [name, best] : best_) {
        out << name << ": " << best.time * MicrosecondsPerSecond << " us, " << best.allocations
            << " allocations\n";
    }
    auto verdict = Verdict::WithinLimits;
    for (const auto* const name : {"rebuildWritable", "rebuildReadOnly", "rebuildWritableSilently",
                                   "rebuildReadOnlySilently"}) {
        if (judgeRebuild(out, name) == Verdict::BeyondLimits) verdict = Verdict::BeyondLimits;
    }
    return verdict;
}

GrowthReporter::Verdict GrowthReporter::judgeRebuild(std::ostream& out,
                                                     const std::string& name) const {
    const auto few = best_.find(name + "/10");
    const auto many = best_.find(name + "/1000");
    if (few == best_.end() || many == best_.end()) {
        out << name << ": was not run\n";
        return Verdict::BeyondLimits;
    }
    const double ratio = (many->second.time / Many) / (few->second.time / Few);
    const std::array verdicts{
        tell(out, name + ", cost per volume with 1000 over that with 10", ratio, MostCostPerVolume),
        tell(out, name + ", reads of the automount list per volume and rebuild",
             many->second.listReadsPerVolume, MostListReadsPerVolume)};
    const bool within = std::count(verdicts.begin(), verdicts.end(), Verdict::WithinLimits) ==
                        static_cast<std::ptrdiff_t>(verdicts.size());
    return within ? Verdict::WithinLimits : Verdict::BeyondLimits;
}

}  // namespace brisel::benchmarks
