// Answering an alert by its first button.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::tests {

/// What starts the transcript's line of an alert's buttons.
inline constexpr std::string_view ButtonsEvent = "buttons: ";

/// The command that presses the first button of those in this line of a transcript.
inline std::string pressFirstButton(const std::string& buttonsLine) {
    const auto titles = buttonsLine.substr(ButtonsEvent.size());
    return "press \"" + titles.substr(0, titles.find(" | ")) + '"';
}

}  // namespace brisel::tests
