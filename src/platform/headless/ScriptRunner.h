// The one AppleScript command that the program uses, run without a shell.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/FileManager.h"
#include "platform/headless/Installation.h"
#include "platform/ScriptRunner.h"

namespace brisel::platform::headless {

class ScriptRunner final : public platform::ScriptRunner {
  public:
    /// `files` names the folders in which volumes are mounted and must outlive the runner. `xattr`
    /// is the path of the program that removes extended attributes.
    explicit ScriptRunner(const platform::FileManager& files,
                          std::string xattr = toolPath("xattr"));

    /// Understands `do shell script "xattr -cr PATH..."` and runs that program with the user's own
    /// rights. The command is split at blanks as a shell would, but a volume's label in it is never
    /// code. Refuses any other command, and a path that has a component ".." or does not lie below
    /// a folder in which volumes are mounted. Errors carry AppleScript's keys: message and number.
    [[nodiscard]] ScriptResult execute(const std::string& source) override;

  private:
    [[nodiscard]] bool isOnAVolume(const std::string& path) const;
    [[nodiscard]] ScriptResult removeAttributes(std::vector<std::string> arguments) const;

    const platform::FileManager& files_;
    std::string xattr_;
};

/// The command of a `do shell script` line, its string literal decoded; none for anything else.
std::optional<std::string> shellCommandOf(const std::string& source);

/// The words between blanks, tabs and line breaks.
std::vector<std::string> wordsOf(const std::string& command);

}  // namespace brisel::platform::headless
