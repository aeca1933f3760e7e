// Loads the interface on platforms that have no nib.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <utility>

#include "app/AppDelegate.h"
#include "app/MainMenu.h"

namespace brisel {

/// Registers the default preferences, makes the delegate, fills the status menu, and lets the
/// delegate hear of the application's end. `services` holds a platform's services
/// and must outlive the delegate. Call `awakeFromNib` on the result to start the program.
template <typename Services>
std::shared_ptr<AppDelegate> loadInterface(
    Services& services,
    AppDelegate::VolumeManagerSource sharedManager = &NTFSVolumeManager::sharedInstance) {
    const auto platform = platform::platformOf(services);
    AppDelegate::initialize(platform);
    auto delegate = std::make_shared<AppDelegate>(platform, std::move(sharedManager));
    services.statusMenu.load(mainMenuItems(delegate, platform));
    services.application.setTerminationStep([delegate] { delegate->applicationWillTerminate(); });
    return delegate;
}

}  // namespace brisel
