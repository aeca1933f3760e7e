// Work and timers on GLib's main context.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <chrono>
#include <functional>
#include <memory>

#include "platform/RunLoop.h"

namespace brisel::platform::linux {

/// Lets `work` wait for the main loop to turn; it is dropped when the subscription ends first.
[[nodiscard]] Subscription whenMainLoopTurns(std::function<void()> work);

class RunLoop final : public platform::RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;
};

}  // namespace brisel::platform::linux
