// The status icon: its colour shows the state, its variant follows the menu bar's appearance.
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "platform/Bundle.h"
#include "platform/Format.h"
#include "platform/StatusItem.h"

namespace brisel {

namespace {

const char* colourWord(AppDelegate::StatusIcon state) {
    switch (state) {
        case AppDelegate::StatusIcon::ReadOnly:
            return "green-";
        case AppDelegate::StatusIcon::Writable:
            return "blue-";
        case AppDelegate::StatusIcon::InProgress:
            return "orange-";
        case AppDelegate::StatusIcon::Error:
            return "red-";
        case AppDelegate::StatusIcon::NoVolumes:
            break;
    }
    return "grey-";
}

// Also matches the high-contrast appearances, whose names contain "Dark".
bool isDark(const std::string& appearanceName) {
    return platform::lowercased(appearanceName).find("dark") != std::string::npos;
}

}  // namespace

void AppDelegate::refreshIcon() {
    std::string name = "brisel-status-";
    name += colourWord(statusIcon_);
    name += isDark(platform_.statusItem.effectiveAppearanceName()) ? "dark" : "light";
    if (platform_.bundle.hasImage(name)) {
        platform_.statusItem.setImage(name);
    } else {
        platform_.statusItem.setImage(std::nullopt);
    }
}

void AppDelegate::errorIcon() {
    statusIcon_ = StatusIcon::Error;
    refreshIcon();
}

void AppDelegate::observeValueForKeyPath(std::string_view keyPath) {
    if (keyPath == EffectiveAppearanceKeyPath) refreshIcon();
}

}  // namespace brisel
