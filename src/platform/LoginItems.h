// Service Management: helper applications that are started at login.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform {

/// Main thread only.
class LoginItems {
  public:
    virtual ~LoginItems() = default;

    /// Registers or removes the helper of this bundle identifier; false when the platform refuses.
    [[nodiscard]] virtual bool setEnabled(const std::string& identifier, bool enabled) = 0;
};

}  // namespace brisel::platform
