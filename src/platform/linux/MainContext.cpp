// Work and timers on GLib's main context.
// SPDX-License-Identifier: MIT
#include "platform/linux/MainContext.h"

#include <utility>

namespace brisel::platform::linux {

namespace {

using Work = std::function<void()>;

// Runs a copy: the work may end its own source, and with that destroy the original.
gboolean runOnce(gpointer data) {
    const Work work = *static_cast<Work*>(data);
    work();
    return G_SOURCE_REMOVE;
}

gboolean runAgain(gpointer data) {
    const Work work = *static_cast<Work*>(data);
    work();
    return G_SOURCE_CONTINUE;
}

void destroyWork(gpointer data) {
    delete static_cast<Work*>(data);
}

Subscription attach(GSource* source, GSourceFunc function, Work work) {
    g_source_set_callback(source, function, new Work(std::move(work)), &destroyWork);
    g_source_attach(source, nullptr);
    return Subscription([source] {
        g_source_destroy(source);
        g_source_unref(source);
    });
}

}  // namespace

Subscription whenMainLoopTurns(std::function<void()> work) {
    return attach(g_idle_source_new(), &runOnce, std::move(work));
}

Subscription RunLoop::scheduledTimer(std::chrono::milliseconds interval,
                                     std::function<void()> fire) {
    return attach(g_timeout_source_new(static_cast<guint>(interval.count())), &runAgain,
                  std::move(fire));
}

}  // namespace brisel::platform::linux
