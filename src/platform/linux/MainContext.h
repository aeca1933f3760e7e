// Work and timers on GLib's main context.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <chrono>
#include <functional>
#include <memory>

#include "platform/RunLoop.h"

namespace brisel::platform::linux {

/// Work that waits for the main loop to turn; dropped when the owner goes first.
class MainContextWork {
  public:
    MainContextWork() = default;
    explicit MainContextWork(std::function<void()> work);

  private:
    Subscription source_;
};

class RunLoop final : public platform::RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;
};

}  // namespace brisel::platform::linux
