// UDisks2's block devices, and mount and unmount calls on them.
// SPDX-License-Identifier: MIT
#include "platform/headless/DiskService.h"

#include <memory>
#include <utility>

#include "platform/headless/DiskDescriptions.h"
#include "platform/headless/DriveUse.h"

namespace brisel::platform::headless {

namespace {

std::string textOrEmpty(const char* text) {
    return text != nullptr ? text : "";
}

BlockProperties propertiesOf(UDisksObject* object, UDisksBlock* block) {
    BlockProperties properties;
    properties.device = textOrEmpty(udisks_block_get_device(block));
    properties.idType = textOrEmpty(udisks_block_get_id_type(block));
    properties.idLabel = textOrEmpty(udisks_block_get_id_label(block));
    properties.idUUID = textOrEmpty(udisks_block_get_id_uuid(block));
    properties.hintIgnore = udisks_block_get_hint_ignore(block) != FALSE;
    if (auto* const partition = udisks_object_peek_partition(object)) {
        properties.partitionUUID = textOrEmpty(udisks_partition_get_uuid(partition));
    }
    if (auto* const filesystem = udisks_object_peek_filesystem(object)) {
        properties.filesystem = true;
        const auto* const* const points = udisks_filesystem_get_mount_points(filesystem);
        if (points != nullptr && *points != nullptr) properties.mountPoint = *points;
    }
    return properties;
}

bool isMounted(UDisksObject* object) {
    auto* const filesystem = udisks_object_peek_filesystem(object);
    const auto* const* const points =
        filesystem != nullptr ? udisks_filesystem_get_mount_points(filesystem) : nullptr;
    return points != nullptr && *points != nullptr;
}

std::string pathOrNone(const char* path) {
    return path != nullptr ? path : "/";
}

BlockUse useOf(UDisksObject* object, UDisksBlock* block) {
    return {.path = g_dbus_object_get_object_path(G_DBUS_OBJECT(object)),
            .bsdName = bsdName(textOrEmpty(udisks_block_get_device(block))),
            .drive = pathOrNone(udisks_block_get_drive(block)),
            .backing = pathOrNone(udisks_block_get_crypto_backing_device(block)),
            .system = udisks_block_get_hint_system(block) != FALSE,
            .mounted = isMounted(object)};
}

DiskService::CallFailure failureOf(const GError* error) {
    const OwnedText name(g_dbus_error_get_remote_error(error));
    return {.errorName = textOrEmpty(name.get()), .message = error->message};
}

DiskService::CallFailure noSuchDisk() {
    return {.errorName = "org.freedesktop.DBus.Error.UnknownObject", .message = "No such disk."};
}

}  // namespace

/// A pending call. Drops the result once the DiskService is destroyed. Checks the cancellable,
/// because a service may also answer with G_IO_ERROR_CANCELLED.
struct DiskService::Call {
    Call(Done whenDone, GCancellable* service)
        : done(std::move(whenDone)), cancellable(G_CANCELLABLE(g_object_ref(service))) {}

    Done done;
    OwnedObject<GCancellable> cancellable;

    void end(const CallError& error, const std::string& result) const {
        if (g_cancellable_is_cancelled(cancellable.get()) != FALSE) return;
        done(error ? std::optional(failureOf(error.get())) : std::nullopt, result);
    }
};

DiskService::DiskService(platform::SystemLog& log, UDisksObjects::Changed changed)
    : objects_(log, std::move(changed)) {}

DiskService::~DiskService() {
    g_cancellable_cancel(cancellable_.get());
}

std::map<std::string, DiskDescription> DiskService::disks() const {
    std::map<std::string, DiskDescription> found;
    objects_.forEachBlock([&found](UDisksObject* object, UDisksBlock* block) {
        auto description = describe(propertiesOf(object, block));
        auto name = orNullText(description.mediaBSDName);
        found.insert_or_assign(std::move(name), std::move(description));
    });
    return found;
}

bool DiskService::mayBeUnplugged(const std::string& device) const {
    std::vector<BlockUse> blocks;
    objects_.forEachBlock([&blocks](UDisksObject* object, UDisksBlock* block) {
        blocks.push_back(useOf(object, block));
    });
    return headless::mayBeUnplugged(blocks, device);
}

OwnedObject<UDisksFilesystem> DiskService::filesystem(const std::string& device) const {
    OwnedObject<UDisksFilesystem> found;
    objects_.forEachBlock([&](UDisksObject* object, UDisksBlock* block) {
        if (bsdName(textOrEmpty(udisks_block_get_device(block))) != device) return;
        found.reset(udisks_object_get_filesystem(object));
    });
    return found;
}

void DiskService::unmount(const std::string& device, Done done) {
    const auto target = filesystem(device);
    if (!target) {
        done(noSuchDisk(), {});
        return;
    }
    // No timeout: flushing the write cache may take minutes.
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(target.get()), G_MAXINT);
    udisks_filesystem_call_unmount(target.get(), g_variant_new("a{sv}", nullptr),
                                   cancellable_.get(), &DiskService::finishUnmount,
                                   new Call(std::move(done), cancellable_.get()));
}

void DiskService::mount(const std::string& device, const Mounting& mounting, Done done) {
    const auto target = filesystem(device);
    if (!target) {
        done(noSuchDisk(), {});
        return;
    }
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&builder, "{sv}", "options",
                          g_variant_new_string(mounting.options.c_str()));
    if (!mounting.driver.empty()) {
        g_variant_builder_add(&builder, "{sv}", "fstype",
                              g_variant_new_string(mounting.driver.c_str()));
    }
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(target.get()), G_MAXINT);
    udisks_filesystem_call_mount(target.get(), g_variant_builder_end(&builder), cancellable_.get(),
                                 &DiskService::finishMount,
                                 new Call(std::move(done), cancellable_.get()));
}

void DiskService::finishUnmount(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Call> call(static_cast<Call*>(data));
    CallError error;
    udisks_filesystem_call_unmount_finish(UDISKS_FILESYSTEM(source), result, error.receive());
    call->end(error, {});
}

void DiskService::finishMount(GObject* source, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Call> call(static_cast<Call*>(data));
    CallError error;
    char* path = nullptr;
    udisks_filesystem_call_mount_finish(UDISKS_FILESYSTEM(source), &path, result, error.receive());
    const OwnedText owned(path);
    call->end(error, textOrEmpty(path));
}

}  // namespace brisel::platform::headless
