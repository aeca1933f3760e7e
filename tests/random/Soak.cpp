// Long random scenarios under all rules.
// SPDX-License-Identifier: MIT
#include "tests/random/Soak.h"

#include <algorithm>
#include <iostream>
#include <random>

#include "tests/random/RandomCommands.h"
#include "tests/rules/WatchedScenario.h"

namespace brisel::tests {

namespace {

using Lines = RandomCommands::Lines;

/// Lets calls fail now and then. Seed 0 is for none.
class RandomFaults {
  public:
    explicit RandomFaults(unsigned seed) : seed_(seed), chance_(seed) {}

    void arrange(platform::simulated::Faults& faults) {
        constexpr std::size_t Rarest = 60;
        // The session is opened first, and without one there is nothing to see.
        if (seed_ == 0 || faults.calls() == 0 || faults.calls() < next_) return;
        next_ = faults.calls() + 1 + chance_() % Rarest;
        faults.failCall(next_);
    }

  private:
    const unsigned seed_;
    std::minstd_rand chance_;
    std::size_t next_ = 0;
};

/// Commands that were given before.
class Replay final : public simulator::CommandSource {
  public:
    explicit Replay(const Lines& lines) : lines_(lines) {}
    std::optional<std::string> nextLine(const std::string& /*prompt*/) override {
        return next_ < lines_.size() ? std::optional(lines_[next_++]) : std::nullopt;
    }

  private:
    const Lines& lines_;
    std::size_t next_ = 0;
};

/// One scenario under the rules.
class Run final : private simulator::CommandSource {
  public:
    Run(simulator::CommandSource& commands, unsigned faultSeed,
        WatchedScenario::Listener listener = {})
        : commands_(commands), faults_(faultSeed), watched_(*this, std::move(listener)) {}

    [[nodiscard]] simulator::Scenario& scenario() { return watched_.scenario(); }
    /// The rules it breaks.
    const Lines& broken() {
        watched_.run();
        return watched_.broken();
    }

  private:
    std::optional<std::string> nextLine(const std::string& prompt) override {
        faults_.arrange(scenario().mac().faults);
        return commands_.nextLine(prompt);
    }

    simulator::CommandSource& commands_;
    RandomFaults faults_;
    WatchedScenario watched_;
};

Lines brokenBy(const Lines& lines, unsigned faultSeed) {
    Replay replay(lines);
    return Run(replay, faultSeed).broken();
}

// Drops runs of commands, ever shorter ones, without which a rule is broken all the same.
Lines shortest(Lines lines, unsigned faultSeed) {
    for (auto size = lines.size() / 2; size > 0; size /= 2) {
        for (std::size_t start = 0; start < lines.size();) {
            auto fewer = lines;
            const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(start);
            fewer.erase(begin,
                        begin + static_cast<std::ptrdiff_t>(std::min(size, lines.size() - start)));
            if (brokenBy(fewer, faultSeed).empty()) {
                start += size;
            } else {
                lines = std::move(fewer);
            }
        }
    }
    return lines;
}

bool holdsFor(RandomCommands& commands, unsigned faultSeed) {
    Run run(commands, faultSeed,
            {.line = [&](const std::string& line) { commands.hear(line); },
             .badCommand = [&] { commands.forgetBadCommand(); }});
    commands.drive(run.scenario());
    const auto broken = run.broken();
    if (broken.empty()) return true;
    const auto fewest = shortest(commands.given(), faultSeed);
    for (const auto& line : fewest)
        std::cout << "    " << line << '\n';
    const auto brokenByFewest = brokenBy(fewest, faultSeed);
    for (const auto& sentence : brokenByFewest.empty() ? broken : brokenByFewest)
        std::cout << sentence << '\n';
    return false;
}

bool coversEverything(const std::set<std::string>& covered) {
    std::set<std::string> wanted{"before the start",     "at rest",
                                 "while busy",           "with completions held back",
                                 "under an alert",       "under the password prompt",
                                 "a full automount list"};
    for (const auto& table : {simulator::programCommands(), simulator::diskCommands(),
                              simulator::surroundingsCommands(), simulator::lookingCommands()}) {
        for (const auto& command : table)
            wanted.emplace(command.name);
    }
    bool all = true;
    for (const auto& thing : wanted) {
        if (covered.contains(thing)) continue;
        std::cout << "The scenarios left out: " << thing << '\n';
        all = false;
    }
    return all;
}

}  // namespace

bool holds(const Soak& soak) {
    std::set<std::string> covered;
    std::size_t commandsGiven = 0;
    for (auto seed = soak.firstSeed; seed < soak.firstSeed + soak.scenarios; ++seed) {
        for (const auto faults : {0U, 2 * seed - 1, 2 * seed}) {
            RandomCommands commands(seed, soak.steps);
            if (!holdsFor(commands, faults)) {
                std::cout << "Seed " << seed << " with faults " << faults << " breaks a rule.\n";
                return false;
            }
            commandsGiven += commands.given().size();
            covered.insert(commands.covered().begin(), commands.covered().end());
        }
    }
    std::cout << commandsGiven << " commands, and all rules hold.\n";
    return coversEverything(covered);
}

}  // namespace brisel::tests
