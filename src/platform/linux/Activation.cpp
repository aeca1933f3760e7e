// One program a session.
// SPDX-License-Identifier: MIT
#include "platform/linux/Activation.h"

#include <string_view>
#include <utility>

namespace brisel::platform::linux {

namespace {

constexpr const char* Name = "org.brisel.Brisel";
constexpr const char* Path = "/org/brisel/Brisel";
constexpr const char* Interface = "org.freedesktop.Application";

constexpr const char* Introspection = R"(
<node><interface name='org.freedesktop.Application'>
  <method name='Activate'><arg type='a{sv}' direction='in'/></method>
</interface></node>)";

// Flags and answers of org.freedesktop.DBus.RequestName (D-Bus Specification).
constexpr guint32 DoNotQueue = 4;
constexpr guint32 PrimaryOwner = 1;
constexpr guint32 Exists = 3;

// The first one may be held up by an alert; it gets the call all the same.
constexpr int MillisecondsToAnswer = 5000;

Activation::Place takeName(GDBusConnection* bus) {
    const OwnedVariant answer(g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", Name, DoNotQueue), G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE, -1,
        nullptr, nullptr));
    guint32 place = 0;
    if (answer) g_variant_get(answer.get(), "(u)", &place);
    if (place == PrimaryOwner) return Activation::Place::First;
    return place == Exists ? Activation::Place::Second : Activation::Place::Unknown;
}

void answerActivate(GDBusConnection* /*bus*/, const gchar* /*sender*/, const gchar* /*path*/,
                    const gchar* /*interface*/, const gchar* /*method*/, GVariant* /*arguments*/,
                    GDBusMethodInvocation* invocation, gpointer activated) {
    g_dbus_method_invocation_return_value(invocation, nullptr);
    (*static_cast<std::function<void()>*>(activated))();
}

}  // namespace

Activation::Activation(GDBusConnection* bus) : bus_(bus), place_(takeName(bus)) {}

Activation::~Activation() {
    if (object_ != 0) g_dbus_connection_unregister_object(bus_, object_);
}

bool Activation::activateFirst() const {
    const OwnedVariant answer(g_dbus_connection_call_sync(
        bus_, Name, Path, Interface, "Activate", g_variant_new("(a{sv})", nullptr), nullptr,
        G_DBUS_CALL_FLAGS_NO_AUTO_START, MillisecondsToAnswer, nullptr, nullptr));
    return answer != nullptr;
}

void Activation::listen(std::function<void()> activated) {
    static constexpr GDBusInterfaceVTable Answers{&answerActivate, nullptr, nullptr, {}};
    activated_ = std::move(activated);
    auto* const node = g_dbus_node_info_new_for_xml(Introspection, nullptr);
    object_ = g_dbus_connection_register_object(bus_, Path, *node->interfaces, &Answers,
                                                &activated_, nullptr, nullptr);
    g_dbus_node_info_unref(node);
}

}  // namespace brisel::platform::linux
