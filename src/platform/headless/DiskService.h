// UDisks2's block devices, and mount and unmount calls on them.
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

/// Main thread only. Callbacks run from the main context.
class DiskService {
  public:
    /// A D-Bus error. `errorName` is empty for GLib's own errors.
    struct CallFailure {
        std::string errorName;
        std::string message;
    };
    /// `options` are comma-separated. `driver` is UDisks2's `fstype`; if empty, UDisks2 chooses.
    struct Mounting {
        std::string options;
        std::string driver;
    };
    /// The failure is absent on success. `result` is the mount point, empty after an unmount.
    using Done = std::function<void(const std::optional<CallFailure>&, const std::string& result)>;

    /// For `changed` see UDisksObjects.
    DiskService(platform::SystemLog& log, UDisksObjects::Changed changed);
    DiskService(const DiskService&) = delete;
    DiskService& operator=(const DiskService&) = delete;
    /// Cancels pending calls; their `done` is not called.
    ~DiskService();

    /// True while connected to UDisks2.
    [[nodiscard]] bool isThere() const { return objects_.areThere(); }
    /// All block devices, by BSD name.
    [[nodiscard]] std::map<std::string, DiskDescription> disks() const;

    /// See DriveUse.h.
    [[nodiscard]] bool mayBeUnplugged(const std::string& device) const;

    /// Unmounts the file system on `device`, a BSD name. If it has none, calls `done` before
    /// returning.
    void unmount(const std::string& device, Done done);
    /// Mounts the file system on `device`. If it has none, calls `done` before returning.
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
