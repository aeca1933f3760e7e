// Login items, by Service Management.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

namespace brisel::platform::macos {

/// SMLoginItemSetEnabled, or SMAppService if that refuses: it is reported to refuse always on macOS
/// 13 and later, where there is SMAppService. Logs that class's error.
class LoginItems final : public platform::LoginItems {
  public:
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;
};

}  // namespace brisel::platform::macos
