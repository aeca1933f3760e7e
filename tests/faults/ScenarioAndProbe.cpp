// Feeding a scenario, and what is to follow it, to the simulator.
// SPDX-License-Identifier: MIT
#include "tests/faults/ScenarioAndProbe.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tests/support/FirstButton.h"

namespace brisel::tests {

namespace {

// A program that asks more often than this does so without end.
constexpr std::size_t MostAnswers = 200;

// `start` is a bad command, and does nothing, where the scenario has given it.
constexpr std::array Ending{"start", "release",
                            "attach probe1s1 kind=ntfs name=Probe path=/Volumes/Probe"};

}  // namespace

std::optional<std::string> ScenarioAndProbe::nextLine(const std::string& prompt) {
    if (next_ < commands_.size()) return commands_[next_++];
    if (auto answer = settle(prompt)) return answer;
    if (nextOfEnding_ < Ending.size()) return Ending.at(nextOfEnding_++);
    return std::nullopt;
}

std::optional<std::string> ScenarioAndProbe::settle(const std::string& prompt) {
    if (answers_ == MostAnswers) return std::nullopt;
    if (prompt.starts_with("alert")) {
        ++answers_;
        return pressFirstButton();
    }
    if (prompt.starts_with("password")) {
        ++answers_;
        return "password ok";
    }
    return std::nullopt;
}

std::string ScenarioAndProbe::pressFirstButton() const {
    const auto last = std::find_if(transcript_.rbegin(), transcript_.rend(),
                                   [](const auto& line) { return line.starts_with(ButtonsEvent); });
    if (last == transcript_.rend()) return "press OK";
    return tests::pressFirstButton(*last);
}

}  // namespace brisel::tests
