// Brisel on a Linux desktop.
// SPDX-License-Identifier: MIT
#include "entry/desktop/Desktop.h"

#include <cstdlib>

#include "app/Launch.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/Process.h"

namespace brisel::desktop {

namespace {

using Place = platform::desktop::SingleInstance::Place;

}  // namespace

Desktop::Desktop(GDBusConnection* bus) : services_(bus) {
    services_.bundle.setLanguages(platform::headless::userLanguages());
    services_.application.setEnd([this] { services_.mainLoop.quit(); });
}

Desktop::~Desktop() = default;

int Desktop::run() {
    if (services_.singleInstance.place() == Place::First) {
        runFirst();
        return EXIT_SUCCESS;
    }
    if (services_.singleInstance.place() == Place::Second &&
        services_.singleInstance.activateFirst())
        return EXIT_SUCCESS;
    services_.systemLog.log(
        "Brisel is already running but does not answer, or the session bus failed.");
    return EXIT_FAILURE;
}

void Desktop::runFirst() {
    platform::headless::removeEmptyMountPoints(
        platform::headless::mountFolderIn(services_.fileManager.homeDirectory()));
    platform::install(platform::platformOf(services_));
    delegate_ = loadInterface(services_);
    const auto ending = platform::headless::whenReadable(
        services_.terminationSignals.descriptor(), [this] { services_.application.terminate(); });
    services_.singleInstance.listen([this] { services_.menuWindow.show(); });
    delegate_->awakeFromNib();
    if (!services_.application.terminated()) services_.mainLoop.run();
}

}  // namespace brisel::desktop
