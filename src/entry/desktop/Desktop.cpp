// Brisel on a Linux desktop.
// SPDX-License-Identifier: MIT
#include "entry/desktop/Desktop.h"

#include <cstdlib>
#include <iostream>

#include "app/MainMenu.h"
#include "platform/common/VisibleText.h"
#include "platform/linux/MountFolder.h"
#include "platform/linux/Process.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::desktop {

namespace {

using Place = platform::linux::Activation::Place;

void printLogEntry(const std::string& text) {
    std::cerr << "brisel: " + platform::common::visible(text) + '\n';
}

}  // namespace

Desktop::Desktop(GDBusConnection* bus)
    : systemLog_(&printLogEntry),
      activation_(bus),
      notifications_(bus),
      statusItem_({.bus = bus,
                   .log = systemLog_,
                   .bundle = bundle_,
                   .menu = statusMenu_,
                   .mainThread = mainThread_}) {
    bundle_.setLanguages(platform::linux::userLanguages());
    application_.setEnd([this] { mainLoop_.quit(); });
}

Desktop::~Desktop() = default;

int Desktop::run() {
    if (activation_.place() == Place::First) {
        runFirst();
        return EXIT_SUCCESS;
    }
    if (activation_.place() == Place::Second && activation_.activateFirst()) return EXIT_SUCCESS;
    systemLog_.log("Another Brisel refuses to show itself, or the session bus is out of order.");
    return EXIT_FAILURE;
}

void Desktop::runFirst() {
    platform::linux::removeEmptyMountPoints(
        platform::linux::mountFolderIn(fileManager_.homeDirectory()));
    platform::install(platform_);
    AppDelegate::initialize(platform_);
    delegate_ = std::make_shared<AppDelegate>(platform_);
    statusMenu_.load(mainMenuItems(delegate_, platform_));
    application_.setTerminationStep([this] { delegate_->applicationWillTerminate(); });
    const auto ending = platform::linux::whenReadable(interruption_.descriptor(),
                                                      [this] { application_.terminate(); });
    activation_.listen([this] { menuWindow_.show(); });
    delegate_->awakeFromNib();
    if (!application_.terminated()) mainLoop_.run();
}

}  // namespace brisel::desktop
