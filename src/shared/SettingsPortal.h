// The colour scheme in the desktop's Settings portal.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::shared {

struct SettingsPortal {
    static constexpr const char* Name = "org.freedesktop.portal.Desktop";
    static constexpr const char* Path = "/org/freedesktop/portal/desktop";
    static constexpr const char* Interface = "org.freedesktop.portal.Settings";
    static constexpr const char* Namespace = "org.freedesktop.appearance";
    static constexpr const char* ColourSchemeKey = "color-scheme";
    /// 0 is no preference, 2 light.
    static constexpr unsigned PreferDark = 1;
};

}  // namespace brisel::shared
