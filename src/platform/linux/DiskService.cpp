// UDisks2's objects on the system bus, and calls on their file systems.
// SPDX-License-Identifier: MIT
#include "platform/linux/DiskService.h"

#include <memory>
#include <utility>

#include "platform/linux/DiskDescriptions.h"
#include "platform/linux/MainContext.h"

namespace brisel::platform::linux {

namespace {

constexpr const char* BusName = "org.freedesktop.UDisks2";
constexpr const char* ObjectPath = "/org/freedesktop/UDisks2";

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

DiskService::CallFailure failureOf(const GError* error) {
    const OwnedText name(g_dbus_error_get_remote_error(error));
    return {.errorName = textOrEmpty(name.get()), .message = error->message};
}

DiskService::CallFailure noSuchDisk() {
    return {.errorName = "org.freedesktop.DBus.Error.UnknownObject",
            .message = "The disk is not there."};
}

// One signature serves all signals of the object manager: none of their arguments is read.
void anythingChanged(gpointer changed) {
    (*static_cast<DiskService::Changed*>(changed))();
}

}  // namespace

/// A call under way. Its end is not told once the service object has gone.
struct DiskService::Call {
    Done done;

    void end(const CallError& error, const std::string& result) const {
        if (g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE) return;
        done(error ? std::optional(failureOf(error.get())) : std::nullopt, result);
    }
};

DiskService::DiskService(platform::SystemLog& log, Changed changed)
    : log_(log), changed_([this, changed = std::move(changed)] {
          noteOwner();
          changed();
      }) {
    connect();
}

// A connection of its own: the process's shared one ends the process when the bus goes.
void DiskService::connect() {
    CallError error;
    const OwnedText address(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, error.receive()));
    const OwnedObject<GDBusConnection> connection(
        address
            ? g_dbus_connection_new_for_address_sync(
                  address.get(),
                  static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                    G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION),
                  nullptr, nullptr, error.receive())
            : nullptr);
    if (connection) {
        askForObjects(connection.get());
    } else {
        tryAgain(error.message());
    }
}

void DiskService::askForObjects(GDBusConnection* connection) {
    udisks_object_manager_client_new(connection, G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_NONE, BusName,
                                     ObjectPath, cancellable_.get(), &DiskService::finishConnect,
                                     this);
}

void DiskService::finishConnect(GObject* /*source*/, GAsyncResult* result, gpointer service) {
    CallError error;
    auto* const objects = udisks_object_manager_client_new_finish(result, error.receive());
    if (g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CANCELLED) != FALSE) return;
    auto& self = *static_cast<DiskService*>(service);
    if (objects != nullptr) {
        self.watch(objects);
    } else {
        self.tryAgain(error.message());
    }
}

void DiskService::watch(GDBusObjectManager* objects) {
    objects_.reset(objects);
    for (const char* const signal :
         {"object-added", "object-removed", "interface-added", "interface-removed",
          "interface-proxy-properties-changed", "notify::name-owner"}) {
        connections_.emplace_back(objects_.get(), signal, anythingChanged, &changed_);
    }
    auto* const connection =
        g_dbus_object_manager_client_get_connection(G_DBUS_OBJECT_MANAGER_CLIENT(objects_.get()));
    connections_.emplace_back(
        connection, "closed",
        [](gpointer service) { static_cast<DiskService*>(service)->disconnect(); }, this);
    changed_();
}

void DiskService::disconnect() {
    // Not at once: this is called by a signal of what is to go.
    nextTry_ = whenMainLoopTurns([this] {
        connections_.clear();
        objects_.reset();
        tryAgain("The system bus has closed the connection.");
    });
}

void DiskService::tryAgain(const std::string& reason) {
    constexpr std::chrono::seconds Pause{3};
    if (std::exchange(toldThere_, false)) {
        log_.log("No disk can be watched, UDisks2 cannot be reached: %@", reason);
    }
    nextTry_ = RunLoop().scheduledTimer(Pause, [this] {
        const auto thisTry = std::move(nextTry_);
        connect();
    });
}

DiskService::~DiskService() {
    g_cancellable_cancel(cancellable_.get());
}

bool DiskService::isThere() const {
    if (!objects_) return false;
    const OwnedText owner(
        g_dbus_object_manager_client_get_name_owner(G_DBUS_OBJECT_MANAGER_CLIENT(objects_.get())));
    return owner != nullptr;
}

void DiskService::noteOwner() {
    if (toldThere_ == isThere()) return;
    toldThere_ = !toldThere_;
    if (toldThere_) {
        log_.log("The disk service UDisks2 is back.");
    } else {
        log_.log("The disk service UDisks2 has gone; waiting for it.");
        askForRestart();
    }
}

// The bus starts the service if it can; its answer does not matter, the coming name does.
void DiskService::askForRestart() const {
    auto* const connection =
        g_dbus_object_manager_client_get_connection(G_DBUS_OBJECT_MANAGER_CLIENT(objects_.get()));
    g_dbus_connection_call(connection, "org.freedesktop.DBus", "/org/freedesktop/DBus",
                           "org.freedesktop.DBus", "StartServiceByName",
                           g_variant_new("(su)", BusName, 0), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                           nullptr, nullptr, nullptr);
}

std::map<std::string, DiskDescription> DiskService::disks() const {
    std::map<std::string, DiskDescription> found;
    if (!objects_) return found;
    const OwnedObjectList objects(g_dbus_object_manager_get_objects(objects_.get()));
    for (const auto* node = objects.get(); node != nullptr; node = node->next) {
        auto* const object = UDISKS_OBJECT(node->data);
        auto* const block = udisks_object_peek_block(object);
        if (block == nullptr) continue;
        auto description = describe(propertiesOf(object, block));
        auto name = textOf(description.mediaBSDName);
        found.insert_or_assign(std::move(name), std::move(description));
    }
    return found;
}

OwnedObject<UDisksFilesystem> DiskService::filesystem(const std::string& device) const {
    if (!objects_) return nullptr;
    const OwnedObjectList objects(g_dbus_object_manager_get_objects(objects_.get()));
    for (const auto* node = objects.get(); node != nullptr; node = node->next) {
        auto* const object = UDISKS_OBJECT(node->data);
        auto* const block = udisks_object_peek_block(object);
        if (block == nullptr) continue;
        if (bsdName(textOrEmpty(udisks_block_get_device(block))) == device) {
            return OwnedObject<UDisksFilesystem>(udisks_object_get_filesystem(object));
        }
    }
    return nullptr;
}

void DiskService::unmount(const std::string& device, Done done) {
    const auto target = filesystem(device);
    if (!target) {
        done(noSuchDisk(), {});
        return;
    }
    // Writing back what is cached can take longer than any usual time limit of a call.
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(target.get()), G_MAXINT);
    udisks_filesystem_call_unmount(target.get(), g_variant_new("a{sv}", nullptr),
                                   cancellable_.get(), &DiskService::finishUnmount,
                                   new Call{std::move(done)});
}

void DiskService::mount(const std::string& device, const std::string& options, Done done) {
    const auto target = filesystem(device);
    if (!target) {
        done(noSuchDisk(), {});
        return;
    }
    GVariantBuilder builder;
    g_variant_builder_init(&builder, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&builder, "{sv}", "options", g_variant_new_string(options.c_str()));
    g_dbus_proxy_set_default_timeout(G_DBUS_PROXY(target.get()), G_MAXINT);
    udisks_filesystem_call_mount(target.get(), g_variant_builder_end(&builder), cancellable_.get(),
                                 &DiskService::finishMount, new Call{std::move(done)});
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

}  // namespace brisel::platform::linux
