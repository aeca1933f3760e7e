// Login items, which the terminal program does not support.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"

namespace brisel::platform::terminal {

class LoginItems final : public platform::LoginItems {
  public:
    [[nodiscard]] bool setEnabled(const std::string& /*identifier*/, bool /*enabled*/) override {
        return false;
    }
};

}  // namespace brisel::platform::terminal
