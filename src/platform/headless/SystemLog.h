// The system log: the systemd journal, if present, and a listener.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/SystemLog.h"

namespace brisel::platform::headless {

class SystemLog final : public platform::SystemLog {
  public:
    using Listener = std::function<void(const std::string& text)>;

    /// Calls `listener` with each entry on the writing thread.
    explicit SystemLog(Listener listener);

    void write(const std::string& text) override;

  private:
    Listener listener_;
    bool hasJournal_;
};

}  // namespace brisel::platform::headless
