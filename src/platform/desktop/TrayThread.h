// The thread that serves the tray icon and its menu.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <functional>
#include <thread>

namespace brisel::platform::desktop {

/// Runs GLib's default context. So the panel's requests for icon and menu are answered while an
/// alert, a password prompt or a tool blocks the main thread.
class TrayThread {
  public:
    TrayThread();
    TrayThread(const TrayThread&) = delete;
    TrayThread& operator=(const TrayThread&) = delete;
    /// Ends the thread after the work posted so far.
    ~TrayThread();

    /// Runs `work` on this thread. Any thread.
    void post(std::function<void()> work);

  private:
    GMainLoop* loop_ = g_main_loop_new(nullptr, FALSE);
    std::thread thread_;
};

}  // namespace brisel::platform::desktop
