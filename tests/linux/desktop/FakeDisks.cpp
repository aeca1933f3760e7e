// A fake UDisks2 with one NTFS volume.
// SPDX-License-Identifier: MIT
#include "tests/linux/desktop/FakeDisks.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace brisel::tests {

namespace {

constexpr const char* OptionNotPermitted = "org.freedesktop.UDisks2.Error.OptionNotPermitted";
constexpr const char* Failed = "org.freedesktop.UDisks2.Error.Failed";
constexpr const char* NtfsDriver = "ntfs";
constexpr const char* Ntfs3Driver = "ntfs3";
constexpr std::string_view NoRecovery = "norecover";

std::string optionIn(GVariant* options, const char* name) {
    const char* text = "";
    g_variant_lookup(options, name, "&s", &text);
    return text;
}

bool contains(const std::string& options, std::string_view option) {
    return ("," + options + ",").find("," + std::string(option) + ",") != std::string::npos;
}

}  // namespace

FakeDisks::FakeDisks() {
    udisks_block_set_device(block_.get(), "/dev/sdz1");
    udisks_block_set_id_type(block_.get(), "ntfs");
    udisks_block_set_id_usage(block_.get(), "filesystem");
    udisks_block_set_id_uuid(block_.get(), "0123456789ABCDEF");
    g_signal_connect(filesystem_.get(), "handle-mount",
                     reinterpret_cast<GCallback>(&FakeDisks::mount), this);
    g_signal_connect(filesystem_.get(), "handle-unmount",
                     reinterpret_cast<GCallback>(&FakeDisks::unmount), this);
    udisks_object_skeleton_set_block(object_.get(), block_.get());
    udisks_object_skeleton_set_filesystem(object_.get(), filesystem_.get());
    g_dbus_object_manager_server_export(objects_.get(), G_DBUS_OBJECT_SKELETON(object_.get()));
    udisks_block_set_device(otherBlock_.get(), "/dev/sdy1");
    udisks_object_skeleton_set_block(otherObject_.get(), otherBlock_.get());
    g_dbus_object_manager_server_export(objects_.get(), G_DBUS_OBJECT_SKELETON(otherObject_.get()));
    g_dbus_object_manager_server_set_connection(objects_.get(), bus_.get());
    requestName(bus_.get(), "org.freedesktop.UDisks2");
}

FakeDisks::~FakeDisks() {
    g_dbus_object_manager_server_set_connection(objects_.get(), nullptr);
    g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
}

void FakeDisks::behaveAs(Release release, Drivers drivers) {
    release_ = release;
    drivers_ = drivers;
    kernelDriverLoaded_ = false;
    mountedBy_.clear();
    calls_.clear();
}

void FakeDisks::script(const std::vector<std::string>& results) {
    scripted_ = {results.begin(), results.end()};
    calls_.clear();
}

void FakeDisks::setMounted(const std::string& mountPoint) {
    const std::array<const char*, 2> points{mountPoint.c_str(), nullptr};
    udisks_filesystem_set_mount_points(filesystem_.get(), points.data());
    g_dbus_interface_skeleton_flush(G_DBUS_INTERFACE_SKELETON(filesystem_.get()));
}

void FakeDisks::setUnmounted() {
    const std::array<const char*, 1> none{nullptr};
    udisks_filesystem_set_mount_points(filesystem_.get(), none.data());
    g_dbus_interface_skeleton_flush(G_DBUS_INTERFACE_SKELETON(filesystem_.get()));
}

void FakeDisks::becomeVolume(const std::string& type, const std::string& uuid) {
    udisks_block_set_id_type(block_.get(), type.c_str());
    udisks_block_set_id_uuid(block_.get(), uuid.c_str());
    g_dbus_interface_skeleton_flush(G_DBUS_INTERFACE_SKELETON(block_.get()));
}

void FakeDisks::remove() {
    g_dbus_object_manager_server_unexport(
        objects_.get(), g_dbus_object_get_object_path(G_DBUS_OBJECT(object_.get())));
}

void FakeDisks::add() {
    g_dbus_object_manager_server_export(objects_.get(), G_DBUS_OBJECT_SKELETON(object_.get()));
}

void FakeDisks::relabelOther(const std::string& label) {
    udisks_block_set_id_label(otherBlock_.get(), label.c_str());
    g_dbus_interface_skeleton_flush(G_DBUS_INTERFACE_SKELETON(otherBlock_.get()));
}

OwnedVariant FakeDisks::callPeer(const char* name, const char* interface,
                                 const char* method) const {
    return OwnedVariant(g_dbus_connection_call_sync(bus_.get(), name, "/", interface, method,
                                                    nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                                                    nullptr, nullptr));
}

// GLib's thread reads a connection's messages in order, and answers a ping itself.
void FakeDisks::waitUntilRead() const {
    constexpr const char* Bus = "org.freedesktop.DBus";
    const auto answer = callPeer(Bus, Bus, "ListNames");
    GVariantIter* names = nullptr;
    g_variant_get(answer.get(), "(as)", &names);
    const char* name = nullptr;
    while (g_variant_iter_next(names, "&s", &name) != FALSE) {
        if (*name == ':') static_cast<void>(callPeer(name, "org.freedesktop.DBus.Peer", "Ping"));
    }
    g_variant_iter_free(names);
}

bool FakeDisks::has(const std::string& driver) const {
    if (drivers_ == Drivers::Both) return true;
    return drivers_ == (driver == Ntfs3Driver ? Drivers::Kernel : Drivers::Fuse);
}

std::string FakeDisks::resultOf(const MountCall& call) {
    if (!scripted_.empty()) {
        auto result = scripted_.front();
        scripted_.pop_front();
        return result;
    }
    return release_ == Release::V2_9 ? resultOn2_9(call) : resultOn2_10(call);
}

// UDisks2 2.9 has one list of options for all drivers. A driver must be well-known, as `ntfs` is,
// or listed in /proc/filesystems; `ntfs` tries the kernel's driver first.
std::string FakeDisks::resultOn2_9(const MountCall& call) {
    if (call.driver == Ntfs3Driver) {
        return kernelDriverLoaded_ ? mountWith(Ntfs3Driver, call) : OptionNotPermitted;
    }
    return mountWith(has(Ntfs3Driver) ? Ntfs3Driver : NtfsDriver, call);
}

// UDisks2 2.10 tries the drivers in order, each with its own list of options. An option that is not
// on the list ends the call before any mount.
std::string FakeDisks::resultOn2_10(const MountCall& call) {
    const auto tries = call.driver.empty() ? std::vector<std::string>{Ntfs3Driver, NtfsDriver}
                                           : std::vector{call.driver};
    for (const auto& driver : tries) {
        if (driver == Ntfs3Driver && contains(call.options, NoRecovery)) return OptionNotPermitted;
        if (auto result = mountWith(driver, call); result != Failed) return result;
    }
    return Failed;
}

std::string FakeDisks::mountWith(const std::string& driver, const MountCall& call) {
    if (!has(driver)) return Failed;
    if (driver == Ntfs3Driver) {
        kernelDriverLoaded_ = true;
        if (contains(call.options, NoRecovery)) return Failed;
    }
    mountedBy_ = driver;
    return mountPoint_;
}

gboolean FakeDisks::mount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                          GVariant* options, gpointer self) {
    auto& disks = *static_cast<FakeDisks*>(self);
    const MountCall call{.options = optionIn(options, "options"),
                         .driver = optionIn(options, "fstype")};
    disks.calls_.push_back("mount " + call.options + " " + call.driver);
    const auto result = disks.resultOf(call);
    if (result.front() == '/') {
        disks.setMounted(result);
        udisks_filesystem_complete_mount(filesystem, invocation, result.c_str());
    } else {
        g_dbus_method_invocation_return_dbus_error(invocation, result.c_str(), "Refused.");
    }
    return TRUE;
}

gboolean FakeDisks::unmount(UDisksFilesystem* filesystem, GDBusMethodInvocation* invocation,
                            GVariant* /*options*/, gpointer self) {
    auto& disks = *static_cast<FakeDisks*>(self);
    disks.calls_.emplace_back("unmount");
    disks.setUnmounted();
    udisks_filesystem_complete_unmount(filesystem, invocation);
    return TRUE;
}

}  // namespace brisel::tests
