// AppleScript, by NSAppleScript.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ScriptRunner.h"

namespace brisel::platform::macos {

class ScriptRunner final : public platform::ScriptRunner {
  public:
    [[nodiscard]] ScriptResult execute(const std::string& source) override;
};

}  // namespace brisel::platform::macos
