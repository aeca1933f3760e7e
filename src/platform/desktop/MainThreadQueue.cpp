// Work for the main thread that runs even while an alert is open.
// SPDX-License-Identifier: MIT
#include "platform/desktop/MainThreadQueue.h"

#include <sys/eventfd.h>

#include <utility>

#include "platform/headless/MainContext.h"

namespace brisel::platform::desktop {

MainThreadQueue::MainThreadQueue()
    : event_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)),
      reading_(headless::whenReadable(event_.number(), [this] { work(); })) {}

void MainThreadQueue::post(std::function<void()> work) {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
    eventfd_write(event_.number(), 1);
}

void MainThreadQueue::work() {
    eventfd_t count = 0;
    eventfd_read(event_.number(), &count);
    std::vector<std::function<void()>> due;
    {
        const std::lock_guard lock(mutex_);
        due.swap(waiting_);
    }
    for (const auto& item : due)
        item();
}

}  // namespace brisel::platform::desktop
