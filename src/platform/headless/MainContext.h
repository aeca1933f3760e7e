// Work and timers on GLib's main contexts.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <chrono>
#include <functional>

#include "platform/RunLoop.h"

namespace brisel::platform::headless {

/// Lets `work` wait for the loop of the calling thread to turn; it is dropped when the
/// subscription ends first.
[[nodiscard]] Subscription whenMainLoopTurns(std::function<void()> work);

/// Calls `work` on the calling thread's loop whenever the descriptor can be read or has reached its
/// end, until the subscription ends.
[[nodiscard]] Subscription whenReadable(int descriptor, std::function<void()> work);

/// Lets `work` wait for the loop of another thread, the one that runs `context`. Any thread.
void handTo(GMainContext* context, std::function<void()> work);

/// The loop of the calling thread, also of one that is not the main thread.
class RunLoop final : public platform::RunLoop {
  public:
    [[nodiscard]] Subscription scheduledTimer(std::chrono::milliseconds interval,
                                              std::function<void()> fire) override;
};

/// The loop of the thread that makes it, on a context of its own: all that this thread asks of GLib
/// from then on is called back here, and GLib's default context is left to another thread.
class OwnMainLoop {
  public:
    OwnMainLoop();
    OwnMainLoop(const OwnMainLoop&) = delete;
    OwnMainLoop& operator=(const OwnMainLoop&) = delete;
    ~OwnMainLoop();

    /// Turns until `quit` is called.
    void run() { g_main_loop_run(loop_); }
    void quit() { g_main_loop_quit(loop_); }
    [[nodiscard]] GMainContext* context() const { return context_; }

  private:
    GMainContext* context_;
    GMainLoop* loop_;
};

}  // namespace brisel::platform::headless
