// Work for the main thread that runs even while an alert is open.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "platform/Subscription.h"
#include "shared/Descriptor.h"

namespace brisel::platform::desktop {

/// Create on the main thread. Its main loop runs the work, and so does an Alert while it waits.
class MainThreadQueue {
  public:
    MainThreadQueue();
    MainThreadQueue(const MainThreadQueue&) = delete;
    MainThreadQueue& operator=(const MainThreadQueue&) = delete;
    ~MainThreadQueue() = default;

    /// Work runs in order; destroying the queue drops the rest. Any thread.
    void post(std::function<void()> work);
    /// Readable while work is pending.
    [[nodiscard]] int descriptor() const { return event_.number(); }
    /// Runs the pending work. Main thread.
    void work();

  private:
    shared::Descriptor event_;
    std::mutex mutex_;
    std::vector<std::function<void()>> waiting_;
    Subscription reading_;
};

}  // namespace brisel::platform::desktop
