// Login items, by Service Management.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

namespace brisel::platform::macos {

/// SMLoginItemSetEnabled is deprecated in macOS 13, and always fails on some newer systems.
class LoginItems final : public platform::LoginItems {
  public:
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;
};

}  // namespace brisel::platform::macos
