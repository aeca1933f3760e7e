// HOME/.brisel, the folder of the mount tool's mount points.
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace brisel::platform::headless {

/// HOME/.brisel.
std::string mountFolderIn(const std::string& home);

/// True if `path` lies below `folder`, compared as text. False for `folder` itself and for a path
/// with a ".." component.
bool isBelow(std::string_view path, std::string_view folder);

/// True if `path` is FOLDER/NAME, where NAME is not "." or "..".
bool isMountPointIn(std::string_view folder, std::string_view path);

/// Removes empty folders directly in `folder` that are not mount points; failed runs of the mount
/// tool leave them. Does nothing if `folder` is a symbolic link.
void removeEmptyMountPoints(const std::string& folder);

}  // namespace brisel::platform::headless
