// A scenario under the eyes of all rules.
// SPDX-License-Identifier: MIT
#pragma once

#include <istream>
#include <random>
#include <string>
#include <vector>

#include "simulator/Scenario.h"
#include "tests/soak/Rule.h"

namespace brisel::tests {

/// Stops at the first broken rule.
class WatchedScenario final : private simulator::CommandSource {
  public:
    /// With another seed than 0 a call fails now and then. Then a scenario that was made for a
    /// program without faults does not fit any more: its bad commands are passed over, and what it
    /// leaves on the screen is answered.
    WatchedScenario(std::istream& commands, unsigned faultSeed);

    /// False when a bad command stopped it.
    bool run() { return scenario_.run(); }
    [[nodiscard]] const std::string& complaint() const { return complaint_; }
    /// Sentences, each with the number of the command.
    [[nodiscard]] const std::vector<std::string>& broken() const { return broken_; }

  private:
    std::optional<std::string> nextLine(const std::string& prompt) override;
    [[nodiscard]] simulator::Scenario::Manner manner();
    void hear(const std::string& line);
    void refuse(const simulator::Scenario::BadCommand& bad);
    void arrangeNextFault();

    std::istream& commands_;
    const bool faulty_;
    std::minstd_rand chance_;
    std::size_t nextFault_ = 0;
    std::size_t line_ = 0;
    int ignored_ = 0;
    std::string buttons_;
    std::string complaint_;
    std::vector<std::string> broken_;
    simulator::Scenario scenario_;
    Rules rules_;
};

}  // namespace brisel::tests
