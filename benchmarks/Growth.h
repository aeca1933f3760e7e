// Growth of costs with the number of volumes, from the results of a run.
// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

namespace brisel::benchmarks {

/// Keeps each benchmark's best repetition.
class GrowthReporter final : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;

    enum class Verdict { WithinLimits, BeyondLimits };
    /// Prints each benchmark's best result, then each ratio with its limit.
    Verdict judge(std::ostream& out) const;

  private:
    struct Best {
        /// In seconds.
        double time = 0;
        double allocations = 0;
        double listReadsPerVolume = 0;
    };

    Verdict judgeRebuild(std::ostream& out, const std::string& name) const;

    std::map<std::string, Best> best_;
};

}  // namespace brisel::benchmarks
