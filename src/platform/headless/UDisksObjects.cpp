// UDisks2's objects on the system bus.
// SPDX-License-Identifier: MIT
#include "platform/headless/UDisksObjects.h"

#include <chrono>
#include <utility>

#include "platform/headless/MainContext.h"

namespace brisel::platform::headless {

namespace {

constexpr const char* BusName = "org.freedesktop.UDisks2";
constexpr const char* ObjectPath = "/org/freedesktop/UDisks2";

// Handles every signal of the object manager and ignores its arguments.
void anythingChanged(gpointer changed) {
    (*static_cast<UDisksObjects::Changed*>(changed))();
}

OwnedObject<GDBusConnection> connectToSystemBus(CallError& error) {
    const OwnedText address(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, error.receive()));
    if (!address) return nullptr;
    // A private connection: by default GLib's shared one exits the process when the bus closes.
    const auto flags =
        static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                          G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    return OwnedObject<GDBusConnection>(g_dbus_connection_new_for_address_sync(
        address.get(), flags, nullptr, nullptr, error.receive()));
}

GDBusConnection* connectionOf(GDBusObjectManager* objects) {
    return g_dbus_object_manager_client_get_connection(G_DBUS_OBJECT_MANAGER_CLIENT(objects));
}

}  // namespace

/// The calling object, destroyed if `cancellable` is cancelled. The error cannot tell, because a
/// service may answer with G_IO_ERROR_CANCELLED too.
struct UDisksObjects::Question {
    UDisksObjects& asking;
    OwnedObject<GCancellable> cancellable;
};

UDisksObjects::UDisksObjects(platform::SystemLog& log, Changed changed)
    : log_(log), changed_([this, changed = std::move(changed)] {
          noteOwner();
          changed();
      }) {
    connect();
}

UDisksObjects::~UDisksObjects() {
    g_cancellable_cancel(cancellable_.get());
}

void UDisksObjects::connect() {
    CallError error;
    const auto connection = connectToSystemBus(error);
    if (!connection) {
        tryAgain(error.message());
        return;
    }
    backlog_ = std::make_unique<SignalBacklog>(connection.get(), [this] { readAnew(); });
    ask(connection.get());
}

// The bus activates UDisks2 for this call if need be. Once it has answered, the synchronous call in
// `fetch` returns without delay.
void UDisksObjects::ask(GDBusConnection* connection) {
    g_dbus_connection_call(
        connection, BusName, ObjectPath, "org.freedesktop.DBus.ObjectManager", "GetManagedObjects",
        nullptr, nullptr, G_DBUS_CALL_FLAGS_NONE, -1, cancellable_.get(),
        &UDisksObjects::finishQuestion,
        new Question{*this,
                     OwnedObject<GCancellable>(G_CANCELLABLE(g_object_ref(cancellable_.get())))});
}

void UDisksObjects::finishQuestion(GObject* connection, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Question> question(static_cast<Question*>(data));
    CallError error;
    const OwnedVariant answer(
        g_dbus_connection_call_finish(G_DBUS_CONNECTION(connection), result, error.receive()));
    if (g_cancellable_is_cancelled(question->cancellable.get()) != FALSE) return;
    auto& asking = question->asking;
    if (g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_TIMED_OUT) != FALSE) {
        asking.tryAgain(error.message());
    } else {
        asking.fetch(G_DBUS_CONNECTION(connection));
    }
}

// Synchronous: the asynchronous constructor sets the objects up in a GLib thread, and their signals
// would arrive on the thread of the default main context.
void UDisksObjects::fetch(GDBusConnection* connection) {
    CallError error;
    auto* const objects = udisks_object_manager_client_new_sync(
        connection, G_DBUS_OBJECT_MANAGER_CLIENT_FLAGS_DO_NOT_AUTO_START, BusName, ObjectPath,
        cancellable_.get(), error.receive());
    if (objects != nullptr) {
        watch(objects);
    } else {
        tryAgain(error.message());
    }
}

void UDisksObjects::watch(GDBusObjectManager* objects) {
    connections_.clear();
    objects_.reset(objects);
    areOutdated_ = false;
    for (const char* const signal :
         {"object-added", "object-removed", "interface-added", "interface-removed",
          "interface-proxy-properties-changed", "notify::name-owner"}) {
        connections_.emplace_back(objects_.get(), signal, anythingChanged, &changed_);
    }
    connections_.emplace_back(
        connectionOf(objects_.get()), "closed",
        [](gpointer service) { static_cast<UDisksObjects*>(service)->disconnect(); }, this);
    changed_();
}

void UDisksObjects::readAnew() {
    if (!objects_) return;
    areOutdated_ = true;
    connections_.clear();
    ask(connectionOf(objects_.get()));
}

void UDisksObjects::disconnect() {
    // Deferred: a signal of the objects to be destroyed calls this.
    nextTry_ = whenMainLoopTurns([this] {
        connections_.clear();
        objects_.reset();
        tryAgain("The system bus closed the connection.");
    });
}

void UDisksObjects::tryAgain(const std::string& reason) {
    constexpr std::chrono::seconds Pause{3};
    if (std::exchange(toldThere_, false)) {
        log_.log("Cannot connect to UDisks2, so no disks are watched: %@", reason);
    }
    nextTry_ = RunLoop().scheduledTimer(Pause, [this] {
        const auto thisTry = std::move(nextTry_);
        connect();
    });
}

bool UDisksObjects::areThere() const {
    if (!objects_ || areOutdated_) return false;
    const OwnedText owner(
        g_dbus_object_manager_client_get_name_owner(G_DBUS_OBJECT_MANAGER_CLIENT(objects_.get())));
    return owner != nullptr;
}

void UDisksObjects::noteOwner() {
    const bool there = areThere();
    if (toldThere_ != there) tell(there);
    toldThere_ = there;
    wasThere_ = wasThere_ || there;
}

void UDisksObjects::tell(bool there) {
    if (there) {
        log_.log(wasThere_ ? "Connected to UDisks2 again." : "Connected to UDisks2.");
        return;
    }
    log_.log(wasThere_ ? "UDisks2 has stopped; waiting for it to start."
                       : "UDisks2 is not running; waiting for it to start.");
    askForRestart();
}

// Asks the bus to activate UDisks2. Ignores the reply: `notify::name-owner` reports the start.
void UDisksObjects::askForRestart() const {
    g_dbus_connection_call(connectionOf(objects_.get()), "org.freedesktop.DBus",
                           "/org/freedesktop/DBus", "org.freedesktop.DBus", "StartServiceByName",
                           g_variant_new("(su)", BusName, 0), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
                           nullptr, nullptr, nullptr);
}

void UDisksObjects::forEachBlock(
    const std::function<void(UDisksObject*, UDisksBlock*)>& visit) const {
    if (!objects_) return;
    const OwnedObjectList objects(g_dbus_object_manager_get_objects(objects_.get()));
    for (const auto* node = objects.get(); node != nullptr; node = node->next) {
        auto* const object = UDISKS_OBJECT(node->data);
        if (auto* const block = udisks_object_peek_block(object)) visit(object, block);
    }
}

}  // namespace brisel::platform::headless
