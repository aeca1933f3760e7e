// Login items, by Service Management.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/LoginItems.h"

namespace brisel::platform::macos {

/// macOS 13 deprecates the call and some newer systems refuse it always; then the user is told,
/// and nothing else changes.
class LoginItems final : public platform::LoginItems {
  public:
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;
};

}  // namespace brisel::platform::macos
