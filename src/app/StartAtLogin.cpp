// The action of the start-at-login menu item.
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"
#include "app/MainMenu.h"
#include "app/Preferences.h"
#include "platform/Alert.h"
#include "platform/Bundle.h"
#include "platform/LoginItems.h"
#include "platform/UserDefaults.h"
#include "shared/IgnoreResult.h"

namespace brisel {

void AppDelegate::toggleStartAtLogin() {
    const bool wanted = !shouldStartAtLogin_;
    if (platform_.loginItems.setEnabled(LoginHelperIdentifier, wanted)) {
        shouldStartAtLogin_ = wanted;
        platform_.statusMenu.setChecked(ToggleStartAtLoginAction, wanted);
        platform_.userDefaults.setBool(ShouldStartAtLoginKey, wanted);
        return;
    }
    // Deliberate: looks the word up but shows the text with its placeholder unfilled.
    const auto& bundle = platform_.bundle;
    shared::ignoreResult(bundle.localizedString(shouldStartAtLogin_ ? "add" : "remove"));
    platform_.alert.runModal({.messageText = bundle.localizedString("An error ocurred"),
                              .informativeText = bundle.localizedString(
                                  "Couldn't %@ Helper App to launch at login item list."),
                              .buttons = {bundle.localizedString("OK")}});
}

}  // namespace brisel
