// A client of one D-Bus object.
// SPDX-License-Identifier: MIT
#include "platform/desktop/BusClient.h"

#include <gio/gunixfdlist.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <memory>
#include <utility>

namespace brisel::platform::desktop {

namespace {

using Received = std::function<void(GVariant*)>;

/// A pending call. Checks the cancellable to see whether the client was destroyed, because a
/// service may answer with G_IO_ERROR_CANCELLED too.
struct Call {
    Call(BusClient::Done whenDone, GCancellable* client)
        : done(std::move(whenDone)), cancellable(G_CANCELLABLE(g_object_ref(client))) {}

    BusClient::Done done;
    headless::OwnedObject<GCancellable> cancellable;
};

void finishCall(GObject* bus, GAsyncResult* result, gpointer data) {
    const std::unique_ptr<Call> call(static_cast<Call*>(data));
    headless::CallError error;
    const headless::OwnedVariant answer(g_dbus_connection_call_with_unix_fd_list_finish(
        G_DBUS_CONNECTION(bus), nullptr, result, error.receive()));
    if (g_cancellable_is_cancelled(call->cancellable.get()) != FALSE) return;
    if (call->done) call->done(answer, error);
}

void handOn(GDBusConnection* /*bus*/, const char* /*sender*/, const char* /*path*/,
            const char* /*interface*/, const char* /*signal*/, GVariant* arguments, gpointer data) {
    const Received received = *static_cast<Received*>(data);
    received(arguments);
}

void dropReceived(gpointer data) {
    delete static_cast<Received*>(data);
}

struct Watch {
    std::function<void()> appeared;
    std::function<void()> vanished;
};

void tellAppeared(GDBusConnection* /*bus*/, const char* /*name*/, const char* /*owner*/,
                  gpointer data) {
    static_cast<Watch*>(data)->appeared();
}

void tellVanished(GDBusConnection* /*bus*/, const char* /*name*/, gpointer data) {
    static_cast<Watch*>(data)->vanished();
}

void dropWatch(gpointer data) {
    delete static_cast<Watch*>(data);
}

headless::OwnedVariant unwrapped(const headless::OwnedVariant& answer) {
    GVariant* value = nullptr;
    if (answer && g_variant_is_of_type(answer.get(), G_VARIANT_TYPE("(v)")) != FALSE) {
        g_variant_get(answer.get(), "(v)", &value);
    }
    return headless::OwnedVariant(value);
}

}  // namespace

bool isMissing(const headless::CallError& error) {
    constexpr std::array Codes{G_DBUS_ERROR_SERVICE_UNKNOWN, G_DBUS_ERROR_NAME_HAS_NO_OWNER,
                               G_DBUS_ERROR_UNKNOWN_OBJECT, G_DBUS_ERROR_UNKNOWN_INTERFACE,
                               G_DBUS_ERROR_UNKNOWN_METHOD};
    return std::any_of(Codes.begin(), Codes.end(), [&error](auto code) {
        return g_error_matches(error.get(), G_DBUS_ERROR, code) != FALSE;
    });
}

BusClient::BusClient(GDBusConnection* bus, std::string name, std::string path,
                     std::string interface)
    : bus_(static_cast<GDBusConnection*>(g_object_ref(bus))),
      name_(std::move(name)),
      path_(std::move(path)),
      interface_(std::move(interface)) {}

BusClient::~BusClient() {
    g_cancellable_cancel(cancellable_.get());
}

void BusClient::call(const char* method, GVariant* arguments, Done done, GUnixFDList* files) {
    g_dbus_connection_call_with_unix_fd_list(
        bus_.get(), name_.c_str(), path_.c_str(), interface_.c_str(), method, arguments, nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, files, cancellable_.get(), &finishCall,
        new Call(std::move(done), cancellable_.get()));
}

headless::OwnedVariant BusClient::callAndWait(const char* method, GVariant* arguments) {
    constexpr std::chrono::milliseconds TimeLimit{5000};
    return headless::OwnedVariant(g_dbus_connection_call_sync(
        bus_.get(), name_.c_str(), path_.c_str(), interface_.c_str(), method, arguments, nullptr,
        G_DBUS_CALL_FLAGS_NONE, TimeLimit.count(), nullptr, nullptr));
}

void BusClient::readProperty(const char* name, Done done) {
    const Done bare = [done = std::move(done)](const headless::OwnedVariant& answer,
                                               const headless::CallError& error) {
        done(unwrapped(answer), error);
    };
    g_dbus_connection_call_with_unix_fd_list(
        bus_.get(), name_.c_str(), path_.c_str(), "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", interface_.c_str(), name), nullptr, G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, cancellable_.get(), &finishCall, new Call(bare, cancellable_.get()));
}

Subscription BusClient::onSignal(const char* signal, std::function<void(GVariant*)> received) {
    const auto id = g_dbus_connection_signal_subscribe(
        bus_.get(), name_.c_str(), interface_.c_str(), signal, path_.c_str(), nullptr,
        G_DBUS_SIGNAL_FLAGS_NONE, &handOn, new Received(std::move(received)), &dropReceived);
    return Subscription([bus = bus_.get(), id] { g_dbus_connection_signal_unsubscribe(bus, id); });
}

Subscription BusClient::watch(std::function<void()> appeared, std::function<void()> vanished) {
    const auto id = g_bus_watch_name_on_connection(
        bus_.get(), name_.c_str(), G_BUS_NAME_WATCHER_FLAGS_NONE, &tellAppeared, &tellVanished,
        new Watch{std::move(appeared), std::move(vanished)}, &dropWatch);
    return Subscription([id] { g_bus_unwatch_name(id); });
}

}  // namespace brisel::platform::desktop
