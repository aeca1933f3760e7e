// The system log: the journal where there is one.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/SystemLog.h"

namespace brisel::platform::headless {

class SystemLog final : public platform::SystemLog {
  public:
    using Listener = std::function<void(const std::string& text)>;

    /// `listener` hears each entry too, on the thread that writes it.
    explicit SystemLog(Listener listener);

    void write(const std::string& text) override;

  private:
    Listener listener_;
    bool hasJournal_;
};

}  // namespace brisel::platform::headless
