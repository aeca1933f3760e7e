// Application start, termination and the About action.
// SPDX-License-Identifier: MIT
#include "app/AppDelegate.h"

#include <utility>

#include "app/MainMenu.h"
#include "app/Preferences.h"
#include "platform/Alert.h"
#include "platform/Application.h"
#include "platform/Menu.h"
#include "platform/StatusItem.h"
#include "platform/UserDefaults.h"

namespace brisel {

void AppDelegate::initialize(const platform::Platform& platform) {
    platform.userDefaults.registerDefaults(
        {{ShouldStartAtLoginKey, false}, {ShowDisclaimerKey, true}});
}

AppDelegate::AppDelegate(const platform::Platform& platform, VolumeManagerSource sharedManager)
    : platform_(platform), sharedManager_(std::move(sharedManager)) {}

void AppDelegate::awakeFromNib() {
    volumeManager_ = &sharedManager_();
    volumeManager_->setDelegate(weak_from_this());
    platform_.statusItem.create(platform::VariableStatusItemLength);
    platform_.statusItem.showStatusMenu();
    shouldStartAtLogin_ = platform_.userDefaults.boolForKey(ShouldStartAtLoginKey);
    showDisclaimer_ = platform_.userDefaults.boolForKey(ShowDisclaimerKey);
    // From the preference; does not query the login item, which may differ.
    platform_.statusMenu.setChecked(ToggleStartAtLoginAction, shouldStartAtLogin_);
    if (showDisclaimer_ && showWarningNotice() == Answer::Refused) return;
    refreshVolumes();
    appearanceObservation_ = platform_.statusItem.observeEffectiveAppearance(
        [this] { observeValueForKeyPath(EffectiveAppearanceKeyPath); });
}

void AppDelegate::applicationWillTerminate() {
    platform_.userDefaults.synchronize();
    appearanceObservation_.reset();
}

void AppDelegate::bringToFront() {
    platform_.application.activateIgnoringOtherApps();
    platform_.application.orderFrontStandardAboutPanel();
}

}  // namespace brisel
