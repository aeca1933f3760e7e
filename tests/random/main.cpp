// brisel-random: prints random scenarios, or runs them under all rules.
// SPDX-License-Identifier: MIT
#include <charconv>
#include <csignal>
#include <iostream>
#include <span>
#include <string_view>
#include <vector>

#include "tests/random/RandomCommands.h"
#include "tests/random/Soak.h"

namespace {

constexpr int BadUse = 2;

int refuseUse() {
    std::cerr << "usage: brisel-random print SEED [STEPS]\n"
                 "       brisel-random soak [SCENARIOS [STEPS [SEED]]]\n";
    return BadUse;
}

std::optional<std::vector<unsigned>> numbersIn(std::span<char*> words) {
    std::vector<unsigned> numbers;
    for (const std::string_view word : words) {
        unsigned number = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
        if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
        numbers.push_back(number);
    }
    return numbers;
}

int printScenario(unsigned seed, std::size_t steps) {
    using brisel::simulator::Scenario;
    brisel::tests::RandomCommands commands(seed, steps);
    Scenario::Options options;
    options.onBadCommand = Scenario::OnBadCommand::GoOn;
    options.badCommandHandler = [&](const auto&) { commands.forgetBadCommand(); };
    Scenario scenario(
        commands, [&](const std::string& line) { commands.hear(line); }, options);
    commands.drive(scenario);
    scenario.run();
    for (const auto& line : commands.given())
        std::cout << line << '\n';
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    const std::span words(arguments, static_cast<std::size_t>(count));
    if (count < 2) return refuseUse();
    const std::string_view what = words[1];
    const auto numbers = numbersIn(words.subspan(2));
    if (!numbers || numbers->size() > 3) return refuseUse();
    const auto number = [&](std::size_t place, unsigned otherwise) {
        return place < numbers->size() ? (*numbers)[place] : otherwise;
    };
    std::signal(SIGCHLD, SIG_DFL);
    if (what == "print" && !numbers->empty()) return printScenario(number(0, 0), number(1, 0));
    if (what != "soak") return refuseUse();
    brisel::tests::Soak soak;
    soak.scenarios = number(0, static_cast<unsigned>(soak.scenarios));
    soak.steps = number(1, static_cast<unsigned>(soak.steps));
    soak.firstSeed = number(2, soak.firstSeed);
    return brisel::tests::holds(soak) ? 0 : 1;
}
