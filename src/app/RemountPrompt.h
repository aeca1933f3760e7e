// The notification that offers to remount a volume read-write.
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/Platform.h"
#include "volumes/NTFSVolume.h"

namespace brisel {

/// Asks for permission to notify, and with it posts the prompt for this volume; then marks the
/// volume as offered. A prompt for another volume that is still shown is replaced. Main thread;
/// what follows the permission runs where the notification center calls back.
void postRemountPrompt(const platform::Platform& platform,
                       const std::shared_ptr<NTFSVolume>& volume);

}  // namespace brisel
