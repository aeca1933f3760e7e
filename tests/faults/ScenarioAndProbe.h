// The commands of a scenario, then the answers that bring the program to rest, then a probe.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "simulator/CommandSource.h"

namespace brisel::tests {

/// A failed call may leave an alert or a prompt up, or completions held back, at the end of a
/// scenario. They are settled before the probe, a disk that a living program must report.
class ScenarioAndProbe final : public simulator::CommandSource {
  public:
    /// `transcript` is what the scenario has printed so far; it must outlive the source.
    ScenarioAndProbe(const std::vector<std::string>& commands,
                     const std::vector<std::string>& transcript)
        : commands_(commands), transcript_(transcript) {}

    std::optional<std::string> nextLine(const std::string& prompt) override;

    static constexpr const char* ProbeDevice = "probe1s1";

  private:
    [[nodiscard]] std::optional<std::string> settle(const std::string& prompt);
    [[nodiscard]] std::string pressFirstButton() const;

    const std::vector<std::string>& commands_;
    const std::vector<std::string>& transcript_;
    std::size_t next_ = 0;
    std::size_t nextOfEnding_ = 0;
    std::size_t answers_ = 0;
};

}  // namespace brisel::tests
