// Single instance per session; a second launch activates the first.
// SPDX-License-Identifier: MIT
#include "platform/desktop/SingleInstance.h"

#include <utility>

namespace brisel::platform::desktop {

namespace {

constexpr const char* BusName = "org.brisel.Brisel";
constexpr const char* ObjectPath = "/org/brisel/Brisel";
constexpr const char* Interface = "org.freedesktop.Application";

constexpr const char* ApplicationIntrospection = R"(
<node><interface name='org.freedesktop.Application'>
  <method name='Activate'><arg type='a{sv}' direction='in'/></method>
</interface></node>)";

// Flags and replies of RequestName (D-Bus Specification).
constexpr guint32 DoNotQueue = 4;
constexpr guint32 PrimaryOwner = 1;
constexpr guint32 Exists = 3;

// A key of the platform data of org.freedesktop.Application's methods.
constexpr const char* TokenKey = "activation-token";

// An alert may delay the first instance, which then handles the call later.
constexpr int MillisecondsToAnswer = 5000;

SingleInstance::Place takeName(GDBusConnection* bus) {
    const headless::OwnedVariant answer(g_dbus_connection_call_sync(
        bus, "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
        g_variant_new("(su)", BusName, DoNotQueue), G_VARIANT_TYPE("(u)"), G_DBUS_CALL_FLAGS_NONE,
        -1, nullptr, nullptr));
    guint32 place = 0;
    if (answer) g_variant_get(answer.get(), "(u)", &place);
    if (place == PrimaryOwner) return SingleInstance::Place::First;
    return place == Exists ? SingleInstance::Place::Second : SingleInstance::Place::Unknown;
}

}  // namespace

// Exports the object before owning the name.
SingleInstance::SingleInstance(GDBusConnection* bus, ActivationToken& activationToken)
    : bus_(bus),
      activationToken_(activationToken),
      object_(exportObject()),
      place_(takeName(bus)) {}

SingleInstance::~SingleInstance() {
    if (object_ != 0) g_dbus_connection_unregister_object(bus_, object_);
}

guint SingleInstance::exportObject() {
    const auto answer = [](GDBusConnection*, const gchar*, const gchar*, const gchar*, const gchar*,
                           GVariant* arguments, GDBusMethodInvocation* invocation, gpointer self) {
        const headless::OwnedVariant kept(g_variant_ref(arguments));
        g_dbus_method_invocation_return_value(invocation, nullptr);
        static_cast<SingleInstance*>(self)->noteStart(arguments);
    };
    static const GDBusInterfaceVTable answers{answer, nullptr, nullptr, {}};
    auto* const node = g_dbus_node_info_new_for_xml(ApplicationIntrospection, nullptr);
    const auto object = g_dbus_connection_register_object(bus_, ObjectPath, *node->interfaces,
                                                          &answers, this, nullptr, nullptr);
    g_dbus_node_info_unref(node);
    return object;
}

void SingleInstance::noteStart(GVariant* arguments) {
    const headless::OwnedVariant platformData(g_variant_get_child_value(arguments, 0));
    const char* token = nullptr;
    if (g_variant_lookup(platformData.get(), TokenKey, "&s", &token) != FALSE)
        activationToken_.set(token);
    if (activated_) {
        activated_();
    } else {
        startedMeanwhile_ = true;
    }
}

bool SingleInstance::activateFirst() const {
    GVariantBuilder platformData;
    g_variant_builder_init(&platformData, G_VARIANT_TYPE_VARDICT);
    if (const auto token = activationToken_.take(); !token.empty()) {
        g_variant_builder_add(&platformData, "{sv}", TokenKey, g_variant_new_string(token.c_str()));
    }
    headless::CallError error;
    const headless::OwnedVariant answer(g_dbus_connection_call_sync(
        bus_, BusName, ObjectPath, Interface, "Activate", g_variant_new("(a{sv})", &platformData),
        nullptr, G_DBUS_CALL_FLAGS_NO_AUTO_START, MillisecondsToAnswer, nullptr, error.receive()));
    return answer || g_error_matches(error.get(), G_IO_ERROR, G_IO_ERROR_TIMED_OUT) != FALSE;
}

void SingleInstance::listen(std::function<void()> activated) {
    activated_ = std::move(activated);
    if (std::exchange(startedMeanwhile_, false)) activated_();
}

}  // namespace brisel::platform::desktop
