// Folders that both Brisel and its mount tool know.
// SPDX-License-Identifier: MIT
#pragma once

namespace brisel::shared {

/// The folder in the user's home that holds the mount points.
inline constexpr const char* MountFolders = ".brisel";

/// The start of the path where the mount tool mounts a volume until it has verified it. Brisel
/// ignores mounts there.
inline constexpr const char* StagingPrefix = "/run/brisel-";

}  // namespace brisel::shared
