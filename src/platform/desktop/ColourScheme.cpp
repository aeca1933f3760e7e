// The desktop's light or dark colour scheme.
// SPDX-License-Identifier: MIT
#include "platform/desktop/ColourScheme.h"

#include <string_view>
#include <utility>

#include "shared/SettingsPortal.h"

namespace brisel::platform::desktop {

namespace {

using shared::SettingsPortal;

// The value is in one or two variants, depending on the portal's version and the method.
headless::OwnedVariant innermost(GVariant* value) {
    headless::OwnedVariant inner(g_variant_ref(value));
    while (g_variant_is_of_type(inner.get(), G_VARIANT_TYPE_VARIANT) != FALSE) {
        inner.reset(g_variant_get_variant(inner.get()));
    }
    return inner;
}

}  // namespace

ColourScheme::ColourScheme(GDBusConnection* bus, std::function<void(Scheme)> changed)
    : changed_(std::move(changed)),
      portal_(bus, SettingsPortal::Name, SettingsPortal::Path, SettingsPortal::Interface) {
    changes_ = portal_.onSignal("SettingChanged", [this](GVariant* arguments) {
        if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(ssv)")) == FALSE) return;
        const char* space = nullptr;
        const char* key = nullptr;
        GVariant* value = nullptr;
        g_variant_get(arguments, "(&s&sv)", &space, &key, &value);
        const headless::OwnedVariant owned(value);
        if (std::string_view(space) != SettingsPortal::Namespace) return;
        if (std::string_view(key) == SettingsPortal::ColourSchemeKey) take(value);
    });
    watching_ = portal_.watch([this] { ask(); }, [] {});
    // The first call also activates the portal, if installed.
    ask();
}

void ColourScheme::ask() {
    portal_.call("Read",
                 g_variant_new("(ss)", SettingsPortal::Namespace, SettingsPortal::ColourSchemeKey),
                 [this](const auto& answer, const auto& /*error*/) {
                     if (!answer || g_variant_n_children(answer.get()) != 1) return;
                     const headless::OwnedVariant value(g_variant_get_child_value(answer.get(), 0));
                     take(value.get());
                 });
}

void ColourScheme::take(GVariant* value) {
    const auto setting = innermost(value);
    if (g_variant_is_of_type(setting.get(), G_VARIANT_TYPE_UINT32) == FALSE) return;
    const bool dark = g_variant_get_uint32(setting.get()) == SettingsPortal::PreferDark;
    const auto scheme = dark ? Scheme::Dark : Scheme::Light;
    if (std::exchange(scheme_, scheme) != scheme) changed_(scheme);
}

}  // namespace brisel::platform::desktop
