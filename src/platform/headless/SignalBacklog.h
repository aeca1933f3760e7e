// Bounds the D-Bus signals that wait for a blocked main thread.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>

#include <functional>
#include <memory>

#include "platform/headless/GLibOwners.h"

namespace brisel::platform::headless {

/// GLib's thread reads a connection's signals and queues them even while an alert, a password
/// prompt or a tool blocks the main thread. A disk that appears takes up to 12 kB.
class SignalBacklog {
  public:
    /// The most signals to queue: enough for a disk that is plugged in again, and below 1 MB.
    static constexpr int Limit = 64;

    /// Queues signals of `connection` for the calling thread's main loop, and drops those beyond
    /// the limit. After a drop, calls `overflowed` once the loop has handled the queue.
    SignalBacklog(GDBusConnection* connection, std::function<void()> overflowed);
    SignalBacklog(const SignalBacklog&) = delete;
    SignalBacklog& operator=(const SignalBacklog&) = delete;
    ~SignalBacklog();

  private:
    struct Queue;

    static GDBusMessage* filter(GDBusConnection* connection, GDBusMessage* message,
                                gboolean incoming, gpointer queue);

    OwnedObject<GDBusConnection> connection_;
    /// Shared with GLib's thread, which may still filter a message when this object ends.
    std::shared_ptr<Queue> queue_;
    guint filter_;
};

}  // namespace brisel::platform::headless
