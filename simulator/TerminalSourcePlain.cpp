// Commands typed at a terminal, without line editing.
// SPDX-License-Identifier: MIT
#include <iostream>

#include "simulator/CommandSource.h"

namespace brisel::simulator {

std::optional<std::string> TerminalSource::nextLine(const std::string& prompt) {
    std::cout << prompt << std::flush;
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    return line;
}

}  // namespace brisel::simulator
