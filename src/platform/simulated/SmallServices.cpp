// The small services of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/SmallServices.h"

#include "platform/simulated/ProgramEnded.h"

namespace brisel::platform::simulated {

int Alert::runModal(const AlertContent& content) {
    auto shown = content;
    if (shown.buttons.empty()) shown.buttons.emplace_back("OK");
    std::string buttons;
    for (const auto& title : shown.buttons)
        buttons += (buttons.empty() ? "" : " | ") + title;
    transcript_.record("alert: %@", shown.messageText);
    transcript_.record("text: %@", shown.informativeText);
    transcript_.record("buttons: %@", buttons);
    return AlertFirstButtonReturn + person_.answerAlert(shown);
}

void Application::terminate() {
    transcript_.write("terminate");
    if (terminationStep_) terminationStep_();
    throw ProgramEnded();
}

bool LoginItems::setEnabled(const std::string& identifier, bool enabled) {
    transcript_.record("login-item: %@ %@", identifier, std::string(enabled ? "on" : "off"));
    return !faults_.strikes("loginItem") && answer_ == Answer::Accept;
}

ScriptResult ScriptRunner::execute(const std::string& source) {
    transcript_.record("script: %@", source);
    auto error = std::exchange(nextError_, std::nullopt);
    if (faults_.strikes("script")) {
        error = {{"NSAppleScriptErrorMessage", Faults::error().localizedDescription}};
    }
    return {.error = std::move(error)};
}

}  // namespace brisel::platform::simulated
