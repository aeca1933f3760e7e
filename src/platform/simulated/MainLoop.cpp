// The simulated main loop.
// SPDX-License-Identifier: MIT
#include "platform/simulated/MainLoop.h"

#include <algorithm>
#include <utility>

namespace brisel::platform::simulated {

Subscription MainLoop::scheduledTimer(std::chrono::milliseconds interval,
                                      std::function<void()> fire) {
    const auto timer = std::make_shared<Timer>(
        Timer{.interval = interval, .due = now_ + interval, .fire = std::move(fire)});
    timers_->push_back(timer);
    // Weak references: a timer's callback may own the subscription.
    return Subscription([timers = std::weak_ptr(timers_), ended = std::weak_ptr(timer)] {
        if (const auto list = timers.lock()) std::erase(*list, ended.lock());
    });
}

void MainLoop::post(std::function<void()> work) {
    queue_.push_back(std::move(work));
}

bool MainLoop::turnOnce() {
    if (queue_.empty()) return false;
    const auto work = std::move(queue_.front());
    queue_.pop_front();
    work();
    return true;
}

void MainLoop::turnUntilIdle() {
    while (turnOnce()) {
    }
}

std::shared_ptr<MainLoop::Timer> MainLoop::nextDueBy(std::chrono::milliseconds time) const {
    const auto next =
        std::min_element(timers_->begin(), timers_->end(),
                         [](const auto& one, const auto& other) { return one->due < other->due; });
    return next != timers_->end() && (*next)->due <= time ? *next : nullptr;
}

void MainLoop::advanceClock(std::chrono::milliseconds time) {
    const auto end = now_ + time;
    while (const auto timer = nextDueBy(end)) {
        now_ = timer->due;
        timer->due += timer->interval;
        timer->fire();
        turnUntilIdle();
    }
    now_ = end;
    turnUntilIdle();
}

}  // namespace brisel::platform::simulated
