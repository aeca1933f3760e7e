// The program's entry among those that the desktop starts at login.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/LoginItems.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// An entry in the user's autostart folder (the freedesktop Autostart specification).
class LoginItems final : public platform::LoginItems {
  public:
    /// The entry's file, and the program that it starts.
    struct Entry {
        std::string file;
        std::string program;
    };

    /// The program that runs now, in the user's folder.
    [[nodiscard]] static Entry ownEntry();

    explicit LoginItems(platform::SystemLog& log, Entry entry = ownEntry())
        : log_(log), entry_(std::move(entry)) {}

    /// There is no helper here: the desktop starts the program itself.
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;

  private:
    [[nodiscard]] bool add() const;
    [[nodiscard]] bool remove() const;

    platform::SystemLog& log_;
    Entry entry_;
};

/// `path` as one word of a desktop entry's Exec key.
std::string execWord(const std::string& path);

}  // namespace brisel::platform::desktop
