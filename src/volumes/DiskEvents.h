// Handlers of Disk Arbitration's appeared and disappeared callbacks.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DiskArbitration.h"
#include "platform/FileURL.h"
#include "platform/Platform.h"

namespace brisel {

class NTFSVolumeManager;

/// Records a new or remounted NTFS volume under a unique label. Remounts it if it is read-only and
/// on the automount list; otherwise refreshes the menu. Only logs other disks. Main thread.
void diskAppeared(NTFSVolumeManager& manager, const platform::Disk& disk,
                  platform::DiskDescription description);

/// Removes the volume's record and its empty mount point. Keeps the record if
/// removeEmptyMountFolder fails. Main thread.
void diskDisappeared(NTFSVolumeManager& manager, const platform::Disk& disk,
                     const platform::DiskDescription& description);

/// Deletes a mount point folder if it is empty. False, after a log line, if listing or deleting
/// fails.
[[nodiscard]] bool removeEmptyMountFolder(const platform::Platform& platform,
                                          const platform::FileURL& folder);

}  // namespace brisel
