// UDisks2's objects on the system bus, and calls on their file systems.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <udisks/udisks.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/DiskDescription.h"
#include "platform/linux/GLibOwners.h"
#include "platform/Subscription.h"
#include "platform/SystemLog.h"

namespace brisel::platform::linux {

/// Main thread only; everything is called back from the main context.
class DiskService {
  public:
    using Changed = std::function<void()>;
    /// None on success, else the name and the message of a D-Bus error.
    struct CallFailure {
        std::string errorName;
        std::string message;
    };
    using Done = std::function<void(const std::optional<CallFailure>&, const std::string& result)>;

    /// Starts to connect to UDisks2 on the system bus, and tries again as long as either cannot be
    /// reached; the log tells when they go and come. `changed` is called whenever any object may
    /// have changed, and when the service goes or comes back.
    DiskService(platform::SystemLog& log, Changed changed);
    DiskService(const DiskService&) = delete;
    DiskService& operator=(const DiskService&) = delete;
    /// Calls under way end without being told of.
    ~DiskService();

    /// Whether the service is there now.
    [[nodiscard]] bool isThere() const;
    /// The description of every block device there is, by BSD name.
    [[nodiscard]] std::map<std::string, DiskDescription> disks() const;

    /// Unmounts the file system of a device.
    void unmount(const std::string& device, Done done);
    /// Mounts it with the options; the result is the mount point.
    void mount(const std::string& device, const std::string& options, Done done);

  private:
    struct Call;

    void connect();
    void askForObjects(GDBusConnection* connection);
    void watch(GDBusObjectManager* objects);
    void disconnect();
    void tryAgain(const std::string& reason);
    void noteOwner();
    void askForRestart() const;
    static void finishConnect(GObject* source, GAsyncResult* result, gpointer service);
    [[nodiscard]] OwnedObject<UDisksFilesystem> filesystem(const std::string& device) const;
    static void finishUnmount(GObject* source, GAsyncResult* result, gpointer data);
    static void finishMount(GObject* source, GAsyncResult* result, gpointer data);

    platform::SystemLog& log_;
    Changed changed_;
    OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
    OwnedObject<GDBusObjectManager> objects_;
    std::vector<SignalConnection> connections_;
    Subscription nextTry_;
    /// Whether the log's last word was that the service is there, which is taken for granted.
    bool toldThere_ = true;
};

}  // namespace brisel::platform::linux
