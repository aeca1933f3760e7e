// Brisel on a Linux desktop.
// SPDX-License-Identifier: MIT
#include "entry/desktop/Desktop.h"

#include <cstdlib>
#include <iostream>

#include "app/MainMenu.h"
#include "platform/common/VisibleText.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/Process.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel::desktop {

namespace {

using Place = platform::desktop::SingleInstance::Place;

void printLogEntry(const std::string& text) {
    std::cerr << "brisel: " + platform::common::visible(text) + '\n';
}

}  // namespace

Desktop::Desktop(GDBusConnection* bus)
    : systemLog_(&printLogEntry),
      singleInstance_(bus),
      notifications_(bus),
      statusItem_({.bus = bus,
                   .log = systemLog_,
                   .bundle = bundle_,
                   .menu = statusMenu_,
                   .mainThread = mainThread_}) {
    bundle_.setLanguages(platform::headless::userLanguages());
    application_.setEnd([this] { mainLoop_.quit(); });
}

Desktop::~Desktop() = default;

int Desktop::run() {
    if (singleInstance_.place() == Place::First) {
        runFirst();
        return EXIT_SUCCESS;
    }
    if (singleInstance_.place() == Place::Second && singleInstance_.activateFirst())
        return EXIT_SUCCESS;
    systemLog_.log("Brisel is already running but does not answer, or the session bus failed.");
    return EXIT_FAILURE;
}

void Desktop::runFirst() {
    platform::headless::removeEmptyMountPoints(
        platform::headless::mountFolderIn(fileManager_.homeDirectory()));
    platform::install(platform_);
    AppDelegate::initialize(platform_);
    delegate_ = std::make_shared<AppDelegate>(platform_);
    statusMenu_.load(mainMenuItems(delegate_, platform_));
    application_.setTerminationStep([this] { delegate_->applicationWillTerminate(); });
    const auto ending = platform::headless::whenReadable(terminationSignals_.descriptor(),
                                                         [this] { application_.terminate(); });
    singleInstance_.listen([this] { menuWindow_.show(); });
    delegate_->awakeFromNib();
    if (!application_.terminated()) mainLoop_.run();
}

}  // namespace brisel::desktop
