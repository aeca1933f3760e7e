// UDisks2's objects on the system bus, as long as both can be reached.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <udisks/udisks.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/headless/GLibOwners.h"
#include "platform/Subscription.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Main thread only; everything is called back from the main context.
class UDisksObjects {
  public:
    using Changed = std::function<void()>;

    /// Starts to connect, and tries again as long as the bus or UDisks2 cannot be reached; the log
    /// tells when they go and come. `changed` is called whenever any object may have changed, and
    /// when the service goes or comes back.
    UDisksObjects(platform::SystemLog& log, Changed changed);
    UDisksObjects(const UDisksObjects&) = delete;
    UDisksObjects& operator=(const UDisksObjects&) = delete;
    ~UDisksObjects();

    /// Whether the service is there now.
    [[nodiscard]] bool areThere() const;
    /// Calls `visit` with each object that is a block device.
    void forEachBlock(const std::function<void(UDisksObject*, UDisksBlock*)>& visit) const;

  private:
    void connect();
    void fetch(GDBusConnection* connection);
    void watch(GDBusObjectManager* objects);
    void disconnect();
    void tryAgain(const std::string& reason);
    void noteOwner();
    void tell(bool there);
    void askForRestart() const;
    struct Question;
    static void finishFirstQuestion(GObject* connection, GAsyncResult* result, gpointer data);

    platform::SystemLog& log_;
    Changed changed_;
    OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
    OwnedObject<GDBusObjectManager> objects_;
    std::vector<SignalConnection> connections_;
    Subscription nextTry_;
    /// Whether the log's last word was that the service is there, which is taken for granted.
    bool toldThere_ = true;
    bool wasThere_ = false;
};

}  // namespace brisel::platform::headless
