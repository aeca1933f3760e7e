// The completions of a read-write remount.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// The volume was unmounted, or not: goes on with the read-write mount, by the system's mount tool
/// or, before macOS 12, by Disk Arbitration. Blocks while the tool runs. Main thread.
void remountUnmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                             const std::optional<platform::Dissenter>& dissenter);

/// Disk Arbitration has mounted the volume again, or not. Main thread.
void remountMountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                           const std::optional<platform::Dissenter>& dissenter);

/// The same through the system's mount tool as administrator, onto the volume's folder inside the
/// hidden mount folder. `description` is that of the unmounted disk. Main thread; blocks.
void mountWithTool(NTFSVolumeManager& manager, const platform::Disk& disk,
                   const platform::DiskDescription& description);

}  // namespace brisel
