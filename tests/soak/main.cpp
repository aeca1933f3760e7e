// Runs a scenario and looks after each line of its transcript whether all is in order.
// SPDX-License-Identifier: MIT
#include <charconv>
#include <csignal>
#include <iostream>
#include <string_view>

#include "tests/soak/WatchedScenario.h"

namespace {

constexpr int BadUse = 2;
constexpr int Broken = 3;

// The seed of the faults; none where the arguments are wrong.
std::optional<unsigned> seedIn(int count, char** arguments) {
    unsigned seed = 0;
    if (count == 1) return seed;
    if (count != 3 || std::string_view(arguments[1]) != "--faults") return std::nullopt;
    const std::string_view text = arguments[2];
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), seed);
    const bool number = error == std::errc() && end == text.data() + text.size();
    return number ? std::optional(seed) : std::nullopt;
}

}  // namespace

int main(int count, char** arguments) {
    const auto seed = seedIn(count, arguments);
    if (!seed) {
        std::cerr << "usage: brisel-soak [--faults SEED] <SCENARIO\n"
                     "With a seed other than 0 now and then a call fails, and bad commands do not "
                     "stop the run.\n";
        return BadUse;
    }
    std::signal(SIGCHLD, SIG_DFL);
    brisel::tests::WatchedScenario watched(std::cin, *seed);
    if (!watched.run()) {
        std::cerr << watched.complaint() << '\n';
        return BadUse;
    }
    for (const auto& sentence : watched.broken())
        std::cout << sentence << '\n';
    return watched.broken().empty() ? 0 : Broken;
}
