// Callbacks, timers and loops on GLib main contexts.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <chrono>
#include <functional>

#include "platform/RunLoop.h"

namespace brisel::platform::headless {

/// Runs `work` once when the calling thread's main loop is idle, unless the subscription ends
/// first.
[[nodiscard]] Subscription whenMainLoopTurns(std::function<void()> work);

/// Calls `work` on the calling thread's main loop while `descriptor` is readable or at end of file,
/// until the subscription ends.
[[nodiscard]] Subscription whenReadable(int descriptor, std::function<void()> work);

enum class Turn { Next, WhenIdle };

/// Runs `work` once on the thread that runs `context`; null is GLib's default context. Any thread.
void handTo(GMainContext* context, std::function<void()> work, Turn turn = Turn::Next);

/// Timers on the calling thread's main context, on any thread.
class RunLoop final : public platform::RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;
};

/// A main loop on a new context, which becomes the creating thread's default. GLib's callbacks for
/// this thread then run here; the global default context stays free for another thread.
class OwnMainLoop {
  public:
    OwnMainLoop();
    OwnMainLoop(const OwnMainLoop&) = delete;
    OwnMainLoop& operator=(const OwnMainLoop&) = delete;
    ~OwnMainLoop();

    void run() { g_main_loop_run(loop_); }
    void quit() { g_main_loop_quit(loop_); }
    [[nodiscard]] GMainContext* context() const { return context_; }

  private:
    GMainContext* context_;
    GMainLoop* loop_;
};

}  // namespace brisel::platform::headless
