// The remount prompt: notification category, request and response.
// SPDX-License-Identifier: MIT
#include "app/RemountPrompt.h"

#include "platform/Bundle.h"
#include "platform/Format.h"
#include "platform/SystemLog.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolumeManager.h"

namespace brisel {

namespace {

constexpr const char* CategoryIdentifier = "MOUNT";
constexpr const char* MountAction = "DO_MOUNT";
constexpr const char* NothingAction = "NOTHING";
// Shared by all volumes, so a new prompt replaces the previous one.
constexpr const char* RequestIdentifier = "mount";
constexpr const char* VolumeKey = "volume";
constexpr const char* SoundName = "Hero";
constexpr std::chrono::milliseconds Delay{200};

platform::NotificationRequest makeRequest(const platform::Bundle& bundle,
                                          const NTFSVolume& volume) {
    return {
        .identifier = RequestIdentifier,
        .title = platform::stringWithFormat(bundle.localizedString("%@ detected"), volume.label()),
        .body = bundle.localizedString("Re-mount it read-write?"),
        .soundName = SoundName,
        .categoryIdentifier = CategoryIdentifier,
        .userInfo = {{VolumeKey, platform::orNullText(volume.deviceNode())}},
        .delay = Delay};
}

void addPrompt(const platform::Platform& platform, const std::shared_ptr<NTFSVolume>& volume) {
    platform.userNotificationCenter.addNotificationRequest(
        makeRequest(platform.bundle, *volume),
        [volume, &log = platform.systemLog](const std::optional<platform::Error>& error) {
            if (error) {
                log.log("Adding Local Notification failed!");
            } else {
                volume->setNotificationSent(true);
            }
        });
}

std::optional<std::string> deviceIn(const platform::UserInfo& prompt) {
    const auto device = prompt.find(VolumeKey);
    return device != prompt.end() ? std::optional(device->second) : std::nullopt;
}

}  // namespace

void postRemountPrompt(const platform::Platform& platform,
                       const std::shared_ptr<NTFSVolume>& volume) {
    platform.userNotificationCenter.requestAuthorization(
        platform::AuthorizationOptionAlert | platform::AuthorizationOptionSound,
        [platform, volume](bool granted, const std::optional<platform::Error>& error) {
            if (error) {
                platform.systemLog.log("Requesting auth for Local Notification failed!");
            } else if (granted) {
                addPrompt(platform, volume);
            }
        });
}

bool isPromptOpen(const NTFSVolumeManager& manager, const platform::UserInfo& prompt) {
    const auto volume = findVolume(manager.volumes(), deviceIn(prompt));
    return volume && !volume->writable();
}

void NTFSVolumeManager::registerNotificationCategory() {
    auto& center = platform_.userNotificationCenter;
    responses_ = center.setDelegate([this](const auto& response, const auto& completionHandler) {
        userNotificationCenterDidReceiveNotificationResponseWithCompletionHandler(
            response, completionHandler);
    });
    const auto& bundle = platform_.bundle;
    center.setNotificationCategories(
        {{.identifier = CategoryIdentifier,
          .actions = {
              {.identifier = MountAction, .title = bundle.localizedString("Yes, sure!")},
              {.identifier = NothingAction, .title = bundle.localizedString("No, thanks.")}}}});
}

// Deliberately never calls the completion handler; the center works without it.
void NTFSVolumeManager::userNotificationCenterDidReceiveNotificationResponseWithCompletionHandler(
    const platform::NotificationResponse& response,
    const platform::UserNotificationCenter::CompletionHandler& /*completionHandler*/) {
    if (response.requestIdentifier != RequestIdentifier) return;
    if (response.actionIdentifier != MountAction) return;
    remountVolumeNamed(deviceIn(response.userInfo));
}

}  // namespace brisel
