// A fake D-Bus service with scripted answers.
// SPDX-License-Identifier: MIT
#include "tests/linux/desktop/FakeService.h"

#include <gio/gunixfdlist.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace brisel::tests {

namespace {

void send(GDBusMethodInvocation* invocation, GDBusMessage* message) {
    const OwnedObject<GDBusMessage> owned(message);
    const OwnedObject<GDBusMethodInvocation> answered(invocation);
    g_dbus_connection_send_message(g_dbus_method_invocation_get_connection(invocation), message,
                                   G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
}

}  // namespace

std::string BusCall::file() const {
    auto* const files =
        g_dbus_message_get_unix_fd_list(g_dbus_method_invocation_get_message(invocation_));
    const auto number = std::to_string(g_unix_fd_list_peek_fds(files, nullptr)[0]);
    return std::filesystem::read_symlink("/proc/self/fd/" + number);
}

void BusCall::answer(GVariant* tuple) const {
    auto* const reply =
        g_dbus_message_new_method_reply(g_dbus_method_invocation_get_message(invocation_));
    if (tuple != nullptr) g_dbus_message_set_body(reply, tuple);
    send(invocation_, reply);
}

void BusCall::refuse(const std::string& errorName) const {
    send(invocation_,
         g_dbus_message_new_method_error_literal(g_dbus_method_invocation_get_message(invocation_),
                                                 errorName.c_str(), "It is refused."));
}

FakeService::FakeService(Interface interface) : interface_(std::move(interface)) {
    static constexpr GDBusInterfaceVTable Answers{&answerMethod, &answerProperty, nullptr, {}};
    CallError error;
    auto* const node =
        g_dbus_node_info_new_for_xml(interface_.introspection.c_str(), error.receive());
    object_ =
        g_dbus_connection_register_object(bus_.get(), interface_.path.c_str(), *node->interfaces,
                                          &Answers, this, nullptr, error.receive());
    g_dbus_node_info_unref(node);
    EXPECT_FALSE(error) << error.message();
}

FakeService::~FakeService() {
    g_dbus_connection_unregister_object(bus_.get(), object_);
    g_dbus_connection_close_sync(bus_.get(), nullptr, nullptr);
}

void FakeService::vanish() {
    const OwnedVariant answer(g_dbus_connection_call_sync(
        bus_.get(), "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
        "ReleaseName", g_variant_new("(s)", interface_.busName.c_str()), nullptr,
        G_DBUS_CALL_FLAGS_NONE, -1, nullptr, nullptr));
    EXPECT_TRUE(answer);
}

void FakeService::setProperty(const std::string& name, GVariant* value) {
    properties_[name].reset(g_variant_ref_sink(value));
}

void FakeService::emit(const char* signal, GVariant* arguments) const {
    g_dbus_connection_emit_signal(bus_.get(), nullptr, interface_.path.c_str(),
                                  interface_.name.c_str(), signal, arguments, nullptr);
}

void FakeService::answerMethod(GDBusConnection* /*bus*/, const gchar* /*sender*/,
                               const gchar* /*path*/, const gchar* /*interface*/,
                               const gchar* method, GVariant* /*arguments*/,
                               GDBusMethodInvocation* invocation, gpointer service) {
    const BusCall call(invocation);
    const auto& methods = static_cast<FakeService*>(service)->methods_;
    const auto found = methods.find(method);
    if (found == methods.end()) {
        call.refuse("org.freedesktop.DBus.Error.UnknownMethod");
    } else {
        found->second(call);
    }
}

GVariant* FakeService::answerProperty(GDBusConnection* /*bus*/, const gchar* /*sender*/,
                                      const gchar* /*path*/, const gchar* /*interface*/,
                                      const gchar* name, GError** error, gpointer service) {
    const auto& properties = static_cast<FakeService*>(service)->properties_;
    const auto found = properties.find(name);
    if (found != properties.end()) return g_variant_ref(found->second.get());
    g_set_error_literal(error, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_PROPERTY, "It is unknown.");
    return nullptr;
}

}  // namespace brisel::tests
