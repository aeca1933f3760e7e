// AppleScript, run with the user's rights.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brisel::platform {

struct ScriptResult {
    /// The error dictionary, in its order; absent on success.
    std::optional<std::vector<std::pair<std::string, std::string>>> error;
};

/// Main thread only.
class ScriptRunner {
  public:
    virtual ~ScriptRunner() = default;

    /// Blocks until the script ends.
    [[nodiscard]] virtual ScriptResult execute(const std::string& source) = 0;
};

}  // namespace brisel::platform
