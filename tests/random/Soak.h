// Long random scenarios under all rules.
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace brisel::tests {

struct Soak {
    std::size_t scenarios = 20;
    std::size_t steps = 2000;
    unsigned firstSeed = 1;
};

/// Runs each scenario without faults and twice with some. Prints the commands that break a rule
/// and the rule; also fails where a command or a state of the program was left out.
bool holds(const Soak& soak);

}  // namespace brisel::tests
