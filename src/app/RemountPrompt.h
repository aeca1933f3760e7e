// The notification that offers to remount a volume read-write.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "platform/UserNotificationCenter.h"
#include "volumes/NTFSVolume.h"

namespace brisel {

class NTFSVolumeManager;

/// Requests notification permission. If granted, posts the prompt for `volume`, which replaces any
/// earlier prompt, and sets `notificationSent` once the center accepts it. Main thread; the
/// callbacks run on the notification center's thread.
void postRemountPrompt(const platform::Platform& platform,
                       const std::shared_ptr<NTFSVolume>& volume);

/// True while a yes to the prompt with this user info remounts a volume: one that is listed and
/// read-only.
bool isPromptOpen(const NTFSVolumeManager& manager, const platform::UserInfo& prompt);

}  // namespace brisel
