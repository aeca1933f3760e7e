// Modal alerts as questions on the terminal.
// SPDX-License-Identifier: MIT
#include "platform/terminal/Alert.h"

#include <sstream>

#include "platform/common/AlertButtons.h"

namespace brisel::platform::terminal {

namespace {

constexpr int NothingPressed = -1;

}  // namespace

int Alert::runModal(const AlertContent& content) {
    const auto buttons = common::buttonsOf(content);
    terminal_.print("");
    terminal_.print("! " + content.messageText);
    std::istringstream lines(content.informativeText);
    for (std::string line; std::getline(lines, line);)
        terminal_.print("  " + line);
    std::string question;
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        question += "  " + std::to_string(index + 1) + " = " + buttons[index];
    }
    while (const auto answer = terminal_.ask(question + " ?")) {
        const auto number = answer->empty() ? 1 : numberUpTo(*answer, buttons.size());
        if (number) return AlertFirstButtonReturn + static_cast<int>(*number) - 1;
    }
    return NothingPressed;
}

}  // namespace brisel::platform::terminal
