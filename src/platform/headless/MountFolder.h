// The folder in the user's home that holds the mount points of the mount tool.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::headless {

/// The mount folder of a home directory: HOME/.brisel.
std::string mountFolderIn(const std::string& home);

/// True if `path` names something below `folder`, by its text alone. False if a component of
/// `path` is "..", or if it names `folder` itself.
bool isBelow(std::string_view path, std::string_view folder);

/// True if `path` is `folder` and one name more. "." and ".." are no names.
bool isMountPointIn(std::string_view folder, std::string_view path);

/// Removes the mount points that a failed run of the mount tool left behind: each empty folder
/// directly in `folder` that nothing is mounted on. Does nothing if `folder` is a symbolic link.
void removeEmptyMountPoints(const std::string& folder);

}  // namespace brisel::platform::headless
