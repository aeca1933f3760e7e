// Bounds the D-Bus signals that wait for a blocked main thread.
// SPDX-License-Identifier: MIT
#include "platform/headless/SignalBacklog.h"

#include <atomic>
#include <utility>

#include "platform/headless/MainContext.h"

namespace brisel::platform::headless {

struct SignalBacklog::Queue : std::enable_shared_from_this<Queue> {
    explicit Queue(std::function<void()> whenOverflowed) : overflowed(std::move(whenOverflowed)) {}
    Queue(const Queue&) = delete;
    Queue& operator=(const Queue&) = delete;
    ~Queue() { g_main_context_unref(context); }

    /// Called by GLib's thread. False if the signal is to be dropped.
    bool admit() {
        const int before = length++;
        if (before == 0) {
            handTo(
                context, [self = shared_from_this()] { self->handled(); }, Turn::WhenIdle);
        }
        return before < Limit;
    }

    /// Called by the main loop after the signals, since these precede idle work.
    void handled() {
        if (length.exchange(0) > Limit && overflowed) overflowed();
    }

    GMainContext* context = g_main_context_ref_thread_default();
    std::function<void()> overflowed;
    std::atomic<int> length = 0;
};

SignalBacklog::SignalBacklog(GDBusConnection* connection, std::function<void()> overflowed)
    : connection_(G_DBUS_CONNECTION(g_object_ref(connection))),
      queue_(std::make_shared<Queue>(std::move(overflowed))),
      filter_(g_dbus_connection_add_filter(
          connection, &SignalBacklog::filter, new std::shared_ptr(queue_),
          [](gpointer queue) { delete static_cast<std::shared_ptr<Queue>*>(queue); })) {}

SignalBacklog::~SignalBacklog() {
    g_dbus_connection_remove_filter(connection_.get(), filter_);
    queue_->overflowed = nullptr;
}

GDBusMessage* SignalBacklog::filter(GDBusConnection* /*connection*/, GDBusMessage* message,
                                    gboolean incoming, gpointer queue) {
    const bool isSignal =
        incoming != FALSE && g_dbus_message_get_message_type(message) == G_DBUS_MESSAGE_TYPE_SIGNAL;
    if (!isSignal || (*static_cast<std::shared_ptr<Queue>*>(queue))->admit()) return message;
    g_object_unref(message);
    return nullptr;
}

}  // namespace brisel::platform::headless
