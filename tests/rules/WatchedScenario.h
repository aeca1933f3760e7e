// A scenario checked by all rules.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "simulator/Scenario.h"
#include "tests/rules/Rule.h"

namespace brisel::tests {

/// Passes over bad commands and stops at the first broken rule.
class WatchedScenario final : private simulator::CommandSource {
  public:
    struct Listener {
        /// Hears each line of the transcript, commands among them.
        simulator::Scenario::Output line = [](const std::string&) {};
        /// Hears that the command heard last was a bad one.
        std::function<void()> badCommand = [] {};
    };

    /// `source` must outlive it.
    WatchedScenario(simulator::CommandSource& source, Listener listener);

    void run() { scenario_.run(); }
    [[nodiscard]] simulator::Scenario& scenario() { return scenario_; }
    /// Sentences, each with the number of the command.
    [[nodiscard]] const std::vector<std::string>& broken() const { return broken_; }

  private:
    std::optional<std::string> nextLine(const std::string& prompt) override;
    [[nodiscard]] simulator::Scenario::Options options();
    void hear(const std::string& line);
    void refuse();

    simulator::CommandSource& source_;
    const Listener listener_;
    std::size_t line_ = 0;
    std::vector<std::string> broken_;
    simulator::Scenario scenario_;
    Rules rules_;
};

}  // namespace brisel::tests
