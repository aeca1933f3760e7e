// A system bus within the process.
// SPDX-License-Identifier: MIT
#include "tests/fuzz/FakeBus.h"

#include <iostream>
#include <string_view>
#include <utility>

#include "platform/headless/MainContext.h"
#include "tests/fuzz/Must.h"

namespace brisel::tests {

using platform::headless::CallError;
using platform::headless::OwnedObject;
using platform::headless::OwnedText;

namespace {

constexpr const char* Program = ":1.1";
constexpr const char* Service = ":1.2";

GDBusMessage* answer(GDBusMessage* call, GVariant* body) {
    auto* const reply = g_dbus_message_new_method_reply(call);
    if (body != nullptr) g_dbus_message_set_body(reply, body);
    return reply;
}

void send(GDBusConnection* connection, GDBusMessage* message) {
    CallError error;
    g_dbus_connection_send_message(connection, message, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr,
                                   error.receive());
    // The program before has gone.
    if (g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_CLOSED) != FALSE) return;
    if (error) std::cerr << "Nothing can be sent: " << error.message() << '\n';
    must(!error);
}

}  // namespace

FakeBus::FakeBus() {
    g_setenv("DBUS_SYSTEM_BUS_ADDRESS", address_.c_str(), TRUE);
    thread_ = std::thread([this] { serve(); });
    served_.get_future().wait();
}

FakeBus::~FakeBus() {
    end_();
    thread_.join();
}

void FakeBus::serve() {
    platform::headless::OwnMainLoop loop;
    const OwnedText guid(g_dbus_generate_guid());
    CallError error;
    const OwnedObject<GDBusServer> server(
        g_dbus_server_new_sync(address_.c_str(), G_DBUS_SERVER_FLAGS_RUN_IN_THREAD, guid.get(),
                               nullptr, nullptr, error.receive()));
    if (!server) std::cerr << "There is no bus: " << error.message() << '\n';
    must(server != nullptr);
    g_signal_connect(server.get(), "new-connection", reinterpret_cast<GCallback>(&welcome), this);
    g_dbus_server_start(server.get());
    end_ = [&loop] { platform::headless::handTo(loop.context(), [&loop] { loop.quit(); }); };
    served_.set_value();
    loop.run();
    g_dbus_server_stop(server.get());
}

void FakeBus::prepare(DiskServiceAnswers answers) {
    const std::lock_guard lock(mutex_);
    if (connection_) g_dbus_connection_close(connection_.get(), nullptr, nullptr, nullptr);
    connection_.reset();
    answers_ = std::move(answers);
}

void FakeBus::emit(const char* path, const char* interface, const char* signal,
                   GVariant* arguments) {
    const OwnedObject<GDBusMessage> message(g_dbus_message_new_signal(path, interface, signal));
    g_dbus_message_set_sender(message.get(), Service);
    g_dbus_message_set_body(message.get(), arguments);
    const std::lock_guard lock(mutex_);
    must(connection_ != nullptr);
    send(connection_.get(), message.get());
}

gboolean FakeBus::welcome(GDBusServer* /*server*/, GDBusConnection* connection, gpointer bus) {
    auto& self = *static_cast<FakeBus*>(bus);
    g_dbus_connection_add_filter(connection, &FakeBus::receive, bus, nullptr);
    const std::lock_guard lock(self.mutex_);
    self.connection_.reset(G_DBUS_CONNECTION(g_object_ref(connection)));
    return TRUE;
}

GDBusMessage* FakeBus::receive(GDBusConnection* connection, GDBusMessage* message,
                               gboolean incoming, gpointer bus) {
    if (incoming == FALSE) return message;
    const OwnedObject<GDBusMessage> call(message);
    if (g_dbus_message_get_message_type(call.get()) != G_DBUS_MESSAGE_TYPE_METHOD_CALL) {
        return nullptr;
    }
    const OwnedObject<GDBusMessage> reply(static_cast<FakeBus*>(bus)->replyTo(call.get()));
    g_dbus_message_set_sender(reply.get(), Service);
    g_dbus_message_set_destination(reply.get(), Program);
    send(connection, reply.get());
    return nullptr;
}

GDBusMessage* FakeBus::replyTo(GDBusMessage* call) {
    const std::string_view method = g_dbus_message_get_member(call);
    const std::lock_guard lock(mutex_);
    if (method == "Hello") return answer(call, g_variant_new("(s)", Program));
    if (method == "AddMatch" || method == "RemoveMatch") return answer(call, nullptr);
    if (method == "GetNameOwner") return answer(call, g_variant_new("(s)", Service));
    if (method == "StartServiceByName") return answer(call, g_variant_new("(u)", 2));
    if (method == "GetManagedObjects") {
        return answer(call, g_variant_new("(@a{oa{sa{sv}}})", answers_.objects.get()));
    }
    if (method == "Mount" && answers_.mounted) return answer(call, answers_.mounted.get());
    return g_dbus_message_new_method_error_literal(call, answers_.errorName.c_str(), "Refused.");
}

}  // namespace brisel::tests
