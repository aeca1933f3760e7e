// The alerts of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/Alert.h"

#include "platform/common/AlertButtons.h"

namespace brisel::platform::simulated {

int Alert::runModal(const AlertContent& content) {
    auto shown = content;
    shown.buttons = common::buttonsOf(content);
    std::string buttons;
    for (const auto& title : shown.buttons)
        buttons += (buttons.empty() ? "" : " | ") + title;
    transcript_.record("alert: %@", shown.messageText);
    transcript_.record("text: %@", shown.informativeText);
    transcript_.record("buttons: %@", buttons);
    return AlertFirstButtonReturn + person_.answerAlert(shown);
}

}  // namespace brisel::platform::simulated
