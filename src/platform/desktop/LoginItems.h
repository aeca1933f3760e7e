// Brisel's XDG autostart entry.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/LoginItems.h"
#include "platform/SystemLog.h"

namespace brisel::platform::desktop {

/// Writes to the user's autostart folder (Desktop Application Autostart Specification).
class LoginItems final : public platform::LoginItems {
  public:
    /// `file` is the entry's path, `program` the executable that it starts.
    struct Entry {
        std::string file;
        std::string program;
    };

    /// The running executable, in the user's autostart folder.
    [[nodiscard]] static Entry ownEntry();

    explicit LoginItems(platform::SystemLog& log, Entry entry = ownEntry())
        : log_(log), entry_(std::move(entry)) {}

    /// Ignores `identifier`: the desktop starts Brisel itself, without a helper. Logs a failure.
    [[nodiscard]] bool setEnabled(const std::string& identifier, bool enabled) override;

  private:
    [[nodiscard]] bool add() const;
    [[nodiscard]] bool remove() const;

    platform::SystemLog& log_;
    Entry entry_;
};

/// Quotes `path` for a desktop entry's Exec key.
std::string execWord(const std::string& path);

}  // namespace brisel::platform::desktop
