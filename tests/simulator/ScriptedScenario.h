// A scenario given as a text, and what came of it.
// SPDX-License-Identifier: MIT
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "simulator/Scenario.h"
#include "tests/support/Matchers.h"

namespace brisel::tests {

class ScriptedScenario : public testing::Test {
  protected:
    simulator::Scenario::Options options;
    std::vector<std::string> lines;
    std::vector<simulator::Scenario::BadCommand> complaints;
    int commandsDone = 0;

    /// Runs the commands; what `Scenario::run` says.
    bool run(const std::string& commands) {
        std::istringstream text(commands);
        simulator::StreamSource source(text);
        options.badCommandHandler = [this](const auto& bad) { complaints.push_back(bad); };
        options.afterCommand = [this] { ++commandsDone; };
        return simulator::Scenario(
                   source, [this](const std::string& line) { lines.push_back(line); }, options)
            .run();
    }
    /// As a terminal does: no echo, and on it goes after a bad command.
    bool runInteractively(const std::string& commands) {
        options.onBadCommand = simulator::Scenario::OnBadCommand::GoOn;
        options.echo = simulator::Scenario::Echo::Nothing;
        return run(commands);
    }
    /// The line in which the commands stopped, or 0.
    std::size_t stoppedIn(const std::string& commands) {
        complaints.clear();
        return run(commands) || complaints.empty() ? 0 : complaints.back().line;
    }
};

/// Commands that bring the program up with the notice accepted before.
inline constexpr const char* Started = "default showDisclaimer NO\nstart\n";

}  // namespace brisel::tests
