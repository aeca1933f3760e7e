// Service Management: helper applications that start at login.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace brisel::platform {

/// Main thread only.
class LoginItems {
  public:
    virtual ~LoginItems() = default;

    /// `identifier` is the helper's bundle identifier. False if the platform refuses.
    [[nodiscard]] virtual bool setEnabled(const std::string& identifier, bool enabled) = 0;
};

}  // namespace brisel::platform
