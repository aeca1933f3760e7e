// AppleScript, run with the user's own rights.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brisel::platform {

struct ScriptResult {
    /// Keys and values of the error dictionary, in its order; present exactly when the run failed.
    std::optional<std::vector<std::pair<std::string, std::string>>> error;
};

/// Main thread only.
class ScriptRunner {
  public:
    virtual ~ScriptRunner() = default;

    /// Runs the source text and waits for its end.
    [[nodiscard]] virtual ScriptResult execute(const std::string& source) = 0;
};

}  // namespace brisel::platform
