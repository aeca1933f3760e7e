// The scripts of the simulated Mac.
// SPDX-License-Identifier: MIT
#include "platform/simulated/ScriptRunner.h"

namespace brisel::platform::simulated {

ScriptResult ScriptRunner::execute(const std::string& source) {
    transcript_.record("script: %@", source);
    auto error = std::exchange(nextError_, std::nullopt);
    if (faults_.strikes("script")) {
        error = {{"NSAppleScriptErrorMessage", Faults::error().localizedDescription}};
    }
    return {.error = std::move(error)};
}

}  // namespace brisel::platform::simulated
