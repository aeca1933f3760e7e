// Commands typed at a terminal, with libedit's line editing and history.
// SPDX-License-Identifier: MIT
#include <editline/readline.h>

#include <cstdlib>
#include <memory>

#include "simulator/CommandSource.h"

namespace brisel::simulator {

std::optional<std::string> TerminalSource::nextLine(const std::string& prompt) {
    const std::unique_ptr<char, decltype(&std::free)> typed(readline(prompt.c_str()), &std::free);
    if (typed == nullptr) return std::nullopt;
    std::string line = typed.get();
    if (!line.empty()) add_history(line.c_str());
    return line;
}

}  // namespace brisel::simulator
