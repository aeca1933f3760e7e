// The disks that UDisks2 knows, and calls on their file systems.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <udisks/udisks.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "platform/DiskDescription.h"
#include "platform/headless/GLibOwners.h"
#include "platform/headless/UDisksObjects.h"
#include "platform/SystemLog.h"

namespace brisel::platform::headless {

/// Main thread only; everything is called back from the main context.
class DiskService {
  public:
    /// The name and the message of a D-Bus error; the name is empty for one made on this side.
    struct CallFailure {
        std::string errorName;
        std::string message;
    };
    /// Mount options, and the driver to take; an empty one leaves that to UDisks2.
    struct Mounting {
        std::string options;
        std::string driver;
    };
    /// None on success; the result is the mount point, empty after an unmount.
    using Done = std::function<void(const std::optional<CallFailure>&, const std::string& result)>;

    /// `changed` is called as UDisksObjects says.
    DiskService(platform::SystemLog& log, UDisksObjects::Changed changed);
    DiskService(const DiskService&) = delete;
    DiskService& operator=(const DiskService&) = delete;
    /// Calls under way end without being told of.
    ~DiskService();

    /// Whether the service is there now.
    [[nodiscard]] bool isThere() const { return objects_.areThere(); }
    /// The description of every block device there is, by BSD name.
    [[nodiscard]] std::map<std::string, DiskDescription> disks() const;

    /// Unmounts the file system of a device.
    void unmount(const std::string& device, Done done);
    /// Mounts it; the result is the mount point.
    void mount(const std::string& device, const Mounting& mounting, Done done);

  private:
    struct Call;

    [[nodiscard]] OwnedObject<UDisksFilesystem> filesystem(const std::string& device) const;
    static void finishUnmount(GObject* source, GAsyncResult* result, gpointer data);
    static void finishMount(GObject* source, GAsyncResult* result, gpointer data);

    UDisksObjects objects_;
    OwnedObject<GCancellable> cancellable_{g_cancellable_new()};
};

}  // namespace brisel::platform::headless
