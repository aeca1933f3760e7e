// A fake UDisks2 with one NTFS volume.
// SPDX-License-Identifier: MIT
#pragma once

#include <gio/gio.h>
#include <udisks/udisks.h>

#include <deque>
#include <string>
#include <vector>

#include "tests/linux/desktop/SessionBus.h"

namespace brisel::tests {

/// The volume is /dev/sdz1. Served by the main loop of the creating thread.
class FakeDisks {
  public:
    /// The releases check mount options against different lists.
    enum class Release { V2_9, V2_10 };
    enum class Drivers { Fuse, Kernel, Both, None };

    FakeDisks();
    FakeDisks(const FakeDisks&) = delete;
    FakeDisks& operator=(const FakeDisks&) = delete;
    ~FakeDisks();

    /// Answers mounts as this release with these drivers does; forgets the calls.
    void behaveAs(Release release, Drivers drivers);
    /// Results of the next mounts, regardless of release and drivers: a mount point, or the name of
    /// a D-Bus error. Forgets the calls.
    void script(const std::vector<std::string>& results);
    void mountAt(const std::string& mountPoint) { mountPoint_ = mountPoint; }

    /// `mount OPTIONS DRIVER` or `unmount`, in call order.
    [[nodiscard]] const std::vector<std::string>& calls() const { return calls_; }
    /// The driver of the last unscripted mount that succeeded.
    [[nodiscard]] const std::string& mountedBy() const { return mountedBy_; }

    /// Changes the objects on the bus, as other programs and the user do.
    void setMounted(const std::string& mountPoint);
    void setUnmounted();
    void becomeVolume(const std::string& type, const std::string& uuid);
    void remove();
    void add();
    /// Changes the label of another device, /dev/sdy1, which has no file system.
    void relabelOther(const std::string& label);
    /// Waits until every connection to the bus has read the changes.
    void waitUntilRead() const;

  private:
    struct MountCall {
        std::string options;
        std::string driver;
    };

    OwnedVariant callPeer(const char* name, const char* interface, const char* method) const;
    [[nodiscard]] std::string resultOf(const MountCall& call);
    [[nodiscard]] std::string resultOn2_9(const MountCall& call);
    [[nodiscard]] std::string resultOn2_10(const MountCall& call);
    [[nodiscard]] std::string mountWith(const std::string& driver, const MountCall& call);
    [[nodiscard]] bool has(const std::string& driver) const;
    static gboolean mount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                          GVariant* options, gpointer self);
    static gboolean unmount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                            GVariant* options, gpointer self);

    Release release_ = Release::V2_10;
    Drivers drivers_ = Drivers::Fuse;
    /// /proc/filesystems lists the kernel's driver only after a mount has loaded it.
    bool kernelDriverLoaded_ = false;
    std::string mountPoint_ = "/dev/shm";
    std::deque<std::string> scripted_;
    std::vector<std::string> calls_;
    std::string mountedBy_;

    OwnedObject<GDBusConnection> bus_ = SessionBus::shared().connect();
    OwnedObject<GDBusObjectManagerServer> objects_{
        g_dbus_object_manager_server_new("/org/freedesktop/UDisks2")};
    OwnedObject<UDisksObjectSkeleton> object_{
        udisks_object_skeleton_new("/org/freedesktop/UDisks2/block_devices/sdz1")};
    OwnedObject<UDisksBlock> block_{udisks_block_skeleton_new()};
    OwnedObject<UDisksFilesystem> filesystem_{udisks_filesystem_skeleton_new()};
    OwnedObject<UDisksObjectSkeleton> otherObject_{
        udisks_object_skeleton_new("/org/freedesktop/UDisks2/block_devices/sdy1")};
    OwnedObject<UDisksBlock> otherBlock_{udisks_block_skeleton_new()};
};

}  // namespace brisel::tests
