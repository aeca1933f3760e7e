// Completion of the unmount that the menu requests.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// Posted once a volume is unmounted from the menu; the object is its NTFSVolume.
inline constexpr const char* NTFSVolumeDidUnmountNotification = "NTFSVolumeDidUnmountNotification";

/// Removes the unmounted volume from the list, or reports the dissenter. Main thread.
void unmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                      const std::optional<platform::Dissenter>& dissenter);

}  // namespace brisel
