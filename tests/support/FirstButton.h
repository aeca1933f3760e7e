// Answers an alert with its first button.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::tests {

/// Prefix of the transcript line that lists an alert's buttons.
inline constexpr std::string_view ButtonsEvent = "buttons: ";

/// The simulator command that presses the first button listed in `buttonsLine`.
inline std::string pressFirstButton(const std::string& buttonsLine) {
    const auto titles = buttonsLine.substr(ButtonsEvent.size());
    return "press \"" + titles.substr(0, titles.find(" | ")) + '"';
}

}  // namespace brisel::tests
