// Login items where there is nothing to start at login.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"

namespace brisel::platform::terminal {

class LoginItems final : public platform::LoginItems {
  public:
    /// A program for the terminal has nothing to start at login.
    [[nodiscard]] bool setEnabled(const std::string& /*identifier*/, bool /*enabled*/) override {
        return false;
    }
};

}  // namespace brisel::platform::terminal
