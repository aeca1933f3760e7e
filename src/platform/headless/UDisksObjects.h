// UDisks2's objects on the system bus, reconnected when either goes away.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <udisks/udisks.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/headless/GLibOwners.h"
#include "platform/headless/SignalBacklog.h"
#include "platform/Subscription.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Main thread only. Callbacks run from the main context.
class UDisksObjects {
  public:
    using Changed = std::function<void()>;

    /// Connects, and reconnects while the bus or UDisks2 is unreachable; logs each change. Calls
    /// `changed` when any object may have changed, and when UDisks2 leaves or joins the bus.
    UDisksObjects(platform::SystemLog& log, Changed changed);
    UDisksObjects(const UDisksObjects&) = delete;
    UDisksObjects& operator=(const UDisksObjects&) = delete;
    ~UDisksObjects();

    /// True while connected to UDisks2, and the objects are up to date.
    [[nodiscard]] bool areThere() const;
    void forEachBlock(const std::function<void(UDisksObject*, UDisksBlock*)>& visit) const;

  private:
    void connect();
    void ask(GDBusConnection* connection);
    void fetch(GDBusConnection* connection);
    void watch(GDBusObjectManager* objects);
    /// Replaces the objects after a backlog has dropped signals.
    void readAnew();
    void disconnect();
    void tryAgain(const std::string& reason);
    void noteOwner();
    void tell(bool there);
    void askForRestart() const;
    struct Question;
    static void finishQuestion(GObject* connection, GAsyncResult* result, gpointer data);

    platform::SystemLog& log_;
    Changed changed_;
    OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
    std::unique_ptr<SignalBacklog> backlog_;
    OwnedObject<GDBusObjectManager> objects_;
    bool areOutdated_ = false;
    std::vector<SignalConnection> connections_;
    Subscription nextTry_;
    /// The state last logged. Initially true: a normal start logs nothing.
    bool toldThere_ = true;
    bool wasThere_ = false;
};

}  // namespace brisel::platform::headless
