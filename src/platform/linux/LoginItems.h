// The program's entry among those that the desktop starts at login.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/LoginItems.h"
#include "platform/SystemLog.h"

namespace brisel::platform::linux {

/// An entry in the user's autostart folder (the freedesktop Autostart specification).
class LoginItems final : public platform::LoginItems {
  public:
    explicit LoginItems(platform::SystemLog& log) : log_(log) {}

    /// There is no helper here: the desktop starts the program itself, the one that runs now.
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;

  private:
    [[nodiscard]] bool add(const std::string& path) const;
    [[nodiscard]] bool remove(const std::string& path) const;

    platform::SystemLog& log_;
};

/// `path` as one word of a desktop entry's Exec key.
std::string execWord(const std::string& path);

}  // namespace brisel::platform::linux
