// The steps of a read-write remount after the unmount request.
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/DiskArbitration.h"

namespace brisel {

class NTFSVolumeManager;

/// Reports a dissenter, or mounts read-write: with the system's mount tool or, before macOS 12,
/// through Disk Arbitration. Main thread; blocks while the tool runs.
void remountUnmountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                             const std::optional<platform::Dissenter>& dissenter);

/// Reports a dissenter, or records the volume and opens it in Finder. Main thread.
void remountMountDidFinish(NTFSVolumeManager& manager, const platform::Disk& disk,
                           const std::optional<platform::Dissenter>& dissenter);

/// Mounts `disk` read-write at ~/.brisel/LABEL as root. `description` is that of the unmounted
/// disk. Main thread; blocks during the password prompt and the mount.
void mountWithTool(NTFSVolumeManager& manager, const platform::Disk& disk,
                   const platform::DiskDescription& description);

}  // namespace brisel
