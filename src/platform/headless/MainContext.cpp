// Callbacks, timers and loops on GLib main contexts.
// SPDX-License-Identifier: MIT
#include "platform/headless/MainContext.h"

#include <glib-unix.h>

#include <utility>

namespace brisel::platform::headless {

namespace {

using Work = std::function<void()>;

// Copies the callback, which may destroy its own source.
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

gboolean runReadable(gint /*descriptor*/, GIOCondition /*condition*/, gpointer data) {
    return runAgain(data);
}

void destroyWork(gpointer data) {
    delete static_cast<Work*>(data);
}

Subscription attach(GSource* source, GSourceFunc function, Work work) {
    g_source_set_callback(source, function, new Work(std::move(work)), &destroyWork);
    g_source_attach(source, g_main_context_get_thread_default());
    return Subscription([source] {
        g_source_destroy(source);
        g_source_unref(source);
    });
}

}  // namespace

Subscription whenMainLoopTurns(std::function<void()> work) {
    return attach(g_idle_source_new(), &runOnce, std::move(work));
}

Subscription whenReadable(int descriptor, std::function<void()> work) {
    constexpr auto Awaited = static_cast<GIOCondition>(G_IO_IN | G_IO_HUP | G_IO_ERR);
    // Unix fd sources call a GUnixFDSourceFunc.
    return attach(g_unix_fd_source_new(descriptor, Awaited),
                  reinterpret_cast<GSourceFunc>(reinterpret_cast<void (*)()>(&runReadable)),
                  std::move(work));
}

void handTo(GMainContext* context, std::function<void()> work, Turn turn) {
    // `work` may end the context's thread before g_source_attach returns.
    auto* const kept = context != nullptr ? g_main_context_ref(context) : nullptr;
    auto* const source = g_idle_source_new();
    if (turn == Turn::Next) g_source_set_priority(source, G_PRIORITY_DEFAULT);
    g_source_set_callback(source, &runOnce, new Work(std::move(work)), &destroyWork);
    g_source_attach(source, context);
    g_source_unref(source);
    if (kept != nullptr) g_main_context_unref(kept);
}

Subscription RunLoop::scheduledTimer(std::chrono::milliseconds interval,
                                     std::function<void()> fire) {
    return attach(g_timeout_source_new(static_cast<guint>(interval.count())), &runAgain,
                  std::move(fire));
}

OwnMainLoop::OwnMainLoop()
    : context_(g_main_context_new()), loop_(g_main_loop_new(context_, FALSE)) {
    g_main_context_push_thread_default(context_);
}

OwnMainLoop::~OwnMainLoop() {
    // GLib frees destroyed sources and ended signal subscriptions on the loop.
    while (g_main_context_iteration(context_, FALSE) != FALSE) {
    }
    g_main_context_pop_thread_default(context_);
    g_main_loop_unref(loop_);
    g_main_context_unref(context_);
}

}  // namespace brisel::platform::headless
