// What the program does when disks come and go.
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DiskArbitration.h"
#include "platform/FileURL.h"
#include "platform/Platform.h"

namespace brisel {

class NTFSVolumeManager;

/// Records an NTFS volume that has appeared, or was mounted again, under a label of its own;
/// remounts it at once if the user chose that, else has the menu rebuilt. Other disks are logged
/// and ignored. Main thread.
void diskAppeared(NTFSVolumeManager& manager, const platform::Disk& disk);

/// Drops the record of a volume that has gone, and its emptied mount point. Main thread.
void diskDisappeared(NTFSVolumeManager& manager, const platform::Disk& disk);

/// Deletes a mount point folder if nothing is in it. False, after a log line, when the folder
/// could not be listed or deleted; a folder that holds something stays, and that is no failure.
[[nodiscard]] bool removeEmptyMountFolder(const platform::Platform& platform,
                                          const platform::FileURL& folder);

}  // namespace brisel
