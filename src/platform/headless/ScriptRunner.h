// Runs the one AppleScript command that Brisel uses, without a shell.
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
    /// `files` names the folders that volumes are mounted in, and must outlive the runner. `xattr`
    /// is the path of that tool.
    explicit ScriptRunner(const platform::FileManager& files,
                          std::string xattr = toolPath("xattr"));

    /// Runs `do shell script "xattr -cr PATH..."` as the user. Splits the command at white space
    /// and passes it to no shell, so that a volume's label is never code. Refuses other commands,
    /// and a PATH that has a ".." component or lies outside the folders that volumes are mounted
    /// in. Errors have AppleScript's message and number keys.
    [[nodiscard]] ScriptResult execute(const std::string& source) override;

  private:
    [[nodiscard]] bool isOnAVolume(const std::string& path) const;
    [[nodiscard]] ScriptResult removeAttributes(std::vector<std::string> arguments) const;

    const platform::FileManager& files_;
    std::string xattr_;
};

/// The unescaped command of a `do shell script` line; nullopt for any other source.
std::optional<std::string> shellCommandOf(const std::string& source);

/// Splits at white space.
std::vector<std::string> wordsOf(const std::string& command);

}  // namespace brisel::platform::headless
