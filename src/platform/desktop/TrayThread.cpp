// The thread that serves the tray icon and its menu.
// SPDX-License-Identifier: MIT
#include "platform/desktop/TrayThread.h"

#include <utility>

#include "platform/headless/MainContext.h"

namespace brisel::platform::desktop {

TrayThread::TrayThread() : thread_([this] { g_main_loop_run(loop_); }) {}

TrayThread::~TrayThread() {
    // Posted, because quitting a loop that does not run yet has no effect.
    post([this] { g_main_loop_quit(loop_); });
    thread_.join();
    g_main_loop_unref(loop_);
}

void TrayThread::post(std::function<void()> work) {
    headless::handTo(g_main_loop_get_context(loop_), std::move(work));
}

}  // namespace brisel::platform::desktop
