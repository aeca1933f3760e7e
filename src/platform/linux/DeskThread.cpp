// The thread that serves the desktop.
// SPDX-License-Identifier: MIT
#include "platform/linux/DeskThread.h"

#include <utility>

#include "platform/linux/MainContext.h"

namespace brisel::platform::linux {

DeskThread::DeskThread() : thread_([this] { g_main_loop_run(loop_); }) {}

DeskThread::~DeskThread() {
    // As work of its own: a loop that does not run yet would miss the call.
    post([this] { g_main_loop_quit(loop_); });
    thread_.join();
    g_main_loop_unref(loop_);
}

void DeskThread::post(std::function<void()> work) {
    handTo(g_main_loop_get_context(loop_), std::move(work));
}

}  // namespace brisel::platform::linux
