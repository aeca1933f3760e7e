// GTK's dark style as the desktop's Settings portal says.
// SPDX-License-Identifier: MIT
#include "tools/dialog/DarkStyle.h"

#include <string_view>

#include "shared/SettingsPortal.h"

namespace brisel::dialog {

namespace {

using shared::SettingsPortal;

// The value is in one or two variants, depending on the portal's version and the method.
bool prefersDark(GVariant* value) {
    GVariant* inner = g_variant_ref(value);
    while (g_variant_is_of_type(inner, G_VARIANT_TYPE_VARIANT) != FALSE) {
        GVariant* const outer = inner;
        inner = g_variant_get_variant(outer);
        g_variant_unref(outer);
    }
    const bool dark = g_variant_is_of_type(inner, G_VARIANT_TYPE_UINT32) != FALSE &&
                      g_variant_get_uint32(inner) == SettingsPortal::PreferDark;
    g_variant_unref(inner);
    return dark;
}

void apply(GVariant* value) {
    constexpr const char* Property = "gtk-application-prefer-dark-theme";
    auto* const settings = gtk_settings_get_default();
    if (prefersDark(value)) {
        g_object_set(settings, Property, TRUE, nullptr);
    } else {
        gtk_settings_reset_property(settings, Property);
    }
}

void takeSignal(GDBusProxy* /*portal*/, const char* /*sender*/, const char* signal,
                GVariant* arguments, gpointer /*data*/) {
    const bool fits = std::string_view(signal) == "SettingChanged" &&
                      g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)")) != FALSE;
    if (!fits) return;
    const char* space = nullptr;
    const char* key = nullptr;
    GVariant* value = nullptr;
    g_variant_get(arguments, "(&s&sv)", &space, &key, &value);
    if (std::string_view(space) == SettingsPortal::Namespace &&
        std::string_view(key) == SettingsPortal::ColourSchemeKey)
        apply(value);
    g_variant_unref(value);
}

void read(GDBusProxy* portal) {
    // The window waits for this, so that it does not appear light first.
    constexpr int MillisecondsToWait = 500;
    GVariant* const answer = g_dbus_proxy_call_sync(
        portal, "Read",
        g_variant_new("(ss)", SettingsPortal::Namespace, SettingsPortal::ColourSchemeKey),
        G_DBUS_CALL_FLAGS_NONE, MillisecondsToWait, nullptr, nullptr);
    if (answer == nullptr) return;
    if (g_variant_is_of_type(answer, G_VARIANT_TYPE("(v)")) != FALSE) {
        GVariant* const value = g_variant_get_child_value(answer, 0);
        apply(value);
        g_variant_unref(value);
    }
    g_variant_unref(answer);
}

}  // namespace

DarkStyle::DarkStyle() {
    constexpr auto Flags =
        static_cast<GDBusProxyFlags>(G_DBUS_PROXY_FLAGS_DO_NOT_LOAD_PROPERTIES |
                                     G_DBUS_PROXY_FLAGS_DO_NOT_AUTO_START_AT_CONSTRUCTION);
    portal_ = g_dbus_proxy_new_for_bus_sync(G_BUS_TYPE_SESSION, Flags, nullptr,
                                            SettingsPortal::Name, SettingsPortal::Path,
                                            SettingsPortal::Interface, nullptr, nullptr);
    if (portal_ == nullptr) return;
    g_signal_connect(portal_, "g-signal", G_CALLBACK(&takeSignal), nullptr);
    read(portal_);
}

DarkStyle::~DarkStyle() {
    g_clear_object(&portal_);
}

}  // namespace brisel::dialog
