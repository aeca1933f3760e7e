// Brisel on a Linux desktop.
// SPDX-License-Identifier: MIT
#include "entry/desktop/Desktop.h"

#include <chrono>
#include <cstdlib>

#include "app/Launch.h"
#include "app/RemountPrompt.h"
#include "app/UnplugNotice.h"
#include "mounting/Unmount.h"
#include "platform/headless/MainContext.h"
#include "platform/headless/MountFolder.h"
#include "platform/headless/Process.h"

namespace brisel::desktop {

namespace {

using Place = platform::desktop::SingleInstance::Place;

}  // namespace

Desktop::Desktop(GDBusConnection* bus) : bus_(bus), services_(bus) {
    services_.bundle.setLanguages(platform::headless::userLanguages());
    services_.application.setEnd([this] {
        endPrompts();
        services_.mainLoop.quit();
    });
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

// A click on a prompt itself opens the menu in a window, which offers the remount too.
void Desktop::watchPrompts() {
    auto& center = services_.userNotificationCenter;
    center.setMoot([](const auto& prompt) {
        return !isPromptOpen(NTFSVolumeManager::sharedInstance(), prompt);
    });
    clicksOnPrompts_ = center.setDelegate([this](const auto& response, const auto& /*done*/) {
        if (response.actionIdentifier == platform::NotificationDefaultActionIdentifier)
            services_.menuWindow.show();
    });
    // Every change of the volumes rebuilds the menu.
    menuChanges_ = services_.statusMenu.observeChanges([this] { withdrawPromptsSoon(); });
}

void Desktop::announceUnmounted(const NTFSVolume& volume) {
    constexpr std::chrono::seconds Lifetime{8};
    if (!services_.diskArbitration.mayBeUnplugged(volume.deviceNode().value_or(""))) return;
    const UnplugNotice notice(services_.bundle, volume);
    services_.notifications.show(
        {.summary = notice.title, .body = notice.body, .lifetime = Lifetime},
        [](auto /*number*/, const auto& /*error*/) {});
}

// Once the main loop turns: a disk that another program mounts disappears and appears at once.
void Desktop::withdrawPromptsSoon() {
    withdrawal_ = platform::headless::whenMainLoopTurns(
        [this] { services_.userNotificationCenter.withdrawMoot(); });
}

void Desktop::endPrompts() {
    auto& center = services_.userNotificationCenter;
    center.setMoot([](const auto& /*prompt*/) { return true; });
    center.withdrawMoot();
    g_dbus_connection_flush_sync(bus_, nullptr, nullptr);
}

void Desktop::runFirst() {
    platform::headless::removeEmptyMountPoints(
        platform::headless::mountFolderIn(services_.fileManager.homeDirectory()));
    platform::install(platform::platformOf(services_));
    delegate_ = loadInterface(services_);
    const auto ending = platform::headless::whenReadable(
        services_.terminationSignals.descriptor(), [this] { services_.application.terminate(); });
    watchPrompts();
    unmounts_ = services_.notificationCenter.addObserver(
        NTFSVolumeDidUnmountNotification,
        [this](const void* volume) { announceUnmounted(*static_cast<const NTFSVolume*>(volume)); });
    services_.statusItem.setMenuWindow([this] { services_.menuWindow.show(); });
    services_.singleInstance.listen([this] { services_.menuWindow.show(); });
    delegate_->awakeFromNib();
    if (!services_.application.terminated()) services_.mainLoop.run();
}

}  // namespace brisel::desktop
