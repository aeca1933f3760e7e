// Work for the main thread that does not wait until an alert is closed.
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <mutex>
#include <vector>

#include "platform/Subscription.h"

namespace brisel::platform::desktop {

/// Made on the main thread, whose loop does the work that comes in; so does an alert while it
/// waits.
class MainThreadQueue {
  public:
    MainThreadQueue();
    MainThreadQueue(const MainThreadQueue&) = delete;
    MainThreadQueue& operator=(const MainThreadQueue&) = delete;
    ~MainThreadQueue();

    /// In order; what still waits when the queue goes is dropped. Any thread.
    void post(std::function<void()> work);
    /// Readable while there is work to do.
    [[nodiscard]] int descriptor() const { return event_; }
    /// Does all that has come in. Main thread.
    void work();

  private:
    int event_;
    std::mutex mutex_;
    std::vector<std::function<void()>> waiting_;
    Subscription reading_;
};

}  // namespace brisel::platform::desktop
