// The thread that serves the desktop.
// SPDX-License-Identifier: MIT
#pragma once

#include <glib.h>

#include <functional>
#include <thread>

namespace brisel::platform::desktop {

/// Turns GLib's default context. The main thread may be kept for minutes by an alert, a password
/// prompt or a tool; meanwhile the panel goes on asking for the icon and the menu, and gets its
/// answers from here.
class TrayThread {
  public:
    TrayThread();
    TrayThread(const TrayThread&) = delete;
    TrayThread& operator=(const TrayThread&) = delete;
    /// Ends the thread; work that still waits is dropped.
    ~TrayThread();

    /// Lets `work` run on the thread. Any thread.
    void post(std::function<void()> work);

  private:
    GMainLoop* loop_ = g_main_loop_new(nullptr, FALSE);
    std::thread thread_;
};

}  // namespace brisel::platform::desktop
