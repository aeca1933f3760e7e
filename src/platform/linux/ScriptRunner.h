// The one AppleScript command that the program uses, run by the user's shell.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/ScriptRunner.h"

namespace brisel::platform::linux {

class ScriptRunner final : public platform::ScriptRunner {
  public:
    /// Understands `do shell script "COMMAND"` and runs exactly that command by `/bin/sh -c`, with
    /// the user's own rights. Errors carry AppleScript's keys: message and number.
    [[nodiscard]] ScriptResult execute(const std::string& source) override;
};

/// The command of a `do shell script` line, its string literal decoded; none for anything else.
std::optional<std::string> shellCommandOf(const std::string& source);

}  // namespace brisel::platform::linux
